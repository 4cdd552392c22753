// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/GCloudExecutor.h"

#include <qcoro/coroutine.h>

#include <gtest/gtest.h>

#include <deque>
#include <exception>
#include <memory>
#include <optional>
#include <utility>

namespace torvi {

/// Plays back answers in their order. Strict: an unexpected command fails the test, and so does an
/// answer that nothing asked for.
class FakeExecutor final : public GCloudExecutor
{
public:
    /// A run of gcloud that lasts until the test ends it.
    class Run
    {
    public:
        void finish(GCloudResult result)
        {
            m_result = std::move(result);
            resume();
        }

        void fail(std::exception_ptr error)
        {
            m_error = std::move(error);
            resume();
        }

        [[nodiscard]] bool isRunning() const
        {
            return static_cast<bool>(m_caller);
        }

    private:
        friend class FakeExecutor;

        struct Ending
        {
            Run &run;

            [[nodiscard]] bool await_ready() const
            {
                return run.m_result || run.m_error;
            }

            void await_suspend(std::coroutine_handle<> caller) const
            {
                run.m_caller = caller;
            }

            [[nodiscard]] GCloudResult await_resume() const
            {
                if (run.m_error) {
                    std::rethrow_exception(run.m_error);
                }
                return *run.m_result;
            }
        };

        void resume()
        {
            if (auto caller = std::exchange(m_caller, nullptr)) {
                caller.resume();
            }
        }

        std::optional<GCloudResult> m_result;
        std::exception_ptr m_error;
        std::coroutine_handle<> m_caller;
    };

    ~FakeExecutor() override
    {
        EXPECT_TRUE(m_expected.empty()) << m_expected.size() << " expected commands never ran";
    }

    /// The next command will be `command`; it runs until the test ends the run.
    std::shared_ptr<Run> expect(GCloudCommand command)
    {
        auto run = std::make_shared<Run>();
        m_expected.emplace_back(std::move(command), run);
        return run;
    }

    /// The next command will be `command`; it ends at once.
    void expect(GCloudCommand command, GCloudResult result)
    {
        expect(std::move(command))->finish(std::move(result));
    }

    template <typename Error>
    void expectFailure(GCloudCommand command, Error error)
    {
        expect(std::move(command))->fail(std::make_exception_ptr(std::move(error)));
    }

    QCoro::Task<GCloudResult> execute(GCloudCommand command) override
    {
        if (m_expected.empty() || m_expected.front().first != command) {
            ADD_FAILURE() << "unexpected command, case " << static_cast<int>(command.asCase());
            throw std::logic_error("unexpected command");
        }
        auto run = std::exchange(m_expected.front().second, nullptr);
        m_expected.pop_front();
        return ending(std::move(run));
    }

private:
    static QCoro::Task<GCloudResult> ending(std::shared_ptr<Run> run)
    {
        Run::Ending ending{ *run };
        GCloudResult result = co_await ending;
        co_return result;
    }

    std::deque<std::pair<GCloudCommand, std::shared_ptr<Run>>> m_expected;
};

} // namespace torvi

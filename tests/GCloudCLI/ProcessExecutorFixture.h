// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/BrowserAuthHandler.h"
#include "GCloudCLI/FileDescriptor.h"
#include "GCloudCLI/GCloudPathResolving.h"
#include "GCloudCLI/ProcessExecutor.h"
#include "GCloudModels/AppError.h"
#include "tests/support/ScriptFolder.h"

#include <QCoreApplication>
#include <qcoro/qcorotask.h>

#include <gtest/gtest.h>

#include <condition_variable>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>

namespace torvi {

using namespace Qt::StringLiterals;

/// A search that is over at once.
class FixedPath final : public GCloudPathResolving
{
public:
    explicit FixedPath(QString path)
        : m_path(std::move(path))
    {
    }

    [[nodiscard]] QString resolve(std::stop_token /*stop*/) const override
    {
        return m_path;
    }

private:
    QString m_path;
};

/// A search that lasts until it is told the path or is stopped.
class SlowSearch final : public GCloudPathResolving
{
public:
    void find(const QString &path)
    {
        const std::lock_guard guard(m_lock);
        m_path = path;
        m_changed.notify_all();
    }

    [[nodiscard]] QString resolve(std::stop_token stop) const override
    {
        std::unique_lock lock(m_lock);
        if (!m_changed.wait(lock, std::move(stop), [this] { return m_path.has_value(); })) {
            throw AppError::gcloudNotFound();
        }
        return *m_path;
    }

private:
    mutable std::mutex m_lock;
    mutable std::condition_variable_any m_changed;
    std::optional<QString> m_path;
};

/// What became of a call whose end nobody waits for at once.
struct Outcome
{
    std::optional<GCloudResult> result;
    std::optional<AppError> error;

    [[nodiscard]] bool isKnown() const
    {
        return result.has_value() || error.has_value();
    }
};

/// A script in the place of gcloud, with the folder of the test in $dir and a FIFO in $fifo.
class ProcessExecutorFixture : public testing::Test
{
protected:
    ScriptFolder folder;
    QString gcloud = folder.path(u"gcloud"_s);
    QString fifo = makeFifo(u"fifo"_s);
    std::shared_ptr<const GCloudPathResolving> search = std::make_shared<FixedPath>(gcloud);
    std::shared_ptr<BrowserAuthHandler> handler;
    std::optional<std::chrono::milliseconds> drain; ///< absent: the executor's own
    std::unique_ptr<ProcessExecutor> executor;

    [[nodiscard]] QString makeFifo(const QString &name) const
    {
        EXPECT_EQ(::mkfifo(QFile::encodeName(folder.path(name)).constData(), 0600), 0);
        return folder.path(name);
    }

    void script(const QByteArray &body) const
    {
        folder.writeScript(u"gcloud"_s,
                           "dir='" + folder.path().toUtf8() + "'; fifo=$dir/fifo\n" + body);
    }

    QCoro::Task<GCloudResult> execute(const GCloudCommand &command = GCloudCommand::version())
    {
        if (!executor) {
            executor = drain.has_value()
                ? std::make_unique<ProcessExecutor>(search, handler, *drain)
                : std::make_unique<ProcessExecutor>(search, handler);
        }
        return executor->execute(command);
    }

    std::shared_ptr<Outcome> startRun(const GCloudCommand &command = GCloudCommand::version())
    {
        auto outcome = std::make_shared<Outcome>();
        record(execute(command), outcome);
        return outcome;
    }

    // Not QCoro::waitFor(), which waits for ever when the task throws.
    Outcome runToTheEnd(const GCloudCommand &command)
    {
        const auto outcome = startRun(command);
        settle(*outcome);
        return *outcome;
    }

    GCloudResult run(const GCloudCommand &command = GCloudCommand::version())
    {
        const Outcome outcome = runToTheEnd(command);
        EXPECT_FALSE(outcome.error.has_value()) << outcome.error->what();
        return outcome.result.value_or(GCloudResult());
    }

    std::optional<AppError> runToError(const GCloudCommand &command = GCloudCommand::version())
    {
        return runToTheEnd(command).error;
    }

    /// Blocks until the script opens the FIFO for writing; what is read from the descriptor ends
    /// when the script and all its children are gone.
    [[nodiscard]] FileDescriptor waitForTheScript() const
    {
        return FileDescriptor(::open(QFile::encodeName(fifo).constData(), O_RDONLY | O_CLOEXEC));
    }

    static void settle(const Outcome &outcome)
    {
        while (!outcome.isKnown()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    void kill(const QString &pidFile) const
    {
        ::kill(folder.read(pidFile).trimmed().toInt(), SIGKILL);
    }

private:
    static QCoro::Task<> record(QCoro::Task<GCloudResult> call, std::shared_ptr<Outcome> outcome)
    {
        try {
            outcome->result = co_await call;
        } catch (const AppError &error) {
            outcome->error = error;
        }
    }
};

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/ChangeStream.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <memory>
#include <vector>

namespace torvi {

/// Takes the elements of a stream as they come; cancels it when destroyed.
class ChangeConsumer final
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    explicit ChangeConsumer(const ChangeStream &stream)
        : m_stream(stream)
    {
        consume(m_stream, m_taken);
    }
    ChangeConsumer(const ChangeConsumer &) = delete;
    ChangeConsumer &operator=(const ChangeConsumer &) = delete;

    ~ChangeConsumer()
    {
        cancel();
    }

    [[nodiscard]] std::size_t count() const
    {
        return m_taken->times.size();
    }

    [[nodiscard]] bool hasEnded() const
    {
        return m_taken->ended;
    }

    /// When the element `number`, counted from 1, came.
    [[nodiscard]] TimePoint time(std::size_t number) const
    {
        return m_taken->times.at(number - 1);
    }

    void waitFor(std::size_t elements) const
    {
        while (count() < elements) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    void cancel()
    {
        m_stream.cancel();
        while (!hasEnded()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

private:
    struct Taken
    {
        std::vector<TimePoint> times;
        bool ended = false;
    };

    static QCoro::Task<> consume(ChangeStream stream, std::shared_ptr<Taken> taken)
    {
        for (;;) {
            const bool more = co_await stream.next();
            if (!more) {
                break;
            }
            taken->times.push_back(std::chrono::steady_clock::now());
        }
        taken->ended = true;
    }

    ChangeStream m_stream;
    std::shared_ptr<Taken> m_taken = std::make_shared<Taken>();
};

} // namespace torvi

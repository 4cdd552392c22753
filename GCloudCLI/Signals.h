// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSocketNotifier>

#include <functional>

namespace torvi {

/// Turns the signals that end a program into calls in the event loop, so that it can end its
/// children first. Main thread only.
class Signals final
{
public:
    /// Blocks SIGINT, SIGTERM and, unless the process was started immune to it, SIGHUP for this
    /// thread and all that start later: before any other thread starts.
    static void block();

    /// Blocks them, too. `handler` gets the signal's number.
    explicit Signals(std::function<void(int)> handler);
    ~Signals();
    Q_DISABLE_COPY_MOVE(Signals)

private:
    void takeOne();

    std::function<void(int)> m_handler;
    int m_descriptor;
    QSocketNotifier m_notifier;
};

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>

namespace torvi {

/// Turns the signals that end a terminal program into calls in the event loop, so that the program
/// can end its children first.
///
/// SIGINT, SIGTERM and, unless the process was started immune to it, SIGHUP are blocked for all
/// threads that start later: create it first. Main thread only.
class Signals final : public QObject
{
    Q_OBJECT

public:
    /// `handler` gets the signal's number.
    explicit Signals(std::function<void(int)> handler);
    ~Signals() override;

private:
    void takeOne();

    std::function<void(int)> m_handler;
    int m_descriptor;
    QSocketNotifier m_notifier;
};

} // namespace torvi

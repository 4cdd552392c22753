// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/PollUntil.h"

#include <QByteArray>

#include <array>
#include <chrono>
#include <functional>

namespace torvi {

class ChildProcess;
class StopEvent;

/// Empties a child's pipes while it runs, so that it never stops on a full one, until it has
/// exited.
///
/// The end of the pipes is not waited for: whatever the child has started, a browser say, inherits
/// them and may hold them for hours.
class OutputReader final
{
public:
    /// Takes what one read returned; false gives up the whole reading.
    using Sink = std::function<bool(QByteArrayView)>;

    struct Limits
    {
        std::chrono::nanoseconds drain; ///< how long after the exit output still counts
        Deadline exit = kNoDeadline; ///< until when the child must have exited
    };

    enum class End { exited, stopped, timedOut, refused };

    /// A missing sink is for a stream that is discarded. All arguments must outlive the reader.
    OutputReader(const ChildProcess &child, const StopEvent &stop, Sink output, Sink error = {});

    /// Blocks; the sinks are called on this thread. To be called once. Returns after the exit, as
    /// soon as the drain time is over or nothing more can come.
    [[nodiscard]] End read(Limits limits);

    /// Waits for what read() has left of the drain time, or for a stop.
    void waitOut();

private:
    struct Stream
    {
        pollfd &event;
        const Sink &sink;
    };

    [[nodiscard]] std::array<Stream, 2> streams();
    [[nodiscard]] bool takeReady();
    [[nodiscard]] bool takeRest();
    [[nodiscard]] bool take(const Stream &stream, qsizetype limit);

    [[nodiscard]] bool canRead() const;

    std::array<pollfd, 4> m_events; // output, error, exit, stop
    Deadline m_drainEnd{};
    Sink m_output;
    Sink m_error;
    QByteArray m_chunk;
};

} // namespace torvi

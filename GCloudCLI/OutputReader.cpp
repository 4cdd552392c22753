// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/OutputReader.h"

#include "GCloudCLI/ChildProcess.h"
#include "GCloudCLI/StopEvent.h"

#include <algorithm>
#include <cerrno>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace torvi {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kOutput = 0;
constexpr std::size_t kError = 1;
constexpr std::size_t kExit = 2;
constexpr std::size_t kStop = 3;

/// What a pipe holds: one read empties it.
constexpr qsizetype kChunkSize = qsizetype{ 64 } * 1024;

pollfd readable(int descriptor)
{
    return { .fd = descriptor, .events = POLLIN, .revents = 0 };
}

void close(pollfd &event)
{
    event.fd = -1; // poll() leaves it out
    event.revents = 0;
}

} // namespace

OutputReader::OutputReader(const ChildProcess &child, const StopEvent &stop, Sink output,
                           Sink error)
    : m_events{ readable(child.standardOutput()), readable(child.standardError()),
                readable(child.exitEvent()), readable(stop.descriptor()) }
    , m_output(std::move(output))
    , m_error(std::move(error))
    , m_chunk(kChunkSize, Qt::Uninitialized)
{
}

OutputReader::End OutputReader::read(Limits limits)
{
    bool exited = false;
    Deadline deadline = limits.exit;
    while ((!exited || canRead()) && Clock::now() < deadline && pollUntil(m_events, deadline)) {
        if (!takeReady()) {
            return End::refused;
        }
        if (m_events[kExit].revents != 0) {
            exited = true;
            deadline = m_drainEnd = Clock::now() + limits.drain;
            close(m_events[kExit]);
        }
        if (m_events[kStop].revents != 0) {
            if (!exited) {
                return End::stopped;
            }
            break; // the result only comes sooner
        }
    }
    if (!exited) {
        return End::timedOut;
    }
    return takeRest() ? End::exited : End::refused;
}

void OutputReader::waitOut()
{
    [[maybe_unused]] const bool stopped = pollUntil({ &m_events[kStop], 1 }, m_drainEnd);
}

bool OutputReader::canRead() const
{
    return m_events[kOutput].fd >= 0 || m_events[kError].fd >= 0;
}

std::array<OutputReader::Stream, 2> OutputReader::streams()
{
    return { Stream{ m_events[kOutput], m_output }, Stream{ m_events[kError], m_error } };
}

bool OutputReader::takeReady()
{
    return std::ranges::all_of(streams(), [this](const Stream &stream) {
        return stream.event.revents == 0 || take(stream, kChunkSize);
    });
}

/// What came in time but has not been read yet: a busy machine must not cost output. No more than
/// that, or a grandchild that prints without end would keep us here.
bool OutputReader::takeRest()
{
    for (const Stream &stream : streams()) {
        int left = 0;
        if (stream.event.fd < 0 || ::ioctl(stream.event.fd, FIONREAD, &left) != 0) {
            continue;
        }
        if (left > 0 && !take(stream, left)) {
            return false;
        }
    }
    return true;
}

bool OutputReader::take(const Stream &stream, qsizetype limit)
{
    if (m_chunk.size() < limit) {
        m_chunk.resize(limit);
    }
    const ssize_t count = ::read(stream.event.fd, m_chunk.data(), static_cast<std::size_t>(limit));
    if (count > 0) {
        return stream.sink(QByteArrayView(m_chunk).first(count));
    }
    if (count == 0 || errno != EINTR) {
        close(stream.event);
    }
    return true;
}

} // namespace torvi

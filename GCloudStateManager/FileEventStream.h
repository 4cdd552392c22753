// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/PollUntil.h"
#include "GCloudCLI/StopEvent.h"
#include "GCloudStateManager/DirectoryEvents.h"

#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>
#include <vector>

namespace torvi {

/// Gathers the changes below some directories into batches and reports each batch, until it is
/// destroyed.
///
/// A batch is reported `latency` after its first change, never earlier; all that happens until then
/// belongs to it. What happens later makes the next one, so that every change is followed by a
/// report.
///
/// Thread: one of its own, on which `handler` is called and which sleeps while nothing changes.
/// Destruction waits for a call of `handler` under way; none comes after it.
class FileEventStream final
{
public:
    /// Nothing when none of `paths` can be watched. No change after the call is missed.
    [[nodiscard]] static std::unique_ptr<FileEventStream> create(const QStringList &paths,
                                                                 std::chrono::milliseconds latency,
                                                                 std::function<void()> handler);

    ~FileEventStream();
    Q_DISABLE_COPY_MOVE(FileEventStream)

private:
    FileEventStream(std::vector<DirectoryEvents> directories, std::chrono::milliseconds latency,
                    std::function<void()> handler);

    void run();
    [[nodiscard]] bool waitForChange();
    [[nodiscard]] bool isStoppedBefore(Deadline deadline) const;
    [[nodiscard]] bool takeChanges();

    std::vector<DirectoryEvents> m_directories;
    const std::chrono::milliseconds m_latency;
    const std::function<void()> m_handler;
    std::stop_source m_stop;
    const StopEvent m_stopEvent;
    std::thread m_thread;
};

} // namespace torvi

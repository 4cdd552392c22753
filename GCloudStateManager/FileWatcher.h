// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/FileWatching.h"

#include <QStringList>

#include <chrono>
#include <memory>

namespace torvi {

/// Watches directories with all that is below them, whether they exist yet or not.
///
/// A burst of changes makes one event, `debounceInterval` after its first change; the last change
/// of any burst is followed by an event.
///
/// Thread: start() and stop() on any thread, see ChangeStream for the consumer's. The events come
/// from a background thread that sleeps while nothing changes.
/// Lifetime: destruction stops watching, also what a second start() left behind.
class FileWatcher final : public FileWatching
{
public:
    FileWatcher(QStringList paths, std::chrono::milliseconds debounceInterval);
    ~FileWatcher() override;

    /// Watches from this moment on. A second call begins a second watch beside the first: stop()
    /// and cancelling either stream then stop the newest only.
    [[nodiscard]] ChangeStream start() override;
    void stop() override;

private:
    class Watching;

    const QStringList m_paths;
    const std::chrono::milliseconds m_debounceInterval;
    const std::shared_ptr<Watching> m_watching;
};

} // namespace torvi

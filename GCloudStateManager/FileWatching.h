// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/ChangeStream.h"

namespace torvi {

/// Turns changes below watched directories into a stream of events that say nothing but "changed".
class FileWatching
{
public:
    virtual ~FileWatching() = default;

    /// Starts watching; the stream is finished at once when that is not possible. Called once.
    /// Cancelling the stream stops watching.
    [[nodiscard]] virtual ChangeStream start() = 0;

    /// Stops watching without finishing the stream. Harmless when nothing is watched.
    virtual void stop() = 0;

protected:
    FileWatching() = default;
    Q_DISABLE_COPY_MOVE(FileWatching)
};

} // namespace torvi

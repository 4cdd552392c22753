// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/FileWatching.h"

#include <functional>

namespace torvi {

/// Changes happen when the test says so.
class FakeFileWatcher final : public FileWatching
{
public:
    ChangeStream stream;
    int starts = 0;
    int stops = 0;
    bool isCancelled = false;
    std::function<void()> onStart = [] {};

    [[nodiscard]] ChangeStream start() override
    {
        ++starts;
        onStart();
        stream.onCancel([this] { isCancelled = true; });
        return stream;
    }

    void stop() override
    {
        ++stops;
    }
};

} // namespace torvi

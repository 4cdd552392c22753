// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/AuthState.h"
#include "tests/VeldraUI/FakeDelay.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/StateManagerFixture.h"

namespace torvi {

/// The state as QML sees it, over a state manager on fakes.
class AuthStateFixture : public StateManagerFixture
{
protected:
    FakeClipboard clipboard;
    FakeDelay time;
    std::unique_ptr<AuthState> state
        = std::make_unique<AuthState>(*manager, clipboard, time.delay());

    /// Lets gcloud list these projects, and reads all anew.
    void list(const QStringList &ids)
    {
        executor->expect(GCloudCommand::listProjects(), listing(ids));
        now += AuthStateManager::projectCacheTTL;
        manager->reload();
    }

    /// Makes `id` the active project, as a change in the configuration does.
    void activate(const std::optional<QString> &id)
    {
        reader->properties[reader->activeName].project = id;
        manager->reloadFromFiles();
    }
};

} // namespace torvi

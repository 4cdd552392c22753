// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/AuthStateManager.h"
#include "tests/support/FakeConfigReader.h"
#include "tests/support/FakeExecutor.h"
#include "tests/support/FakeFileWatcher.h"
#include "tests/support/FakeStores.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace torvi {

/// A state manager on fakes, with a clock that the test moves.
class StateManagerFixture : public testing::Test
{
protected:
    std::shared_ptr<FakeExecutor> executor = std::make_shared<FakeExecutor>();
    std::shared_ptr<FakeConfigReader> reader = std::make_shared<FakeConfigReader>();
    std::shared_ptr<FakeFileWatcher> watcher = std::make_shared<FakeFileWatcher>();
    std::shared_ptr<FakeFavoritesStore> favorites = std::make_shared<FakeFavoritesStore>();
    std::shared_ptr<FakeRecentStore> recents = std::make_shared<FakeRecentStore>();
    std::shared_ptr<FakeServiceAccountStore> serviceAccounts
        = std::make_shared<FakeServiceAccountStore>();
    std::shared_ptr<FakeSettingsStore> settings = std::make_shared<FakeSettingsStore>();
    AuthStateManager::Clock::time_point now = AuthStateManager::Clock::now();
    std::unique_ptr<AuthStateManager> manager
        = std::make_unique<AuthStateManager>(executor, reader, watcher, favorites, recents,
                                             serviceAccounts, settings, [this] { return now; });

    /// What gcloud prints for projects with these ids.
    static GCloudResult listing(const QStringList &ids)
    {
        QStringList elements;
        for (const QString &id : ids) {
            elements.append(QStringLiteral(R"({"projectId": "%1", "name": "Name of %1"})").arg(id));
        }
        return { 0, u'[' + elements.join(u',') + u']', QString() };
    }

    static GCloudResult success(const QString &standardOutput = {})
    {
        return { 0, standardOutput, QStringLiteral("Updated property.\n") };
    }

    static GCloudResult failure(const QString &standardError)
    {
        return { 1, QString(), standardError };
    }

    static void processEvents()
    {
        QCoreApplication::processEvents();
    }
};

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/DependencyContainer.h"

#include "GCloudStateManager/FileWatcher.h"
#include "tests/support/ChangeConsumer.h"
#include "tests/support/ScriptFolder.h"
#include "tests/support/WaitUntil.h"

#include <mutex>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

namespace {

const QString kAddress = u"https://accounts.google.com/o/oauth2/auth?client_id=1"_s;
const QString kPreferences = u"preferences/torvi/preferences.ini"_s;

class RecordingHandler final : public BrowserAuthHandler
{
public:
    void openAuthURL(const QString &url) override
    {
        const std::lock_guard lock(m_mutex);
        m_heard.append(url);
    }

    [[nodiscard]] QStringList heard()
    {
        const std::lock_guard lock(m_mutex);
        return m_heard;
    }

private:
    std::mutex m_mutex;
    QStringList m_heard;
};

} // namespace

/// The graph as the programs build it, over real files in a folder of the test's own.
class DependencyContainerTest : public testing::Test
{
protected:
    ScriptFolder folder;
    std::unique_ptr<DependencyContainer> container;

    void SetUp() override
    {
        qputenv("XDG_CONFIG_HOME", folder.path(u"preferences"_s).toUtf8());
        qputenv("CLOUDSDK_CONFIG", folder.path(u"gcloud"_s).toUtf8());
        activate(u"labs"_s);
        folder.writeScript(u"first"_s,
                           "echo ran >>'" + folder.path(u"runs"_s).toUtf8() + "'; echo []");
        folder.writeScript(u"second"_s, "echo []");
        folder.writeScript(u"sign-in"_s, "echo '" + kAddress.toUtf8() + "' >&2; exit 1");
    }

    void TearDown() override
    {
        container.reset();
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("CLOUDSDK_CONFIG");
    }

    void activate(const QString &project) const
    {
        folder.write(u"gcloud/configurations/config_default"_s,
                     "[core]\nproject = " + project.toUtf8() + '\n');
    }

    [[nodiscard]] FileWatcher watcherOf(const QString &directory,
                                        std::chrono::milliseconds interval) const
    {
        return { { folder.path(directory) }, interval };
    }

    void storePath(const QString &name) const
    {
        folder.write(kPreferences,
                     "[General]\ncom.veldra.gcloudPath=" + folder.path(name).toUtf8() + '\n');
    }

    void build()
    {
        container = std::make_unique<DependencyContainer>(nullptr);
    }

    [[nodiscard]] QString activeProject() const
    {
        const auto &project = container->stateManager().currentContext().activeProject;
        return project ? project->id : QString();
    }
};

TEST_F(DependencyContainerTest, ConstructionRunsNothingAndReadsNoFileOfGcloud)
{
    storePath(u"first"_s);

    build();
    QCoreApplication::processEvents();

    EXPECT_EQ(container->stateManager().currentContext(), AuthContext::empty());
    EXPECT_TRUE(container->stateManager().configurations().isEmpty());
    EXPECT_FALSE(container->stateManager().isLoading());
    EXPECT_EQ(folder.read(u"runs"_s), "");
}

TEST_F(DependencyContainerTest, TheResolverHasThePathThatIsStoredWhenItIsBuilt)
{
    storePath(u"first"_s);

    build();

    EXPECT_EQ(container->settingsStore().gcloudPathOverride(), folder.path(u"first"_s));
    EXPECT_EQ(container->pathResolver()->resolve(), folder.path(u"first"_s));
}

TEST_F(DependencyContainerTest, APathThatIsChangedLaterCountsFromTheNextStart)
{
    storePath(u"first"_s);
    build();

    container->settingsStore().setGcloudPathOverride(folder.path(u"second"_s));
    EXPECT_EQ(container->pathResolver()->resolve(), folder.path(u"first"_s));

    build();
    EXPECT_EQ(container->pathResolver()->resolve(), folder.path(u"second"_s));
}

TEST_F(DependencyContainerTest, GcloudRunsFromThePathOfTheResolver)
{
    storePath(u"first"_s);
    build();

    container->stateManager().reload();

    EXPECT_TRUE(waitUntil([this] { return !container->stateManager().isLoading(); }));
    EXPECT_EQ(folder.read(u"runs"_s), "ran\n");
}

TEST_F(DependencyContainerTest, SignInAddressesReachTheHandler)
{
    const auto handler = std::make_shared<RecordingHandler>();
    storePath(u"sign-in"_s);
    container = std::make_unique<DependencyContainer>(handler);

    container->stateManager().triggerADCLogin();

    EXPECT_TRUE(waitUntil([&handler] { return !handler->heard().isEmpty(); }));
    EXPECT_EQ(handler->heard(), QStringList{ kAddress });
}

TEST_F(DependencyContainerTest, TheManagerAndTheContainerHaveTheSameSettings)
{
    build();

    EXPECT_EQ(&container->stateManager().settingsStore(), &container->settingsStore());
}

TEST_F(DependencyContainerTest, AllStoresShareTheUsersPreferences)
{
    build();
    AuthStateManager &manager = container->stateManager();

    manager.favoritesStore().pin(u"pinned"_s);
    manager.recentStore().recordUsage(u"used"_s);
    manager.serviceAccountStore().addServiceAccount({ u"a@p"_s, u"p"_s, std::nullopt });
    container->settingsStore().setLaunchAtLogin(true);

    const QByteArray stored = folder.read(kPreferences);
    for (const char *key : { "favorites", "recents", "serviceaccounts", "launchAtLogin" }) {
        EXPECT_TRUE(stored.contains(QByteArray("\ncom.veldra.") + key + '=')) << key;
    }
}

TEST_F(DependencyContainerTest, StartingReadsFromTheEventLoop)
{
    storePath(u"second"_s);
    build();

    container->start();

    EXPECT_EQ(activeProject(), QString());
    QCoreApplication::processEvents();
    EXPECT_EQ(activeProject(), u"labs"_s);
}

TEST_F(DependencyContainerTest, ChangesAreSeenFromStartToStop)
{
    storePath(u"second"_s);
    build();
    container->start();
    ASSERT_TRUE(waitUntil([this] { return activeProject() == u"labs"; }));

    activate(u"other"_s);
    EXPECT_TRUE(waitUntil([this] { return activeProject() == u"other"; }));

    container->stop();
    FileWatcher later = watcherOf(u"gcloud"_s, 600ms);
    const ChangeConsumer control(later.start());
    activate(u"unseen"_s);
    control.waitFor(1);
    EXPECT_EQ(activeProject(), u"other"_s);
}

TEST_F(DependencyContainerTest, TheConfigurationDirectoryAloneIsWatchedWithItsDebounce)
{
    folder.write(u"sibling/file"_s, "");
    build();
    const ChangeConsumer changes(container->fileWatcher().start());
    FileWatcher siblings = watcherOf(u"sibling"_s, 1ms);
    const ChangeConsumer control(siblings.start());

    folder.write(u"sibling/file"_s, "changed");
    control.waitFor(1);
    const auto changed = std::chrono::steady_clock::now();
    activate(u"other"_s);
    changes.waitFor(1);

    // An event of the sibling's change would have come earlier.
    EXPECT_GE(changes.time(1) - changed, 300ms);
}

} // namespace torvi

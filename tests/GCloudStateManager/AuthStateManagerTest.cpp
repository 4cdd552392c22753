// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/support/StateManagerFixture.h"

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

class AuthStateManagerTest : public StateManagerFixture
{
protected:
    void SetUp() override
    {
        reader->names = { u"default"_s, u"labs"_s };
        reader->properties[u"default"_s] = { u"p1"_s, u"a@x"_s, u"r"_s, u"z"_s, std::nullopt };
        reader->accounts = { u"a@x"_s, u"b@x"_s };
        reader->adcState = { ADCType::userCredentials, u"q"_s, std::nullopt, true };
    }

    QList<QString> projectIds() const
    {
        QList<QString> ids;
        for (const Project &project : manager->projects()) {
            ids.append(project.id);
        }
        return ids;
    }
};

TEST_F(AuthStateManagerTest, IsCreatedIdleAndReadsNothing)
{
    EXPECT_EQ(manager->currentContext(), AuthContext::empty());
    EXPECT_TRUE(manager->projects().isEmpty());
    EXPECT_TRUE(manager->accounts().isEmpty());
    EXPECT_TRUE(manager->configurations().isEmpty());
    EXPECT_FALSE(manager->isLoading());
    EXPECT_EQ(manager->lastError(), std::nullopt);
    EXPECT_TRUE(reader->reads.isEmpty());
    EXPECT_EQ(watcher->starts, 0);
}

TEST_F(AuthStateManagerTest, ReadsTheFilesInOrderAndTheActivePropertiesTwice)
{
    manager->reloadFromFiles();

    EXPECT_EQ(reader->reads,
              (QStringList{ u"activeName"_s, u"names"_s, u"properties of default"_s, u"adcState"_s,
                            u"properties of default"_s, u"properties of labs"_s, u"accounts"_s }));
}

TEST_F(AuthStateManagerTest, BuildsConfigurationsInTheReadersOrder)
{
    manager->reloadFromFiles();

    EXPECT_EQ(manager->configurations(),
              (QList<Configuration>{
                  { u"default"_s, true, reader->properties.value(u"default"_s) },
                  { u"labs"_s, false, {} },
              }));
}

TEST_F(AuthStateManagerTest, BuildsTheContextFromTheFilesAlone)
{
    reader->properties[u"default"_s].impersonateServiceAccount = u"robot@p"_s;

    manager->reloadFromFiles();

    const AuthContext &context = manager->currentContext();
    EXPECT_EQ(context.activeProject,
              (Project{ u"p1"_s, u"p1"_s, std::nullopt, false, std::nullopt }));
    EXPECT_EQ(context.activeAccount, (Account{ u"a@x"_s, true, AccountType::user }));
    EXPECT_EQ(context.activeConfiguration, manager->configurations().first());
    EXPECT_EQ(context.impersonatedServiceAccount,
              (ServiceAccount{ u"robot@p"_s, u"p1"_s, std::nullopt }));
    EXPECT_EQ(context.adcState, reader->adcState);
    EXPECT_EQ(manager->lastError(), std::nullopt);
}

TEST_F(AuthStateManagerTest, ImpersonationWithoutProjectHasTheEmptyProjectId)
{
    reader->properties[u"default"_s]
        = { std::nullopt, std::nullopt, std::nullopt, std::nullopt, u"robot@p"_s };

    manager->reloadFromFiles();

    EXPECT_EQ(manager->currentContext().impersonatedServiceAccount,
              (ServiceAccount{ u"robot@p"_s, u""_s, std::nullopt }));
}

TEST_F(AuthStateManagerTest, ActiveProjectIsAbsentWithoutTheProperty)
{
    reader->properties[u"default"_s].project = std::nullopt;
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));

    manager->reload();
    manager->reloadFromFiles();

    EXPECT_EQ(manager->currentContext().activeProject, std::nullopt);
    EXPECT_EQ(projectIds(), QStringList{ u"p1"_s });
}

TEST_F(AuthStateManagerTest, UnlistedActiveProjectIsNamedByItsIdAndNotPinned)
{
    favorites->ids = { u"p1"_s };

    manager->reloadFromFiles();

    EXPECT_EQ(manager->currentContext().activeProject,
              (Project{ u"p1"_s, u"p1"_s, std::nullopt, false, std::nullopt }));
}

TEST_F(AuthStateManagerTest, ContextKeepsTheIdAsNameUntilTheFilesAreReadAfterTheFetch)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));

    manager->reload();
    EXPECT_EQ(manager->currentContext().activeProject->name, u"p1");
    manager->reloadFromFiles();

    EXPECT_EQ(manager->currentContext().activeProject->name, u"Name of p1");
}

TEST_F(AuthStateManagerTest, ActiveConfigurationIsAbsentWhenTheActiveNameHasNoFile)
{
    reader->activeName = u"NONE"_s;

    manager->reloadFromFiles();

    EXPECT_EQ(manager->currentContext().activeConfiguration, std::nullopt);
    EXPECT_EQ(manager->currentContext().activeProject, std::nullopt);
}

TEST_F(AuthStateManagerTest, NoAccountIsActiveWhenThePropertyNamesAnother)
{
    reader->properties[u"default"_s].account = u"A@x"_s;

    manager->reloadFromFiles();

    EXPECT_EQ(manager->currentContext().activeAccount, std::nullopt);
    EXPECT_EQ(manager->accounts().size(), 2);
}

TEST_F(AuthStateManagerTest, NoAccountIsActiveWithoutTheProperty)
{
    reader->properties[u"default"_s].account = std::nullopt;
    reader->accounts = { u""_s, u"a@x"_s };

    manager->reloadFromFiles();

    EXPECT_EQ(manager->currentContext().activeAccount, std::nullopt);
}

TEST_F(AuthStateManagerTest, TellsServiceAccountsByTheirSuffixAlone)
{
    reader->accounts = { u"a@appspot.gserviceaccount.com"_s,
                         u"a@p.iam.gserviceaccount.com"_s,
                         u"a@p.iam.gserviceaccount.com.example.com"_s,
                         u"a@p.iam.GSERVICEACCOUNT.com"_s,
                         u"a@gserviceaccount.com"_s,
                         u"a@x"_s };

    manager->reloadFromFiles();

    QList<AccountType> types;
    for (const Account &account : manager->accounts()) {
        types.append(account.accountType);
    }
    EXPECT_EQ(types,
              (QList<AccountType>{ AccountType::serviceAccount, AccountType::serviceAccount,
                                   AccountType::user, AccountType::user, AccountType::user,
                                   AccountType::user }));
}

class FailingReadTest : public AuthStateManagerTest, public testing::WithParamInterface<QString>
{
};

TEST_P(FailingReadTest, KeepsWhatStoodBeforeIt)
{
    manager->reloadFromFiles();
    const AuthContext before = manager->currentContext();
    const QList<Configuration> configurationsBefore = manager->configurations();
    const QList<Account> accountsBefore = manager->accounts();
    reader->activeName = u"labs"_s;
    reader->accounts = { u"c@x"_s };
    reader->failingRead = GetParam();

    manager->reloadFromFiles();

    EXPECT_EQ(manager->lastError(), AppError::configFileUnreadable(GetParam()));
    EXPECT_EQ(manager->currentContext(), before);
    EXPECT_EQ(manager->accounts(), accountsBefore);
    EXPECT_EQ(manager->configurations() == configurationsBefore, GetParam() != u"accounts");
}

INSTANTIATE_TEST_SUITE_P(EveryRead, FailingReadTest,
                         testing::Values(u"activeName"_s, u"names"_s, u"properties of labs"_s,
                                         u"adcState"_s, u"accounts"_s));

TEST_F(AuthStateManagerTest, ReloadReadsFilesFirstAndThenFetchesTheProjects)
{
    const auto run = executor->expect(GCloudCommand::listProjects());

    manager->reload();

    EXPECT_TRUE(run->isRunning());
    EXPECT_EQ(manager->configurations().size(), 2);
    run->finish(listing({ u"p2"_s, u"p1"_s }));
    EXPECT_EQ(projectIds(), (QStringList{ u"p2"_s, u"p1"_s })); // gcloud's order
}

TEST_F(AuthStateManagerTest, IsLoadingExactlyWhileReloadRuns)
{
    const auto run = executor->expect(GCloudCommand::listProjects());

    manager->reload();
    EXPECT_TRUE(manager->isLoading());
    run->finish(listing({}));

    EXPECT_FALSE(manager->isLoading());
}

TEST_F(AuthStateManagerTest, IsNotLoadingDuringOtherRefreshes)
{
    int changes = 0;
    QObject::connect(manager.get(), &AuthStateManager::isLoadingChanged, [&changes] { ++changes; });
    executor->expect(GCloudCommand::listProjects(), listing({}));

    manager->reloadFromFiles();
    manager->forceRefreshProjects();

    EXPECT_EQ(changes, 0);
}

TEST_F(AuthStateManagerTest, IsNotLoadingAnyMoreAfterAFailedReload)
{
    reader->failingRead = u"activeName"_s;
    executor->expect(GCloudCommand::listProjects(), failure(u"down"_s));

    manager->reload();

    EXPECT_FALSE(manager->isLoading());
    EXPECT_EQ(manager->lastError(), AppError::commandFailed(1, u"down"_s));
}

TEST_F(AuthStateManagerTest, ReloadClearsAStaleError)
{
    manager->setLastError(AppError::unknown(u"stale"_s));
    const auto run = executor->expect(GCloudCommand::listProjects());

    manager->reload();

    EXPECT_EQ(manager->lastError(), std::nullopt);
    run->finish(listing({}));
}

TEST_F(AuthStateManagerTest, FileOnlyRefreshKeepsAnEarlierError)
{
    manager->setLastError(AppError::unknown(u"earlier"_s));

    manager->reloadFromFiles();

    EXPECT_EQ(manager->lastError(), AppError::unknown(u"earlier"_s));
}

TEST_F(AuthStateManagerTest, FetchesProjectsOnceWithin300Seconds)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));

    manager->reload();
    now += 299999ms;
    manager->reload();

    EXPECT_EQ(projectIds(), QStringList{ u"p1"_s });
}

TEST_F(AuthStateManagerTest, FetchesProjectsAgainAfter300Seconds)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));
    executor->expect(GCloudCommand::listProjects(), listing({ u"p2"_s }));

    manager->reload();
    now += 300s;
    manager->reload();

    EXPECT_EQ(projectIds(), QStringList{ u"p2"_s });
}

TEST_F(AuthStateManagerTest, ForceRefreshFetchesAtOnce)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));
    executor->expect(GCloudCommand::listProjects(), listing({ u"p2"_s }));

    manager->reload();
    manager->forceRefreshProjects();

    EXPECT_EQ(projectIds(), QStringList{ u"p2"_s });
}

TEST_F(AuthStateManagerTest, EverySuccessfulFetchRenewsTheCache)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));
    executor->expect(GCloudCommand::listProjects(), listing({ u"p2"_s }));

    manager->reload();
    now += 200s;
    manager->forceRefreshProjects();
    now += 299s;
    manager->reload();

    EXPECT_EQ(projectIds(), QStringList{ u"p2"_s });
}

TEST_F(AuthStateManagerTest, MarksPinnedProjects)
{
    favorites->ids = { u"p2"_s, u"unlisted"_s };
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s, u"p2"_s }));

    manager->reload();

    EXPECT_FALSE(manager->projects().at(0).isPinned);
    EXPECT_TRUE(manager->projects().at(1).isPinned);
}

TEST_F(AuthStateManagerTest, FailedFetchBehindAShownListIsSilent)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));
    executor->expect(GCloudCommand::listProjects(), failure(u"down"_s));
    manager->reload();

    manager->forceRefreshProjects();

    EXPECT_EQ(manager->lastError(), std::nullopt);
    EXPECT_EQ(projectIds(), QStringList{ u"p1"_s });
}

TEST_F(AuthStateManagerTest, FailedFetchOfAnEmptyListIsRecorded)
{
    executor->expect(GCloudCommand::listProjects(), failure(u"down"_s));

    manager->reload();

    EXPECT_EQ(manager->lastError(), AppError::commandFailed(1, u"down"_s));
}

TEST_F(AuthStateManagerTest, FailedFetchIsTriedAgainByTheNextReload)
{
    executor->expect(GCloudCommand::listProjects(), failure(u"down"_s));
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));

    manager->reload();
    manager->reload();

    EXPECT_EQ(projectIds(), QStringList{ u"p1"_s });
    EXPECT_EQ(manager->lastError(), std::nullopt);
}

TEST_F(AuthStateManagerTest, UnparsableListIsAParseError)
{
    executor->expect(GCloudCommand::listProjects(), success(u"nonsense"_s));

    manager->reload();

    ASSERT_TRUE(manager->lastError());
    EXPECT_TRUE(std::holds_alternative<AppError::ParseError>(manager->lastError()->asCase()));
}

TEST_F(AuthStateManagerTest, MissingGcloudIsRecordedAsItIs)
{
    executor->expectFailure(GCloudCommand::listProjects(), AppError::gcloudNotFound());

    manager->reload();

    EXPECT_EQ(manager->lastError(), AppError::gcloudNotFound());
}

TEST_F(AuthStateManagerTest, ForeignErrorBecomesUnknownWithItsDescription)
{
    executor->expectFailure(GCloudCommand::listProjects(), std::runtime_error("größer"));

    manager->reload();

    EXPECT_EQ(manager->lastError(), AppError::unknown(u"größer"_s));
}

TEST_F(AuthStateManagerTest, EqualValuesPublishNoChange)
{
    manager->reloadFromFiles();
    manager->setLastError(AppError::unknown(u"e"_s));
    int changes = 0;
    const auto count = [&changes] { ++changes; };
    QObject::connect(manager.get(), &AuthStateManager::currentContextChanged, count);
    QObject::connect(manager.get(), &AuthStateManager::accountsChanged, count);
    QObject::connect(manager.get(), &AuthStateManager::configurationsChanged, count);
    QObject::connect(manager.get(), &AuthStateManager::lastErrorChanged, count);

    manager->reloadFromFiles();
    manager->setLastError(AppError::unknown(u"e"_s));
    EXPECT_EQ(changes, 0);
    manager->setLastError(std::nullopt);

    EXPECT_EQ(changes, 1);
}

TEST_F(AuthStateManagerTest, LastOfTwoOverlappingReloadsWins)
{
    const auto first = executor->expect(GCloudCommand::listProjects());
    const auto second = executor->expect(GCloudCommand::listProjects());
    manager->reload();
    manager->reload();

    second->finish(listing({ u"second"_s }));
    first->finish(listing({ u"first"_s }));

    EXPECT_EQ(projectIds(), QStringList{ u"first"_s });
    EXPECT_FALSE(manager->isLoading());
}

TEST_F(AuthStateManagerTest, WatchingReloadsFilesAtEachChangeAndRunsNoGcloud)
{
    manager->startWatching();
    processEvents();
    reader->activeName = u"labs"_s;

    watcher->stream.yield();
    processEvents();

    EXPECT_EQ(manager->currentContext().activeConfiguration->name, u"labs");
    manager->stopWatching();
    processEvents();
}

TEST_F(AuthStateManagerTest, WatchingStartsFromTheEventLoopNotInsideTheCall)
{
    manager->startWatching();
    EXPECT_EQ(watcher->starts, 0);

    processEvents();

    EXPECT_EQ(watcher->starts, 1);
    manager->stopWatching();
    processEvents();
}

TEST_F(AuthStateManagerTest, StopWatchingCancelsTheTaskAndStopsTheWatcher)
{
    manager->startWatching();
    processEvents();

    manager->stopWatching();

    EXPECT_TRUE(watcher->isCancelled);
    EXPECT_EQ(watcher->stops, 1);
    processEvents();
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AuthStateManagerTest, StopWatchingBeforeTheTaskRanStillEndsIt)
{
    manager->startWatching();
    manager->stopWatching();

    processEvents();

    EXPECT_TRUE(watcher->isCancelled);
}

TEST_F(AuthStateManagerTest, StopWatchingTwiceIsHarmless)
{
    manager->stopWatching();
    manager->stopWatching();

    EXPECT_EQ(watcher->stops, 2);
}

TEST_F(AuthStateManagerTest, DoesNothingWithoutAFileWatcher)
{
    AuthStateManager unwatched(executor, reader, nullptr, favorites, recents, serviceAccounts,
                               settings);

    unwatched.startWatching();
    processEvents();
    unwatched.stopWatching();

    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AuthStateManagerTest, ChangesAfterItsEndAreDropped)
{
    manager->startWatching();
    processEvents();
    manager.reset();

    watcher->stream.yield();
    processEvents();

    EXPECT_TRUE(reader->reads.isEmpty());
    watcher->stream.finish();
    processEvents();
}

TEST_F(AuthStateManagerTest, FileChangeInsideReloadIsSeenBeforeTheProjectsCome)
{
    manager->startWatching();
    processEvents();
    const auto run = executor->expect(GCloudCommand::listProjects());
    manager->reload();
    reader->properties[u"default"_s].project = u"p2"_s;

    watcher->stream.yield();
    processEvents();

    EXPECT_EQ(manager->currentContext().activeProject->id, u"p2");
    EXPECT_TRUE(manager->isLoading());
    run->finish(listing({ u"p2"_s }));
    manager->stopWatching();
    processEvents();
}

TEST_F(AuthStateManagerTest, DestructionInMidReloadEndsItWithoutEffect)
{
    const auto run = executor->expect(GCloudCommand::listProjects());
    manager->reload();

    manager.reset();
    run->finish(listing({ u"p1"_s }));

    EXPECT_FALSE(run->isRunning());
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/support/StateManagerFixture.h"

#include <qcoro/qcorotask.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace torvi {

struct SimpleOperation
{
    const char *name;
    std::function<QCoro::Task<>(AuthStateManager &)> start;
    GCloudCommand command;
};

/// The operations that run one command and then read the files again.
class SimpleOperationTest : public StateManagerFixture,
                            public testing::WithParamInterface<SimpleOperation>
{
};

TEST_P(SimpleOperationTest, ReadsTheFilesAgainWhenGcloudSucceeds)
{
    const auto run = executor->expect(GetParam().command);
    GetParam().start(*manager);
    EXPECT_TRUE(reader->reads.isEmpty());
    reader->properties[u"default"_s].project = u"new"_s;

    run->finish(success());

    EXPECT_EQ(manager->currentContext().activeProject->id, u"new");
    EXPECT_EQ(manager->lastError(), std::nullopt);
    EXPECT_FALSE(manager->isLoading());
}

TEST_P(SimpleOperationTest, RecordsAFailureAndKeepsTheContext)
{
    executor->expect(GetParam().command, failure(u"ERROR: no\n"_s));

    GetParam().start(*manager);

    EXPECT_EQ(manager->lastError(), AppError::commandFailed(1, u"ERROR: no\n"_s));
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_P(SimpleOperationTest, RecordsWhatTheExecutorThrows)
{
    executor->expectFailure(GetParam().command, AppError::gcloudNotFound());

    GetParam().start(*manager);

    EXPECT_EQ(manager->lastError(), AppError::gcloudNotFound());
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_P(SimpleOperationTest, KeepsAnEarlierErrorWhenItSucceeds)
{
    manager->setLastError(AppError::unknown(u"earlier"_s));
    executor->expect(GetParam().command, success());

    GetParam().start(*manager);

    EXPECT_EQ(manager->lastError(), AppError::unknown(u"earlier"_s));
}

TEST_P(SimpleOperationTest, EndsWithoutEffectWhenTheManagerIsGone)
{
    const auto run = executor->expect(GetParam().command);
    GetParam().start(*manager);

    manager.reset();
    run->finish(success());

    EXPECT_TRUE(reader->reads.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    All, SimpleOperationTest,
    testing::Values(
        SimpleOperation{ "switchProject",
                         [](AuthStateManager &manager) { return manager.switchProject(u"x"_s); },
                         GCloudCommand::setProject(u"x"_s) },
        SimpleOperation{
            "activateConfiguration",
            [](AuthStateManager &manager) { return manager.activateConfiguration(u"x"_s); },
            GCloudCommand::activateConfiguration(u"x"_s) },
        SimpleOperation{
            "createConfiguration",
            [](AuthStateManager &manager) { return manager.createConfiguration(u"x"_s); },
            GCloudCommand::createConfiguration(u"x"_s) },
        SimpleOperation{
            "deleteConfiguration",
            [](AuthStateManager &manager) { return manager.deleteConfiguration(u"x"_s); },
            GCloudCommand::deleteConfiguration(u"x"_s) },
        SimpleOperation{ "setQuotaProject",
                         [](AuthStateManager &manager) { return manager.setQuotaProject(u"x"_s); },
                         GCloudCommand::setQuotaProject(u"x"_s) },
        SimpleOperation{ "triggerADCLogin",
                         [](AuthStateManager &manager) { return manager.triggerADCLogin(); },
                         GCloudCommand::applicationDefaultLogin() },
        SimpleOperation{ "setImpersonationOfTheCLI",
                         [](AuthStateManager &manager) {
                             return manager.setImpersonation(u"x"_s, ImpersonationMode::cliOnly);
                         },
                         GCloudCommand::setImpersonation(u"x"_s) },
        SimpleOperation{ "setImpersonationOfADC",
                         [](AuthStateManager &manager) {
                             return manager.setImpersonation(u"x"_s, ImpersonationMode::adcOnly);
                         },
                         GCloudCommand::adcLoginWithImpersonation(u"x"_s) },
        SimpleOperation{ "clearImpersonationOfTheCLI",
                         [](AuthStateManager &manager) {
                             return manager.clearImpersonation(ImpersonationMode::cliOnly);
                         },
                         GCloudCommand::clearImpersonation() },
        SimpleOperation{ "clearImpersonationOfADC",
                         [](AuthStateManager &manager) {
                             return manager.clearImpersonation(ImpersonationMode::adcOnly);
                         },
                         GCloudCommand::revokeADC() }),
    [](const auto &operation) { return operation.param.name; });

class AuthStateManagerOperationsTest : public StateManagerFixture
{
protected:
    /// The text of what a task, which ends at once, throws.
    static std::string errorOf(QCoro::Task<QString> task)
    {
        std::string text;
        keepError(std::move(task), text);
        return text;
    }

private:
    static QCoro::Task<> keepError(QCoro::Task<QString> task, std::string &text)
    {
        try {
            co_await task;
        } catch (const std::exception &error) {
            text = error.what();
        }
    }
};

TEST_F(AuthStateManagerOperationsTest, ImpersonatingBothRunsTheCLIStepFirst)
{
    const auto cliStep = executor->expect(GCloudCommand::setImpersonation(u"x"_s));
    const auto adcStep = executor->expect(GCloudCommand::adcLoginWithImpersonation(u"x"_s));

    manager->setImpersonation(u"x"_s, ImpersonationMode::both);
    EXPECT_TRUE(cliStep->isRunning());
    EXPECT_FALSE(adcStep->isRunning());
    cliStep->finish(success());
    EXPECT_TRUE(adcStep->isRunning());
    EXPECT_TRUE(reader->reads.isEmpty());
    adcStep->finish(success());

    EXPECT_EQ(reader->reads.count(u"activeName"_s), 1);
}

TEST_F(AuthStateManagerOperationsTest, FailedCLIStepNeverStartsTheLogin)
{
    executor->expect(GCloudCommand::setImpersonation(u"x"_s), failure(u"no"_s));

    manager->setImpersonation(u"x"_s, ImpersonationMode::both);

    EXPECT_EQ(manager->lastError(), AppError::commandFailed(1, u"no"_s));
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AuthStateManagerOperationsTest, ThrowingCLIStepNeverStartsTheLogin)
{
    executor->expectFailure(GCloudCommand::setImpersonation(u"x"_s), AppError::gcloudNotFound());

    manager->setImpersonation(u"x"_s, ImpersonationMode::both);

    EXPECT_EQ(manager->lastError(), AppError::gcloudNotFound());
}

TEST_F(AuthStateManagerOperationsTest, FailedADCStepAfterTheCLIStepReloadsNothing)
{
    executor->expect(GCloudCommand::setImpersonation(u"x"_s), success());
    executor->expect(GCloudCommand::adcLoginWithImpersonation(u"x"_s), failure(u"denied"_s));

    manager->setImpersonation(u"x"_s, ImpersonationMode::both);

    EXPECT_EQ(manager->lastError(), AppError::commandFailed(1, u"denied"_s));
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AuthStateManagerOperationsTest, ClearingBothRunsTheCLIStepFirst)
{
    executor->expect(GCloudCommand::clearImpersonation(), success());
    executor->expect(GCloudCommand::revokeADC(), success());

    manager->clearImpersonation(ImpersonationMode::both);

    EXPECT_EQ(reader->reads.count(u"activeName"_s), 1);
}

TEST_F(AuthStateManagerOperationsTest, DestructionBetweenTheStepsStartsNoFurtherOne)
{
    const auto cliStep = executor->expect(GCloudCommand::setImpersonation(u"x"_s));
    manager->setImpersonation(u"x"_s, ImpersonationMode::both);

    manager.reset();
    cliStep->finish(success());

    EXPECT_FALSE(cliStep->isRunning());
}

TEST_F(AuthStateManagerOperationsTest, AccountSwitchFetchesProjectsEvenWhenTheyAreFresh)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"old"_s }));
    manager->reload();
    executor->expect(GCloudCommand::setAccount(u"b@x"_s), success());
    executor->expect(GCloudCommand::listProjects(), listing({ u"new"_s }));

    manager->switchAccount(u"b@x"_s);

    EXPECT_EQ(manager->projects().first().id, u"new");
}

TEST_F(AuthStateManagerOperationsTest, FailedAccountSwitchFetchesNothing)
{
    executor->expect(GCloudCommand::setAccount(u"b@x"_s), failure(u"no"_s));

    manager->switchAccount(u"b@x"_s);

    EXPECT_EQ(manager->lastError(), AppError::commandFailed(1, u"no"_s));
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AuthStateManagerOperationsTest, ProjectSwitchNeverFetchesProjects)
{
    executor->expect(GCloudCommand::setProject(u"p"_s), success());

    manager->switchProject(u"p"_s); // the executor fails the test on any further command

    EXPECT_FALSE(reader->reads.isEmpty());
}

TEST_F(AuthStateManagerOperationsTest, OverlappingSwitchesBothEndAndTheLastReadWins)
{
    const auto first = executor->expect(GCloudCommand::setProject(u"p1"_s));
    const auto second = executor->expect(GCloudCommand::setProject(u"p2"_s));
    manager->switchProject(u"p1"_s);
    manager->switchProject(u"p2"_s);

    reader->properties[u"default"_s].project = u"p2"_s;
    second->finish(success());
    reader->properties[u"default"_s].project = u"p1"_s;
    first->finish(success());

    EXPECT_EQ(manager->currentContext().activeProject->id, u"p1");
}

TEST_F(AuthStateManagerOperationsTest, TokenComesWithoutSurroundingWhiteSpace)
{
    executor->expect(GCloudCommand::printIdentityToken(), success(u"  ey.J0\n\n"_s));

    const QString token = QCoro::waitFor(manager->fetchIdentityToken());

    EXPECT_EQ(token, u"ey.J0");
    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AuthStateManagerOperationsTest, FailedTokenIsThrownAndNotRecorded)
{
    executor->expect(GCloudCommand::printIdentityToken(), failure(u"no account"_s));

    EXPECT_EQ(errorOf(manager->fetchIdentityToken()), "gcloud command failed (exit 1): no account");
    EXPECT_EQ(manager->lastError(), std::nullopt);
}

TEST_F(AuthStateManagerOperationsTest, TokenPassesTheExecutorsErrorUnchanged)
{
    executor->expectFailure(GCloudCommand::printIdentityToken(), std::runtime_error("foreign"));

    EXPECT_EQ(errorOf(manager->fetchIdentityToken()), "foreign");
}

TEST_F(AuthStateManagerOperationsTest, DiscoveredServiceAccountsBelongToTheRequestedProject)
{
    executor->expect(GCloudCommand::listServiceAccounts(u"p"_s),
                     success(uR"([{"email": "robot-1", "projectId": "other"}])"_s));

    const auto accounts = QCoro::waitFor(manager->fetchServiceAccounts(u"p"_s));

    EXPECT_EQ(accounts,
              (QList<ServiceAccount>{ ServiceAccount{ u"robot-1"_s, u"p"_s, std::nullopt } }));
}

TEST_F(AuthStateManagerOperationsTest, DiscoveryWithoutPermissionIsAnEmptyListAndNoError)
{
    executor->expect(GCloudCommand::listServiceAccounts(u"p"_s), { 1, u"[]"_s, u"denied"_s });

    EXPECT_TRUE(QCoro::waitFor(manager->fetchServiceAccounts(u"p"_s)).isEmpty());
    EXPECT_EQ(manager->lastError(), std::nullopt);
}

TEST_F(AuthStateManagerOperationsTest, UnparsableDiscoveryIsAnEmptyListAndNoError)
{
    executor->expect(GCloudCommand::listServiceAccounts(u"p"_s), success(u"[{}]"_s));

    EXPECT_TRUE(QCoro::waitFor(manager->fetchServiceAccounts(u"p"_s)).isEmpty());
    EXPECT_EQ(manager->lastError(), std::nullopt);
}

TEST_F(AuthStateManagerOperationsTest, ThrowingDiscoveryIsAnEmptyListAndNoError)
{
    executor->expectFailure(GCloudCommand::listServiceAccounts(u"p"_s), AppError::gcloudNotFound());

    EXPECT_TRUE(QCoro::waitFor(manager->fetchServiceAccounts(u"p"_s)).isEmpty());
    EXPECT_EQ(manager->lastError(), std::nullopt);
}

TEST_F(AuthStateManagerOperationsTest, TogglePinChangesTheStoreAndTheList)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s, u"p2"_s }));
    manager->reload();

    manager->togglePin(u"p2"_s);
    EXPECT_TRUE(favorites->ids.contains(u"p2"_s));
    EXPECT_TRUE(manager->projects().at(1).isPinned);
    EXPECT_FALSE(manager->projects().at(0).isPinned);
    manager->togglePin(u"p2"_s);

    EXPECT_TRUE(favorites->ids.isEmpty());
    EXPECT_FALSE(manager->projects().at(1).isPinned);
}

TEST_F(AuthStateManagerOperationsTest, TogglePinPublishesTheList)
{
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));
    manager->reload();
    int changes = 0;
    QObject::connect(manager.get(), &AuthStateManager::projectsChanged, [&changes] { ++changes; });

    manager->togglePin(u"p1"_s);

    EXPECT_EQ(changes, 1);
}

TEST_F(AuthStateManagerOperationsTest, TogglePinOfAnUnlistedIdChangesTheFavoriteOnly)
{
    manager->togglePin(u"unlisted"_s);

    EXPECT_TRUE(favorites->ids.contains(u"unlisted"_s));
    EXPECT_TRUE(manager->projects().isEmpty());
}

TEST_F(AuthStateManagerOperationsTest, TogglePinDoesNotTouchTheContext)
{
    reader->properties[u"default"_s].project = u"p1"_s;
    executor->expect(GCloudCommand::listProjects(), listing({ u"p1"_s }));
    manager->reload();
    manager->reloadFromFiles();

    manager->togglePin(u"p1"_s);

    EXPECT_FALSE(manager->currentContext().activeProject->isPinned);
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/VeldraUI/AuthStateFixture.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QSignalSpy>

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

class AuthStateTest : public AuthStateFixture
{
protected:
    std::unique_ptr<QJSEngine> engine = std::make_unique<QJSEngine>();

    /// A function that notes its arguments in `calls`.
    QJSValue note()
    {
        return engine->evaluate(u"calls = []; (...all) => { calls.push(all.join()) }"_s);
    }

    QStringList calls() const
    {
        return engine->globalObject().property(u"calls"_s).toVariant().toStringList();
    }

    void setContext()
    {
        reader->properties[u"default"_s]
            = { u"p1"_s, u"a@x"_s, std::nullopt, std::nullopt, u"robot@p1"_s };
        reader->accounts = { u"a@x"_s };
        reader->adcState = { ADCType::userCredentials, u"q"_s, std::nullopt, true };
        manager->reloadFromFiles();
    }
};

TEST_F(AuthStateTest, ShowsTheEmptyContextAsAbsentEverywhere)
{
    EXPECT_FALSE(state->isLoading());
    EXPECT_FALSE(state->hasError());
    EXPECT_EQ(state->errorMessage(), u""_s);
    EXPECT_FALSE(state->hasActiveProject());
    EXPECT_EQ(state->activeProjectId(), u""_s);
    EXPECT_FALSE(state->hasActiveAccount());
    EXPECT_EQ(state->activeAccountEmail(), u""_s);
    EXPECT_FALSE(state->hasActiveConfiguration());
    EXPECT_EQ(state->activeConfigurationName(), u""_s);
    EXPECT_FALSE(state->isImpersonating());
    EXPECT_EQ(state->impersonatedEmail(), u""_s);
    EXPECT_FALSE(state->adc().isConfigured());
    EXPECT_EQ(state->accounts()->rowCount(), 0);
    EXPECT_EQ(state->configurations()->rowCount(), 0);
}

TEST_F(AuthStateTest, ShowsTheContextAndTellsOfIt)
{
    const QSignalSpy changes(state.get(), &AuthState::currentContextChanged);

    setContext();

    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(state->hasActiveProject());
    EXPECT_EQ(state->activeProjectId(), u"p1"_s);
    EXPECT_TRUE(state->hasActiveAccount());
    EXPECT_EQ(state->activeAccountEmail(), u"a@x"_s);
    EXPECT_TRUE(state->hasActiveConfiguration());
    EXPECT_EQ(state->activeConfigurationName(), u"default"_s);
    EXPECT_TRUE(state->isImpersonating());
    EXPECT_EQ(state->impersonatedEmail(), u"robot@p1"_s);
    EXPECT_EQ(state->adc(), ADCStatus(reader->adcState));
}

TEST_F(AuthStateTest, TellsAProjectSetToNothingFromNone)
{
    activate(u""_s);

    EXPECT_TRUE(state->hasActiveProject());
    EXPECT_EQ(state->activeProjectId(), u""_s);
}

TEST_F(AuthStateTest, ShowsTheErrorUntilItIsDismissed)
{
    const QSignalSpy changes(state.get(), &AuthState::lastErrorChanged);
    manager->setLastError(AppError::parseError(u"x"_s));
    EXPECT_TRUE(state->hasError());
    EXPECT_EQ(state->errorMessage(), u"Failed to parse gcloud output: x"_s);

    state->dismissError();

    EXPECT_FALSE(state->hasError());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(AuthStateTest, AnErrorWithoutWordsIsStillAnError)
{
    manager->setLastError(AppError::unknown(QString()));

    EXPECT_TRUE(state->hasError());
    EXPECT_EQ(state->errorMessage(), u""_s);
}

TEST_F(AuthStateTest, OperationsStartFromTheEventLoop)
{
    state->reload();
    EXPECT_TRUE(reader->reads.isEmpty());
    EXPECT_FALSE(state->isLoading());

    executor->expect(GCloudCommand::listProjects(), listing({}));
    processEvents();
    EXPECT_FALSE(reader->reads.isEmpty());
}

TEST_F(AuthStateTest, AnOperationThatIsNotYetStartedDiesWithTheState)
{
    state->reload();
    state.reset();

    processEvents();

    EXPECT_TRUE(reader->reads.isEmpty());
}

TEST_F(AuthStateTest, ReloadShowsThatItLoadsAndThenCallsBack)
{
    const QSignalSpy loading(state.get(), &AuthState::isLoadingChanged);
    const auto run = executor->expect(GCloudCommand::listProjects());
    state->reload(note());
    processEvents();
    EXPECT_TRUE(state->isLoading());
    EXPECT_EQ(calls(), QStringList());

    run->finish(listing({ u"p1"_s }));

    EXPECT_FALSE(state->isLoading());
    EXPECT_EQ(loading.count(), 2);
    EXPECT_EQ(calls(), QStringList{ u""_s });
}

TEST_F(AuthStateTest, ReloadCallsBackAlsoAfterAFailure)
{
    executor->expect(GCloudCommand::listProjects(), failure(u"boom"_s));
    state->reload(note());

    processEvents();

    EXPECT_EQ(calls(), QStringList{ u""_s });
    EXPECT_EQ(state->errorMessage(), u"gcloud command failed (exit 1): boom"_s);
}

TEST_F(AuthStateTest, ASuccessfulProjectSwitchEntersTheRecentList)
{
    const auto run = executor->expect(GCloudCommand::setProject(u"p2"_s));
    state->switchProject(u"p2"_s);
    processEvents();
    EXPECT_EQ(recents->ids, QStringList());

    reader->properties[u"default"_s].project = u"p2"_s;
    run->finish(success());

    EXPECT_EQ(recents->ids, QStringList{ u"p2"_s });
}

TEST_F(AuthStateTest, AFailedProjectSwitchDoesNotEnterTheRecentList)
{
    activate(u"p1"_s);
    executor->expect(GCloudCommand::setProject(u"p2"_s), failure(u"no"_s));

    state->switchProject(u"p2"_s);
    processEvents();

    EXPECT_EQ(recents->ids, QStringList());
    EXPECT_TRUE(state->hasError());
}

TEST_F(AuthStateTest, ASwitchThatGcloudAcceptsWithoutEffectDoesNotEnterTheRecentList)
{
    activate(u"p1"_s);
    executor->expect(GCloudCommand::setProject(u"p2"_s), success());

    state->switchProject(u"p2"_s);
    processEvents();

    EXPECT_EQ(recents->ids, QStringList());
}

TEST_F(AuthStateTest, SwitchingToTheEmptyIdDoesNotCountAsActiveWithoutAProject)
{
    executor->expect(GCloudCommand::setProject(u""_s), success());

    state->switchProject(u""_s);
    processEvents();

    EXPECT_EQ(recents->ids, QStringList());
}

TEST_F(AuthStateTest, EachOperationRunsItsCommand)
{
    activate(u"p1"_s);
    executor->expect(GCloudCommand::setAccount(u"b@x"_s), failure(u""_s));
    executor->expect(GCloudCommand::activateConfiguration(u"labs"_s), success());
    executor->expect(GCloudCommand::applicationDefaultLogin(), success());
    executor->expect(GCloudCommand::setQuotaProject(u"p1"_s), success());

    state->switchAccount(u"b@x"_s);
    state->activateConfiguration(u"labs"_s);
    state->triggerADCLogin();
    state->setQuotaProjectToActive();
    processEvents();
}

TEST_F(AuthStateTest, WithoutAnActiveProjectThereIsNoQuotaProjectToSet)
{
    state->setQuotaProjectToActive();

    processEvents(); // an unexpected command would fail here
}

TEST_F(AuthStateTest, ImpersonationIsClearedOnItsOwnSideOnly)
{
    executor->expect(GCloudCommand::clearImpersonation(), success());
    state->clearImpersonation(AuthState::CLIOnly);
    processEvents();

    executor->expect(GCloudCommand::revokeADC(), success());
    state->clearImpersonation(AuthState::ADCOnly);
    processEvents();
}

TEST_F(AuthStateTest, ModesStandInTheOrderOfTheirTexts)
{
    EXPECT_EQ(state->modeTexts(), (QStringList{ u"ADC Only"_s, u"CLI Only"_s, u"Both"_s }));
    EXPECT_EQ(AuthState::ADCOnly, 0);
    EXPECT_EQ(AuthState::CLIOnly, 1);
    EXPECT_EQ(AuthState::Both, 2);
}

TEST_F(AuthStateTest, ImpersonationStartsInTheModeAskedFor)
{
    executor->expect(GCloudCommand::setImpersonation(u"r@p"_s), success());
    executor->expect(GCloudCommand::adcLoginWithImpersonation(u"r@p"_s), success());

    state->setImpersonation(u"r@p"_s, AuthState::Both, note());
    processEvents();

    EXPECT_EQ(calls(), QStringList{ u""_s });
}

TEST_F(AuthStateTest, ATypedEmailIsImpersonatedWithoutTheWhiteSpaceAroundIt)
{
    executor->expect(GCloudCommand::adcLoginWithImpersonation(u"r@p"_s), failure(u"no"_s));

    state->submitImpersonation(u" \t\u00a0\u2003r@p\r\n\u2029"_s, AuthState::ADCOnly, note());
    processEvents();

    EXPECT_EQ(calls(), QStringList{ u""_s }) << "also when it failed";
}

TEST_F(AuthStateTest, TypedWhiteSpaceAloneImpersonatesNobody)
{
    state->submitImpersonation(u"  \n"_s, AuthState::Both, note());
    processEvents();

    EXPECT_EQ(calls(), QStringList());
}

TEST_F(AuthStateTest, PinsAtOnce)
{
    state->togglePin(u"p1"_s);

    EXPECT_EQ(favorites->ids, QSet<QString>{ u"p1"_s });
}

TEST_F(AuthStateTest, CopiesTheTokenAsASecret)
{
    const auto run = executor->expect(GCloudCommand::printIdentityToken());
    state->copyIdentityToken(note());
    processEvents();
    EXPECT_TRUE(clipboard.log.isEmpty());

    run->finish({ 0, u" token\n"_s, QString() });

    EXPECT_EQ(clipboard.log, QStringList{ u"secret token"_s });
    EXPECT_EQ(calls(), QStringList{ u"true"_s });
    EXPECT_FALSE(state->hasError());
}

TEST_F(AuthStateTest, AFailedTokenCopyIsTheLastErrorAndLeavesTheClipboard)
{
    executor->expect(GCloudCommand::printIdentityToken(), failure(u"no account"_s));

    state->copyIdentityToken(note());
    processEvents();

    EXPECT_EQ(manager->lastError(), AppError::commandFailed(1, u"no account"_s));
    EXPECT_EQ(calls(), QStringList{ u"false"_s });
    EXPECT_TRUE(clipboard.log.isEmpty());
}

TEST_F(AuthStateTest, AFailureOfAnotherKindIsUnknownWithItsWords)
{
    executor->expectFailure(GCloudCommand::printIdentityToken(), std::runtime_error("odd"));

    state->copyIdentityToken(note());
    processEvents();

    EXPECT_EQ(manager->lastError(), AppError::unknown(u"odd"_s));
    EXPECT_EQ(calls(), QStringList{ u"false"_s });
}

TEST_F(AuthStateTest, AConfirmationLastsAsLongAsItShould)
{
    state->afterConfirmation(note());

    time.advance(1499ms);
    EXPECT_EQ(calls(), QStringList());

    time.advance(1ms);
    EXPECT_EQ(calls(), QStringList{ u""_s });
}

TEST_F(AuthStateTest, WithoutATestsClockAConfirmationIsNeverShorter)
{
    AuthState timed(*manager, clipboard);
    QElapsedTimer elapsed;
    elapsed.start();
    timed.afterConfirmation(note());

    while (calls().isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    EXPECT_GE(std::chrono::milliseconds(elapsed.elapsed()), AuthState::confirmationTime);
}

TEST_F(AuthStateTest, OperationsUnderWayMayOutliveTheEngineTheStateAndTheManager)
{
    const auto reload = executor->expect(GCloudCommand::listProjects());
    const auto token = executor->expect(GCloudCommand::printIdentityToken());
    const auto change = executor->expect(GCloudCommand::setProject(u"p2"_s));
    const auto login = executor->expect(GCloudCommand::adcLoginWithImpersonation(u"r@p"_s));
    state->reload(note());
    state->copyIdentityToken(note());
    state->switchProject(u"p2"_s);
    state->setImpersonation(u"r@p"_s, AuthState::ADCOnly, note());
    state->afterConfirmation(note());
    processEvents();

    engine.reset();
    token->finish(success(u"token"_s));
    EXPECT_EQ(clipboard.log, QStringList{ u"secret token"_s });
    state.reset();
    change->finish(success());
    manager.reset();
    reload->finish(listing({}));
    login->finish(success());
    time.advance(2s);

    EXPECT_EQ(recents->ids, QStringList());
}

TEST_F(AuthStateTest, ListsTheProjectsInTheManagersOrder)
{
    const QSignalSpy changes(state.get(), &AuthState::projectsChanged);

    list({ u"p2"_s, u"p1"_s });

    EXPECT_EQ(changes.count(), 1);
    QStringList ids;
    for (const Project &project : manager->projects()) {
        ids.append(project.id);
    }
    EXPECT_EQ(state->projectIds(), ids);
    EXPECT_EQ(ids.size(), 2);
}

TEST_F(AuthStateTest, CreatesAConfigurationFromTheEventLoopAndTellsTheEnd)
{
    const auto run = executor->expect(GCloudCommand::createConfiguration(u" new "_s));

    state->createConfiguration(u" new "_s, note());
    EXPECT_FALSE(run->isRunning());
    processEvents();
    EXPECT_TRUE(run->isRunning());
    EXPECT_TRUE(calls().isEmpty());

    run->finish(success());
    EXPECT_EQ(calls(), QStringList{ u""_s });
}

TEST_F(AuthStateTest, TellsTheEndOfAFailedCreationToo)
{
    executor->expect(GCloudCommand::createConfiguration(u"x"_s), failure(u"no"_s));

    state->createConfiguration(u"x"_s, note());
    processEvents();

    EXPECT_EQ(calls(), QStringList{ u""_s });
    EXPECT_EQ(state->errorMessage(), u"gcloud command failed (exit 1): no"_s);
}

TEST_F(AuthStateTest, DeletesAConfiguration)
{
    executor->expect(GCloudCommand::deleteConfiguration(u"old"_s), success());

    state->deleteConfiguration(u"old"_s);
    processEvents();
}

TEST_F(AuthStateTest, SetsAQuotaProjectAsItWasTyped)
{
    executor->expect(GCloudCommand::setQuotaProject(u" q "_s), success());
    executor->expect(GCloudCommand::setQuotaProject(u""_s), success());

    state->setQuotaProject(u" q "_s);
    state->setQuotaProject(u""_s);
    processEvents();
}

} // namespace torvi

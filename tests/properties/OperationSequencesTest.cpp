// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/AuthStateManager.h"
#include "tests/properties/Random.h"
#include "tests/support/FakeConfigReader.h"
#include "tests/support/FakeFileWatcher.h"
#include "tests/support/FakeStores.h"

#include <QCoreApplication>
#include <QFuture>
#include <QPromise>
#include <qcoro/qcorofuture.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// gcloud and its directory as a few fields: a run changes them when it ends, not before.
class SimulatedGcloud final : public GCloudExecutor
{
public:
    explicit SimulatedGcloud(std::shared_ptr<FakeConfigReader> directory)
        : m_directory(std::move(directory))
    {
    }

    QCoro::Task<GCloudResult> execute(GCloudCommand command) override
    {
        auto run = std::make_shared<Run>(Run{ command, {} });
        run->promise.start();
        m_running.push_back(run);
        QFuture<GCloudResult> future = run->promise.future();
        co_return co_await future;
    }

    [[nodiscard]] int running() const
    {
        return static_cast<int>(m_running.size());
    }

    /// Ends one run; `succeeds` false leaves the directory as it is.
    void end(int index, bool succeeds)
    {
        const auto run = m_running[static_cast<std::size_t>(index)];
        m_running.erase(m_running.begin() + index);
        if (succeeds) {
            apply(run->command);
        }
        const QString output
            = run->command.asCase() == GCloudCommand::Case::listProjects ? u"[]"_s : QString();
        run->promise.addResult(succeeds ? GCloudResult{ 0, output, u""_s }
                                        : GCloudResult{ 1, u""_s, u"failed"_s });
        run->promise.finish();
        QCoreApplication::processEvents();
    }

private:
    struct Run
    {
        GCloudCommand command;
        QPromise<GCloudResult> promise;
    };

    void apply(const GCloudCommand &command)
    {
        const QString payload = command.payload().value_or(QString());
        ConfigProperties &active = m_directory->properties[m_directory->activeName];
        switch (command.asCase()) {
        case GCloudCommand::Case::setProject:
            active.project = payload;
            break;
        case GCloudCommand::Case::setAccount:
            active.account = payload;
            break;
        case GCloudCommand::Case::createConfiguration:
            if (!m_directory->names.contains(payload)) {
                m_directory->names.append(payload);
                m_directory->names.sort();
            }
            m_directory->activeName = payload;
            break;
        case GCloudCommand::Case::activateConfiguration:
            m_directory->activeName = payload;
            break;
        case GCloudCommand::Case::deleteConfiguration:
            m_directory->names.removeAll(payload);
            m_directory->properties.remove(payload);
            break;
        case GCloudCommand::Case::setImpersonation:
            active.impersonateServiceAccount = payload;
            break;
        case GCloudCommand::Case::clearImpersonation:
            active.impersonateServiceAccount = std::nullopt;
            break;
        case GCloudCommand::Case::setQuotaProject:
            m_directory->adcState.quotaProject = payload;
            break;
        case GCloudCommand::Case::applicationDefaultLogin:
            m_directory->adcState = { ADCType::userCredentials, std::nullopt, std::nullopt, true };
            break;
        case GCloudCommand::Case::adcLoginWithImpersonation:
            m_directory->adcState
                = { ADCType::impersonatedServiceAccount, std::nullopt, payload, true };
            break;
        case GCloudCommand::Case::revokeADC:
            m_directory->adcState = {};
            break;
        default:
            break;
        }
    }

    std::shared_ptr<FakeConfigReader> m_directory;
    std::vector<std::shared_ptr<Run>> m_running;
};

/// What the state must look like for one moment of the directory, worked out on its own.
struct Moment
{
    QString activeName;
    QStringList names;
    QMap<QString, ConfigProperties> properties;
    ADCState adcState;

    [[nodiscard]] bool isShownBy(const AuthStateManager &manager) const
    {
        const AuthContext &context = manager.currentContext();
        const ConfigProperties active = properties.value(activeName);
        const bool hasSameProject = context.activeProject.has_value() == active.project.has_value()
            && (!active.project || context.activeProject->id == *active.project);
        const bool hasSameImpersonation = context.impersonatedServiceAccount.has_value()
                == active.impersonateServiceAccount.has_value()
            && (!active.impersonateServiceAccount
                || context.impersonatedServiceAccount->email == *active.impersonateServiceAccount);
        QStringList shown;
        for (const Configuration &configuration : manager.configurations()) {
            shown.append(configuration.name);
            if (configuration.isActive != (configuration.name == activeName)
                || configuration.properties != properties.value(configuration.name)) {
                return false;
            }
        }
        return hasSameProject && hasSameImpersonation && context.adcState == adcState
            && shown == names;
    }
};

} // namespace

class OperationSequencesTest : public testing::Test
{
protected:
    Random random;
    std::shared_ptr<FakeConfigReader> directory = std::make_shared<FakeConfigReader>();
    std::shared_ptr<SimulatedGcloud> gcloud = std::make_shared<SimulatedGcloud>(directory);
    std::shared_ptr<FakeFileWatcher> watcher = std::make_shared<FakeFileWatcher>();
    std::shared_ptr<FakeFavoritesStore> favorites = std::make_shared<FakeFavoritesStore>();
    AuthStateManager manager{ gcloud,
                              directory,
                              watcher,
                              favorites,
                              std::make_shared<FakeRecentStore>(),
                              std::make_shared<FakeServiceAccountStore>(),
                              std::make_shared<FakeSettingsStore>() };
    std::vector<Moment> moments;

    void noteMoment()
    {
        moments.push_back({ directory->activeName, directory->names, directory->properties,
                            directory->adcState });
    }

    void startOneOperation()
    {
        const QString text = random.oneOf(QStringList{ u"a"_s, u"b"_s, u"c"_s });
        const ImpersonationMode mode = random.oneOf(allCases<ImpersonationMode>());
        switch (random.below(11)) {
        case 0:
            manager.switchProject(text);
            break;
        case 1:
            manager.switchAccount(text);
            break;
        case 2:
            manager.activateConfiguration(text);
            break;
        case 3:
            manager.createConfiguration(text);
            break;
        case 4:
            manager.deleteConfiguration(text);
            break;
        case 5:
            manager.setQuotaProject(text);
            break;
        case 6:
            manager.triggerADCLogin();
            break;
        case 7:
            manager.setImpersonation(text, mode);
            break;
        case 8:
            manager.clearImpersonation(mode);
            break;
        case 9:
            manager.reload();
            break;
        default:
            manager.togglePin(text);
            break;
        }
    }

    void changeFromOutside()
    {
        directory->properties[directory->activeName].project
            = random.oneOf(QStringList{ u"x"_s, u"y"_s });
        noteMoment();
        watcher->stream.yield();
        QCoreApplication::processEvents();
    }

    void takeOneStep()
    {
        if (random.oneIn(8)) {
            changeFromOutside();
        } else if (gcloud->running() == 0 || random.oneIn(2)) {
            startOneOperation();
        } else {
            gcloud->end(random.below(gcloud->running()), !random.oneIn(4));
            noteMoment();
        }
    }

    [[nodiscard]] bool showsAMomentThatExisted() const
    {
        return std::ranges::any_of(
            moments, [this](const Moment &moment) { return moment.isShownBy(manager); });
    }
};

TEST_F(OperationSequencesTest, ShowOnlyStatesThatReallyExistedAndEndUpRight)
{
    const int sequences = repetitions(300);
    manager.startWatching();
    QCoreApplication::processEvents();
    manager.reloadFromFiles();
    for (int sequence = 0; sequence < sequences; ++sequence) {
        moments.clear();
        noteMoment();
        watcher->stream.yield();
        QCoreApplication::processEvents();

        for (int step = 0; step < 40; ++step) {
            takeOneStep();
            ASSERT_TRUE(showsAMomentThatExisted()) << "sequence " << sequence << ", step " << step;
        }

        while (gcloud->running() > 0) {
            gcloud->end(0, true);
            noteMoment();
        }
        watcher->stream.yield();
        QCoreApplication::processEvents();
        ASSERT_TRUE(moments.back().isShownBy(manager)) << "sequence " << sequence;
        ASSERT_FALSE(manager.isLoading());
    }
    std::cout << sequences << " sequences of 40 steps\n";
    manager.stopWatching();
    QCoreApplication::processEvents();
}

} // namespace torvi

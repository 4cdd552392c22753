// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/AuthState.h"
#include "tests/VeldraUI/FakeDelay.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/FakeConfigReader.h"
#include "tests/support/FakeExecutor.h"
#include "tests/support/FakeStores.h"

#include <QUrl>
#include <QVariantMap>

#include <deque>

namespace torvi {

class CountingExecutor;

/// What a view's test needs: a state over a real state manager, and the say over everything that it
/// learns from outside. In QML texts that are absent are null.
class World : public QObject
{
    Q_OBJECT
    Q_PROPERTY(torvi::AuthState *stateManager READ stateManager CONSTANT)
    Q_PROPERTY(QStringList clipboard READ clipboard)
    Q_PROPERTY(QStringList recents READ recents WRITE setRecents)
    Q_PROPERTY(QStringList pinned READ pinned WRITE setPinned)
    /// {launchAtLogin, format, interval, path}, as they are stored; the format as its raw value.
    Q_PROPERTY(QVariantMap settings READ settings)
    /// What was opened in the browser.
    Q_PROPERTY(QStringList visited READ visited)
    /// The number of commands that ran.
    Q_PROPERTY(int commands READ commands)

public:
    explicit World(QObject *parent = nullptr);
    ~World() override;

    [[nodiscard]] AuthState *stateManager() const;
    [[nodiscard]] QStringList clipboard() const;
    [[nodiscard]] QStringList recents() const;
    void setRecents(const QStringList &ids);
    [[nodiscard]] QStringList pinned() const;
    void setPinned(const QStringList &ids);
    [[nodiscard]] QVariantMap settings() const;
    [[nodiscard]] QStringList visited() const;
    [[nodiscard]] int commands() const;

    Q_INVOKABLE void storeSettings(const QVariantMap &settings);

    /// Replaces the configurations: a list of {name, project, account, region, impersonate}.
    Q_INVOKABLE void setConfigurations(const QVariantList &configurations, const QString &active);
    /// Sets properties of the active configuration: {project, account, impersonate}.
    Q_INVOKABLE void configure(const QVariantMap &properties);
    Q_INVOKABLE void setAccounts(const QStringList &emails);
    /// `type` is the raw value.
    Q_INVOKABLE void setADC(const QString &type, const QVariant &quotaProject = {},
                            const QVariant &clientEmail = {}, bool isValid = true);
    /// What a change in the configuration directory leads to.
    Q_INVOKABLE void readFiles();
    /// Makes `email` active, with `project` when it is not null.
    Q_INVOKABLE void signIn(const QString &email, const QVariant &project = {});
    /// gcloud lists these projects, named `Name of ID` unless `names` tells, and all is reloaded.
    Q_INVOKABLE void list(const QStringList &ids, const QVariantMap &names = {});
    Q_INVOKABLE void listNumbered(int count);
    /// The next reload asks gcloud for the projects again.
    Q_INVOKABLE void expire();
    Q_INVOKABLE void saveAccount(const QString &projectId, const QString &email,
                                 const QVariant &displayName = {});
    /// What is saved for a project: a list of {email, displayName}.
    [[nodiscard]] Q_INVOKABLE QVariantList saved(const QString &projectId) const;
    Q_INVOKABLE void setError(const QString &message);

    /// The next command will be that of this name (as in `setProject`), with this argument; it runs
    /// until finish() or fail(). A command that is not expected counts as a complaint.
    Q_INVOKABLE void expect(const QString &command, const QString &argument = {});
    /// Ends the command that was expected first and has not ended yet.
    Q_INVOKABLE void finish(const QString &standardOutput = {});
    /// As finish(), of the command that was expected last.
    Q_INVOKABLE void finishNewest(const QString &standardOutput);
    Q_INVOKABLE void fail(const QString &standardError);
    Q_INVOKABLE void failOddly(const QString &what);

    /// Lets the event loop run what is due.
    Q_INVOKABLE void settle();
    Q_INVOKABLE void advance(int milliseconds);

    /// What went wrong so far: unexpected commands, and expected ones that never ran.
    Q_INVOKABLE int complaints() const;

private Q_SLOTS:
    void visit(const QUrl &address);

private:
    std::shared_ptr<FakeExecutor> m_executor;
    std::shared_ptr<CountingExecutor> m_counter;
    std::shared_ptr<FakeConfigReader> m_reader;
    std::shared_ptr<FakeFavoritesStore> m_favorites;
    std::shared_ptr<FakeRecentStore> m_recents;
    std::shared_ptr<FakeServiceAccountStore> m_serviceAccounts;
    std::shared_ptr<FakeSettingsStore> m_settings;
    AuthStateManager::Clock::time_point m_now = AuthStateManager::Clock::now();
    std::unique_ptr<AuthStateManager> m_manager;
    FakeClipboard m_clipboard;
    FakeDelay m_time;
    std::unique_ptr<AuthState> m_state;
    QStringList m_visited;
    std::deque<std::shared_ptr<FakeExecutor::Run>> m_runs;
    int m_expected = 0;
    int m_complaintsBefore = 0;
};

} // namespace torvi

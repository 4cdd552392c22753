// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/AuthStateManager.h"
#include "VeldraUI/ADCStatus.h"
#include "VeldraUI/AccountListModel.h"
#include "VeldraUI/Clipboard.h"
#include "VeldraUI/ConfigurationListModel.h"
#include "VeldraUI/SettingsState.h"

#include <QJSValue>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <functional>

namespace torvi {

/// The state manager as QML sees it: what there is to show, and what a view may start.
///
/// An absent optional is told from an empty one by its `has…` or `is…`. An operation starts from
/// the event loop, never inside the call, and reports failure through hasError and errorMessage. A
/// function passed as `done` is called when the operation has ended, unless its view or its engine
/// is gone by then.
///
/// Thread: main thread only.
class AuthState final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)
    Q_PROPERTY(bool hasError READ hasError NOTIFY lastErrorChanged)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY lastErrorChanged)
    Q_PROPERTY(bool hasActiveProject READ hasActiveProject NOTIFY currentContextChanged)
    Q_PROPERTY(QString activeProjectId READ activeProjectId NOTIFY currentContextChanged)
    Q_PROPERTY(bool hasActiveAccount READ hasActiveAccount NOTIFY currentContextChanged)
    Q_PROPERTY(QString activeAccountEmail READ activeAccountEmail NOTIFY currentContextChanged)
    Q_PROPERTY(bool hasActiveConfiguration READ hasActiveConfiguration NOTIFY currentContextChanged)
    Q_PROPERTY(
        QString activeConfigurationName READ activeConfigurationName NOTIFY currentContextChanged)
    Q_PROPERTY(bool isImpersonating READ isImpersonating NOTIFY currentContextChanged)
    Q_PROPERTY(QString impersonatedEmail READ impersonatedEmail NOTIFY currentContextChanged)
    Q_PROPERTY(torvi::ADCStatus adc READ adc NOTIFY currentContextChanged)
    Q_PROPERTY(torvi::AccountListModel *accounts READ accounts CONSTANT)
    Q_PROPERTY(torvi::ConfigurationListModel *configurations READ configurations CONSTANT)
    Q_PROPERTY(torvi::SettingsState *settings READ settings CONSTANT)
    Q_PROPERTY(QStringList projectIds READ projectIds NOTIFY projectsChanged)
    Q_PROPERTY(QStringList modeTexts READ modeTexts CONSTANT)

public:
    /// Where an impersonation applies, in the order of modeTexts().
    enum Mode {
        ADCOnly,
        CLIOnly,
        Both,
    };
    Q_ENUM(Mode)

    /// Calls a function when a time has passed, on the main thread.
    using Delay = std::function<void(std::chrono::milliseconds, std::function<void()>)>;

    /// How long a confirmation ("Done", "Copied!") stays.
    static constexpr std::chrono::milliseconds confirmationTime{ 1500 };

    /// `manager` and `clipboard` must outlive this. `delay` is replaced in tests.
    AuthState(AuthStateManager &manager, Clipboard &clipboard, Delay delay = {},
              QObject *parent = nullptr);

    /// For the list models.
    [[nodiscard]] AuthStateManager &manager() const;

    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] bool hasError() const;
    [[nodiscard]] QString errorMessage() const;
    [[nodiscard]] bool hasActiveProject() const;
    [[nodiscard]] QString activeProjectId() const;
    [[nodiscard]] bool hasActiveAccount() const;
    [[nodiscard]] QString activeAccountEmail() const;
    [[nodiscard]] bool hasActiveConfiguration() const;
    [[nodiscard]] QString activeConfigurationName() const;
    /// Whether the gcloud CLI impersonates a service account.
    [[nodiscard]] bool isImpersonating() const;
    [[nodiscard]] QString impersonatedEmail() const;
    [[nodiscard]] ADCStatus adc() const;
    [[nodiscard]] AccountListModel *accounts() const;
    [[nodiscard]] ConfigurationListModel *configurations() const;
    [[nodiscard]] SettingsState *settings() const;
    /// In the state manager's order.
    [[nodiscard]] QStringList projectIds() const;
    [[nodiscard]] QStringList modeTexts() const;

    Q_INVOKABLE void dismissError();

    /// done()
    Q_INVOKABLE void reload(const QJSValue &done = {});
    /// A project that is active afterwards enters the recent list.
    Q_INVOKABLE void switchProject(const QString &projectId);
    Q_INVOKABLE void switchAccount(const QString &email);
    Q_INVOKABLE void activateConfiguration(const QString &name);
    /// done()
    Q_INVOKABLE void createConfiguration(const QString &name, const QJSValue &done);
    Q_INVOKABLE void deleteConfiguration(const QString &name);
    Q_INVOKABLE void triggerADCLogin();
    Q_INVOKABLE void setQuotaProject(const QString &projectId);
    /// Makes the active project the quota project; nothing happens without one.
    Q_INVOKABLE void setQuotaProjectToActive();
    Q_INVOKABLE void clearImpersonation(torvi::AuthState::Mode mode);
    /// done()
    Q_INVOKABLE void setImpersonation(const QString &email, torvi::AuthState::Mode mode,
                                      const QJSValue &done = {});
    /// As setImpersonation(), for an e-mail as it was typed: without the white space around it, and
    /// not at all when nothing else is left.
    Q_INVOKABLE void submitImpersonation(const QString &typed, torvi::AuthState::Mode mode,
                                         const QJSValue &done);
    /// At once, not from the event loop.
    Q_INVOKABLE void togglePin(const QString &projectId);
    /// Puts an identity token on the clipboard, as a secret; QML never sees it.
    /// done(copied): false when there is none, which is then the last error.
    Q_INVOKABLE void copyIdentityToken(const QJSValue &done);

    /// Calls `done` when confirmationTime has passed.
    Q_INVOKABLE void afterConfirmation(const QJSValue &done);

Q_SIGNALS:
    void isLoadingChanged();
    void lastErrorChanged();
    void currentContextChanged();
    void projectsChanged();

private:
    QCoro::Task<> reloadThen(QJSValue done);
    QCoro::Task<> switchProjectAndRecord(QString projectId);
    QCoro::Task<> createConfigurationThen(QString name, QJSValue done);
    QCoro::Task<> setImpersonationThen(QString email, ImpersonationMode mode, QJSValue done);
    QCoro::Task<> copyIdentityTokenThen(QJSValue done);
    QCoro::Task<bool> copyIdentityTokenOrFail();
    void start(std::function<void()> task);

    AuthStateManager &m_manager;
    Clipboard &m_clipboard;
    Delay m_delay;
    AccountListModel *m_accounts;
    ConfigurationListModel *m_configurations;
    SettingsState *m_settings;
};

} // namespace torvi

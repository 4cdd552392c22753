// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/AuthState.h"

#include <QPointer>
#include <QTimer>

#include <utility>

namespace torvi {

namespace {

/// What is absent reads as empty.
template <typename Record>
QString textOf(const std::optional<Record> &record, QString Record::*field)
{
    return record ? *record.*field : QString();
}

ImpersonationMode modeOf(AuthState::Mode mode)
{
    switch (mode) {
    case AuthState::ADCOnly:
        return ImpersonationMode::adcOnly;
    case AuthState::CLIOnly:
        return ImpersonationMode::cliOnly;
    case AuthState::Both:
        return ImpersonationMode::both;
    }
    Q_UNREACHABLE();
}

} // namespace

AuthState::AuthState(AuthStateManager &manager, Clipboard &clipboard, Delay delay, QObject *parent)
    : QObject(parent)
    , m_manager(manager)
    , m_clipboard(clipboard)
    , m_delay(std::move(delay))
    , m_accounts(new AccountListModel(manager, this))
    , m_configurations(new ConfigurationListModel(manager, this))
    , m_settings(new SettingsState(manager.settingsStore(), this))
{
    if (!m_delay) {
        m_delay = [this](std::chrono::milliseconds time, std::function<void()> call) {
            QTimer::singleShot(time, Qt::PreciseTimer, this, std::move(call));
        };
    }
    connect(&manager, &AuthStateManager::isLoadingChanged, this, &AuthState::isLoadingChanged);
    connect(&manager, &AuthStateManager::lastErrorChanged, this, &AuthState::lastErrorChanged);
    connect(&manager, &AuthStateManager::currentContextChanged, this,
            &AuthState::currentContextChanged);
    connect(&manager, &AuthStateManager::projectsChanged, this, &AuthState::projectsChanged);
}

AuthStateManager &AuthState::manager() const
{
    return m_manager;
}

bool AuthState::isLoading() const
{
    return m_manager.isLoading();
}

bool AuthState::hasError() const
{
    return m_manager.lastError().has_value();
}

QString AuthState::errorMessage() const
{
    return hasError() ? m_manager.lastError()->errorDescription() : QString();
}

bool AuthState::hasActiveProject() const
{
    return m_manager.currentContext().activeProject.has_value();
}

QString AuthState::activeProjectId() const
{
    return textOf(m_manager.currentContext().activeProject, &Project::id);
}

bool AuthState::hasActiveAccount() const
{
    return m_manager.currentContext().activeAccount.has_value();
}

QString AuthState::activeAccountEmail() const
{
    return textOf(m_manager.currentContext().activeAccount, &Account::email);
}

bool AuthState::hasActiveConfiguration() const
{
    return m_manager.currentContext().activeConfiguration.has_value();
}

QString AuthState::activeConfigurationName() const
{
    return textOf(m_manager.currentContext().activeConfiguration, &Configuration::name);
}

bool AuthState::isImpersonating() const
{
    return m_manager.currentContext().impersonatedServiceAccount.has_value();
}

QString AuthState::impersonatedEmail() const
{
    return textOf(m_manager.currentContext().impersonatedServiceAccount, &ServiceAccount::email);
}

ADCStatus AuthState::adc() const
{
    return ADCStatus(m_manager.currentContext().adcState);
}

AccountListModel *AuthState::accounts() const
{
    return m_accounts;
}

ConfigurationListModel *AuthState::configurations() const
{
    return m_configurations;
}

SettingsState *AuthState::settings() const
{
    return m_settings;
}

QStringList AuthState::projectIds() const
{
    QStringList ids;
    for (const Project &project : m_manager.projects()) {
        ids.append(project.id);
    }
    return ids;
}

QStringList AuthState::modeTexts() const
{
    QStringList texts;
    for (const ImpersonationMode mode : allCases<ImpersonationMode>()) {
        texts.append(rawValue(mode));
    }
    return texts;
}

void AuthState::dismissError()
{
    m_manager.setLastError(std::nullopt);
}

void AuthState::start(std::function<void()> task)
{
    QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection);
}

void AuthState::reload(const QJSValue &done)
{
    start([this, done] { reloadThen(done); });
}

QCoro::Task<> AuthState::reloadThen(QJSValue done)
{
    co_await m_manager.reload();
    done.call();
}

void AuthState::switchProject(const QString &projectId)
{
    start([this, projectId] { switchProjectAndRecord(projectId); });
}

QCoro::Task<> AuthState::switchProjectAndRecord(QString projectId)
{
    const QPointer self(this);
    co_await m_manager.switchProject(projectId);
    if (!self.isNull() && hasActiveProject() && activeProjectId() == projectId) {
        m_manager.recentStore().recordUsage(projectId);
    }
}

void AuthState::switchAccount(const QString &email)
{
    start([this, email] { m_manager.switchAccount(email); });
}

void AuthState::activateConfiguration(const QString &name)
{
    start([this, name] { m_manager.activateConfiguration(name); });
}

void AuthState::createConfiguration(const QString &name, const QJSValue &done)
{
    start([this, name, done] { createConfigurationThen(name, done); });
}

QCoro::Task<> AuthState::createConfigurationThen(QString name, QJSValue done)
{
    co_await m_manager.createConfiguration(std::move(name));
    done.call();
}

void AuthState::deleteConfiguration(const QString &name)
{
    start([this, name] { m_manager.deleteConfiguration(name); });
}

void AuthState::triggerADCLogin()
{
    start([this] { m_manager.triggerADCLogin(); });
}

void AuthState::setQuotaProject(const QString &projectId)
{
    start([this, projectId] { m_manager.setQuotaProject(projectId); });
}

void AuthState::setQuotaProjectToActive()
{
    if (hasActiveProject()) {
        setQuotaProject(activeProjectId());
    }
}

void AuthState::clearImpersonation(Mode mode)
{
    start([this, mode] { m_manager.clearImpersonation(modeOf(mode)); });
}

void AuthState::setImpersonation(const QString &email, Mode mode, const QJSValue &done)
{
    start([this, email, mode, done] { setImpersonationThen(email, modeOf(mode), done); });
}

QCoro::Task<> AuthState::setImpersonationThen(QString email, ImpersonationMode mode, QJSValue done)
{
    co_await m_manager.setImpersonation(std::move(email), mode);
    done.call();
}

void AuthState::submitImpersonation(const QString &typed, Mode mode, const QJSValue &done)
{
    const QString email = typed.trimmed();
    if (!email.isEmpty()) {
        setImpersonation(email, mode, done);
    }
}

void AuthState::togglePin(const QString &projectId)
{
    m_manager.togglePin(projectId);
}

void AuthState::copyIdentityToken(const QJSValue &done)
{
    start([this, done] { copyIdentityTokenThen(done); });
}

QCoro::Task<> AuthState::copyIdentityTokenThen(QJSValue done)
{
    const bool copied = co_await copyIdentityTokenOrFail();
    done.call({ copied });
}

QCoro::Task<bool> AuthState::copyIdentityTokenOrFail()
{
    const QPointer self(this);
    std::optional<AppError> failure;
    try {
        const QString token = co_await m_manager.fetchIdentityToken();
        if (self) {
            m_clipboard.setSecret(token);
        }
    } catch (const AppError &error) {
        failure = error;
    } catch (const std::exception &error) {
        failure = AppError::unknown(QString::fromUtf8(error.what()));
    }
    if (self && failure) {
        m_manager.setLastError(failure);
    }
    co_return !failure;
}

void AuthState::afterConfirmation(const QJSValue &done)
{
    m_delay(confirmationTime, [done]() { done.call(); });
}

} // namespace torvi

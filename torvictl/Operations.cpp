// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/Operations.h"

#include "GCloudStateManager/Background.h"
#include "GCloudStateManager/EnvironmentOverride.h"
#include "GCloudStateManager/Rows.h"
#include "torvictl/Json.h"
#include "torvictl/Terminal.h"

#include <QCoreApplication>
#include <qcoro/qcorofuture.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Operations::Format;
using Operations::StatusFormat;

bool printLine(const QByteArray &line)
{
    return Terminal::print(line + '\n');
}

template <typename T>
QCoro::Task<int> printList(QList<T> values, QList<Row> rows, Format format)
{
    const bool isRead = format == Format::json ? printLine(json(values))
                                               : Terminal::print(aligned(rows).toUtf8());
    Q_UNUSED(isRead) // a reader that has seen enough is no failure
    co_return 0;
}

QList<Row> accountRows(const QList<ServiceAccount> &accounts)
{
    QList<Row> rows;
    for (const ServiceAccount &account : accounts) {
        rows.append({ account.email, account.displayName.value_or(QString()) });
    }
    return rows;
}

/// The exit code that the manager's state asks for; its error goes to standard error.
int exitCode(const AuthStateManager &manager)
{
    if (manager.lastError()) {
        Terminal::printError(manager.lastError()->errorDescription());
        return 1;
    }
    return 0;
}

using Overrides = QList<EnvironmentOverride>;

QByteArray statusJson(const AuthStateManager &manager, const Overrides &overrides)
{
    std::optional<QString> lastError;
    if (manager.lastError()) {
        lastError = manager.lastError()->errorDescription();
    }
    JsonObject object;
    object.member("currentContext", manager.currentContext())
        .member("accounts", manager.accounts())
        .member("configurations", manager.configurations())
        .member("lastError", lastError);
    if (!overrides.isEmpty()) {
        object.member("environmentOverrides", overrides);
    }
    return object.text();
}

QStringList notes(const AuthStateManager &manager, const Overrides &overrides)
{
    QStringList notes;
    for (const EnvironmentOverride &each : overrides) {
        notes.append(each.description());
    }
    if (manager.lastError()) {
        notes.append(manager.lastError()->errorDescription());
    }
    return notes;
}

/// Prints what the manager holds; false when nobody reads it any more.
bool printStatus(const AuthStateManager &manager, const Overrides &overrides,
                 const StatusFormat &format)
{
    if (const auto *bar = std::get_if<BarFormat>(&format)) {
        return printLine(barLine(manager.currentContext(), notes(manager, overrides), *bar));
    }
    if (std::get<Format>(format) == Format::json) {
        return printLine(statusJson(manager, overrides));
    }
    return Terminal::print(
        aligned(contextRows(manager.currentContext()), Terminal::colours()).toUtf8());
}

QCoro::Task<int> exitCodeAfter(QCoro::Task<> operation, AuthStateManager &manager)
{
    co_await operation;
    co_return exitCode(manager);
}

} // namespace

QCoro::Task<int> Operations::status(DependencyContainer &container, StatusFormat format)
{
    AuthStateManager &manager = container.stateManager();
    co_await manager.reloadFromFiles();
    const auto overrides = EnvironmentOverride::all(manager.configReader());
    (void)printStatus(manager, overrides, format);
    for (const EnvironmentOverride &each : overrides) {
        Terminal::printError(each.description());
    }
    co_return exitCode(manager);
}

QCoro::Task<int> Operations::watch(DependencyContainer &container, StatusFormat format)
{
    AuthStateManager &manager = container.stateManager();
    ChangeStream changes = container.fileWatcher().start(); // first, so that nothing is missed
    bool isRead = true;
    const auto notifier = Terminal::notifyWhenReaderLeaves([&isRead, &changes] {
        isRead = false;
        changes.cancel();
    });
    while (isRead) {
        manager.setLastError(std::nullopt);
        co_await manager.reloadFromFiles();
        isRead = printStatus(manager, EnvironmentOverride::all(manager.configReader()), format);
        (void)exitCode(manager);
        if (!isRead) {
            break;
        }
        const bool changed = co_await changes.next();
        if (!changed && isRead) {
            throw AppError::unknown(QCoreApplication::translate(
                "Operations", "The configuration directory cannot be watched."));
        }
    }
    co_return 0;
}

QCoro::Task<int> Operations::projects(DependencyContainer &container, Format format)
{
    AuthStateManager &manager = container.stateManager();
    co_await manager.reload();
    QList<Row> rows;
    for (const Project &project : manager.projects()) {
        rows.append({ project.id, project.name });
    }
    co_await printList(manager.projects(), rows, format);
    co_return exitCode(manager);
}

QCoro::Task<int> Operations::switchProject(DependencyContainer &container, QString projectId)
{
    AuthStateManager &manager = container.stateManager();
    co_await manager.switchProject(projectId);
    const std::optional<Project> &active = manager.currentContext().activeProject;
    if (active && active->id == projectId) {
        manager.recentStore().recordUsage(projectId);
    }
    co_return exitCode(manager);
}

QCoro::Task<int> Operations::switchAccount(DependencyContainer &container, QString account)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.switchAccount(account), manager);
}

QCoro::Task<int> Operations::activateConfiguration(DependencyContainer &container, QString name)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.activateConfiguration(name), manager);
}

QCoro::Task<int> Operations::createConfiguration(DependencyContainer &container, QString name)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.createConfiguration(name), manager);
}

QCoro::Task<int> Operations::deleteConfiguration(DependencyContainer &container, QString name)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.deleteConfiguration(name), manager);
}

QCoro::Task<int> Operations::setQuotaProject(DependencyContainer &container, QString projectId)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.setQuotaProject(projectId), manager);
}

QCoro::Task<int> Operations::adcLogin(DependencyContainer &container)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.triggerADCLogin(), manager);
}

QCoro::Task<int> Operations::impersonate(DependencyContainer &container, QString email,
                                         ImpersonationMode mode)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.setImpersonation(email, mode), manager);
}

QCoro::Task<int> Operations::clearImpersonation(DependencyContainer &container,
                                                ImpersonationMode mode)
{
    AuthStateManager &manager = container.stateManager();
    return exitCodeAfter(manager.clearImpersonation(mode), manager);
}

QCoro::Task<int> Operations::identityToken(DependencyContainer &container)
{
    const QString token = co_await container.stateManager().fetchIdentityToken();
    (void)printLine(token.toUtf8());
    co_return 0;
}

QCoro::Task<int> Operations::locate(DependencyContainer &container)
{
    // The search can ask the user's shell, which may take its time: not on the main thread.
    const auto search
        = inBackground([resolver = container.pathResolver()](const std::stop_token &stop) {
              return resolver->resolve(stop);
          });
    const QString path = co_await search;
    (void)printLine(path.toUtf8());
    co_return 0;
}

QCoro::Task<int> Operations::serviceAccounts(DependencyContainer &container, QString projectId,
                                             Format format)
{
    const QList<ServiceAccount> accounts
        = co_await container.stateManager().fetchServiceAccounts(projectId);
    co_return co_await printList(accounts, accountRows(accounts), format);
}

QCoro::Task<int> Operations::savedAccounts(DependencyContainer &container, QString projectId,
                                           Format format)
{
    const QList<ServiceAccount> accounts
        = container.stateManager().serviceAccountStore().serviceAccounts(projectId);
    return printList(accounts, accountRows(accounts), format);
}

QCoro::Task<int> Operations::saveAccount(DependencyContainer &container, ServiceAccount account)
{
    container.stateManager().serviceAccountStore().addServiceAccount(account);
    co_return 0;
}

QCoro::Task<int> Operations::forgetAccount(DependencyContainer &container, QString email,
                                           QString projectId)
{
    container.stateManager().serviceAccountStore().removeServiceAccount(email, projectId);
    co_return 0;
}

QCoro::Task<int> Operations::recents(DependencyContainer &container, Format format)
{
    const QStringList ids = container.stateManager().recentStore().recentProjectIds();
    QList<Row> rows;
    for (const QString &id : ids) {
        rows.append({ id, QString() });
    }
    return printList<QString>(ids, rows, format);
}

QCoro::Task<int> Operations::pin(DependencyContainer &container, QString projectId)
{
    container.stateManager().favoritesStore().pin(projectId);
    co_return 0;
}

QCoro::Task<int> Operations::unpin(DependencyContainer &container, QString projectId)
{
    container.stateManager().favoritesStore().unpin(projectId);
    co_return 0;
}

QCoro::Task<int> Operations::settings(DependencyContainer &container, Format format)
{
    const SettingsStoring &store = container.settingsStore();
    if (format == Format::json) {
        (void)printLine(JsonObject()
                            .member("launchAtLogin", store.launchAtLogin())
                            .member("menubarDisplayFormat", rawValue(store.menubarDisplayFormat()))
                            .member("gcloudPathOverride", store.gcloudPathOverride())
                            .member("refreshIntervalMinutes", store.refreshIntervalMinutes())
                            .text());
    } else {
        const QList<Row> rows{
            { u"launchAtLogin"_s, store.launchAtLogin() ? u"true"_s : u"false"_s },
            { u"menubarDisplayFormat"_s, rawValue(store.menubarDisplayFormat()) },
            { u"gcloudPathOverride"_s, store.gcloudPathOverride().value_or(QString()) },
            { u"refreshIntervalMinutes"_s, QString::number(store.refreshIntervalMinutes()) }
        };
        (void)Terminal::print(aligned(rows).toUtf8());
    }
    co_return 0;
}

QCoro::Task<int> Operations::changeSetting(DependencyContainer &container, SettingChange change)
{
    change(container.settingsStore());
    co_return 0;
}

} // namespace torvi

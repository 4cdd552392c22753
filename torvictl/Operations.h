// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ImpersonationMode.h"
#include "GCloudStateManager/DependencyContainer.h"
#include "torvictl/BarLine.h"
#include "torvictl/SettingChange.h"

#include <qcoro/qcorotask.h>

#include <variant>

/// What torvictl's commands do, on the same objects as the desktop application.
///
/// Each yields the exit code: 0 when done, 1 when the state manager holds an error afterwards (it
/// is then on standard error). Results go to standard output.
/// Errors: throws AppError where the state manager throws, or when nothing can be printed.
namespace torvi::Operations {

enum class Format {
    text,
    json,
};

using StatusFormat = std::variant<Format, BarFormat>;

QCoro::Task<int> status(DependencyContainer &container, StatusFormat format);
/// Ends with 0 when the reader of standard output goes away.
QCoro::Task<int> watch(DependencyContainer &container, StatusFormat format);
QCoro::Task<int> projects(DependencyContainer &container, Format format);

QCoro::Task<int> switchProject(DependencyContainer &container, QString projectId);
QCoro::Task<int> switchAccount(DependencyContainer &container, QString account);
QCoro::Task<int> activateConfiguration(DependencyContainer &container, QString name);
QCoro::Task<int> createConfiguration(DependencyContainer &container, QString name);
QCoro::Task<int> deleteConfiguration(DependencyContainer &container, QString name);
QCoro::Task<int> setQuotaProject(DependencyContainer &container, QString projectId);
QCoro::Task<int> adcLogin(DependencyContainer &container);
QCoro::Task<int> impersonate(DependencyContainer &container, QString email, ImpersonationMode mode);
QCoro::Task<int> clearImpersonation(DependencyContainer &container, ImpersonationMode mode);
QCoro::Task<int> identityToken(DependencyContainer &container);
QCoro::Task<int> locate(DependencyContainer &container);
/// Throws when there is no gcloud, after saying what there is.
QCoro::Task<int> doctor(DependencyContainer &container);

QCoro::Task<int> serviceAccounts(DependencyContainer &container, QString projectId, Format format);
QCoro::Task<int> savedAccounts(DependencyContainer &container, QString projectId, Format format);
QCoro::Task<int> saveAccount(DependencyContainer &container, ServiceAccount account);
QCoro::Task<int> forgetAccount(DependencyContainer &container, QString email, QString projectId);

QCoro::Task<int> recents(DependencyContainer &container, Format format);
QCoro::Task<int> pin(DependencyContainer &container, QString projectId);
QCoro::Task<int> unpin(DependencyContainer &container, QString projectId);
QCoro::Task<int> settings(DependencyContainer &container, Format format);
QCoro::Task<int> changeSetting(DependencyContainer &container, SettingChange change);

} // namespace torvi::Operations

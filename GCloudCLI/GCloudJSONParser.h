// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/Account.h"
#include "GCloudModels/Configuration.h"
#include "GCloudModels/Project.h"
#include "GCloudModels/ServiceAccount.h"

#include <QList>

/// Turns what gcloud prints with "--format=json" into records, in gcloud's order.
///
/// Errors: one bad element fails the whole list; there are no partial results. The list parsers
/// throw AppError::parseError(), whose detail says what is wrong and where, elements counted from
/// 1; parseConfigProperties() lets its decoder's std::runtime_error pass, with the same text.
namespace torvi::GCloudJSONParser {

/// `text` is the output of `gcloud projects list`. Neither pinned nor last used is filled in.
[[nodiscard]] QList<Project> parseProjects(const QString &text);

/// `text` is the output of `gcloud auth list`. An account whose type gcloud does not tell counts as
/// a user, whatever its e-mail looks like.
[[nodiscard]] QList<Account> parseAccounts(const QString &text);

/// `text` is the output of `gcloud config configurations list`. Of the properties only project and
/// account are taken from it.
[[nodiscard]] QList<Configuration> parseConfigurations(const QString &text);

/// `text` is the output of `gcloud config list`.
[[nodiscard]] ConfigProperties parseConfigProperties(const QString &text);

/// `text` is the output of `gcloud iam service-accounts list` for `project`.
[[nodiscard]] QList<ServiceAccount> parseServiceAccounts(const QString &text,
                                                         const QString &project);

} // namespace torvi::GCloudJSONParser

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

namespace torvi {

/// The processes of gcloud itself (not of a browser that it started) that use this configuration
/// directory.
[[nodiscard]] QList<qint64> gcloudProcesses(const QString &configDirectory);

/// Waits until none of them is left; false when some remained.
[[nodiscard]] bool waitUntilNoGCloudIsLeft(const QString &configDirectory);

} // namespace torvi

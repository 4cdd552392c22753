// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace torvi {

/// Fills `directory` as gcloud would: that many configurations ("config-0" is active) and
/// accounts, and a user's ADC file.
void makeSampleDirectory(const QString &directory, int configurations, int accounts);

/// What `gcloud projects list --format=json` prints for that many projects.
[[nodiscard]] QByteArray sampleProjects(int count);

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudModels/ADCState.h"

#include <QByteArray>

/// Parser of the Application Default Credentials file, written by gcloud or by hand.
namespace torvi::ADCFileParser {

/// The state that a file with the bytes `json` stands for. A JSON value that is no object is no
/// credential; an object always is one, of type `none` when its "type" is not one of Torvi's.
///
/// Errors: throws std::runtime_error for what is no JSON.
[[nodiscard]] ADCState parse(const QByteArray &json);

} // namespace torvi::ADCFileParser

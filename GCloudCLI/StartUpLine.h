// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

/// What a line of a shell's start-up file tells about gcloud. The SDK's installer adds lines that
/// source its path.bash.inc or path.zsh.inc; users write their own variants.
namespace torvi::StartUpLine {

/// Whether a file can hold a line that tells something: a quick look at its bytes that spares most
/// files from being taken apart.
[[nodiscard]] bool canBeIn(QByteArrayView file);

/// The folder that the SDK is in, unexpanded and with its trailing "/". Nothing when the line does
/// not source the SDK's path file or does not tell where that is.
[[nodiscard]] std::optional<QString> sdkParentFolder(QStringView line);

} // namespace torvi::StartUpLine

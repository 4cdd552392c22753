// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

/// Reading of files that other programs write, on the road that must never block.
/// Thread: any, several calls at once.
namespace torvi::GCloudFile {

enum class FileKind {
    missing, ///< nothing there; a dangling or looping link counts as nothing
    regular,
    directory,
    special, ///< a FIFO, socket or device; also a path that may not be looked at
};

/// Longer files are not read: gcloud's own are a few hundred bytes, and nobody wants to wait for
/// the one that somebody else put in their place.
inline constexpr qint64 kMaximumSize = qint64{ 16 } * 1024 * 1024;

/// What `path` names, links followed.
[[nodiscard]] FileKind fileKind(const QString &path);

/// All bytes of the regular file `path`, links followed. Nothing when it is missing, no regular
/// file, unreadable or longer than kMaximumSize; anything but a regular file is not even opened,
/// since opening alone can block (FIFOs) or act on the system (devices).
[[nodiscard]] std::optional<QByteArray> readFile(const QString &path);

/// Names of the entries of the directory `path`, whatever they are, in no particular order. What is
/// not UTF-8 in them is replaced by replacement characters. Nothing when it cannot be listed whole.
[[nodiscard]] std::optional<QStringList> entryNames(const QString &path);

} // namespace torvi::GCloudFile

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/Rows.h"

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>

/// The process's standard streams, written without buffering.
namespace torvi::Terminal {

/// Writes all of `bytes` to standard output.
/// Errors: false when the reader has gone; throws AppError for any other failure, a full disk say.
[[nodiscard]] bool print(const QByteArray &bytes);

/// Calls back once, from the event loop, when standard output is a pipe or, as in tmux, a socket,
/// and its reader has gone. Null when standard output is neither. The caller keeps the notifier as
/// long as it wants to know.
[[nodiscard]] std::unique_ptr<QSocketNotifier>
notifyWhenReaderLeaves(std::function<void()> callback);

/// Writes `message` and a line feed, unless it ends in one, to standard error.
void printError(const QString &message);

/// On only when standard output is a terminal that understands them and NO_COLOR is not set.
[[nodiscard]] Colours colours();

} // namespace torvi::Terminal

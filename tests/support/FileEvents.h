// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace torvi {

/// Records what happens to the entries of one directory from the construction on, as "OPEN name" or
/// "CREATE name". The kernel queues an event before the call that causes it returns, so there is
/// nothing to wait for.
class FileEvents final
{
public:
    explicit FileEvents(const QString &directory);
    ~FileEvents();

    /// All events since the last call.
    [[nodiscard]] QStringList taken();

    /// The same without opening, reading and closing: what a watcher for changes may see.
    [[nodiscard]] QStringList takenChanges();

private:
    Q_DISABLE_COPY_MOVE(FileEvents)

    int m_descriptor;
};

} // namespace torvi

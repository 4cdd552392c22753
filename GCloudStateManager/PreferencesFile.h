// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/FileDescriptor.h"

#include <QString>

#include <ctime>
#include <optional>
#include <sys/stat.h>
#include <tuple>

namespace torvi {

/// What QSettings leaves open about the file it works on: that nobody else may read it, that one
/// process writes at a time, and that QSettings sees what others wrote.
class PreferencesFile final
{
public:
    /// Creates nothing. To be constructed before QSettings reads the file.
    explicit PreferencesFile(QString path);

    [[nodiscard]] const QString &path() const
    {
        return m_path;
    }

    /// Whether QSettings may open it: it is a plain file, or nothing yet. A pipe would block.
    [[nodiscard]] bool isPlain() const;

    /// Makes the file, with the folders above it, ready for QSettings to replace. Other processes
    /// wait here as long as the result is held; it is closed when the file cannot be written.
    [[nodiscard]] FileDescriptor beginWriting() const;

    /// To be called when QSettings has written, while the result of beginWriting() is held.
    void endWriting();

private:
    /// Tells whether two looks at the path met the same unchanged file.
    using Version = std::tuple<ino_t, std::time_t, long>;

    [[nodiscard]] std::optional<Version> currentVersion() const;
    [[nodiscard]] FileDescriptor lockedFolder() const;

    const QString m_path;
    std::optional<Version> m_version;
};

} // namespace torvi

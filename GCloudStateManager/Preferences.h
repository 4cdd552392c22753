// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/PreferencesFile.h"

#include <QByteArray>
#include <QMap>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace torvi {

/// The user's preferences: keys and values in one INI file that only the user may read.
///
/// A value of another type than the one asked for counts as missing. A change is on disk when the
/// call returns, beside what other processes have changed under other keys; a process that is
/// killed leaves the old file or the new one.
///
/// Thread: main thread only; waits for the disk, and for another process that is just writing.
/// Errors: a file that cannot be read counts as empty. One that cannot be written stays as it is
/// and nobody is told; the next change that can be written takes along what could not.
class Preferences final
{
public:
    /// "torvi/preferences.ini" in $XDG_CONFIG_HOME or, when that is no absolute path, in ~/.config.
    [[nodiscard]] static QString defaultPath();

    /// Creates nothing: the file and the folders above it come with the first change.
    explicit Preferences(const QString &path = defaultPath());
    Q_DISABLE_COPY_MOVE(Preferences)

    /// Empty when missing. A text is a list of one: the file cannot tell the two apart.
    [[nodiscard]] QStringList strings(const QString &key) const;
    [[nodiscard]] std::optional<QByteArray> data(const QString &key) const;
    [[nodiscard]] std::optional<QString> string(const QString &key) const;
    /// False unless the value is "true" or "1".
    [[nodiscard]] bool boolean(const QString &key) const;
    /// 0 unless the value is an integer.
    [[nodiscard]] qint64 integer(const QString &key) const;

    void setStrings(const QString &key, const QStringList &value);
    void setData(const QString &key, const QByteArray &value);
    void setString(const QString &key, const QString &value);
    void setBoolean(const QString &key, bool value);
    void setInteger(const QString &key, qint64 value);
    void remove(const QString &key);

private:
    [[nodiscard]] QVariant value(const QString &key) const;
    void set(const QString &key, const QVariant &value);
    void write();

    PreferencesFile m_file;
    std::optional<QSettings> m_settings; ///< absent when something else is in the file's place
    QMap<QString, QVariant> m_unwritten; ///< an invalid value removes the key
};

} // namespace torvi

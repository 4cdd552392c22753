// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace torvi {

/// A file in a scratch directory whose content is replaced for each input.
class ScratchFile
{
public:
    explicit ScratchFile(const QString &name)
        : m_path(m_directory.filePath(name))
    {
    }

    [[nodiscard]] QString directory() const
    {
        return m_directory.path();
    }

    [[nodiscard]] QString path() const
    {
        return m_path;
    }

    void write(const uint8_t *data, size_t size) const
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size))
                != static_cast<qint64>(size)) {
            qFatal("the scratch file cannot be written");
        }
    }

private:
    QTemporaryDir m_directory{
        (QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm") : QDir::tempPath())
        + QStringLiteral("/torvi-fuzz-XXXXXX")
    };
    QString m_path;
};

} // namespace torvi

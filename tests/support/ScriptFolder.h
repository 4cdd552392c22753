// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace torvi {

/// A temporary folder for small shell scripts and other files of a test.
///
/// All scripts of a test are to be written before it starts a child process on another thread: the
/// system runs no file that is open for writing, in a child that is about to be replaced included.
class ScriptFolder final
{
public:
    /// The path of a file in the folder, or of the folder itself.
    [[nodiscard]] QString path(const QString &name = {}) const
    {
        return m_folder.filePath(name);
    }

    /// Writes a file, with the folders that its name needs, and returns its path.
    QString write(const QString &name, const QByteArray &content) const
    {
        const QString result = path(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(result).path()));
        QFile file(result);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return result;
    }

    /// Writes an executable script of /bin/sh and returns its path.
    QString writeScript(const QString &name, const QByteArray &body) const
    {
        const QString result = write(name, "#!/bin/sh\n" + body + "\n");
        EXPECT_TRUE(
            QFile::setPermissions(result, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        return result;
    }

    /// The content of a file, empty when it is missing.
    [[nodiscard]] QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace torvi

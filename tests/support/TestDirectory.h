// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace torvi {

/// A directory for one test and the files that it needs there; removed with all its content.
class TestDirectory final
{
public:
    [[nodiscard]] QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? m_directory.path() : m_directory.filePath(name);
    }

    /// Writes the file `name`, and the folders that it needs.
    void write(const QString &name, const QByteArray &bytes) const
    {
        makeFolderOf(name);
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// Writes a file of `size` bytes that occupies next to none.
    void writeSparse(const QString &name, qint64 size) const
    {
        makeFolderOf(name);
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(size));
    }

    void makeFolder(const QString &name) const
    {
        ASSERT_TRUE(QDir(path()).mkpath(name));
    }

    /// A FIFO without a writer: who opens it to read waits for ever.
    void makeFifo(const QString &name) const
    {
        makeFolderOf(name);
        ASSERT_EQ(::mkfifo(QFile::encodeName(path(name)).constData(), 0600), 0);
    }

    /// A symbolic link to `target`, taken relative to the link's own folder.
    void makeLink(const QString &name, const QString &target) const
    {
        makeFolderOf(name);
        ASSERT_EQ(::symlink(QFile::encodeName(target).constData(),
                            QFile::encodeName(path(name)).constData()),
                  0);
    }

    void remove(const QString &name) const
    {
        ASSERT_TRUE(QFile::remove(path(name)));
    }

private:
    void makeFolderOf(const QString &name) const
    {
        makeFolder(QFileInfo(name).path());
    }

    QTemporaryDir m_directory;
};

} // namespace torvi

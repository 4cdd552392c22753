// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudFile::FileKind;
using GCloudFile::fileKind;
using GCloudFile::kMaximumSize;
using GCloudFile::readFile;

class GCloudFileTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString &name = u"file"_s) const
    {
        return m_directory.filePath(name);
    }

    [[nodiscard]] QByteArray encoded(const QString &name = u"file"_s) const
    {
        return QFile::encodeName(path(name));
    }

    void write(const QByteArray &bytes)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// A file of `size` bytes that occupies next to none.
    void writeSparse(qint64 size)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(size));
    }

    void link(const QString &target, const QString &name)
    {
        ASSERT_EQ(::symlink(QFile::encodeName(target).constData(), encoded(name).constData()), 0);
    }

private:
    QTemporaryDir m_directory;
};

TEST_F(GCloudFileTest, ReadsAllBytes)
{
    const QByteArray bytes("a\0\xFF\r\n", 5);
    write(bytes);

    EXPECT_EQ(fileKind(path()), FileKind::regular);
    EXPECT_EQ(readFile(path()), bytes);
}

TEST_F(GCloudFileTest, ReadsTheEmptyFile)
{
    write({});

    EXPECT_EQ(readFile(path()), QByteArray());
}

TEST_F(GCloudFileTest, ReadsAFileWhoseSizeTheSystemDoesNotTell)
{
    struct stat status
    {
    };
    ASSERT_EQ(::stat("/proc/self/status", &status), 0);
    ASSERT_EQ(status.st_size, 0);

    const std::optional<QByteArray> bytes = readFile(u"/proc/self/status"_s);

    ASSERT_TRUE(bytes);
    EXPECT_TRUE(bytes->startsWith("Name:"));
    EXPECT_TRUE(bytes->endsWith('\n'));
    EXPECT_GT(bytes->size(), 200);
}

TEST_F(GCloudFileTest, FollowsLinks)
{
    write("text");
    link(path(), u"link"_s);

    EXPECT_EQ(fileKind(path(u"link"_s)), FileKind::regular);
    EXPECT_EQ(readFile(path(u"link"_s)), "text");
}

TEST_F(GCloudFileTest, MissingFileIsMissing)
{
    EXPECT_EQ(fileKind(path()), FileKind::missing);
    EXPECT_EQ(readFile(path()), std::nullopt);
}

TEST_F(GCloudFileTest, FileBelowAFileIsMissing)
{
    write("text");

    EXPECT_EQ(fileKind(path(u"file/below"_s)), FileKind::missing);
}

TEST_F(GCloudFileTest, DanglingAndLoopingLinksAreMissing)
{
    link(path(u"nowhere"_s), u"dangling"_s);
    link(path(u"one"_s), u"other"_s);
    link(path(u"other"_s), u"one"_s);

    EXPECT_EQ(fileKind(path(u"dangling"_s)), FileKind::missing);
    EXPECT_EQ(fileKind(path(u"one"_s)), FileKind::missing);
    EXPECT_EQ(readFile(path(u"one"_s)), std::nullopt);
}

TEST_F(GCloudFileTest, NameLongerThanTheSystemAllowsIsMissing)
{
    EXPECT_EQ(fileKind(path(QString(300, u'x'))), FileKind::missing);
}

TEST_F(GCloudFileTest, NameWithANulIsMissingAndNotCutOffThere)
{
    write("text");
    const QString name = path() + QChar(u'\0') + u"more"_s;

    EXPECT_EQ(fileKind(name), FileKind::missing);
    EXPECT_EQ(readFile(name), std::nullopt);
}

TEST_F(GCloudFileTest, DirectoryIsNotRead)
{
    ASSERT_EQ(::mkdir(encoded().constData(), 0700), 0);

    EXPECT_EQ(fileKind(path()), FileKind::directory);
    EXPECT_EQ(readFile(path()), std::nullopt);
}

TEST_F(GCloudFileTest, FifoWithoutAWriterIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(encoded().constData(), 0600), 0);
    link(path(), u"link"_s);

    EXPECT_EQ(fileKind(path()), FileKind::special);
    EXPECT_EQ(readFile(path()), std::nullopt);
    EXPECT_EQ(readFile(path(u"link"_s)), std::nullopt);
}

TEST_F(GCloudFileTest, SocketAndDeviceAreNotRead)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(static_cast<size_t>(encoded().size()), sizeof(address.sun_path));
    encoded().toStdString().copy(address.sun_path, sizeof(address.sun_path) - 1);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const int bound
        = ::bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof(address));
    ::close(descriptor);
    ASSERT_EQ(bound, 0);

    EXPECT_EQ(fileKind(path()), FileKind::special);
    EXPECT_EQ(readFile(path()), std::nullopt);
    EXPECT_EQ(fileKind(u"/dev/null"_s), FileKind::special);
    EXPECT_EQ(readFile(u"/dev/null"_s), std::nullopt);
}

TEST_F(GCloudFileTest, ReadsUpToTheMaximumSize)
{
    writeSparse(kMaximumSize);

    const std::optional<QByteArray> bytes = readFile(path());

    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), kMaximumSize);
}

TEST_F(GCloudFileTest, DoesNotReadBeyondTheMaximumSize)
{
    writeSparse(kMaximumSize + 1);

    EXPECT_EQ(fileKind(path()), FileKind::regular);
    EXPECT_EQ(readFile(path()), std::nullopt);
}

TEST_F(GCloudFileTest, FileWithoutPermissionIsNotRead)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root may read every file";
    }
    write("text");
    ASSERT_EQ(::chmod(encoded().constData(), 0), 0);

    EXPECT_EQ(fileKind(path()), FileKind::regular);
    EXPECT_EQ(readFile(path()), std::nullopt);
}

TEST_F(GCloudFileTest, FileInADirectoryWithoutPermissionIsNotCalledMissing)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root may look into every directory";
    }
    ASSERT_EQ(::mkdir(encoded().constData(), 0), 0);

    EXPECT_EQ(fileKind(path(u"file/below"_s)), FileKind::special);
}

} // namespace torvi

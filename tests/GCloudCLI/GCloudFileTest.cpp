// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudFile.h"

#include "tests/support/FileEvents.h"
#include "tests/support/NoMoreFiles.h"
#include "tests/support/TestDirectory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace torvi {

using GCloudFile::entryNames;
using GCloudFile::FileKind;
using GCloudFile::fileKind;
using GCloudFile::kMaximumSize;
using GCloudFile::readFile;

class GCloudFileTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString &name = u"file"_s) const
    {
        return directory.path(name);
    }

    [[nodiscard]] QByteArray encoded() const
    {
        return QFile::encodeName(path());
    }

    TestDirectory directory;
};

TEST_F(GCloudFileTest, ReadsAllBytes)
{
    const QByteArray bytes("a\0\xFF\r\n", 5);
    directory.write(u"file"_s, bytes);

    EXPECT_EQ(fileKind(path()), FileKind::regular);
    EXPECT_EQ(readFile(path()), bytes);
}

TEST_F(GCloudFileTest, ReadsTheEmptyFile)
{
    directory.write(u"file"_s, {});

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
    directory.write(u"file"_s, "text");
    directory.makeLink(u"link"_s, u"file"_s);

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
    directory.write(u"file"_s, "text");

    EXPECT_EQ(fileKind(path(u"file/below"_s)), FileKind::missing);
}

TEST_F(GCloudFileTest, DanglingAndLoopingLinksAreMissing)
{
    directory.makeLink(u"dangling"_s, u"nowhere"_s);
    directory.makeLink(u"other"_s, u"one"_s);
    directory.makeLink(u"one"_s, u"other"_s);

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
    directory.write(u"file"_s, "text");
    const QString name = path() + QChar(u'\0') + u"more"_s;

    EXPECT_EQ(fileKind(name), FileKind::missing);
    EXPECT_EQ(readFile(name), std::nullopt);
}

TEST_F(GCloudFileTest, DirectoryIsNotRead)
{
    directory.makeFolder(u"file"_s);

    EXPECT_EQ(fileKind(path()), FileKind::directory);
    EXPECT_EQ(readFile(path()), std::nullopt);
}

TEST_F(GCloudFileTest, FifoIsNotEvenOpened)
{
    directory.makeFifo(u"file"_s);
    directory.makeLink(u"link"_s, u"file"_s);

    FileEvents events(directory.path());

    EXPECT_EQ(fileKind(path()), FileKind::special);
    EXPECT_EQ(readFile(path()), std::nullopt);
    EXPECT_EQ(readFile(path(u"link"_s)), std::nullopt);

    EXPECT_EQ(events.taken(), QStringList());
    ::close(::open(encoded().constData(), O_RDONLY | O_NONBLOCK));
    EXPECT_EQ(events.taken(), QStringList{ u"OPEN file"_s }) << "nothing would have been noticed";
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
    directory.writeSparse(u"file"_s, kMaximumSize);

    const std::optional<QByteArray> bytes = readFile(path());

    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), kMaximumSize);
}

TEST_F(GCloudFileTest, DoesNotReadBeyondTheMaximumSize)
{
    directory.writeSparse(u"file"_s, kMaximumSize + 1);

    EXPECT_EQ(fileKind(path()), FileKind::regular);
    EXPECT_EQ(readFile(path()), std::nullopt);
}

TEST_F(GCloudFileTest, FileWithoutPermissionIsNotRead)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root may read every file";
    }
    directory.write(u"file"_s, "text");
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

TEST_F(GCloudFileTest, FileThatCannotBeOpenedIsNotRead)
{
    directory.write(u"file"_s, "text");
    const NoMoreFiles limit;

    EXPECT_EQ(fileKind(path()), FileKind::regular);
    EXPECT_EQ(readFile(path()), std::nullopt);
    EXPECT_EQ(entryNames(directory.path()), std::nullopt);
}

TEST_F(GCloudFileTest, ListsEveryEntryWhateverItIs)
{
    directory.write(u"file"_s, "text");
    directory.write(u".hidden"_s, "");
    directory.makeFolder(u"folder"_s);
    directory.makeFifo(u"fifo"_s);
    directory.makeLink(u"dangling"_s, u"nowhere"_s);

    std::optional<QStringList> names = entryNames(directory.path());

    ASSERT_TRUE(names);
    std::ranges::sort(*names);
    EXPECT_EQ(*names,
              (QStringList{ u".hidden"_s, u"dangling"_s, u"fifo"_s, u"file"_s, u"folder"_s }));
}

TEST_F(GCloudFileTest, ListsAnEmptyDirectory)
{
    EXPECT_EQ(entryNames(directory.path()), QStringList());
}

TEST_F(GCloudFileTest, ListsNothingButDirectories)
{
    directory.write(u"file"_s, "text");
    directory.makeFifo(u"fifo"_s);

    EXPECT_EQ(entryNames(path()), std::nullopt);
    EXPECT_EQ(entryNames(path(u"fifo"_s)), std::nullopt);
    EXPECT_EQ(entryNames(path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(entryNames(directory.path() + QChar(u'\0')), std::nullopt);
}

} // namespace torvi

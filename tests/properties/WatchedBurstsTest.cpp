// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudConfigReader.h"
#include "GCloudStateManager/FileWatcher.h"
#include "tests/properties/Random.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

namespace {

/// Reads the active configuration at each event, as the application does.
QCoro::Task<> readAtEachChange(ChangeStream changes, const GCloudConfigReader &reader,
                               QString &lastRead)
{
    for (;;) {
        const bool changed = co_await changes.next();
        if (!changed) {
            co_return;
        }
        lastRead = reader.readActiveConfigName();
    }
}

} // namespace

class WatchedBurstsTest : public testing::Test
{
protected:
    Random random;
    QTemporaryDir directory;

    void write(const QString &name, const QString &content, bool byRename)
    {
        const QString path = directory.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        const QString written = byRename ? path + u".new"_s : path;
        QFile file(written);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content.toUtf8());
        file.close();
        if (byRename) {
            ASSERT_EQ(rename(qPrintable(written), qPrintable(path)), 0);
        }
    }

    /// Lets the event loop turn for a random while of at most `longest`.
    void turnFor(std::chrono::milliseconds longest)
    {
        QEventLoop loop;
        QTimer::singleShot(
            std::chrono::milliseconds(random.below(static_cast<int>(longest.count()))), &loop,
            &QEventLoop::quit);
        loop.exec();
    }
};

TEST_F(WatchedBurstsTest, TheLastWriteOfAnyBurstIsRead)
{
    const int bursts = repetitions(12);
    const GCloudConfigReader reader(directory.path());
    const auto watcher = std::make_shared<FileWatcher>(QStringList{ directory.path() }, 300ms);
    QString lastRead;
    ChangeStream changes = watcher->start();
    readAtEachChange(changes, reader, lastRead);
    qint64 slowest = 0;

    for (int burst = 0; burst < bursts; ++burst) {
        QString last;
        for (int i = random.below(25) + 1; i > 0; --i) {
            if (random.oneIn(2)) {
                write(u"logs/%1/%2.log"_s.arg(burst).arg(i), u"x"_s, false);
            }
            last = u"burst-%1-%2"_s.arg(burst).arg(i);
            write(u"active_config"_s, last, random.oneIn(3));
            turnFor(90ms);
        }

        QElapsedTimer sinceLastWrite;
        sinceLastWrite.start();
        while (lastRead != last && !sinceLastWrite.hasExpired(30000)) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        ASSERT_EQ(lastRead, last) << "burst " << burst << " was never read to its end";
        slowest = std::max(slowest, sinceLastWrite.elapsed());
    }

    std::cout << bursts << " bursts; the last write was read after at most " << slowest << " ms\n";
    changes.cancel();
    QCoreApplication::processEvents();
}

} // namespace torvi

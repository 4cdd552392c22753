// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudProcesses.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace torvi {

namespace {

constexpr std::chrono::milliseconds kLimit = 60s;
constexpr std::chrono::milliseconds kLookAgain = 20ms;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QList<qint64> gcloudProcesses(const QString &configDirectory)
{
    const QByteArray variable
        = '\0' + QByteArray("CLOUDSDK_CONFIG=" + configDirectory.toUtf8()) + '\0';
    QList<qint64> found;
    for (const QString &pid : QDir(u"/proc"_s).entryList({ u"[0-9]*"_s }, QDir::Dirs)) {
        const QString process = u"/proc/"_s + pid;
        // Its command line is the shell's or Python's, with the script among the arguments.
        const QByteArray command = contents(process + u"/cmdline"_s);
        if (command.contains("gcloud")
            && ('\0' + contents(process + u"/environ"_s)).contains(variable)
            && !command.contains("browser.py") && !command.contains("torvictl")) {
            found.append(pid.toLongLong());
        }
    }
    return found;
}

bool waitUntilNoGCloudIsLeft(const QString &configDirectory)
{
    const QDeadlineTimer limit(kLimit);
    while (!gcloudProcesses(configDirectory).isEmpty()) {
        if (limit.hasExpired()) {
            return false;
        }
        QEventLoop loop;
        QTimer::singleShot(kLookAgain, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

} // namespace torvi

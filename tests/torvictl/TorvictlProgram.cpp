// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/torvictl/TorvictlProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

} // namespace

TorvictlProgram::TorvictlProgram()
{
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"PATH"_s, u"/usr/bin:/bin"_s);
    environment.insert(u"SHELL"_s, u"/bin/false"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    // A run that Ctrl-C ends leaves its suspended coroutines to the exit: no leak to report.
    environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
    scriptGcloud("exit 0");
}

void TorvictlProgram::scriptGcloud(const QByteArray &lines)
{
    const QString gcloud = path(u"google-cloud-sdk/bin/gcloud"_s);
    writeFile(gcloud,
              "#!/bin/sh\nprintf '%s\\n' \"$*\" >>\"$HOME/gcloud-runs\"\n"
              "config=\"$HOME/.config/gcloud\"\n"
                  + lines + '\n');
    QFile::setPermissions(gcloud, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TorvictlProgram::writeConfig(const QString &name, const QByteArray &content)
{
    writeFile(path(u".config/gcloud/"_s + name), content);
}

void TorvictlProgram::writeAccounts(const QStringList &emails)
{
    QDir().mkpath(path(u".config/gcloud"_s));
    sqlite3 *database = nullptr;
    ASSERT_EQ(sqlite3_open(qUtf8Printable(path(u".config/gcloud/credentials.db"_s)), &database),
              SQLITE_OK);
    QByteArray sql("CREATE TABLE credentials (account_id TEXT PRIMARY KEY, value BLOB);");
    for (const QString &email : emails) {
        sql += "INSERT INTO credentials VALUES ('" + email.toUtf8() + "', 'not-a-secret');";
    }
    EXPECT_EQ(sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);
}

QString TorvictlProgram::path(const QString &nameBelowHome) const
{
    return home.filePath(nameBelowHome);
}

QByteArray TorvictlProgram::read(const QString &nameBelowHome) const
{
    QFile file(path(nameBelowHome));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray TorvictlProgram::gcloudRuns() const
{
    return read(u"gcloud-runs"_s);
}

std::unique_ptr<QProcess> TorvictlProgram::start(const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setStandardInputFile(QProcess::nullDevice());
    process->start(QStringLiteral(TORVI_TORVICTL), arguments);
    EXPECT_TRUE(process->waitForStarted());
    return process;
}

Outcome TorvictlProgram::run(const QStringList &arguments)
{
    return outcome(*start(arguments));
}

QByteArray TorvictlProgram::nextLine(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(30000)) {
            ADD_FAILURE() << "no further line";
            return {};
        }
    }
    QByteArray line = process.readLine();
    line.chop(1);
    return line;
}

Outcome TorvictlProgram::outcome(QProcess &process)
{
    EXPECT_TRUE(process.waitForFinished(30000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return { process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError() };
}

} // namespace torvi

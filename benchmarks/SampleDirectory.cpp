// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "benchmarks/SampleDirectory.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

void run(sqlite3 *database, const QByteArray &sql)
{
    if (sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        qFatal("%s", sqlite3_errmsg(database));
    }
}

} // namespace

void makeSampleDirectory(const QString &directory, int configurations, int accounts)
{
    QDir().mkpath(directory + u"/configurations"_s);
    write(directory + u"/active_config"_s, "config-0");
    for (int i = 0; i < configurations; ++i) {
        const QByteArray number = QByteArray::number(i);
        write(directory + u"/configurations/config_config-"_s + QString::number(i),
              "[core]\naccount = user-0@example.com\nproject = project-" + number
                  + "\n\n[compute]\nregion = europe-west1\nzone = europe-west1-b\n\n");
    }
    write(directory + u"/application_default_credentials.json"_s,
          R"({"account": "", "client_id": "x", "client_secret": "not-a-secret",
  "quota_project_id": "project-0", "refresh_token": "not-a-secret", "type": "authorized_user"})");

    sqlite3 *database = nullptr;
    sqlite3_open(qUtf8Printable(directory + u"/credentials.db"_s), &database);
    run(database, "CREATE TABLE credentials (account_id TEXT PRIMARY KEY, value BLOB)");
    for (int i = 0; i < accounts; ++i) {
        run(database,
            "INSERT INTO credentials VALUES ('user-" + QByteArray::number(i)
                + "@example.com', x'00')");
    }
    sqlite3_close(database);
}

QByteArray sampleProjects(int count)
{
    QByteArray json("[\n");
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(100000 + i);
        json += (i == 0 ? "" : ",\n");
        json += R"(  {
    "createTime": "2023-04-06T08:15:30.005Z",
    "lifecycleState": "ACTIVE",
    "name": "Orchid service number )"
            + number + R"(",
    "labels": {
      "team": "orchid",
      "environment": "production"
    },
    "parent": {
      "id": "918273645500",
      "type": "organization"
    },
    "projectId": "orchid-service-)"
            + number + R"(",
    "projectNumber": "883301)"
            + number + R"("
  })";
    }
    return json + "\n]\n";
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

#include "tests/gcloud/GCloudProcesses.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kTorvictl = QStringLiteral(TORVICTL);

QJsonDocument decoded(const Ended &ended)
{
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(ended.output, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError)
        << ended.output.toStdString() << ended.errors.toStdString();
    return document;
}

/// The real gcloud, if the environment is still that of the test in `home`. Keeps a record.
QByteArray guardedGCloud(const QString &home)
{
    QFile script(QStringLiteral(TORVI_GCLOUD_TESTS "/guarded_gcloud.sh"));
    EXPECT_TRUE(script.open(QIODevice::ReadOnly));
    const QString gcloud = QStandardPaths::findExecutable(u"gcloud"_s);
    return script.readAll().replace("@HOME@", home.toUtf8()).replace("@GCLOUD@", gcloud.toUtf8());
}

} // namespace

void GCloudTest::SetUp()
{
    if (const auto obstacle = SignedInDirectory::obstacle()) {
        GTEST_SKIP() << obstacle->toStdString();
    }
    const SignedInDirectory &signedIn = SignedInDirectory::shared();
    std::filesystem::copy(signedIn.file(u"config"_s).toStdString(),
                          scratch.filePath(u"config"_s).toStdString(),
                          std::filesystem::copy_options::recursive);
    google = std::make_unique<StandIn>(signedIn.file(u"certificate.pem"_s));
    ASSERT_TRUE(google->isRunning());
    environment = scratchEnvironment(scratch.path());
    google->enter(environment, signedIn.file(u"authority.pem"_s));
    signInAs(environment, u"dana@example.com"_s);
    environment.insert(u"PATH"_s, scratch.filePath(u"bin"_s) + u':' + environment.value(u"PATH"_s));
    gcloudPath = haveProgram(u"gcloud"_s, guardedGCloud(scratch.path()));
    ASSERT_TRUE(
        exitedWith(0, torvictl({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s, gcloudPath })));
}

void GCloudTest::TearDown()
{
    if (!google) {
        return;
    }
    EXPECT_EQ(google->unknownRequests(), QStringList());
    EXPECT_TRUE(waitUntilNoGCloudIsLeft(environment.value(u"CLOUDSDK_CONFIG"_s)));
}

Ended GCloudTest::torvictl(const QStringList &arguments)
{
    return Program::run(kTorvictl, arguments, environment);
}

std::unique_ptr<Program> GCloudTest::startTorvictl(const QStringList &arguments)
{
    return std::make_unique<Program>(kTorvictl, arguments, environment);
}

Ended GCloudTest::gcloud(const QStringList &arguments)
{
    return Program::run(gcloudPath, arguments, environment);
}

QJsonObject GCloudTest::status()
{
    return decoded(torvictl({ u"status"_s, u"--json"_s })).object();
}

QJsonArray GCloudTest::list(const QStringList &arguments)
{
    return decoded(torvictl(arguments + QStringList{ u"--json"_s })).array();
}

QJsonValue GCloudTest::active(const QString &member)
{
    return status()[u"currentContext"][member];
}

QJsonDocument GCloudTest::ask(const QStringList &arguments)
{
    return decoded(gcloud(arguments + QStringList{ u"--format=json"_s }));
}

QString GCloudTest::activeConfiguration()
{
    for (const QJsonValue &configuration :
         ask({ u"config"_s, u"configurations"_s, u"list"_s }).array()) {
        if (configuration[u"is_active"].toBool()) {
            return configuration[u"name"].toString();
        }
    }
    return {};
}

QJsonValue GCloudTest::property(const QString &section, const QString &name)
{
    const QJsonValue value = ask({ u"config"_s, u"list"_s }).object()[section][name];
    return value.isUndefined() ? QJsonValue(QJsonValue::Null) : value;
}

std::optional<QJsonObject> GCloudTest::adcFile()
{
    const QString path = configFile(u"application_default_credentials.json"_s);
    if (!QFile::exists(path)) {
        return std::nullopt;
    }
    return QJsonDocument::fromJson(readFile(path)).object();
}

void GCloudTest::haveUserADC(const QString &quotaProject)
{
    const QByteArray text = readFile(SignedInDirectory::shared().file(u"adc.json"_s));
    QJsonObject credentials = QJsonDocument::fromJson(text).object();
    ASSERT_EQ(credentials[u"type"], u"authorized_user"_s);
    credentials[u"quota_project_id"] = quotaProject;
    if (quotaProject.isEmpty()) {
        credentials.remove(u"quota_project_id"_s);
    }
    writeFile(configFile(u"application_default_credentials.json"_s),
              QJsonDocument(credentials).toJson());
}

void GCloudTest::haveKeyADC()
{
    writeFile(configFile(u"application_default_credentials.json"_s),
              readFile(SignedInDirectory::shared().file(u"key.json"_s)));
}

void GCloudTest::forgetAccessTokens()
{
    EXPECT_TRUE(QFile::remove(configFile(u"access_tokens.db"_s)));
}

QStringList GCloudTest::runs()
{
    const QString record = scratch.filePath(u"runs"_s);
    const QByteArray lines = QFile::exists(record) ? readFile(record) : QByteArray();
    return QString::fromUtf8(lines).split(u'\n', Qt::SkipEmptyParts);
}

QString GCloudTest::haveProgram(const QString &name, const QByteArray &script)
{
    const QString path = scratch.filePath(u"bin/"_s) + name;
    QDir(scratch.path()).mkpath(u"bin"_s);
    writeFile(path, script.startsWith("#!") ? script : "#!/bin/sh\n" + script + '\n');
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    return path;
}

QString GCloudTest::configFile(const QString &name) const
{
    return environment.value(u"CLOUDSDK_CONFIG"_s) + u'/' + name;
}

void GCloudTest::writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(contents);
}

QByteArray GCloudTest::readFile(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QStringList signInAddresses(const QByteArray &text)
{
    static const QRegularExpression address(u"https://accounts\\.google\\.com/o/oauth2/auth\\S*"_s);
    QStringList addresses;
    for (const QRegularExpressionMatch &match : address.globalMatch(QString::fromUtf8(text))) {
        addresses.append(match.captured());
    }
    return addresses;
}

} // namespace torvi

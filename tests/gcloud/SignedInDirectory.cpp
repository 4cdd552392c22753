// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/SignedInDirectory.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kRobot = u"deployer@orchard-prod-5150.iam.gserviceaccount.com"_s;

/// Variables that would let the user's own world in.
bool isForeign(const QString &variable)
{
    static const QStringList prefixes{ u"CLOUDSDK_"_s, u"GOOGLE_"_s, u"XDG_"_s,  u"LC_"_s,
                                       u"REQUESTS_"_s, u"CURL_"_s,   u"SSL_"_s,  u"LANG"_s,
                                       u"OAUTHLIB_"_s, u"BOTO_"_s,   u"TORVI_"_s };
    static const QStringList names{ u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"MIR_SOCKET"_s,
                                    u"BROWSER"_s, u"NO_COLOR"_s,        u"SSH_CONNECTION"_s };
    if (variable.startsWith(u"CLOUDSDK_PYTHON")) {
        return false; // which Python this installation runs on
    }
    return names.contains(variable) || variable.endsWith(u"_proxy", Qt::CaseInsensitive)
        || std::ranges::any_of(prefixes,
                               [&](const QString &prefix) { return variable.startsWith(prefix); });
}

void succeed(const QString &program, const QStringList &arguments,
             const QProcessEnvironment &environment)
{
    EXPECT_TRUE(exitedWith(0, Program::run(program, arguments, environment)))
        << program.toStdString() << ' ' << arguments.join(u' ').toStdString();
}

/// One key serves the stand-in's certificate and the service account: neither guards anything.
void makeKeys(const SignedInDirectory &directory, const QProcessEnvironment &environment)
{
    succeed(u"openssl"_s,
            { u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-days"_s, u"3650"_s,
              u"-subj"_s, u"/CN=Torvi's stand-in"_s, u"-addext"_s,
              u"subjectAltName=DNS:*.googleapis.com"_s, u"-keyout"_s,
              directory.file(u"certificate.pem"_s), u"-out"_s, directory.file(u"authority.pem"_s) },
            environment);
    QFile authority(directory.file(u"authority.pem"_s));
    QFile certificate(directory.file(u"certificate.pem"_s));
    ASSERT_TRUE(authority.open(QIODevice::ReadOnly));
    ASSERT_TRUE(certificate.open(QIODevice::ReadWrite));
    const QByteArray key = certificate.readAll();
    certificate.write(authority.readAll());

    const QJsonObject robot{ { u"type"_s, u"service_account"_s },
                             { u"project_id"_s, u"orchard-prod-5150"_s },
                             { u"private_key_id"_s, u"1"_s },
                             { u"private_key"_s, QString::fromLatin1(key) },
                             { u"client_email"_s, kRobot },
                             { u"client_id"_s, u"1"_s },
                             { u"token_uri"_s, u"https://oauth2.googleapis.com/token"_s } };
    QFile file(directory.file(u"key.json"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(robot).toJson());
}

void signEverybodyIn(const SignedInDirectory &directory, QProcessEnvironment environment)
{
    const auto gcloud
        = [&](const QStringList &arguments) { succeed(u"gcloud"_s, arguments, environment); };
    gcloud({ u"auth"_s, u"activate-service-account"_s, u"--key-file"_s,
             directory.file(u"key.json"_s) });
    signInAs(environment, u"sam@labs.example.com"_s);
    gcloud({ u"config"_s, u"configurations"_s, u"create"_s, u"labs"_s });
    gcloud({ u"auth"_s, u"login"_s, u"--quiet"_s, u"--project=labs-sandbox-3141"_s });
    gcloud({ u"config"_s, u"configurations"_s, u"create"_s, u"spare"_s });
    gcloud({ u"config"_s, u"configurations"_s, u"activate"_s, u"default"_s });
    signInAs(environment, u"dana@example.com"_s);
    gcloud({ u"auth"_s, u"login"_s, u"--quiet"_s, u"--project=orchard-prod-5150"_s });
    gcloud({ u"config"_s, u"set"_s, u"compute/region"_s, u"europe-west1"_s });
    gcloud({ u"auth"_s, u"application-default"_s, u"login"_s, u"--quiet"_s });
    EXPECT_TRUE(QFile::rename(directory.file(u"config/application_default_credentials.json"_s),
                              directory.file(u"adc.json"_s)));
}

} // namespace

std::optional<QString> SignedInDirectory::obstacle()
{
    for (const QString &program : { u"gcloud"_s, u"python3"_s, u"openssl"_s }) {
        if (QStandardPaths::findExecutable(program).isEmpty()) {
            return program + u" is not installed"_s;
        }
    }
    return std::nullopt;
}

const SignedInDirectory &SignedInDirectory::shared()
{
    static const QTemporaryDir temporary;
    static const SignedInDirectory directory = [] {
        if (const QString made = qEnvironmentVariable("TORVI_SIGNED_IN_DIRECTORY");
            !made.isEmpty()) {
            return SignedInDirectory(made);
        }
        create(temporary.path());
        return SignedInDirectory(temporary.path());
    }();
    return directory;
}

void SignedInDirectory::create(const QString &path)
{
    QDir(path).removeRecursively();
    QDir().mkpath(path + u"/config"_s);
    const SignedInDirectory directory(path);
    QProcessEnvironment environment = scratchEnvironment(path);
    makeKeys(directory, environment);
    const StandIn google(directory.file(u"certificate.pem"_s));
    ASSERT_TRUE(google.isRunning());
    google.enter(environment, directory.file(u"authority.pem"_s));
    signEverybodyIn(directory, environment);
}

QProcessEnvironment scratchEnvironment(const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : environment.keys()) {
        if (isForeign(variable)) {
            environment.remove(variable);
        }
    }
    environment.insert(u"HOME"_s, home);
    environment.insert(u"CLOUDSDK_CONFIG"_s, home + u"/config"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, home + u"/preferences"_s);
    environment.insert(u"CLOUDSDK_CORE_DISABLE_USAGE_REPORTING"_s, u"true"_s);
    environment.insert(u"CLOUDSDK_COMPONENT_MANAGER_DISABLE_UPDATE_CHECK"_s, u"true"_s);
    environment.insert(u"CLOUDSDK_SURVEY_DISABLE_PROMPTS"_s, u"true"_s);
    environment.insert(u"CLOUDSDK_CORE_CHECK_GCE_METADATA"_s, u"false"_s);
    return environment;
}

void signInAs(QProcessEnvironment &environment, const QString &user)
{
    environment.insert(u"DISPLAY"_s, u":99"_s); // without a display gcloud does not try a browser
    environment.insert(u"BROWSER"_s, QStringLiteral(TORVI_GCLOUD_TESTS "/browser.py"));
    environment.insert(u"TORVI_TEST_USER"_s, user);
}

} // namespace torvi

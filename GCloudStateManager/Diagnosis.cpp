// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Diagnosis.h"

#include "GCloudCLI/HomeDirectory.h"
#include "GCloudCLI/ProcessExecutor.h"
#include "GCloudStateManager/Background.h"
#include "GCloudStateManager/Preferences.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <qcoro/qcorofuture.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Stage = GCloudPathResolver::Stage;

QString nameOf(Stage stage)
{
    switch (stage) {
    case Stage::setting:
        return Diagnosis::tr("the setting gcloudPathOverride");
    case Stage::wellKnownLocation:
        return Diagnosis::tr("the well-known locations");
    case Stage::startUpFile:
        return Diagnosis::tr("a start-up file of a shell");
    case Stage::loginShell:
        return Diagnosis::tr("asking the login shell");
    }
    Q_UNREACHABLE();
}

QString obeyedVariables(const QProcessEnvironment &environment)
{
    QStringList names = environment.keys().filter(u"CLOUDSDK_"_s);
    if (environment.contains(u"GOOGLE_APPLICATION_CREDENTIALS"_s)) {
        names.append(u"GOOGLE_APPLICATION_CREDENTIALS"_s);
    }
    names.sort();
    return names.isEmpty() ? Diagnosis::tr("nothing for gcloud") : names.join(u", "_s);
}

QString shortened(const QString &path, const QString &home)
{
    return !home.isEmpty() && path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
}

QString existing(const QString &path, const QString &home)
{
    const QString shown = shortened(path, home);
    return QFileInfo::exists(path) ? shown : Diagnosis::tr("%1 (does not exist)").arg(shown);
}

QCoro::Task<std::optional<QString>> versionOf(QString gcloud)
{
    ProcessExecutor executor(
        std::make_shared<GCloudPathResolver>(gcloud)); // searches no second time
    const GCloudResult result = co_await executor.execute(GCloudCommand::version());
    const QString version
        = QJsonDocument::fromJson(result.stdout.toUtf8())[u"Google Cloud SDK"_s].toString();
    co_return result.isSuccess() && !version.isEmpty() ? std::optional(version) : std::nullopt;
}

} // namespace

QCoro::Task<Diagnosis> Diagnosis::ofThisMachine(Row program, const DependencyContainer &container)
{
    Diagnosis diagnosis;
    diagnosis.program = program;
    diagnosis.pathSetting = container.settingsStore().gcloudPathOverride();
    diagnosis.configDirectory = container.stateManager().configReader().configDirectory();
    diagnosis.preferencesFile = Preferences::defaultPath();
    diagnosis.homeDirectory = torvi::homeDirectory();
    diagnosis.environment = QProcessEnvironment::systemEnvironment();

    QElapsedTimer timer;
    timer.start();
    const auto search
        = inBackground([setting = diagnosis.pathSetting](const std::stop_token &stop) {
              return GCloudPathResolver(setting).find(stop);
          });
    diagnosis.gcloud = co_await search;
    diagnosis.searchTime = std::chrono::milliseconds(timer.elapsed());
    if (diagnosis.gcloud) {
        diagnosis.gcloudVersion = co_await versionOf(diagnosis.gcloud->path);
    }
    co_return diagnosis;
}

QList<Row> Diagnosis::rows() const
{
    QList<Row> rows{
        program,
        { u"Qt"_s, QString::fromLatin1(qVersion()) },
        { u"gcloud"_s, gcloud ? shortened(gcloud->path, homeDirectory) : tr("not found") },
        { tr("Found by"),
          gcloud ? tr("%1, in %2 ms").arg(nameOf(gcloud->stage)).arg(searchTime.count())
                 : tr("nothing, in %1 ms").arg(searchTime.count()) },
    };
    if (gcloud) {
        rows.append({ tr("gcloud version"), gcloudVersion.value_or(tr("it does not tell")) });
    }
    if (pathSetting && !(gcloud && gcloud->stage == Stage::setting)) {
        rows.append({ u"gcloudPathOverride"_s,
                      tr("%1 (cannot be executed)").arg(shortened(*pathSetting, homeDirectory)) });
    }
    rows.append({ tr("Configuration"), existing(configDirectory, homeDirectory) });
    rows.append({ tr("Preferences"), existing(preferencesFile, homeDirectory) });
    rows.append({ tr("Environment"), obeyedVariables(environment) });
    return rows;
}

std::optional<QString> Diagnosis::advice() const
{
    if (!gcloud || gcloud->stage == Stage::setting) {
        return std::nullopt;
    }
    return tr("To have gcloud found at once: %1")
        .arg(u"torvictl settings set gcloudPathOverride \"$(torvictl locate)\""_s);
}

} // namespace torvi

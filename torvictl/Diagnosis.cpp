// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/Diagnosis.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Stage = GCloudPathResolver::Stage;

QString translated(const char *text)
{
    return QCoreApplication::translate("Diagnosis", text);
}

QString nameOf(Stage stage)
{
    switch (stage) {
    case Stage::setting:
        return translated("the setting gcloudPathOverride");
    case Stage::wellKnownLocation:
        return translated("the well-known locations");
    case Stage::startUpFile:
        return translated("a start-up file of a shell");
    case Stage::loginShell:
        return translated("asking the login shell");
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
    return names.isEmpty() ? translated("nothing for gcloud") : names.join(u", "_s);
}

QString shortened(const QString &path, const QString &home)
{
    return !home.isEmpty() && path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
}

QString existing(const QString &path, const QString &home)
{
    const QString shown = shortened(path, home);
    return QFileInfo::exists(path) ? shown : translated("%1 (does not exist)").arg(shown);
}

} // namespace

QList<Row> Diagnosis::rows() const
{
    QList<Row> rows{
        { u"torvictl"_s, QStringLiteral(TORVI_VERSION) },
        { u"Qt"_s, QString::fromLatin1(qVersion()) },
        { u"gcloud"_s, gcloud ? shortened(gcloud->path, homeDirectory) : translated("not found") },
        { translated("Found by"),
          gcloud ? translated("%1, in %2 ms").arg(nameOf(gcloud->stage)).arg(searchTime.count())
                 : translated("nothing, in %1 ms").arg(searchTime.count()) },
    };
    if (gcloud) {
        rows.append({ translated("gcloud version"),
                      gcloudVersion.value_or(translated("it does not tell")) });
    }
    if (pathSetting && !(gcloud && gcloud->stage == Stage::setting)) {
        rows.append(
            { u"gcloudPathOverride"_s,
              translated("%1 (cannot be executed)").arg(shortened(*pathSetting, homeDirectory)) });
    }
    rows.append({ translated("Configuration"), existing(configDirectory, homeDirectory) });
    rows.append({ translated("Preferences"), existing(preferencesFile, homeDirectory) });
    rows.append({ translated("Environment"), obeyedVariables(environment) });
    return rows;
}

std::optional<QString> Diagnosis::advice() const
{
    if (!gcloud || gcloud->stage == Stage::setting) {
        return std::nullopt;
    }
    return translated("To have gcloud found at once: %1")
        .arg(u"torvictl settings set gcloudPathOverride \"$(torvictl locate)\""_s);
}

} // namespace torvi

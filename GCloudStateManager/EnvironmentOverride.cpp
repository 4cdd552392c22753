// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/EnvironmentOverride.h"

#include "GCloudModels/AppError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr const char *kContext = "EnvironmentOverride";

/// Tells whether the files say something other than `value`.
using Differs = bool (*)(const GCloudConfigReading &files, const QString &value);

struct Variable
{
    QStringView name;
    const char *description = nullptr; ///< %1 the variable, %2 its value
    Differs differs = nullptr;
};

bool configurationDiffers(const GCloudConfigReading &files, const QString &value)
{
    return !value.isEmpty() && value != files.readActiveConfigName(); // gcloud ignores an empty one
}

ConfigProperties activeProperties(const GCloudConfigReading &files)
{
    return files.readConfigProperties(files.readActiveConfigName());
}

/// An empty project or account does override: gcloud then has none.
bool projectDiffers(const GCloudConfigReading &files, const QString &value)
{
    return value != activeProperties(files).project.value_or(QString());
}

bool accountDiffers(const GCloudConfigReading &files, const QString &value)
{
    return value != activeProperties(files).account.value_or(QString());
}

QString cleanPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool credentialsDiffer(const GCloudConfigReading &files, const QString &value)
{
    return !value.isEmpty()
        && cleanPath(value)
        != cleanPath(
               QDir(files.configDirectory()).filePath(u"application_default_credentials.json"_s));
}

constexpr std::array kVariables{
    Variable{
        u"CLOUDSDK_ACTIVE_CONFIG_NAME",
        QT_TRANSLATE_NOOP("EnvironmentOverride", "%1 makes gcloud use the configuration \"%2\"."),
        &configurationDiffers },
    Variable{ u"CLOUDSDK_CORE_PROJECT",
              QT_TRANSLATE_NOOP("EnvironmentOverride", "%1 makes gcloud use the project \"%2\"."),
              &projectDiffers },
    Variable{ u"CLOUDSDK_CORE_ACCOUNT",
              QT_TRANSLATE_NOOP("EnvironmentOverride", "%1 makes gcloud use the account \"%2\"."),
              &accountDiffers },
    Variable{
        u"GOOGLE_APPLICATION_CREDENTIALS",
        QT_TRANSLATE_NOOP("EnvironmentOverride", "%1 makes code use the credentials in \"%2\"."),
        &credentialsDiffer },
};

bool isOverride(const Variable &variable, const GCloudConfigReading &files, const QString &value)
{
    try {
        return variable.differs(files, value);
    } catch (const AppError &) {
        return false; // whoever shows the files tells of the error
    }
}

} // namespace

QString EnvironmentOverride::description() const
{
    for (const Variable &known : kVariables) {
        if (known.name == variable) {
            return QCoreApplication::translate(kContext, known.description).arg(variable, value);
        }
    }
    return variable + u'=' + value;
}

QList<EnvironmentOverride> EnvironmentOverride::all(const GCloudConfigReading &files,
                                                    const QProcessEnvironment &environment)
{
    QList<EnvironmentOverride> overrides;
    for (const Variable &variable : kVariables) {
        const QString name = variable.name.toString();
        const QString value = environment.value(name);
        if (environment.contains(name) && isOverride(variable, files, value)) {
            overrides.append({ name, value });
        }
    }
    return overrides;
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/AppError.h"

#include <QCoreApplication>

#include <utility>

namespace torvi {

namespace {

struct Description
{
    QString operator()(const AppError::CommandFailed &error) const
    {
        return QCoreApplication::translate("AppError", "gcloud command failed (exit %1): %2")
            .arg(QString::number(error.exitCode), error.stderr);
    }

    QString operator()(const AppError::ConfigFileUnreadable &error) const
    {
        return QCoreApplication::translate("AppError", "Could not read config file: %1")
            .arg(error.path);
    }

    QString operator()(const AppError::ParseError &error) const
    {
        return QCoreApplication::translate("AppError", "Failed to parse gcloud output: %1")
            .arg(error.detail);
    }

    QString operator()(const AppError::Unknown &error) const
    {
        return error.message;
    }

    QString operator()(const AppError::GCloudNotFound &) const
    {
        return QCoreApplication::translate(
            "AppError", "gcloud CLI not found. Please install the Google Cloud SDK.");
    }
};

} // namespace

AppError::AppError(Case error)
    : m_case(std::move(error))
    , m_what(errorDescription().toUtf8())
{
}

AppError AppError::commandFailed(qint32 exitCode, QString standardError)
{
    return AppError(CommandFailed{ exitCode, std::move(standardError) });
}

AppError AppError::configFileUnreadable(QString path)
{
    return AppError(ConfigFileUnreadable{ std::move(path) });
}

AppError AppError::parseError(QString detail)
{
    return AppError(ParseError{ std::move(detail) });
}

AppError AppError::unknown(QString message)
{
    return AppError(Unknown{ std::move(message) });
}

AppError AppError::gcloudNotFound()
{
    return AppError(GCloudNotFound{});
}

QString AppError::errorDescription() const
{
    return std::visit(Description{}, m_case);
}

const char *AppError::what() const noexcept
{
    return m_what.constData();
}

} // namespace torvi

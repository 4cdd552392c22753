// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/AppError.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

struct Description
{
    QString operator()(const AppError::CommandFailed &error) const
    {
        return u"gcloud command failed (exit "_s + QString::number(error.exitCode) + u"): "_s
            + error.stderr;
    }

    QString operator()(const AppError::ConfigFileUnreadable &error) const
    {
        return u"Could not read config file: "_s + error.path;
    }

    QString operator()(const AppError::ParseError &error) const
    {
        return u"Failed to parse gcloud output: "_s + error.detail;
    }

    QString operator()(const AppError::Unknown &error) const
    {
        return error.message;
    }

    QString operator()(const AppError::GCloudNotFound &) const
    {
        return u"gcloud CLI not found. Please install the Google Cloud SDK."_s;
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

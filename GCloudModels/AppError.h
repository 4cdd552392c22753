// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio> // stderr is a macro that names itself: see it before the field
#include <exception>
#include <variant>

namespace torvi {

/// The one error type: every failure that the user sees is one of these five cases.
/// Thrown by the gcloud-access layer, kept by the state manager; an immutable value.
class AppError final : public std::exception
{
public:
    /// A gcloud run ended with a non-zero exit status; -1 marks a process that never started.
    struct CommandFailed
    {
        qint32 exitCode;
        QString stderr;
        bool operator==(const CommandFailed &) const = default;
    };

    /// A file of gcloud's configuration directory exists but cannot be read, listed or decoded.
    struct ConfigFileUnreadable
    {
        QString path;
        bool operator==(const ConfigFileUnreadable &) const = default;
    };

    /// gcloud's output or a database query could not be interpreted.
    struct ParseError
    {
        QString detail;
        bool operator==(const ParseError &) const = default;
    };

    /// Any other failure, carrying a ready message.
    struct Unknown
    {
        QString message;
        bool operator==(const Unknown &) const = default;
    };

    /// No gcloud executable was found.
    struct GCloudNotFound
    {
        bool operator==(const GCloudNotFound &) const = default;
    };

    using Case
        = std::variant<CommandFailed, ConfigFileUnreadable, ParseError, Unknown, GCloudNotFound>;

    [[nodiscard]] static AppError commandFailed(qint32 exitCode, QString standardError);
    [[nodiscard]] static AppError configFileUnreadable(QString path);
    [[nodiscard]] static AppError parseError(QString detail);
    [[nodiscard]] static AppError unknown(QString message);
    [[nodiscard]] static AppError gcloudNotFound();

    /// Which case it is, with its payload.
    [[nodiscard]] const Case &asCase() const
    {
        return m_case;
    }

    /// The message for the user; the payload stands in it unchanged.
    [[nodiscard]] QString errorDescription() const;

    /// errorDescription() in UTF-8.
    [[nodiscard]] const char *what() const noexcept override;

    friend bool operator==(const AppError &left, const AppError &right)
    {
        return left.m_case == right.m_case;
    }

private:
    explicit AppError(Case error);

    Case m_case;
    QByteArray m_what;
};

} // namespace torvi

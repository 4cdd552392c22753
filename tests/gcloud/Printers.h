// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <ostream>

// How GoogleTest shows Qt's types in a failure; found by their namespace, which is the global one.

inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QJsonArray &value, std::ostream *stream)
{
    *stream << QJsonDocument(value).toJson(QJsonDocument::Compact).toStdString();
}

inline void PrintTo(const QJsonObject &value, std::ostream *stream)
{
    *stream << QJsonDocument(value).toJson(QJsonDocument::Compact).toStdString();
}

inline void PrintTo(const QJsonValue &value, std::ostream *stream)
{
    PrintTo(QJsonArray{ value }, stream);
}

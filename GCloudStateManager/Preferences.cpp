// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Preferences.h"

#include "GCloudCLI/HomeDirectory.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

} // namespace

QString Preferences::defaultPath()
{
    QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!folder.startsWith(u'/')) { // the XDG specification wants a relative one ignored
        folder = homeDirectory() + u"/.config"_s;
    }
    return folder + u"/torvi/preferences.ini"_s;
}

Preferences::Preferences(const QString &path)
    : m_file(path)
{
    if (m_file.isPlain()) {
        m_settings.emplace(path, QSettings::IniFormat);
    }
}

QStringList Preferences::strings(const QString &key) const
{
    const QVariant stored = value(key);
    if (isText(stored)) {
        return { stored.toString() };
    }
    // A list in which some element begins with "@" arrives as one of any values, bytes for example.
    const bool isList
        = stored.typeId() == QMetaType::QStringList || stored.typeId() == QMetaType::QVariantList;
    const QVariantList elements = isList ? stored.toList() : QVariantList();
    const bool allTexts = std::all_of(elements.begin(), elements.end(), isText);
    return isList && allTexts ? stored.toStringList() : QStringList();
}

std::optional<QByteArray> Preferences::data(const QString &key) const
{
    const QVariant stored = value(key);
    const bool isData = stored.typeId() == QMetaType::QByteArray;
    return isData ? std::optional(stored.toByteArray()) : std::nullopt;
}

std::optional<QString> Preferences::string(const QString &key) const
{
    const QVariant stored = value(key);
    return isText(stored) ? std::optional(stored.toString()) : std::nullopt;
}

bool Preferences::boolean(const QString &key) const
{
    const std::optional<QString> text = string(key);
    return text == u"true"_s || text == u"1"_s;
}

qint64 Preferences::integer(const QString &key) const
{
    return string(key).value_or(QString()).toLongLong(); // 0 when it is none
}

void Preferences::setStrings(const QString &key, const QStringList &value)
{
    set(key, value);
}

void Preferences::setData(const QString &key, const QByteArray &value)
{
    set(key, value);
}

void Preferences::setString(const QString &key, const QString &value)
{
    set(key, value);
}

// As texts, which is what the file has for them: so they read the same before and after a restart.

void Preferences::setBoolean(const QString &key, bool value)
{
    set(key, value ? u"true"_s : u"false"_s);
}

void Preferences::setInteger(const QString &key, qint64 value)
{
    set(key, QString::number(value));
}

void Preferences::remove(const QString &key)
{
    set(key, {});
}

QVariant Preferences::value(const QString &key) const
{
    if (const auto change = m_unwritten.constFind(key); change != m_unwritten.constEnd()) {
        return *change;
    }
    if (!m_settings) {
        return {};
    }
    try {
        return m_settings->value(key);
    } catch (const std::bad_alloc &) { // QSettings takes a list's word for how long it is
        return {};
    }
}

void Preferences::set(const QString &key, const QVariant &value)
{
    if (!m_settings) {
        return;
    }
    m_unwritten.insert(key, value);
    const FileDescriptor lock = m_file.beginWriting();
    if (!lock.isOpen()) {
        return;
    }
    try {
        write();
    } catch (const std::bad_alloc &) { // as in value(): then nothing was written
    }
    m_file.endWriting();
}

void Preferences::write()
{
    for (auto change = m_unwritten.constBegin(); change != m_unwritten.constEnd(); ++change) {
        if (change->isValid()) {
            m_settings->setValue(change.key(), *change);
        } else {
            m_settings->remove(change.key());
        }
    }
    m_settings->sync();
    m_unwritten.clear();
}

} // namespace torvi

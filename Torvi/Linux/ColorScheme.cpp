// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/ColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

// What the portal calls things, see the documentation of org.freedesktop.portal.Settings.
const QString kService = u"org.freedesktop.portal.Desktop"_s;
const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kInterface = u"org.freedesktop.portal.Settings"_s;
const QString kGroup = u"org.freedesktop.appearance"_s;
const QString kKey = u"color-scheme"_s;
constexpr uint kPrefersDark = 1;

} // namespace

ColorScheme::ColorScheme(QDBusConnection connection)
    : m_connection(std::move(connection))
{
    qRegisterMetaType<QDBusVariant>(); // by its name the connection finds the slot
    m_connection.connect(kService, kPath, kInterface, u"SettingChanged"_s, this,
                         SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    ask();
}

bool ColorScheme::isDark() const
{
    return m_isDark;
}

void ColorScheme::ask()
{
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
    call << kGroup << kKey;
    auto *pending = new QDBusPendingCallWatcher(m_connection.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *finished;
                if (reply.isValid()) {
                    take(reply.value().variant());
                }
            });
}

void ColorScheme::onSettingChanged(const QString &group, const QString &key,
                                   const QDBusVariant &value)
{
    if (group == kGroup && key == kKey) {
        take(value.variant());
    }
}

void ColorScheme::take(const QVariant &value)
{
    // An answer has one more variant around the value than a change has.
    const QVariant plain
        = value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    const bool isDark = plain.toUInt() == kPrefersDark;
    if (m_isDark != isDark) {
        m_isDark = isDark;
        Q_EMIT changed();
    }
}

} // namespace torvi

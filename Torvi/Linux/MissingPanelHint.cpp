// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/MissingPanelHint.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

QString MissingPanelHint::text()
{
    return tr(
        "No panel of this desktop shows status items. Torvi runs nevertheless: start it again, "
        "or run “torvi --toggle”, to open it.");
}

MissingPanelHint::MissingPanelHint(QDBusConnection connection,
                                   StatusNotifierRegistration *registration,
                                   std::function<void(const QString &)> say,
                                   std::chrono::milliseconds patience)
    : QObject(registration)
    , m_connection(std::move(connection))
    , m_registration(registration)
    , m_say(std::move(say))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MissingPanelHint::look);
    m_timer.start(patience);
}

void MissingPanelHint::look()
{
    if (!m_registration->isRegistered()) {
        decide(false);
        return;
    }
    // A watcher alone shows nothing: some sessions run one without any panel.
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    QDBusMessage call = QDBusMessage::createMethodCall(
        watcher, u"/StatusNotifierWatcher"_s, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << watcher << u"IsStatusNotifierHostRegistered"_s;
    auto *pending = new QDBusPendingCallWatcher(m_connection.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *finished;
                // A watcher that does not tell has its panel.
                decide(!reply.isValid() || reply.value().variant().toBool());
            });
}

void MissingPanelHint::decide(bool isPanelThere)
{
    if (!isPanelThere) {
        m_say(text());
        notify();
    }
    Q_EMIT decided(isPanelThere);
}

void MissingPanelHint::notify()
{
    const QString service = u"org.freedesktop.Notifications"_s;
    QDBusMessage call = QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s,
                                                       service, u"Notify"_s);
    const uint replacesNothing = 0;
    const int standardTimeout = -1;
    call << u"Torvi"_s << replacesNothing << u"com.veldra.Torvi"_s << tr("Torvi is running")
         << text() << QStringList() << QVariantMap{ { u"desktop-entry"_s, u"com.veldra.Torvi"_s } }
         << standardTimeout;
    m_connection.asyncCall(call); // where nothing shows notifications, standard error has to do
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/SingleInstance.h"

#include "Torvi/Linux/RequestName.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

QString objectPath()
{
    return u"/com/veldra/Torvi"_s;
}

QVariantMap platformData()
{
    QVariantMap data;
    if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty()) {
        data.insert(u"activation-token"_s, token);
    }
    return data;
}

QDBusMessage callFor(CommandLine::Request request)
{
    const auto action = actionName(request);
    QDBusMessage call = QDBusMessage::createMethodCall(
        SingleInstance::name(), objectPath(), u"org.freedesktop.Application"_s,
        action ? u"ActivateAction"_s : u"Activate"_s);
    call.setAutoStartService(false);
    if (action) {
        call << *action << QVariantList();
    }
    call << platformData();
    return call;
}

/// The owner of the name has gone, before or after it got the call: somebody else may own it now.
bool isGone(const QDBusMessage &reply)
{
    const QDBusError error(reply);
    return error.type() == QDBusError::ServiceUnknown
        || error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner"
        || (error.type() == QDBusError::NoReply
            && error.message().contains(u"disconnected"_s, Qt::CaseInsensitive));
}

} // namespace

QString SingleInstance::name()
{
    return u"com.veldra.Torvi"_s;
}

SingleInstance::SingleInstance(QDBusConnection connection)
    : m_connection(std::move(connection))
{
}

SingleInstance::~SingleInstance()
{
    if (m_isOwner) {
        m_connection.unregisterService(name());
        m_connection.unregisterObject(objectPath());
    }
}

SingleInstance::Outcome SingleInstance::claimOrPassOn(CommandLine::Request request,
                                                      ApplicationAdaptor::Handler handler,
                                                      std::chrono::milliseconds patience)
{
    if (!m_connection.isConnected()) {
        return Outcome::noBus;
    }
    // On the bus before the name is: who finds the name finds the object, too.
    new ApplicationAdaptor(&m_object, m_connection, std::move(handler));
    m_connection.registerObject(objectPath(), &m_object, QDBusConnection::ExportAdaptors);
    for (;;) {
        m_isOwner = m_connection.registerService(name());
        if (m_isOwner) {
            return Outcome::isFirst;
        }
        const Outcome outcome = passOn(request, patience);
        if (outcome != Outcome::isFirst) {
            m_connection.unregisterObject(objectPath());
            return outcome;
        }
    }
}

SingleInstance::Outcome SingleInstance::passOn(CommandLine::Request request,
                                               std::chrono::milliseconds patience)
{
    if (!m_connection.isConnected()) {
        return Outcome::noBus;
    }
    const QDBusMessage reply
        = m_connection.call(callFor(request), QDBus::Block, static_cast<int>(patience.count()));
    if (reply.type() == QDBusMessage::ReplyMessage) {
        return Outcome::passedOn;
    }
    return isGone(reply) ? Outcome::isFirst : Outcome::noAnswer;
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/ApplicationAdaptor.h"

#include "Torvi/Linux/ActivationToken.h"
#include "Torvi/Linux/RequestName.h"

#include <QDBusError>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

ApplicationAdaptor::ApplicationAdaptor(QObject *parent, QDBusConnection connection, Handler handler)
    : QDBusAbstractAdaptor(parent)
    , m_connection(std::move(connection))
    , m_handler(std::move(handler))
{
}

void ApplicationAdaptor::Activate(const QVariantMap &platformData)
{
    carryOut(CommandLine::Request::start, platformData);
}

void ApplicationAdaptor::Open(const QStringList & /*uris*/, const QVariantMap &platformData)
{
    carryOut(CommandLine::Request::start, platformData);
}

void ApplicationAdaptor::ActivateAction(const QString &action, const QVariantList & /*parameter*/,
                                        const QVariantMap &platformData,
                                        const QDBusMessage &message)
{
    if (const auto request = requestNamed(action)) {
        carryOut(*request, platformData);
        return;
    }
    message.setDelayedReply(true); // in place of the empty reply of a success
    m_connection.send(
        message.createErrorReply(QDBusError::InvalidArgs, tr("There is no action %1").arg(action)));
}

void ApplicationAdaptor::carryOut(CommandLine::Request request, const QVariantMap &platformData)
{
    ActivationToken::keep(platformData.value(u"activation-token"_s).toString());
    // The caller is answered before anything is opened, or before we are gone.
    QMetaObject::invokeMethod(
        this, [this, request] { m_handler(request); }, Qt::QueuedConnection);
}

} // namespace torvi

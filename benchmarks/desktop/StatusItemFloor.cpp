// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// The floor of the application at its start: a bare Qt program with a status item.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

class StatusItem final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category MEMBER m_category)
    Q_PROPERTY(QString Id MEMBER m_id)
    Q_PROPERTY(QString Title MEMBER m_id)
    Q_PROPERTY(QString Status MEMBER m_status)
    Q_PROPERTY(QString IconName MEMBER m_icon)

private:
    QString m_category = u"ApplicationStatus"_s;
    QString m_id = u"floor"_s;
    QString m_status = u"Active"_s;
    QString m_icon = u"folder"_s;
};

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    StatusItem item;
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString service
        = u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid());
    bus.registerObject(u"/StatusNotifierItem"_s, &item, QDBusConnection::ExportAllContents);
    bus.registerService(service);
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    QDBusMessage call = QDBusMessage::createMethodCall(watcher, u"/StatusNotifierWatcher"_s,
                                                       watcher, u"RegisterStatusNotifierItem"_s);
    call << service;
    bus.asyncCall(call);
    return QCoreApplication::exec();
}

#include "StatusItemFloor.moc"

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/VeldraUI/World.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QQmlEngine>
#include <QtQuickTest>

using namespace Qt::StringLiterals;

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    /// An application that views can tell about.
    void applicationAvailable() // NOLINT(readability-convert-member-functions-to-static)
    {
        QPixmap icon(96, 96);
        icon.fill(QColor(0, 128, 255));
        QGuiApplication::setWindowIcon(icon);
        QGuiApplication::setApplicationVersion(u"1.2.3"_s);
    }

    void
    qmlEngineAvailable(QQmlEngine *engine) // NOLINT(readability-convert-member-functions-to-static)
    {
        engine->addImportPath(u"qrc:/qt/qml"_s);
        qmlRegisterType<torvi::World>("VeldraUI.Tests", 1, 0, "World");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(VeldraUI, Setup)

#include "main.moc"

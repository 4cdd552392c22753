// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/VeldraUI/World.h"

#include <QQmlEngine>
#include <QtQuickTest>

using namespace Qt::StringLiterals;

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void
    qmlEngineAvailable(QQmlEngine *engine) // NOLINT(readability-convert-member-functions-to-static)
    {
        engine->addImportPath(u"qrc:/qt/qml"_s);
        qmlRegisterType<torvi::World>("VeldraUI.Tests", 1, 0, "World");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(VeldraUI, Setup)

#include "main.moc"

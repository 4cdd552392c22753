// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// FirstPopover PROJECTS: prints the milliseconds from the first request for the popover until its
// first frame, in a program that has not loaded the views before.

#include "Torvi/Linux/SystemClipboard.h"
#include "Torvi/LoadedViews.h"
#include "benchmarks/desktop/SampleState.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QWindow>

#include <cstdio>

int main(int argc, char **argv)
{
    using namespace torvi;

    const QGuiApplication application(argc, argv);
    const SampleState state(QCoreApplication::arguments().value(1).toInt());
    SystemClipboard clipboard;
    LoadedViews views(LoadedViews::module(QCoreApplication::applicationDirPath()),
                      { clipboard, [](QWindow &window) { window.requestActivate(); },
                        [](QWindow & /*window*/, const auto & /*setDark*/) {} },
                      [](const QString &message) { qFatal("%s", qPrintable(message)); });
    const auto popover = views.makePopover(state.manager(), [] {});

    const QPoint item(600, 10);
    QCursor::setPos(item);
    QElapsedTimer timer;
    timer.start();
    popover->show(item);
    QEventLoop loop;
    // By its name: whoever knew the window's class would have loaded its library before.
    QObject::connect(QGuiApplication::topLevelWindows().constFirst(), SIGNAL(frameSwapped()), &loop,
                     SLOT(quit()));
    loop.exec();
    std::printf("%f\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    return 0;
}

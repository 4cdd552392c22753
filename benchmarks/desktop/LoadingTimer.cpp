// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// Prints the milliseconds that it takes to load the views, in a program that has shown none.

#include "Torvi/LoadedViews.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPluginLoader>

#include <cstdio>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QElapsedTimer timer;
    timer.start();
    QPluginLoader loader(torvi::LoadedViews::module(QCoreApplication::applicationDirPath()));
    if (loader.instance() == nullptr) {
        qFatal("%s", qPrintable(loader.errorString()));
    }
    std::printf("%f\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    return 0;
}

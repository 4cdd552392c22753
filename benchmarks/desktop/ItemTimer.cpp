// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// ItemTimer PROGRAM: prints the milliseconds from starting PROGRAM until it registers a status
// item, and its process identifier; then is its panel until it ends.

#include "tests/support/FakeStatusNotifierWatcher.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const torvi::FakeStatusNotifierWatcher panel(QDBusConnection::sessionBus());
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    program.start(QCoreApplication::arguments().value(1), {});
    while (panel.registered.isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (program.state() == QProcess::NotRunning) {
            return 1;
        }
    }
    std::printf("%f %lld\n", static_cast<double>(timer.nsecsElapsed()) / 1e6, program.processId());
    std::fflush(stdout);
    while (program.state() != QProcess::NotRunning) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return 0;
}

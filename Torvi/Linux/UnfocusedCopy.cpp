// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/UnfocusedCopy.h"

#include "Torvi/Linux/Session.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace torvi {

bool UnfocusedCopy::isNeeded()
{
    return Session::isWayland() && QGuiApplication::focusWindow() == nullptr;
}

void UnfocusedCopy::copy(const QString &text)
{
    const QString program = QStandardPaths::findExecutable(u"wl-copy"_s);
    if (program.isEmpty()) {
        return;
    }
    auto *process = new QProcess(qGuiApp);
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QObject::connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
    // Its own child serves the text; that one must not hold our pipes.
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, { u"--type"_s, u"text/plain;charset=utf-8"_s });
    process->write(text.toUtf8());
    process->closeWriteChannel();
}

} // namespace torvi

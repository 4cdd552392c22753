// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/SystemClipboard.h"

#include "Torvi/Linux/UnfocusedCopy.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace torvi {

void SystemClipboard::setText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    if (UnfocusedCopy::isNeeded()) {
        UnfocusedCopy::copy(text);
    }
}

void SystemClipboard::setSecret(const QString &secret)
{
    auto *data = new QMimeData; // the clipboard takes it
    data->setText(secret);
    data->setData(u"x-kde-passwordManagerHint"_s, "secret");
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace torvi

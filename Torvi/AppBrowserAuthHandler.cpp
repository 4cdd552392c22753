// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/AppBrowserAuthHandler.h"

namespace torvi {

AppBrowserAuthHandler::AppBrowserAuthHandler(Clipboard &clipboard)
    : m_clipboard(clipboard)
{
}

void AppBrowserAuthHandler::openAuthURL(const QString &url)
{
    QMetaObject::invokeMethod(
        this, [this, url] { m_clipboard.setText(url); }, Qt::QueuedConnection);
}

} // namespace torvi

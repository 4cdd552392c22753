// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudCLI/BrowserAuthHandler.h"
#include "VeldraUI/Clipboard.h"

#include <QObject>

namespace torvi {

/// Puts the address of a browser sign-in on the clipboard, for when no browser window appeared;
/// gcloud itself opens the browser.
///
/// Each call replaces what is on the clipboard; the last address wins. After the handler's end a
/// call that is under way has no effect.
class AppBrowserAuthHandler final : public QObject, public BrowserAuthHandler
{
    Q_OBJECT

public:
    /// Made on the main thread. `clipboard` must outlive this object.
    explicit AppBrowserAuthHandler(Clipboard &clipboard);

    void openAuthURL(const QString &url) override;

private:
    Clipboard &m_clipboard;
};

} // namespace torvi

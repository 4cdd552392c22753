// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace torvi {

/// Takes the address of the sign-in page while a browser sign-in runs.
class BrowserAuthHandler
{
public:
    virtual ~BrowserAuthHandler() = default;

    /// Called each time gcloud prints a sign-in address. Must return at once.
    /// `url` is a valid URL, byte for byte as printed: a URL class would rewrite its escapes, and
    /// the sign-in service compares some of them.
    /// Thread: a background thread; an implementation moves to the main thread itself.
    virtual void openAuthURL(const QString &url) = 0;

protected:
    BrowserAuthHandler() = default;
    Q_DISABLE_COPY_MOVE(BrowserAuthHandler)
};

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QString>

#include <functional>

namespace torvi {

/// An item in the panel: an image, a title beside it, and what a click does. Main thread only.
///
/// Lifetime: the item leaves the panel when it is destroyed.
class StatusItem
{
public:
    virtual ~StatusItem() = default;

    /// False where nothing can be shown at all; the other calls are then without effect. Stays as
    /// it was at construction, whatever panels come and go.
    [[nodiscard]] virtual bool hasButton() const = 0;

    /// Shows the symbol of this name at 18 x 18, tinted by the panel where it can.
    virtual void setImage(const QString &symbol, const QString &accessibilityDescription) = 0;
    virtual void setTitle(const QString &title) = 0;
    /// Plain texts; `text` may have several lines.
    virtual void setToolTip(const QString &title, const QString &text) = 0;
    /// `action` gets the position of the click on the desktop.
    virtual void setAction(std::function<void(const QPoint &)> action) = 0;

protected:
    StatusItem() = default;
    Q_DISABLE_COPY_MOVE(StatusItem)
};

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Linux/StatusNotifierAdaptor.h"
#include "Torvi/Linux/StatusNotifierRegistration.h"
#include "Torvi/StatusItem.h"

#include <QDBusConnection>
#include <QObject>

#include <optional>

namespace torvi {

/// A status item on the session bus, for every panel that shows StatusNotifierItems.
class StatusNotifierItem final : public StatusItem
{
public:
    /// The item that is exported under this name is this process's own.
    [[nodiscard]] static QString serviceName();

    /// Goes onto the bus at once. Has no button when `connection` is not connected.
    explicit StatusNotifierItem(QDBusConnection connection);
    ~StatusNotifierItem() override;

    [[nodiscard]] bool hasButton() const override;
    void setImage(const QString &symbol, const QString &accessibilityDescription) override;
    void setTitle(const QString &title) override;
    void setToolTip(const QString &title, const QString &text) override;
    void setAction(std::function<void(const QPoint &)> action) override;

    /// Null when there is no bus.
    [[nodiscard]] StatusNotifierRegistration *registration();

private:
    QDBusConnection m_connection;
    QObject m_object; ///< what is on the bus; owns the adaptor
    StatusNotifierAdaptor *m_adaptor;
    std::optional<StatusNotifierRegistration> m_registration;
};

} // namespace torvi

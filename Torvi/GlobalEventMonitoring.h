// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

#include <functional>
#include <memory>
#include <optional>

namespace torvi {

/// Something that happened outside of this application.
struct GlobalEvent
{
    Qt::MouseButton button = Qt::NoButton; ///< NoButton: the user went to another application
    std::optional<QPoint> position; ///< on the desktop; absent where the system does not tell

    bool operator==(const GlobalEvent &) const = default;
};

/// Tells of clicks that other applications receive. Main thread only.
class GlobalEventMonitoring
{
public:
    /// An installed monitor. Dropping it frees everything that belongs to it, too.
    class Token
    {
    public:
        virtual ~Token() = default;

    protected:
        Token() = default;
        Q_DISABLE_COPY_MOVE(Token)
    };

    using Block = std::function<void(const GlobalEvent &)>;

    virtual ~GlobalEventMonitoring() = default;

    /// Calls `block` from the event loop for each press of one of the buttons in `mask`. Null where
    /// the system has no such monitor.
    [[nodiscard]] virtual std::unique_ptr<Token> addGlobalMonitor(Qt::MouseButtons mask,
                                                                  Block block)
        = 0;
    /// Never null.
    virtual void removeMonitor(std::unique_ptr<Token> token) = 0;

protected:
    GlobalEventMonitoring() = default;
    Q_DISABLE_COPY_MOVE(GlobalEventMonitoring)
};

} // namespace torvi

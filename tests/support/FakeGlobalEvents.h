// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/GlobalEventMonitoring.h"

#include <utility>

namespace torvi {

/// Events happen when the test says so.
class FakeGlobalEvents final : public GlobalEventMonitoring
{
public:
    int added = 0;
    int removed = 0; ///< through removeMonitor()
    int alive = 0; ///< tokens that somebody holds
    bool isUnsupported = false;
    Qt::MouseButtons mask;
    Block block; ///< of the last monitor

    [[nodiscard]] bool isInstalled() const
    {
        return alive > 0;
    }

    /// What the system does at a press elsewhere: nothing when nobody listens.
    void press(const QPoint &position, Qt::MouseButton button = Qt::LeftButton) const
    {
        if (isInstalled()) {
            block(GlobalEvent{ button, position });
        }
    }

    void loseFocus() const
    {
        if (isInstalled()) {
            block(GlobalEvent{});
        }
    }

    [[nodiscard]] std::unique_ptr<Token> addGlobalMonitor(Qt::MouseButtons newMask,
                                                          Block newBlock) override
    {
        if (isUnsupported) {
            return nullptr;
        }
        ++added;
        mask = newMask;
        block = std::move(newBlock);
        return std::make_unique<CountedToken>(alive);
    }

    void removeMonitor(std::unique_ptr<Token> token) override
    {
        Q_ASSERT(token);
        ++removed;
        token.reset();
    }

private:
    class CountedToken final : public Token
    {
    public:
        explicit CountedToken(int &alive)
            : m_alive(alive)
        {
            ++m_alive;
        }
        ~CountedToken() override
        {
            --m_alive;
        }

    private:
        int &m_alive;
    };
};

} // namespace torvi

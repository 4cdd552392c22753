// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Torvi/Desktop.h"
#include "tests/support/FakeGlobalEvents.h"
#include "tests/support/FakeStatusItem.h"

#include <QStringList>

#include <utility>

namespace torvi {

/// A desktop that only keeps an account of what happens on it, in `log`.
class FakeDesktop final : public Desktop, public ActivationPolicySwitching, public ViewFactory
{
public:
    struct PopoverState
    {
        bool isShown = false;
        std::optional<QPoint> anchor;
        AuthStateManager *stateManager = nullptr;
        std::function<void()> onOpenManager;
    };

    struct WindowState
    {
        int number = 0;
        bool isVisible = false;
        AuthStateManager *stateManager = nullptr;
        std::function<void(const Window &)> onWillClose;
        const Window *window = nullptr; ///< null once it is destroyed
    };

    QStringList log;
    FakeStatusItem *item = nullptr;
    bool isItemWithButton = true;
    FakeGlobalEvents events;
    PopoverState popover;
    std::shared_ptr<WindowState> window; ///< the newest
    int windowsMade = 0;
    ActivationPolicy policy = ActivationPolicy::accessory;

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override
    {
        log.append(QStringLiteral("status item"));
        auto made = std::make_unique<FakeStatusItem>(&log);
        made->isWithButton = isItemWithButton;
        item = made.get();
        return made;
    }

    [[nodiscard]] GlobalEventMonitoring &globalEvents() override
    {
        return events;
    }

    [[nodiscard]] ActivationPolicySwitching &activationPolicy() override
    {
        return *this;
    }

    [[nodiscard]] ViewFactory &views() override
    {
        return *this;
    }

    void setActivationPolicy(ActivationPolicy newPolicy) override
    {
        policy = newPolicy;
        log.append(policy == ActivationPolicy::regular ? QStringLiteral("regular")
                                                       : QStringLiteral("accessory"));
    }

    [[nodiscard]] std::unique_ptr<Popover> makePopover(AuthStateManager &stateManager,
                                                       std::function<void()> onOpenManager) override
    {
        log.append(QStringLiteral("popover"));
        popover.stateManager = &stateManager;
        popover.onOpenManager = std::move(onOpenManager);
        return std::make_unique<FakePopover>(*this);
    }

    [[nodiscard]] std::unique_ptr<Window>
    makeManagerWindow(AuthStateManager &stateManager,
                      std::function<void(const Window &)> onWillClose) override
    {
        log.append(QStringLiteral("make window"));
        window = std::make_shared<WindowState>();
        window->number = ++windowsMade;
        window->stateManager = &stateManager;
        window->onWillClose = std::move(onWillClose);
        return std::make_unique<FakeWindow>(*this, window);
    }

    /// What the system does when the user closes the newest window.
    void closeWindow() const
    {
        const auto closing = window;
        closing->isVisible = false;
        closing->onWillClose(*closing->window);
    }

private:
    class FakePopover final : public Popover
    {
    public:
        explicit FakePopover(FakeDesktop &desktop)
            : m_desktop(desktop)
        {
        }

        [[nodiscard]] bool isShown() const override
        {
            return m_desktop.popover.isShown;
        }

        void show(const std::optional<QPoint> &anchor) override
        {
            m_desktop.popover.isShown = true;
            m_desktop.popover.anchor = anchor;
            m_desktop.log.append(QStringLiteral("show popover"));
        }

        void performClose() override
        {
            m_desktop.popover.isShown = false;
            m_desktop.log.append(QStringLiteral("close popover"));
        }

    private:
        FakeDesktop &m_desktop;
    };

    class FakeWindow final : public Window
    {
    public:
        FakeWindow(FakeDesktop &desktop, std::shared_ptr<WindowState> state)
            : m_desktop(desktop)
            , m_state(std::move(state))
        {
            m_state->window = this;
        }

        ~FakeWindow() override
        {
            m_state->window = nullptr;
        }

        [[nodiscard]] bool isVisible() const override
        {
            return m_state->isVisible;
        }

        void makeKeyAndOrderFront() override
        {
            m_state->isVisible = true;
            m_desktop.log.append(QStringLiteral("front window %1").arg(m_state->number));
        }

    private:
        FakeDesktop &m_desktop;
        std::shared_ptr<WindowState> m_state;
    };
};

} // namespace torvi

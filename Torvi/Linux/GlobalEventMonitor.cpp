// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/GlobalEventMonitor.h"

#include "Torvi/Linux/FocusLossListener.h"
#include "Torvi/Linux/RawPressListener.h"
#include "Torvi/Linux/Session.h"

#include <utility>

namespace torvi {

namespace {

struct Listeners final : GlobalEventMonitoring::Token
{
    std::unique_ptr<Token> presses;
    std::unique_ptr<Token> focus;
};

} // namespace

std::unique_ptr<GlobalEventMonitoring::Token>
GlobalEventMonitor::addGlobalMonitor(Qt::MouseButtons mask, Block block)
{
    auto listeners = std::make_unique<Listeners>();
    if (Session::windowsAreX11()) {
        listeners->presses = RawPressListener::create(mask, block);
    }
    if (Session::isWayland() || !listeners->presses) {
        listeners->focus = std::make_unique<FocusLossListener>(std::move(block));
    }
    return listeners;
}

void GlobalEventMonitor::removeMonitor(std::unique_ptr<Token> token)
{
    token.reset();
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/FocusLossListener.h"

#include <QGuiApplication>
#include <QPointer>

#include <utility>

namespace torvi {

FocusLossListener::FocusLossListener(GlobalEventMonitoring::Block block)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [block = std::move(block)](Qt::ApplicationState state) {
                if (state == Qt::ApplicationInactive) {
                    const auto keptBlock = block; // it may drop this object
                    keptBlock(GlobalEvent{});
                }
            });
}

} // namespace torvi

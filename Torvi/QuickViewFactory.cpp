// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/QuickViewFactory.h"

#include "Torvi/QuickPopover.h"
#include "Torvi/QuickWindow.h"
#include "Torvi/Renderer.h"

#include <QGuiApplication>
#include <QIcon>

#include <utility>

using namespace Qt::StringLiterals;

namespace torvi {

QuickViewFactory::QuickViewFactory(BringToFront bringToFront)
    : m_bringToFront(std::move(bringToFront))
{
}

QuickViewFactory::~QuickViewFactory() = default;

bool QuickViewFactory::hasEngine() const
{
    return m_engine != nullptr;
}

QQmlEngine *QuickViewFactory::engine()
{
    if (!m_engine) {
        Renderer::choose();
        QGuiApplication::setWindowIcon(QIcon(u":/torvi/com.veldra.Torvi.svg"_s));
        m_engine = std::make_unique<QQmlEngine>();
    }
    return m_engine.get();
}

std::unique_ptr<Popover> QuickViewFactory::makePopover(AuthStateManager & /*stateManager*/,
                                                       std::function<void()> /*onOpenManager*/)
{
    return std::make_unique<QuickPopover>(
        [this] {
            auto window = std::make_unique<PopoverWindow>(engine());
            window->setSource(QUrl(u"qrc:/torvi/PopoverPlaceholder.qml"_s));
            return window;
        },
        m_bringToFront);
}

std::unique_ptr<Window>
QuickViewFactory::makeManagerWindow(AuthStateManager & /*stateManager*/,
                                    std::function<void(const Window &)> onWillClose)
{
    const auto makeWindow = [this](std::function<void()> onClose) {
        auto window = std::make_unique<ManagerWindow>(engine(), std::move(onClose));
        window->setSource(QUrl(u"qrc:/torvi/ManagerPlaceholder.qml"_s));
        return window;
    };
    return std::make_unique<QuickWindow>(makeWindow, std::move(onWillClose), m_bringToFront);
}

} // namespace torvi

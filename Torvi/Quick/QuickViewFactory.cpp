// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Quick/QuickViewFactory.h"

#include "Torvi/Quick/QuickPopover.h"
#include "Torvi/Quick/QuickWindow.h"
#include "Torvi/Quick/Renderer.h"
#include "VeldraUI/AuthState.h"
#include "VeldraUI/Style/Theme.h"
#include "VeldraUI/Style/Typography.h"

#include <QGuiApplication>
#include <QIcon>
#include <QLibrary>
#include <QQmlComponent>
#include <QQuickItem>

#include <memory>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// Loads a view of VeldraUI, with a state of its own, and the `parts` that it will make of their
/// files. The engine reads the types in a thread of its own; what the view needs besides is done
/// meanwhile, and the parts are read while it is made.
void load(QQuickView &window, const QString &view, const QStringList &parts,
          AuthStateManager &stateManager, Clipboard &clipboard)
{
    const auto file
        = [](const QString &name) { return QUrl(u"qrc:/qt/qml/VeldraUI/%1.qml"_s.arg(name)); };
    std::vector<std::unique_ptr<QQmlComponent>> types;
    for (const QString &name : QStringList(view) + parts) {
        types.push_back(std::make_unique<QQmlComponent>(window.engine()));
        types.back()->loadUrl(file(name), QQmlComponent::Asynchronous);
    }
    QLibrary(u"Qt6QuickTemplates2"_s, u"6"_s).load(); // the thread will want it in a moment
    Typography::loadFonts();
    auto *state = new AuthState(stateManager, clipboard, {}, &window);
    window.setInitialProperties({ { u"stateManager"_s, QVariant::fromValue(state) } });
    window.setSource(file(view));
}

} // namespace

QuickViewFactory::QuickViewFactory(ViewSurroundings surroundings)
    : m_surroundings(std::move(surroundings))
{
}

QuickViewFactory::~QuickViewFactory() = default;

QQmlEngine *QuickViewFactory::engine()
{
    if (!m_engine) {
        Renderer::choose();
        m_engine = std::make_unique<QQmlEngine>();
        m_engine->addImportPath(u"qrc:/qt/qml"_s);
    }
    return m_engine.get();
}

std::unique_ptr<Popover> QuickViewFactory::makePopover(AuthStateManager &stateManager,
                                                       std::function<void()> onOpenManager)
{
    return std::make_unique<QuickPopover>(
        [this, &stateManager, onOpenManager = std::move(onOpenManager)] {
            return makePopoverWindow(stateManager, onOpenManager);
        },
        m_surroundings.bringToFront);
}

std::unique_ptr<PopoverWindow>
QuickViewFactory::makePopoverWindow(AuthStateManager &stateManager,
                                    const std::function<void()> &onOpenManager)
{
    auto window = std::make_unique<PopoverWindow>(engine());
    load(*window, u"PopoverView"_s,
         { u"AccountSwitcherView"_s, u"ConfigurationSwitcherView"_s, u"ImpersonationView"_s,
           u"ADCStatusView"_s },
         stateManager, m_surroundings.clipboard);
    // A view's own signals are known by their names only.
    const QQuickItem *view = window->rootObject();
    QObject::connect(view, SIGNAL(close()), window.get(), SLOT(hide()));
    QObject::connect(view, SIGNAL(quit()), qGuiApp, SLOT(quit()));
    QObject::connect(view, SIGNAL(openManager()), window.get(), SIGNAL(openManager()));
    QObject::connect(window.get(), &PopoverWindow::openManager, window.get(), onOpenManager);
    return window;
}

std::unique_ptr<Window>
QuickViewFactory::makeManagerWindow(AuthStateManager &stateManager,
                                    std::function<void(const Window &)> onWillClose)
{
    const auto makeWindow = [this, &stateManager](std::function<void()> onClose) {
        auto window = std::make_unique<ManagerWindow>(engine(), std::move(onClose));
        window->setIcon(QIcon(u":/torvi/com.veldra.Torvi.svg"_s));
        load(*window, u"ManagerWindowView"_s, {}, stateManager, m_surroundings.clipboard);
        m_surroundings.followColorScheme(
            *window, [shown = window.get()](bool isDark) { Theme::of(*shown).setDark(isDark); });
        return window;
    };
    return std::make_unique<QuickWindow>(makeWindow, std::move(onWillClose),
                                         m_surroundings.bringToFront);
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/LoadedViews.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QPluginLoader>

#include <utility>

namespace torvi {

namespace {

/// A popover that is made when it is first shown.
class LoadedPopover final : public Popover
{
public:
    explicit LoadedPopover(std::function<std::unique_ptr<Popover>()> make)
        : m_make(std::move(make))
    {
    }

    [[nodiscard]] bool isShown() const override
    {
        return m_popover && m_popover->isShown();
    }

    void show(const std::optional<QPoint> &anchor) override
    {
        if (!m_popover) {
            m_popover = m_make();
        }
        if (m_popover) {
            m_popover->show(anchor);
        }
    }

    void performClose() override
    {
        if (m_popover) {
            m_popover->performClose();
        }
    }

private:
    std::function<std::unique_ptr<Popover>()> m_make;
    std::unique_ptr<Popover> m_popover;
};

/// Stands for a window that could not be loaded.
class NoWindow final : public Window
{
public:
    [[nodiscard]] bool isVisible() const override
    {
        return false;
    }

    void makeKeyAndOrderFront() override { }
};

} // namespace

LoadedViews::LoadedViews(QString module, ViewSurroundings surroundings,
                         std::function<void(const QString &)> onFailure)
    : m_module(std::move(module))
    , m_surroundings(std::move(surroundings))
    , m_onFailure(std::move(onFailure))
{
}

LoadedViews::~LoadedViews() = default;

QString LoadedViews::module(const QString &programDirectory)
{
    return QDir::cleanPath(programDirectory + u'/' + QStringLiteral(TORVI_VIEWS_MODULE));
}

std::unique_ptr<Popover> LoadedViews::makePopover(AuthStateManager &stateManager,
                                                  std::function<void()> onOpenManager)
{
    return std::make_unique<LoadedPopover>(
        [this, &stateManager, onOpenManager = std::move(onOpenManager)] {
            ViewFactory *loaded = views();
            return loaded == nullptr ? nullptr : loaded->makePopover(stateManager, onOpenManager);
        });
}

std::unique_ptr<Window>
LoadedViews::makeManagerWindow(AuthStateManager &stateManager,
                               std::function<void(const Window &)> onWillClose)
{
    ViewFactory *loaded = views();
    if (loaded == nullptr) {
        return std::make_unique<NoWindow>();
    }
    return loaded->makeManagerWindow(stateManager, std::move(onWillClose));
}

ViewFactory *LoadedViews::views()
{
    if (!m_views) {
        // The first text waits for what is known of all installed fonts, and for little else as
        // long: that is found out beside the loading.
        m_fontReading = std::jthread([] { static_cast<void>(QFontDatabase::families()); });
        QPluginLoader loader(m_module);
        if (auto *plugin = qobject_cast<ViewsPlugin *>(loader.instance())) {
            m_views = plugin->makeViews(m_surroundings);
        } else {
            const QString reason = loader.isLoaded()
                ? QCoreApplication::translate("LoadedViews", "It is of another version.")
                : loader.errorString();
            m_onFailure(
                QCoreApplication::translate("LoadedViews",
                                            "The windows cannot be loaded from %1, so Torvi "
                                            "must be installed again: %2")
                    .arg(m_module, reason));
        }
    }
    return m_views.get();
}

} // namespace torvi

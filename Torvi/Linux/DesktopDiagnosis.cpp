// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/DesktopDiagnosis.h"

#include "Torvi/Linux/RawPressListener.h"
#include "Torvi/Linux/Session.h"
#include "Torvi/Linux/SingleInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Display = DesktopDiagnosis::Display;

/// The programs that keep the list of status items, each with its desktop's name.
struct Panel
{
    QStringView program;
    QStringView desktop;
    bool showsTitle = false;
};

constexpr std::array kPanels{
    Panel{ u"gnome-shell", u"GNOME Shell", true },
    Panel{ u"mate-panel", u"MATE", true },
    Panel{ u"notification-area-applet", u"MATE", true },
    Panel{ u"wrapper-2.0", u"Xfce", false },
    Panel{ u"lxqt-panel", u"LXQt", false },
    Panel{ u"kded5", u"Plasma", false },
    Panel{ u"waybar", u"waybar", false },
};

Display currentDisplay()
{
    if (!Session::hasDisplay()) {
        return Display::none;
    }
    if (!Session::windowsAreX11()) {
        return Session::isWayland() ? Display::wayland : Display::none;
    }
    return Session::isWayland() ? Display::xWayland : Display::x11;
}

std::optional<QString> panelOn(const QDBusConnection &bus)
{
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    if (!bus.interface()->isServiceRegistered(watcher)) {
        return std::nullopt;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        watcher, u"/StatusNotifierWatcher"_s, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << watcher << u"IsStatusNotifierHostRegistered"_s;
    const std::chrono::milliseconds patience = std::chrono::seconds(5);
    const QDBusReply<QDBusVariant> hasHost
        = bus.call(call, QDBus::Block, static_cast<int>(patience.count()));
    if (hasHost.isValid() && !hasHost.value().variant().toBool()) {
        return std::nullopt;
    }
    const QDBusReply<uint> pid = bus.interface()->servicePid(watcher);
    return pid.isValid()
        ? QFileInfo(QFileInfo(u"/proc/%1/exe"_s.arg(pid.value())).symLinkTarget()).fileName()
        : QString();
}

} // namespace

DesktopDiagnosis DesktopDiagnosis::ofThisSession(const QDBusConnection &bus)
{
    DesktopDiagnosis diagnosis;
    diagnosis.display = currentDisplay();
    diagnosis.desktopName = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    diagnosis.hasBus = bus.isConnected();
    if (diagnosis.hasBus) {
        diagnosis.isRunning = bus.interface()->isServiceRegistered(SingleInstance::name());
        diagnosis.panel = panelOn(bus);
    }
    diagnosis.hasRawPresses = Session::windowsAreX11()
        && RawPressListener::create(Qt::LeftButton, [](auto &&...) {}) != nullptr;
    diagnosis.hasCopyProgram = !QStandardPaths::findExecutable(u"wl-copy"_s).isEmpty();
    return diagnosis;
}

QList<Row> DesktopDiagnosis::rows() const
{
    QList<Row> rows{
        { tr("Torvi"), isRunning ? tr("is running") : tr("is not running") },
        { tr("Session"), session() },
        { tr("Panel"), panelText() },
    };
    if (display != Display::none) {
        rows.append({ tr("Clicks elsewhere"), clicks() });
        rows.append({ tr("Clipboard"), clipboard() });
    }
    return rows;
}

QString DesktopDiagnosis::session() const
{
    const auto text = [this] {
        switch (display) {
        case Display::none:
            return tr("no display");
        case Display::x11:
            return tr("X11");
        case Display::xWayland:
            return tr("Wayland, with Torvi's windows through XWayland");
        case Display::wayland:
            return tr("Wayland");
        }
        Q_UNREACHABLE();
    }();
    return desktopName.isEmpty() ? text : desktopName + u", "_s + text;
}

QString DesktopDiagnosis::panelText() const
{
    if (!hasBus) {
        return tr("none: there is no session bus");
    }
    if (!panel) {
        return tr("none shows status items: bind “torvi --toggle” to a key");
    }
    const auto *known = std::ranges::find_if(
        kPanels, [this](const Panel &each) { return each.program == *panel; });
    if (known == kPanels.end()) {
        return panel->isEmpty() ? tr("shows status items")
                                : tr("%1 shows status items").arg(*panel);
    }
    return (known->showsTitle ? tr("%1, with the title beside the icon")
                              : tr("%1, without the title, which is in the tool tip"))
        .arg(known->desktop);
}

QString DesktopDiagnosis::clicks() const
{
    if (!hasRawPresses) {
        return tr("noticed when another window gets the keyboard");
    }
    return display == Display::xWayland
        ? tr("told by the X server, and noticed when another window gets the keyboard")
        : tr("told by the X server");
}

QString DesktopDiagnosis::clipboard() const
{
    if (display == Display::x11) {
        return tr("always to be had");
    }
    return hasCopyProgram
        ? tr("by wl-copy while Torvi does not have the keyboard")
        : tr("perhaps refused while Torvi does not have the keyboard: install wl-clipboard");
}

} // namespace torvi

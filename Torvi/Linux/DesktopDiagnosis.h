// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/Rows.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <optional>

namespace torvi {

/// What Torvi found of this desktop: where its item shows, and how it gets at what desktops differ
/// in.
struct DesktopDiagnosis
{
    Q_DECLARE_TR_FUNCTIONS(torvi::DesktopDiagnosis)

public:
    enum class Display {
        none,
        x11,
        xWayland, ///< a Wayland desktop, with this program's windows on its X server
        wayland,
    };

    Display display = Display::none;
    QString desktopName; ///< as the desktop calls itself; empty when it does not
    bool hasBus = false;
    bool isRunning = false; ///< a Torvi of this session
    /// The program that shows status items. Absent when nothing does; empty when it is not known.
    std::optional<QString> panel;
    bool hasRawPresses = false;
    bool hasCopyProgram = false; ///< wl-copy

    /// Blocks for the answers of the bus and of the X server; for a program that only reports.
    [[nodiscard]] static DesktopDiagnosis ofThisSession(const QDBusConnection &bus);

    [[nodiscard]] QList<Row> rows() const;

private:
    [[nodiscard]] QString session() const;
    [[nodiscard]] QString panelText() const;
    [[nodiscard]] QString clicks() const;
    [[nodiscard]] QString clipboard() const;
};

} // namespace torvi

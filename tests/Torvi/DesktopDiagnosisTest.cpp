// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/DesktopDiagnosis.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

using Display = DesktopDiagnosis::Display;

class DesktopDiagnosisTest : public testing::Test
{
protected:
    DesktopDiagnosis diagnosis;

    [[nodiscard]] QString valueOf(QStringView label) const
    {
        for (const Row &row : diagnosis.rows()) {
            if (row.label == label) {
                return row.value;
            }
        }
        return u"no such row"_s;
    }
};

TEST_F(DesktopDiagnosisTest, TellsWhetherTorviRuns)
{
    EXPECT_EQ(valueOf(u"Torvi"), u"is not running"_s);

    diagnosis.isRunning = true;

    EXPECT_EQ(valueOf(u"Torvi"), u"is running"_s);
}

TEST_F(DesktopDiagnosisTest, TellsTheSession)
{
    EXPECT_EQ(valueOf(u"Session"), u"no display"_s);
    diagnosis.display = Display::x11;
    EXPECT_EQ(valueOf(u"Session"), u"X11"_s);
    diagnosis.display = Display::wayland;
    EXPECT_EQ(valueOf(u"Session"), u"Wayland"_s);

    diagnosis.desktopName = u"GNOME"_s;
    diagnosis.display = Display::xWayland;

    EXPECT_EQ(valueOf(u"Session"), u"GNOME, Wayland, with Torvi's windows through XWayland"_s);
}

TEST_F(DesktopDiagnosisTest, TellsWhetherThePanelShowsTheTitle)
{
    diagnosis.hasBus = true;

    diagnosis.panel = u"notification-area-applet"_s;
    EXPECT_EQ(valueOf(u"Panel"), u"MATE, with the title beside the icon"_s);
    diagnosis.panel = u"gnome-shell"_s;
    EXPECT_EQ(valueOf(u"Panel"), u"GNOME Shell, with the title beside the icon"_s);
    diagnosis.panel = u"wrapper-2.0"_s;
    EXPECT_EQ(valueOf(u"Panel"), u"Xfce, without the title, which is in the tool tip"_s);
}

TEST_F(DesktopDiagnosisTest, OfAPanelThatIsNotKnownTellsTheNameAlone)
{
    diagnosis.hasBus = true;

    diagnosis.panel = u"some-panel"_s;
    EXPECT_EQ(valueOf(u"Panel"), u"some-panel shows status items"_s);
    diagnosis.panel = QString();
    EXPECT_EQ(valueOf(u"Panel"), u"shows status items"_s);
}

TEST_F(DesktopDiagnosisTest, TellsWhatToDoWithoutAPanel)
{
    EXPECT_EQ(valueOf(u"Panel"), u"none: there is no session bus"_s);

    diagnosis.hasBus = true;

    EXPECT_EQ(valueOf(u"Panel"), u"none shows status items: bind “torvi --toggle” to a key"_s);
}

TEST_F(DesktopDiagnosisTest, TellsHowClicksElsewhereAreNoticed)
{
    EXPECT_EQ(valueOf(u"Clicks elsewhere"), u"no such row"_s);
    diagnosis.display = Display::wayland;
    EXPECT_EQ(valueOf(u"Clicks elsewhere"), u"noticed when another window gets the keyboard"_s);

    diagnosis.hasRawPresses = true;

    diagnosis.display = Display::x11;
    EXPECT_EQ(valueOf(u"Clicks elsewhere"), u"told by the X server"_s);
    diagnosis.display = Display::xWayland;
    EXPECT_EQ(valueOf(u"Clicks elsewhere"),
              u"told by the X server, and noticed when another window gets the keyboard"_s);
}

TEST_F(DesktopDiagnosisTest, TellsHowTheClipboardIsHad)
{
    EXPECT_EQ(valueOf(u"Clipboard"), u"no such row"_s);
    diagnosis.display = Display::x11;
    EXPECT_EQ(valueOf(u"Clipboard"), u"always to be had"_s);

    diagnosis.display = Display::xWayland;

    EXPECT_TRUE(valueOf(u"Clipboard").endsWith(u"install wl-clipboard"_s));
    diagnosis.hasCopyProgram = true;
    EXPECT_EQ(valueOf(u"Clipboard"), u"by wl-copy while Torvi does not have the keyboard"_s);
}

TEST_F(DesktopDiagnosisTest, WithoutABusAndADisplayThereIsNothingToTell)
{
    qputenv("XDG_CURRENT_DESKTOP", "Nowhere");

    diagnosis = DesktopDiagnosis::ofThisSession(QDBusConnection(u"no such connection"_s));
    qunsetenv("XDG_CURRENT_DESKTOP");

    EXPECT_EQ(diagnosis.display, Display::none);
    EXPECT_EQ(diagnosis.desktopName, u"Nowhere"_s);
    EXPECT_FALSE(diagnosis.hasBus);
    EXPECT_FALSE(diagnosis.hasRawPresses);
    EXPECT_EQ(diagnosis.panel, std::nullopt);
}

} // namespace torvi

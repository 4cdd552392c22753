// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/ColorScheme.h"

#include "tests/support/FakeSettingsPortal.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/WaitUntil.h"

#include <QDBusMessage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class ColorSchemeTest : public testing::Test
{
protected:
    PrivateBus bus;
    FakeSettingsPortal portal{ bus.connect() };
    std::unique_ptr<ColorScheme> scheme;
    int changes = 0;

    void ask()
    {
        scheme = std::make_unique<ColorScheme>(bus.connect());
        QObject::connect(scheme.get(), &ColorScheme::changed, scheme.get(), [this] { ++changes; });
    }

    bool isDarkAfter(int count)
    {
        EXPECT_TRUE(waitUntil([this, count] { return changes >= count; }));
        EXPECT_EQ(changes, count);
        return scheme->isDark();
    }
};

TEST_F(ColorSchemeTest, IsLightBeforeAnybodyTells)
{
    portal.colorScheme = 1;
    ask();

    EXPECT_FALSE(scheme->isDark());
}

TEST_F(ColorSchemeTest, IsDarkWhereTheUserPrefersThat)
{
    portal.colorScheme = 1;
    ask();

    EXPECT_TRUE(isDarkAfter(1));
}

TEST_F(ColorSchemeTest, FollowsChangesAndOnlyThoseOfTheScheme)
{
    portal.colorScheme = 1;
    ask();
    ASSERT_TRUE(isDarkAfter(1));

    portal.change(u"org.freedesktop.appearance"_s, u"accent-color"_s, 0);
    portal.change(u"org.gnome.desktop.interface"_s, u"color-scheme"_s, 0);
    portal.change(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 1);
    portal.change(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 2);
    EXPECT_FALSE(isDarkAfter(2));

    portal.change(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 1);
    EXPECT_TRUE(isDarkAfter(3));
    portal.change(u"org.freedesktop.appearance"_s, u"color-scheme"_s, 0);
    EXPECT_FALSE(isDarkAfter(4));
}

TEST(ColorSchemeWithoutPortalTest, IsLight)
{
    PrivateBus bus;
    QDBusConnection connection = bus.connect();
    const ColorScheme scheme(connection);

    // An answer to a later question: the refusal of the scheme's came before it.
    connection.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                   u"org.freedesktop.DBus"_s, u"GetId"_s),
                    QDBus::BlockWithGui);

    EXPECT_FALSE(scheme.isDark());
}

} // namespace torvi

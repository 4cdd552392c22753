// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/BarLine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

AuthContext contextWith(const QString &project)
{
    AuthContext context = AuthContext::empty();
    context.activeProject = Project{ project, project, std::nullopt, false, std::nullopt };
    return context;
}

AuthContext impersonating(const QString &project, const QString &email)
{
    AuthContext context = contextWith(project);
    context.impersonatedServiceAccount = ServiceAccount{ email, project, std::nullopt };
    return context;
}

QJsonObject waybar(const AuthContext &context, const QStringList &notes = {})
{
    return QJsonDocument::fromJson(barLine(context, notes, BarFormat::waybar)).object();
}

constexpr std::array kFormats{ BarFormat::waybar, BarFormat::polybar, BarFormat::i3blocks,
                               BarFormat::plain };

} // namespace

TEST(BarLineTest, PlainIsTheProjectAndWhoIsImpersonated)
{
    EXPECT_EQ(barLine(contextWith(u"größer"_s), {}, BarFormat::plain), "größer");
    EXPECT_EQ(
        barLine(impersonating(u"p"_s, u"robot@p.iam.gserviceaccount.com"_s), {}, BarFormat::plain),
        "p as robot");
}

TEST(BarLineTest, EmptyContextStillHasALine)
{
    EXPECT_EQ(barLine(AuthContext::empty(), {}, BarFormat::plain), "no project");
    for (const BarFormat format : kFormats) {
        EXPECT_NE(barLine(contextWith(u""_s), {}, format), "");
    }
}

TEST(BarLineTest, PolybarIsOrangeWhileImpersonating)
{
    EXPECT_EQ(barLine(contextWith(u"p"_s), {}, BarFormat::polybar), "p");
    EXPECT_EQ(barLine(impersonating(u"p"_s, u"r@p"_s), {}, BarFormat::polybar),
              "%{F#ffa348}p as r%{F-}");
}

TEST(BarLineTest, NoTagReachesPolybarFromAFile)
{
    EXPECT_EQ(barLine(contextWith(u"%{A1:xterm:}%%{B}50%"_s), {}, BarFormat::polybar),
              "%\u200b{A1:xterm:}%%\u200b{B}50%");
}

TEST(BarLineTest, I3blocksIsOrangeWhileImpersonating)
{
    EXPECT_EQ(barLine(contextWith(u"p"_s), {}, BarFormat::i3blocks), "p");
    EXPECT_EQ(barLine(impersonating(u"p"_s, u"r@p"_s), {}, BarFormat::i3blocks),
              "<span color='#ffa348'>p as r</span>");
}

TEST(BarLineTest, NoMarkupReachesI3blocksFromAFile)
{
    EXPECT_EQ(barLine(contextWith(u"<b>&\"'"_s), {}, BarFormat::i3blocks), "&lt;b&gt;&amp;&quot;'");
}

TEST(BarLineTest, WaybarGetsTextToolTipAndClassInOneLine)
{
    EXPECT_EQ(barLine(impersonating(u"p"_s, u"r@p"_s), {}, BarFormat::waybar),
              R"({"text":"p as r","tooltip":"Project: p\nAccount: None\nImpersonating: r@p\n)"
              R"(ADC: Not configured","class":["impersonating"]})");
}

TEST(BarLineTest, WaybarHasNoClassWhenThereIsNothingToMark)
{
    EXPECT_EQ(waybar(contextWith(u"p"_s))[u"class"_s], QJsonArray());
}

TEST(BarLineTest, WaybarShowsNotesInItsToolTipAndMarksThem)
{
    const QJsonObject object = waybar(contextWith(u"p"_s), { u"A & B"_s, u"two\nlines"_s });

    EXPECT_EQ(object[u"class"_s], QJsonArray{ u"warning"_s });
    EXPECT_TRUE(object[u"tooltip"_s].toString().endsWith(u"\nA &amp; B\ntwo\uFFFDlines"));
}

TEST(BarLineTest, NoMarkupReachesWaybarFromAFile)
{
    const QJsonObject object = waybar(contextWith(u"<b>&\"\\"_s));

    EXPECT_EQ(object[u"text"_s], u"&lt;b&gt;&amp;&quot;\\"_s);
    EXPECT_TRUE(object[u"tooltip"_s].toString().startsWith(u"Project: &lt;b&gt;&amp;&quot;\\\n"_s));
}

TEST(BarLineTest, ALineFeedNeverMakesASecondLine)
{
    for (const BarFormat format : kFormats) {
        const QByteArray line = barLine(contextWith(u"a\n\u001b[31mb"_s), {}, format);
        EXPECT_FALSE(line.contains('\n')) << line.toStdString();
        EXPECT_FALSE(line.contains('\x1b')) << line.toStdString();
    }
}

} // namespace torvi

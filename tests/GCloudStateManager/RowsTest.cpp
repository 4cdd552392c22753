// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Rows.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(RowsTest, EmptyContextShowsNoneTwiceAndNoImpersonation)
{
    EXPECT_EQ(contextRows(AuthContext::empty()),
              (QList<Row>{ { u"Project"_s, u"None"_s },
                           { u"Account"_s, u"None"_s },
                           { u"ADC"_s, u"Not configured"_s } }));
}

TEST(RowsTest, ImpersonationIsTheHighlightedThirdRow)
{
    AuthContext context;
    context.activeProject = Project{ u"id"_s, u"Name"_s, std::nullopt, false, std::nullopt };
    context.activeAccount = Account{ u"a@x"_s, true, AccountType::user };
    context.impersonatedServiceAccount = ServiceAccount{ u"s@p"_s, u"id"_s, std::nullopt };

    EXPECT_EQ(contextRows(context),
              (QList<Row>{ { u"Project"_s, u"id"_s },
                           { u"Account"_s, u"a@x"_s },
                           { u"Impersonating"_s, u"s@p"_s, true },
                           { u"ADC"_s, u"Not configured"_s } }));
}

TEST(RowsTest, EachKindOfCredentialsHasItsText)
{
    const QList<std::pair<ADCType, QString>> kinds{
        { ADCType::userCredentials, u"User credentials"_s },
        { ADCType::serviceAccountKey, u"Service account key"_s },
        { ADCType::impersonatedServiceAccount, u"Impersonated SA"_s },
        { ADCType::none, u"Not configured"_s }
    };
    for (const auto &[type, text] : kinds) {
        AuthContext context;
        context.adcState.type = type;
        EXPECT_EQ(contextRows(context).last().value, text);
    }
}

TEST(RowsTest, ValuesStandInOneColumn)
{
    EXPECT_EQ(aligned({ { u"Project"_s, u"p"_s }, { u"Impersonating"_s, u"s"_s, true } }),
              u"Project        p\nImpersonating  s\n");
}

TEST(RowsTest, EmptyValuesLeaveNoTrailingBlanks)
{
    EXPECT_EQ(aligned({ { u"a"_s, u""_s }, { u"long"_s, u"x"_s } }), u"a\nlong  x\n");
}

TEST(RowsTest, NothingIsNoLine)
{
    EXPECT_EQ(aligned({}), u"");
}

TEST(RowsTest, ColoursAppearOnlyWhenAskedFor)
{
    const QList<Row> rows{ { u"Impersonating"_s, u"s"_s, true } };

    EXPECT_FALSE(aligned(rows).contains(u'\x1b'));
    EXPECT_TRUE(aligned(rows, Colours::on).contains(u"\x1b[33ms\x1b[0m"));
}

TEST(RowsTest, ControlCharactersCannotDriveTheTerminal)
{
    EXPECT_EQ(aligned({ { u"a"_s, u"x\x1b[2J\u009b"_s } }), u"a  x\uFFFD[2J\uFFFD\n");
}

} // namespace torvi

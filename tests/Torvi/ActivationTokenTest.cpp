// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/ActivationToken.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(ActivationTokenTest, IsAtHandOnceAndOnlyWhileAWindowComesToTheFront)
{
    QStringList seen;
    const auto look = [&seen] { seen.append(qEnvironmentVariable("XDG_ACTIVATION_TOKEN")); };
    ActivationToken::keep(u"token"_s);
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));

    ActivationToken::use(look);
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    ActivationToken::use(look);

    EXPECT_EQ(seen, (QStringList{ u"token"_s, QString() }));
}

TEST(ActivationTokenTest, TheLastOneCounts)
{
    QString seen;
    ActivationToken::keep(u"old"_s);
    ActivationToken::keep(u"new"_s);

    ActivationToken::use([&seen] { seen = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); });

    EXPECT_EQ(seen, u"new"_s);
}

} // namespace torvi

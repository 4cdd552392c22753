// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

#include <QDirIterator>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudIdentityTokenTest : public GCloudTest
{
protected:
    /// Whose token it is.
    static QString owner(const QByteArray &token)
    {
        const QByteArrayList parts = token.split('.');
        EXPECT_EQ(parts.size(), 3) << token.toStdString();
        const QByteArray claims
            = QByteArray::fromBase64(parts.value(1), QByteArray::Base64UrlEncoding);
        return QJsonDocument::fromJson(claims)[u"email"].toString();
    }
};

TEST_F(GCloudIdentityTokenTest, IsTheActiveAccountsOnOneLine)
{
    const Ended ended = torvictl({ u"identity-token"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_TRUE(ended.output.endsWith('\n'));
    EXPECT_EQ(ended.output.count('\n'), 1);
    EXPECT_EQ(ended.output, ended.output.trimmed() + '\n');
    EXPECT_EQ(owner(ended.output.trimmed()), u"dana@example.com"_s);
}

TEST_F(GCloudIdentityTokenTest, IsOfTheKindThatGCloudPrints)
{
    const Ended ours = torvictl({ u"identity-token"_s });
    const Ended its = gcloud({ u"auth"_s, u"print-identity-token"_s });

    EXPECT_EQ(owner(ours.output.trimmed()), owner(its.output.trimmed()));
}

TEST_F(GCloudIdentityTokenTest, OfAServiceAccount)
{
    const QString robot = u"deployer@orchard-prod-5150.iam.gserviceaccount.com"_s;
    ASSERT_TRUE(exitedWith(0, gcloud({ u"config"_s, u"set"_s, u"account"_s, robot })));

    const Ended ended = torvictl({ u"identity-token"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(owner(ended.output.trimmed()), robot);
}

TEST_F(GCloudIdentityTokenTest, IsTheAccountsOwnWhileImpersonatingAsGCloudHasIt)
{
    ASSERT_TRUE(exitedWith(0,
                           gcloud({ u"config"_s, u"set"_s, u"auth/impersonate_service_account"_s,
                                    u"reader@orchard-prod-5150.iam.gserviceaccount.com"_s })));

    const Ended ended = torvictl({ u"identity-token"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(owner(ended.output.trimmed()), u"dana@example.com"_s);
}

TEST_F(GCloudIdentityTokenTest, FailsWithoutAnAccount)
{
    ASSERT_TRUE(exitedWith(0, gcloud({ u"config"_s, u"unset"_s, u"account"_s })));

    const Ended ended = torvictl({ u"identity-token"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_TRUE(ended.errors.contains("gcloud command failed (exit 1): "))
        << ended.errors.toStdString();
}

TEST_F(GCloudIdentityTokenTest, FailsWithoutANetwork)
{
    google->goDown();

    const Ended ended = torvictl({ u"identity-token"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_TRUE(ended.errors.contains("There was a problem refreshing"))
        << ended.errors.toStdString();
}

TEST_F(GCloudIdentityTokenTest, IsKeptNowhereInThePreferences)
{
    const Ended ended = torvictl({ u"identity-token"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    for (QDirIterator files(environment.value(u"XDG_CONFIG_HOME"_s), QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        EXPECT_FALSE(readFile(files.next()).contains(ended.output.trimmed()));
    }
}

} // namespace torvi

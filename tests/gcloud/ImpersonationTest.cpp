// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudImpersonationTest : public GCloudTest
{
protected:
    const QString reader = u"reader@orchard-prod-5150.iam.gserviceaccount.com"_s;

    /// The account that gcloud's own command line impersonates; null for none.
    QJsonValue impersonated()
    {
        return property(u"auth"_s, u"impersonate_service_account"_s);
    }

    void haveCommandLineImpersonation()
    {
        ASSERT_TRUE(exitedWith(
            0, gcloud({ u"config"_s, u"set"_s, u"auth/impersonate_service_account"_s, reader })));
    }
};

TEST_F(GCloudImpersonationTest, IsForADCOnlyUnlessAskedOtherwise)
{
    const Ended ended = torvictl({ u"impersonate"_s, reader });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(signInAddresses(ended.errors).size(), 1) << ended.errors.toStdString();
    const auto file = adcFile();
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ((*file)[u"type"], u"impersonated_service_account"_s);
    EXPECT_EQ(active(u"adcState"_s)[u"type"], u"impersonated_service_account"_s);
    EXPECT_EQ(active(u"adcState"_s)[u"clientEmail"], reader);
    EXPECT_EQ(impersonated(), QJsonValue::Null);
    EXPECT_EQ(active(u"impersonatedServiceAccount"_s), QJsonValue::Null);
}

TEST_F(GCloudImpersonationTest, ForTheCommandLineOnlyLeavesADCAlone)
{
    const Ended ended = torvictl({ u"impersonate"_s, reader, u"--mode"_s, u"cliOnly"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(impersonated(), reader);
    EXPECT_EQ(active(u"impersonatedServiceAccount"_s),
              (QJsonObject{ { u"email"_s, reader },
                            { u"projectId"_s, u"orchard-prod-5150"_s },
                            { u"displayName"_s, QJsonValue::Null } }));
    EXPECT_EQ(adcFile(), std::nullopt);
}

TEST_F(GCloudImpersonationTest, ForBothSetsBoth)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"impersonate"_s, reader, u"--mode=both"_s })));

    EXPECT_EQ(impersonated(), reader);
    EXPECT_EQ(active(u"adcState"_s)[u"clientEmail"], reader);
    EXPECT_EQ(active(u"impersonatedServiceAccount"_s)[u"email"], reader);
}

TEST_F(GCloudImpersonationTest, ForBothStopsBeforeTheSignInWhenTheFirstStepFails)
{
    writeFile(configFile(u"configurations/config_default"_s), "no section\n");

    const Ended ended = torvictl({ u"impersonate"_s, reader, u"--mode"_s, u"both"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("ERROR: gcloud failed to load"))
        << ended.errors.toStdString();
    EXPECT_EQ(runs(), QStringList{ u"config set auth/impersonate_service_account "_s + reader });
}

TEST_F(GCloudImpersonationTest, ForBothKeepsTheFirstStepWhenTheUserCancels)
{
    environment.insert(u"TORVI_TEST_BROWSER"_s, u"cancel"_s);

    ASSERT_TRUE(exitedWith(1, torvictl({ u"impersonate"_s, reader, u"--mode"_s, u"both"_s })));

    EXPECT_EQ(impersonated(), reader);
    EXPECT_EQ(active(u"impersonatedServiceAccount"_s)[u"email"], reader);
    EXPECT_EQ(adcFile(), std::nullopt);
}

TEST_F(GCloudImpersonationTest, OfAForbiddenAccountIsSetUncheckedAsGCloudHasIt)
{
    const QString other = u"nobody@orchard-prod-5150.iam.gserviceaccount.com"_s;

    ASSERT_TRUE(exitedWith(0, torvictl({ u"impersonate"_s, other, u"--mode"_s, u"cliOnly"_s })));

    EXPECT_EQ(impersonated(), other);
}

TEST_F(GCloudImpersonationTest, AnUnknownModeIsAUsageError)
{
    const Ended ended = torvictl({ u"impersonate"_s, reader, u"--mode"_s, u"everywhere"_s });

    EXPECT_TRUE(exitedWith(2, ended));
    EXPECT_EQ(runs(), QStringList());
}

TEST_F(GCloudImpersonationTest, ClearedForADCRevokesAndRemovesTheCredentials)
{
    haveUserADC();
    haveCommandLineImpersonation();

    const Ended ended = torvictl({ u"clear-impersonation"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(adcFile(), std::nullopt);
    EXPECT_EQ(google->requests(), QStringList{ u"POST oauth2.googleapis.com/revoke"_s });
    EXPECT_EQ(active(u"adcState"_s)[u"isValid"], false);
    EXPECT_EQ(impersonated(), reader);
}

TEST_F(GCloudImpersonationTest, ClearedForTheCommandLineLeavesADCAlone)
{
    haveUserADC();
    haveCommandLineImpersonation();

    ASSERT_TRUE(exitedWith(0, torvictl({ u"clear-impersonation"_s, u"--mode"_s, u"cliOnly"_s })));

    EXPECT_EQ(impersonated(), QJsonValue::Null);
    EXPECT_EQ(active(u"impersonatedServiceAccount"_s), QJsonValue::Null);
    EXPECT_EQ(active(u"adcState"_s)[u"type"], u"authorized_user"_s);
}

TEST_F(GCloudImpersonationTest, ClearedForBothClearsWhatImpersonatingForBothDid)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"impersonate"_s, reader, u"--mode"_s, u"both"_s })));

    ASSERT_TRUE(exitedWith(0, torvictl({ u"clear-impersonation"_s, u"--mode"_s, u"both"_s })));

    EXPECT_EQ(impersonated(), QJsonValue::Null);
    EXPECT_EQ(adcFile(), std::nullopt);
    EXPECT_EQ(active(u"impersonatedServiceAccount"_s), QJsonValue::Null);
}

TEST_F(GCloudImpersonationTest, ClearingNothingSucceeds)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"clear-impersonation"_s, u"--mode"_s, u"both"_s })));

    EXPECT_EQ(google->requests(), QStringList());
}

TEST_F(GCloudImpersonationTest, ClearedForBothWithoutANetworkKeepsTheADCFile)
{
    haveUserADC();
    haveCommandLineImpersonation();
    google->goDown();

    const Ended ended = torvictl({ u"clear-impersonation"_s, u"--mode"_s, u"both"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_EQ(impersonated(), QJsonValue::Null);
    EXPECT_EQ(active(u"adcState"_s)[u"type"], u"authorized_user"_s);
}

TEST_F(GCloudImpersonationTest, CredentialsThatTheServerNoLongerKnowsCannotBeCleared)
{
    haveUserADC();
    google->refuse(u"/revoke$"_s, 400);

    ASSERT_TRUE(exitedWith(1, torvictl({ u"clear-impersonation"_s })));

    EXPECT_TRUE(adcFile().has_value());
}

TEST_F(GCloudImpersonationTest, AServiceAccountKeyCannotBeCleared)
{
    haveKeyADC();

    const Ended ended = torvictl({ u"clear-impersonation"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("cannot be revoked")) << ended.errors.toStdString();
    EXPECT_TRUE(adcFile().has_value());
}

} // namespace torvi

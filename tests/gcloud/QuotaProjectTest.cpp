// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudQuotaProjectTest : public GCloudTest
{
protected:
    QJsonValue quotaProject()
    {
        const QJsonObject file = adcFile().value_or(QJsonObject());
        EXPECT_EQ(active(u"adcState"_s)[u"quotaProject"],
                  file.contains(u"quota_project_id"_s) ? file[u"quota_project_id"]
                                                       : QJsonValue(QJsonValue::Null));
        return file[u"quota_project_id"];
    }
};

TEST_F(GCloudQuotaProjectTest, IsWrittenToTheADCFile)
{
    haveUserADC();

    const Ended ended = torvictl({ u"set-quota-project"_s, u"orchard-stage-5150"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(quotaProject(), u"orchard-stage-5150"_s);
    EXPECT_EQ(google->callers(u"/v1/projects/orchard-stage-5150:testIamPermissions"_s),
              QStringList{ u"dana@example.com"_s });
}

TEST_F(GCloudQuotaProjectTest, StaysWhenThePermissionIsMissing)
{
    haveUserADC();

    const Ended ended = torvictl({ u"set-quota-project"_s, u"orchard-data-5150"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("serviceusage.services.use")) << ended.errors.toStdString();
    EXPECT_EQ(quotaProject(), u"orchard-prod-5150"_s);
}

TEST_F(GCloudQuotaProjectTest, BecomesTheActiveProjectWhenThePermissionIsMissingAndThereWasNone)
{
    haveUserADC(QString());

    ASSERT_TRUE(exitedWith(1, torvictl({ u"set-quota-project"_s, u"orchard-data-5150"_s })));

    EXPECT_EQ(quotaProject(), u"orchard-prod-5150"_s);
}

TEST_F(GCloudQuotaProjectTest, IsLostWhenTheNewOneIsUnknown)
{
    haveUserADC();

    ASSERT_TRUE(exitedWith(1, torvictl({ u"set-quota-project"_s, u"no-such-project-1"_s })));

    EXPECT_EQ(quotaProject(), QJsonValue::Undefined);
}

TEST_F(GCloudQuotaProjectTest, IsLostWithoutANetwork)
{
    haveUserADC();
    google->goDown();

    ASSERT_TRUE(exitedWith(1, torvictl({ u"set-quota-project"_s, u"orchard-stage-5150"_s })));

    EXPECT_EQ(quotaProject(), QJsonValue::Undefined);
}

TEST_F(GCloudQuotaProjectTest, NeedsADC)
{
    const Ended ended = torvictl({ u"set-quota-project"_s, u"orchard-stage-5150"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("ERROR: (gcloud.auth.application-default.set-quota-project)"))
        << ended.errors.toStdString();
    EXPECT_EQ(adcFile(), std::nullopt);
}

TEST_F(GCloudQuotaProjectTest, CannotBeAddedToAServiceAccountKey)
{
    haveKeyADC();

    const Ended ended = torvictl({ u"set-quota-project"_s, u"orchard-stage-5150"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("The application default credentials are not user "
                                      "credentials, quota project cannot be added."))
        << ended.errors.toStdString();
    EXPECT_EQ(active(u"adcState"_s)[u"type"], u"service_account"_s);
}

} // namespace torvi

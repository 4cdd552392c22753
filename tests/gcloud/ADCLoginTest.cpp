// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudADCLoginTest : public GCloudTest
{
protected:
    /// What the user does after gcloud has started the browser; see browser.py.
    void let(const QString &behaviour)
    {
        environment.insert(u"TORVI_TEST_BROWSER"_s, behaviour);
    }
};

TEST_F(GCloudADCLoginTest, LeavesUserCredentialsWithTheActiveProjectForQuota)
{
    const Ended ended = torvictl({ u"adc-login"_s });

    ASSERT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output, "");
    const auto file = adcFile();
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ((*file)[u"type"], u"authorized_user"_s);
    EXPECT_EQ((*file)[u"quota_project_id"], u"orchard-prod-5150"_s);
    const QJsonValue state = active(u"adcState"_s);
    EXPECT_EQ(state[u"type"], u"authorized_user"_s);
    EXPECT_EQ(state[u"quotaProject"], u"orchard-prod-5150"_s);
    EXPECT_EQ(state[u"isValid"], true);
}

TEST_F(GCloudADCLoginTest, WritesCredentialsThatGCloudCanUse)
{
    ASSERT_TRUE(exitedWith(0, torvictl({ u"adc-login"_s })));

    EXPECT_TRUE(
        exitedWith(0, gcloud({ u"auth"_s, u"application-default"_s, u"print-access-token"_s })));
}

TEST_F(GCloudADCLoginTest, ShowsOneAddressUnderWhichTheUserCanSignInElsewhere)
{
    let(u"ignore"_s);
    const auto running = startTorvictl({ u"adc-login"_s });
    QString address;
    ASSERT_TRUE(running->waitForErrors([&](const QByteArray &errors) {
        address = signInAddresses(errors).value(0);
        return !address.isEmpty();
    }));

    let(u"sign-in"_s);
    const Ended browser = Program::run(environment.value(u"BROWSER"_s), { address }, environment);
    const Ended ended = running->waitForEnd();

    EXPECT_TRUE(exitedWith(0, browser));
    EXPECT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.errors.count("https://accounts.google.com/"), 1) << ended.errors.toStdString();
    EXPECT_TRUE(address.endsWith(u"&code_challenge_method=S256"_s)) << address.toStdString();
    EXPECT_TRUE(adcFile().has_value());
}

TEST_F(GCloudADCLoginTest, ShowsTheAddressThatWorksFirstWhereNoBrowserIsFound)
{
    // The desktop's opener looks for a browser for a while; then it repeats the address in quotes,
    // and with the closing quote it is one that Google refuses.
    const QByteArray gate = scratch.filePath(u"gate"_s).toUtf8();
    ASSERT_EQ(mkfifo(gate.constData(), S_IRUSR | S_IWUSR), 0);
    haveProgram(u"xdg-open"_s, R"(read -r line <"$HOME/gate"
echo "xdg-open: no method available for opening '$1'" >&2
exit 3)");
    const QString browser = environment.value(u"BROWSER"_s);
    environment.remove(u"BROWSER"_s);
    const auto running = startTorvictl({ u"adc-login"_s });
    QStringList shown;
    const auto waitForAddresses = [&](qsizetype count) {
        return running->waitForErrors([&](const QByteArray &errors) {
            shown = signInAddresses(errors);
            return shown.size() == count;
        });
    };
    ASSERT_TRUE(waitForAddresses(1));

    writeFile(QString::fromUtf8(gate), "give up\n");
    ASSERT_TRUE(waitForAddresses(2));
    const Ended signedIn = Program::run(browser, { shown[0] }, environment);

    EXPECT_TRUE(exitedWith(0, signedIn));
    EXPECT_TRUE(exitedWith(0, running->waitForEnd()));
    EXPECT_TRUE(shown[0].endsWith(u"&code_challenge_method=S256"_s)) << shown[0].toStdString();
    EXPECT_EQ(shown[1], shown[0] + u'\'');
}

TEST_F(GCloudADCLoginTest, ReplacesCredentialsOfAnyKind)
{
    haveKeyADC();

    ASSERT_TRUE(exitedWith(0, torvictl({ u"adc-login"_s })));

    EXPECT_EQ(active(u"adcState"_s)[u"type"], u"authorized_user"_s);
}

TEST_F(GCloudADCLoginTest, FailsWithGCloudsReasonWhenTheUserCancels)
{
    let(u"cancel"_s);

    const Ended ended = torvictl({ u"adc-login"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("There was a problem with web authentication."))
        << ended.errors.toStdString();
    EXPECT_EQ(adcFile(), std::nullopt);
}

TEST_F(GCloudADCLoginTest, FailsWithGCloudsReasonWhenTheCodeIsRefused)
{
    google->refuse(u"oauth2.googleapis.com/token$"_s, 400);

    const Ended ended = torvictl({ u"adc-login"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("There was a problem with web authentication."))
        << ended.errors.toStdString();
    EXPECT_EQ(adcFile(), std::nullopt);
}

TEST_F(GCloudADCLoginTest, FailsWithoutANetwork)
{
    google->goDown();

    const Ended ended = torvictl({ u"adc-login"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("gcloud command failed (exit 1): "))
        << ended.errors.toStdString();
    EXPECT_EQ(adcFile(), std::nullopt);
}

TEST_F(GCloudADCLoginTest, FailsWithoutADisplayWhereGCloudWantsACodeTypedIn)
{
    environment.remove(u"DISPLAY"_s);

    const Ended ended = torvictl({ u"adc-login"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("EOF when reading a line")) << ended.errors.toStdString();
}

TEST_F(GCloudADCLoginTest, OfAUserWhoCannotSeeTheProjectFailsYetIsInPlace)
{
    signInAs(environment, u"sam@labs.example.com"_s);

    const Ended ended = torvictl({ u"adc-login"_s });

    ASSERT_TRUE(exitedWith(1, ended));
    EXPECT_TRUE(ended.errors.contains("does not have permission to access projects instance"))
        << ended.errors.toStdString();
    EXPECT_EQ(active(u"adcState"_s)[u"type"], u"authorized_user"_s);
    EXPECT_EQ(active(u"adcState"_s)[u"quotaProject"], QJsonValue::Null);
}

TEST_F(GCloudADCLoginTest, WritesImpersonatedCredentialsWhileTheCommandLineImpersonates)
{
    const QString reader = u"reader@orchard-prod-5150.iam.gserviceaccount.com"_s;
    ASSERT_TRUE(exitedWith(
        0, gcloud({ u"config"_s, u"set"_s, u"auth/impersonate_service_account"_s, reader })));

    ASSERT_TRUE(exitedWith(0, torvictl({ u"adc-login"_s })));

    EXPECT_EQ(active(u"adcState"_s)[u"type"], u"impersonated_service_account"_s);
    EXPECT_EQ(active(u"adcState"_s)[u"clientEmail"], reader);
}

TEST_F(GCloudADCLoginTest, KeepsForeignCredentialsInTheEnvironmentFromGCloud)
{
    environment.insert(u"GOOGLE_APPLICATION_CREDENTIALS"_s, u"/nowhere/key.json"_s);
    const QString spy = haveProgram(u"spy"_s,
                                    R"(echo "${GOOGLE_APPLICATION_CREDENTIALS-none}" >"$HOME/seen"
exec gcloud "$@")");
    ASSERT_TRUE(exitedWith(0, torvictl({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s, spy })));

    EXPECT_TRUE(exitedWith(0, torvictl({ u"adc-login"_s })));

    EXPECT_EQ(readFile(scratch.filePath(u"seen"_s)), "none\n");
}

TEST_F(GCloudADCLoginTest, DoesNotWaitForTheBrowserThatHoldsThePipes)
{
    let(u"linger"_s);

    EXPECT_TRUE(exitedWith(0, torvictl({ u"adc-login"_s })));

    EXPECT_TRUE(adcFile().has_value());
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

#include <QJsonDocument>

#include <csignal>

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudWatchTest : public GCloudTest
{
protected:
    /// Starts watching and waits for the first line.
    std::unique_ptr<Program> startWatching()
    {
        auto watch = startTorvictl({ u"watch"_s, u"--json"_s });
        EXPECT_TRUE(
            watch->waitForOutput([](const QByteArray &output) { return output.contains('\n'); }));
        return watch;
    }

    /// Waits until the newest line says so.
    static bool waitForContext(Program &watch,
                               const std::function<bool(const QJsonObject &)> &isReached)
    {
        return watch.waitForOutput([&](const QByteArray &output) {
            const QByteArrayList lines = output.split('\n');
            const QByteArray newest = lines.value(lines.size() - 2);
            return isReached(QJsonDocument::fromJson(newest)[u"currentContext"].toObject());
        });
    }
};

TEST_F(GCloudWatchTest, ShowsTheStatusAtOnce)
{
    const auto watch = startWatching();

    EXPECT_TRUE(waitForContext(*watch, [](const QJsonObject &context) {
        return context[u"activeProject"][u"id"] == u"orchard-prod-5150"_s;
    }));
    EXPECT_EQ(runs(), QStringList());
}

TEST_F(GCloudWatchTest, SeesAProjectThatIsSetInATerminal)
{
    const auto watch = startWatching();

    ASSERT_TRUE(
        exitedWith(0, gcloud({ u"config"_s, u"set"_s, u"project"_s, u"orchard-data-5150"_s })));

    EXPECT_TRUE(waitForContext(*watch, [](const QJsonObject &context) {
        return context[u"activeProject"][u"id"] == u"orchard-data-5150"_s;
    }));
    EXPECT_EQ(runs().size(), 1); // the one in the terminal
}

TEST_F(GCloudWatchTest, SeesTheLastOfManyChanges)
{
    const auto watch = startWatching();

    for (const QString &id :
         { u"orchard-data-5150"_s, u"orchard-stage-5150"_s, u"zz-cafe-demo-0002"_s }) {
        ASSERT_TRUE(exitedWith(0, gcloud({ u"config"_s, u"set"_s, u"project"_s, id })));
    }

    EXPECT_TRUE(waitForContext(*watch, [](const QJsonObject &context) {
        return context[u"activeProject"][u"id"] == u"zz-cafe-demo-0002"_s;
    }));
}

TEST_F(GCloudWatchTest, SeesANewConfiguration)
{
    const auto watch = startWatching();

    ASSERT_TRUE(
        exitedWith(0, gcloud({ u"config"_s, u"configurations"_s, u"create"_s, u"fresh"_s })));

    EXPECT_TRUE(waitForContext(*watch, [](const QJsonObject &context) {
        return context[u"activeConfiguration"][u"name"] == u"fresh"_s
            && context[u"activeProject"].isNull();
    }));
}

TEST_F(GCloudWatchTest, SeesASignInForApplications)
{
    const auto watch = startWatching();

    ASSERT_TRUE(
        exitedWith(0, gcloud({ u"auth"_s, u"application-default"_s, u"login"_s, u"--quiet"_s })));

    EXPECT_TRUE(waitForContext(*watch, [](const QJsonObject &context) {
        return context[u"adcState"][u"quotaProject"] == u"orchard-prod-5150"_s;
    }));
}

TEST_F(GCloudWatchTest, SeesAnAccountThatIsSignedOut)
{
    const auto watch = startWatching();

    ASSERT_TRUE(exitedWith(0, gcloud({ u"auth"_s, u"revoke"_s, u"dana@example.com"_s })));

    EXPECT_TRUE(waitForContext(
        *watch, [](const QJsonObject &context) { return context[u"activeAccount"].isNull(); }));
}

TEST_F(GCloudWatchTest, SeesWhatAnotherTorvictlDoes)
{
    const auto watch = startWatching();

    ASSERT_TRUE(exitedWith(0, torvictl({ u"switch-project"_s, u"orchard-stage-5150"_s })));

    EXPECT_TRUE(waitForContext(*watch, [](const QJsonObject &context) {
        return context[u"activeProject"][u"id"] == u"orchard-stage-5150"_s;
    }));
    EXPECT_EQ(runs().size(), 1); // the other torvictl's
}

TEST_F(GCloudWatchTest, SeesADirectoryThatGCloudMakesLater)
{
    environment.insert(u"CLOUDSDK_CONFIG"_s, scratch.filePath(u"later/config"_s));
    const auto watch = startWatching();

    ASSERT_TRUE(
        exitedWith(0, gcloud({ u"config"_s, u"set"_s, u"project"_s, u"orchard-data-5150"_s })));

    EXPECT_TRUE(waitForContext(*watch, [](const QJsonObject &context) {
        return context[u"activeProject"][u"id"] == u"orchard-data-5150"_s;
    }));
}

TEST_F(GCloudWatchTest, IsEndedByCtrlC)
{
    const auto watch = startWatching();

    watch->signalGroup(SIGINT);

    EXPECT_TRUE(exitedWith(130, watch->waitForEnd()));
}

TEST_F(GCloudWatchTest, EndsWhenItsReaderGoesAway)
{
    const QString pipeline = u"\"$0\" watch --json | head -n 1; exit ${PIPESTATUS[0]}"_s;

    const Ended ended
        = Program::run(u"bash"_s, { u"-c"_s, pipeline, QStringLiteral(TORVICTL) }, environment);

    EXPECT_TRUE(exitedWith(0, ended));
    EXPECT_EQ(ended.output.count('\n'), 1);
}

} // namespace torvi

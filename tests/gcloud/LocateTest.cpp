// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudLocateTest : public GCloudTest
{
protected:
    void SetUp() override
    {
        GCloudTest::SetUp();
        if (!IsSkipped()) {
            setOverride(QString());
            environment.insert(u"SHELL"_s, u"/bin/bash"_s);
        }
    }

    void setOverride(const QString &path)
    {
        ASSERT_TRUE(
            exitedWith(0, torvictl({ u"settings"_s, u"set"_s, u"gcloudPathOverride"_s, path })));
    }

    QString located()
    {
        const Ended ended = torvictl({ u"locate"_s });
        EXPECT_TRUE(exitedWith(0, ended));
        EXPECT_TRUE(ended.output.endsWith('\n'));
        return QString::fromUtf8(ended.output.chopped(1));
    }

    /// Whether gcloud is in one of the places that are looked at before the shell is asked.
    static bool isInAWellKnownPlace()
    {
        return std::ranges::any_of(
            QStringList{
                u"/usr/local/google-cloud-sdk/bin/gcloud"_s, u"/opt/google-cloud-sdk/bin/gcloud"_s,
                u"/opt/homebrew/bin/gcloud"_s, u"/opt/homebrew/share/google-cloud-sdk/bin/gcloud"_s,
                u"/usr/local/bin/gcloud"_s,
                u"/usr/local/Caskroom/google-cloud-sdk/latest/google-cloud-sdk/bin/gcloud"_s,
                u"/snap/google-cloud-cli/current/bin/gcloud"_s },
            [](const QString &path) { return QFileInfo(path).isExecutable(); });
    }

    /// A link to gcloud in another place.
    QString linkGCloud(const QString &folder)
    {
        QDir(scratch.path()).mkpath(folder);
        const QString link = scratch.filePath(folder) + u"/gcloud"_s;
        EXPECT_TRUE(QFile::link(gcloudPath, link));
        return link;
    }
};

TEST_F(GCloudLocateTest, TakesThePathSetting)
{
    const QString link = linkGCloud(u"my tools"_s);
    setOverride(link);

    EXPECT_EQ(located(), link);
    EXPECT_EQ(list({ u"projects"_s }).size(), 5);
}

TEST_F(GCloudLocateTest, IgnoresAPathSettingThatNamesNoProgram)
{
    const QString link = linkGCloud(u"google-cloud-sdk/bin"_s);
    setOverride(u"/nowhere/gcloud"_s);

    EXPECT_EQ(located(), link);
}

TEST_F(GCloudLocateTest, FindsAnInstallationInTheHomeDirectory)
{
    const QString link = linkGCloud(u"google-cloud-sdk/bin"_s);

    EXPECT_EQ(located(), link);
    EXPECT_EQ(list({ u"projects"_s }).size(), 5);
}

TEST_F(GCloudLocateTest, FindsAnInstallationThatAStartUpFileNames)
{
    if (isInAWellKnownPlace()) {
        GTEST_SKIP() << "this machine's gcloud is found before";
    }
    linkGCloud(u"apps/google-cloud-sdk/bin"_s);
    writeFile(scratch.filePath(u".bashrc"_s),
              "export EDITOR=vi\nsource '" + scratch.path().toUtf8()
                  + "/apps/google-cloud-sdk/path.bash.inc'\n");

    EXPECT_EQ(located(), scratch.path() + u"/apps//google-cloud-sdk/bin/gcloud"_s);
    EXPECT_EQ(list({ u"projects"_s }).size(), 5);
}

TEST_F(GCloudLocateTest, AsksTheLoginShell)
{
    if (isInAWellKnownPlace()) {
        GTEST_SKIP() << "this machine's gcloud is found before";
    }
    const QString link = linkGCloud(u"only the shell knows"_s);
    writeFile(scratch.filePath(u".bashrc"_s),
              "PATH='" + QFileInfo(link).path().toUtf8() + "':$PATH\n");

    EXPECT_EQ(located(), link);
    EXPECT_EQ(list({ u"projects"_s }).size(), 5);
}

TEST_F(GCloudLocateTest, FindsWhatIsOnThePathThroughTheShell)
{
    if (isInAWellKnownPlace()) {
        GTEST_SKIP() << "this machine's gcloud is found before";
    }

    EXPECT_EQ(located(), gcloudPath);
}

TEST_F(GCloudLocateTest, SaysWhatIsMissingWhenThereIsNone)
{
    if (isInAWellKnownPlace()) {
        GTEST_SKIP() << "this machine's gcloud is found before";
    }
    environment.insert(u"SHELL"_s, u"/bin/false"_s);

    const Ended locate = torvictl({ u"locate"_s });
    const Ended change = torvictl({ u"switch-project"_s, u"orchard-stage-5150"_s });

    for (const Ended &ended : { locate, change }) {
        EXPECT_TRUE(exitedWith(1, ended));
        EXPECT_EQ(ended.output, "");
        EXPECT_TRUE(
            ended.errors.contains("gcloud CLI not found. Please install the Google Cloud SDK."))
            << ended.errors.toStdString();
    }
    EXPECT_TRUE(exitedWith(0, torvictl({ u"status"_s }))); // reading needs no gcloud
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// The reader on directories that the real gcloud wrote, and on what else may stand in a file's
// place.

#include "GCloudCLI/GCloudConfigReader.h"
#include "GCloudCLI/GCloudFile.h"
#include "GCloudModels/AppError.h"
#include "tests/support/FileEvents.h"
#include "tests/support/NoMoreFiles.h"
#include "tests/support/TestData.h"
#include "tests/support/TestDirectory.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

GCloudConfigReader recorded(const char *name)
{
    return GCloudConfigReader(testDataPath(u"config-dirs/"_s + QString::fromUtf8(name)));
}

const QString kActive = u"active_config"_s;
const QString kWork = u"configurations/config_work"_s;
const QString kOlder = u"properties"_s;
const QString kFolder = u"configurations"_s;
const QString kADC = u"application_default_credentials.json"_s;
const QString kDatabase = u"credentials.db"_s;

} // namespace

TEST(GCloudConfigReaderRecordedTest, FullDirectory)
{
    const GCloudConfigReader reader = recorded("full-user-adc");

    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);
    EXPECT_EQ(reader.readAllConfigNames(),
              (QStringList{ u"default"_s, u"labs"_s, u"robot"_s, u"staging"_s }));
    EXPECT_EQ(reader.readConfigProperties(u"default"_s),
              (ConfigProperties{ u"orchid-prod-4821"_s, u"alex.moreno@example.com"_s,
                                 u"europe-west1"_s, u"europe-west1-b"_s, std::nullopt }));
    EXPECT_EQ(reader.readADCState(),
              (ADCState{ ADCType::userCredentials, u"orchid-prod-4821"_s, std::nullopt, true }));
    EXPECT_EQ(reader.readAuthenticatedAccounts(),
              (QStringList{ u"alex.moreno@example.com"_s, u"alex@labs.example.com"_s,
                            u"ci-runner@orchid-staging-4821.iam.gserviceaccount.com"_s,
                            u"deployer@orchid-prod-4821.iam.gserviceaccount.com"_s }));
}

TEST(GCloudConfigReaderRecordedTest, ImpersonatingDirectory)
{
    const GCloudConfigReader reader = recorded("full-impersonating");
    const QString reportReader = u"report-reader@orchid-prod-4821.iam.gserviceaccount.com"_s;

    EXPECT_EQ(reader.readActiveConfigName(), u"staging"_s);
    EXPECT_EQ(reader.readConfigProperties(u"staging"_s),
              (ConfigProperties{ u"orchid-staging-4821"_s, u"alex.moreno@example.com"_s,
                                 u"us-central1"_s, std::nullopt, reportReader }));
    EXPECT_EQ(reader.readADCState(),
              (ADCState{ ADCType::impersonatedServiceAccount, std::nullopt, reportReader, true }));
}

TEST(GCloudConfigReaderRecordedTest, ServiceAccountKey)
{
    EXPECT_EQ(recorded("service-account-adc").readADCState(),
              (ADCState{ ADCType::serviceAccountKey, std::nullopt,
                         u"deployer@orchid-prod-4821.iam.gserviceaccount.com"_s, true }));
}

TEST(GCloudConfigReaderRecordedTest, ExternalAccountHasNoTypeOfOurs)
{
    const GCloudConfigReader reader = recorded("external-account-adc");

    EXPECT_EQ(reader.readADCState(),
              (ADCState{ ADCType::none, std::nullopt,
                         u"ci-runner@orchid-staging-4821.iam.gserviceaccount.com"_s, true }));
    EXPECT_EQ(reader.readAuthenticatedAccounts(), QStringList());
}

TEST(GCloudConfigReaderRecordedTest, FirstRun)
{
    const GCloudConfigReader reader = recorded("first-run");

    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);
    EXPECT_EQ(reader.readAllConfigNames(), QStringList{ u"default"_s });
    EXPECT_EQ(reader.readConfigProperties(u"default"_s), ConfigProperties());
    EXPECT_EQ(reader.readADCState(), ADCState());
    EXPECT_EQ(reader.readAuthenticatedAccounts(), QStringList());
}

TEST(GCloudConfigReaderRecordedTest, LegacyPropertiesServeAnyNameWithoutAFile)
{
    const GCloudConfigReader reader = recorded("legacy-properties");

    EXPECT_EQ(reader.readAllConfigNames(), QStringList{ u"default"_s });
    EXPECT_EQ(reader.readConfigProperties(u"deleted"_s),
              (ConfigProperties{ u"legacy-project-1"_s, u"alex.moreno@example.com"_s, std::nullopt,
                                 u"us-central1-a"_s, std::nullopt }));
}

TEST(GCloudConfigReaderRecordedTest, LeftoversOfUnsettingAreEmptyNotAbsent)
{
    const GCloudConfigReader reader = recorded("unset-leftovers");

    EXPECT_EQ(reader.readConfigProperties(u"default"_s),
              (ConfigProperties{ std::nullopt, u""_s, std::nullopt, std::nullopt, std::nullopt }));
    EXPECT_EQ(reader.readAuthenticatedAccounts(), QStringList());
}

/// A file and the operation that reads it, which expects what it yields when the file is missing.
struct FileEntry
{
    const char *name;
    QString file;
    void (*read)(const GCloudConfigReader &reader);
};

class GCloudConfigReaderFileTest : public testing::TestWithParam<FileEntry>
{
protected:
    /// The error of the operation; empty when it throws none.
    [[nodiscard]] std::string error() const
    {
        try {
            GetParam().read(reader);
        } catch (const AppError &appError) {
            return appError.what();
        }
        return {};
    }

    [[nodiscard]] std::string unreadable() const
    {
        return "Could not read config file: " + directory.path(GetParam().file).toStdString();
    }

    TestDirectory directory;
    const GCloudConfigReader reader{ directory.path() };
};

TEST_P(GCloudConfigReaderFileTest, DirectoryInItsPlaceIsUnreadable)
{
    directory.makeFolder(GetParam().file);

    EXPECT_EQ(error(), unreadable());
}

TEST_P(GCloudConfigReaderFileTest, FifoInItsPlaceIsUnreadableAndNeverOpened)
{
    directory.makeFifo(GetParam().file);
    FileEvents events(QFileInfo(directory.path(GetParam().file)).path());

    EXPECT_EQ(error(), unreadable());
    EXPECT_EQ(events.taken(), QStringList());
}

TEST_P(GCloudConfigReaderFileTest, LinkToADeviceInItsPlaceIsUnreadable)
{
    directory.makeLink(GetParam().file, u"/dev/zero"_s);

    EXPECT_EQ(error(), unreadable());
}

TEST_P(GCloudConfigReaderFileTest, TextThatIsNoUtf8IsUnreadable)
{
    directory.write(GetParam().file, "[core]\nproject = caf\xE9\n");

    EXPECT_EQ(error(), unreadable());
}

TEST_P(GCloudConfigReaderFileTest, HugeFileIsUnreadable)
{
    directory.writeSparse(GetParam().file, GCloudFile::kMaximumSize + 1);

    EXPECT_EQ(error(), unreadable());
}

TEST_P(GCloudConfigReaderFileTest, FileThatCannotBeOpenedIsUnreadable)
{
    directory.write(GetParam().file, "{}");
    const NoMoreFiles limit;

    EXPECT_EQ(error(), unreadable());
}

TEST_P(GCloudConfigReaderFileTest, FileWithoutPermissionIsUnreadable)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root may read every file";
    }
    directory.write(GetParam().file, "{}");
    ASSERT_TRUE(QFile::setPermissions(directory.path(GetParam().file), {}));

    EXPECT_EQ(error(), unreadable());
}

TEST_P(GCloudConfigReaderFileTest, DanglingLinkIsMissing)
{
    directory.makeLink(GetParam().file, u"nowhere"_s);

    EXPECT_EQ(error(), "");
}

TEST_P(GCloudConfigReaderFileTest, LoopOfLinksIsMissing)
{
    directory.makeLink(GetParam().file, QFileInfo(GetParam().file).fileName());

    EXPECT_EQ(error(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Files, GCloudConfigReaderFileTest,
    testing::Values(FileEntry{ "configuration", kWork,
                               [](const GCloudConfigReader &reader) {
                                   EXPECT_EQ(reader.readConfigProperties(u"work"_s),
                                             ConfigProperties());
                               } },
                    FileEntry{ "olderProperties", kOlder,
                               [](const GCloudConfigReader &reader) {
                                   EXPECT_EQ(reader.readConfigProperties(u"work"_s),
                                             ConfigProperties());
                               } },
                    FileEntry{ "adcFile", kADC,
                               [](const GCloudConfigReader &reader) {
                                   EXPECT_EQ(reader.readADCState(), ADCState());
                               } }),
    [](const auto &entry) { return entry.param.name; });

class GCloudConfigReaderPlaceTest : public testing::Test
{
protected:
    TestDirectory directory;
    const GCloudConfigReader reader{ directory.path() };
};

TEST_F(GCloudConfigReaderPlaceTest, UnreadableConfigurationDoesNotFallBackToTheOlderFile)
{
    directory.write(kOlder, "[core]\nproject = old\n");
    directory.makeFifo(kWork);

    EXPECT_THROW((void)reader.readConfigProperties(u"work"_s), AppError);
}

TEST_F(GCloudConfigReaderPlaceTest, ActiveConfigurationIsDefaultWhateverStandsInTheFilesPlace)
{
    directory.makeFifo(kActive);
    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);

    directory.remove(kActive);
    directory.makeFolder(kActive);
    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);

    ASSERT_TRUE(QDir().rmdir(directory.path(kActive)));
    directory.writeSparse(kActive, GCloudFile::kMaximumSize + 1);
    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);

    directory.remove(kActive);
    directory.makeLink(kActive, kActive);
    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);
}

TEST_F(GCloudConfigReaderPlaceTest, FolderThatIsAFileOrAFifoCannotBeListed)
{
    const AppError unlisted = AppError::configFileUnreadable(directory.path(kFolder));
    const auto error = [this]() -> std::optional<AppError> {
        try {
            (void)reader.readAllConfigNames();
        } catch (const AppError &thrown) {
            return thrown;
        }
        return std::nullopt;
    };

    directory.write(kFolder, "");
    EXPECT_EQ(error(), unlisted);

    directory.remove(kFolder);
    directory.makeFifo(kFolder);
    EXPECT_EQ(error(), unlisted);

    directory.remove(kFolder);
    directory.makeFolder(kFolder);
    const NoMoreFiles limit;
    EXPECT_EQ(error(), unlisted);
}

TEST_F(GCloudConfigReaderPlaceTest, FolderThatIsADanglingLinkIsMissing)
{
    directory.makeLink(kFolder, u"nowhere"_s);

    EXPECT_EQ(reader.readAllConfigNames(), QStringList());
}

TEST_F(GCloudConfigReaderPlaceTest, FolderMayBeALink)
{
    directory.write(u"elsewhere/config_work"_s, "[core]\nproject = p\n");
    directory.makeLink(kFolder, u"elsewhere"_s);

    EXPECT_EQ(reader.readAllConfigNames(), QStringList{ u"work"_s });
    EXPECT_EQ(reader.readConfigProperties(u"work"_s).project, u"p"_s);
}

TEST_F(GCloudConfigReaderPlaceTest, ADCFileThatIsNoJSONIsUnreadable)
{
    for (const char *text : { "", "not json", "NaN", "{} x", "{\"type\": " }) {
        directory.write(kADC, text);

        try {
            (void)reader.readADCState();
            ADD_FAILURE() << text;
        } catch (const AppError &error) {
            EXPECT_EQ(error.errorDescription(),
                      u"Could not read config file: "_s + directory.path(kADC));
        }
    }
}

TEST_F(GCloudConfigReaderPlaceTest, DatabaseThatIsAFifoHasNoMessageFromSQLite)
{
    directory.makeFifo(kDatabase);

    try {
        (void)reader.readAuthenticatedAccounts();
        FAIL() << "nothing was thrown";
    } catch (const AppError &error) {
        EXPECT_EQ(error.errorDescription(),
                  u"Could not read config file: "_s + directory.path(kDatabase)
                      + u": Unknown error"_s);
    }
}

TEST_F(GCloudConfigReaderPlaceTest, DatabaseThatIsADanglingLinkIsMissing)
{
    directory.makeLink(kDatabase, u"nowhere"_s);

    EXPECT_EQ(reader.readAuthenticatedAccounts(), QStringList());
}

TEST_F(GCloudConfigReaderPlaceTest, ReadingChangesNothing)
{
    for (const QString &name : { kActive, kADC, kDatabase, u"configurations/config_default"_s }) {
        directory.write(name, testData(u"config-dirs/full-user-adc/"_s + name));
    }
    FileEvents events(directory.path());
    FileEvents folderEvents(directory.path(kFolder));

    (void)reader.readActiveConfigName();
    (void)reader.readConfigProperties(u"default"_s);
    (void)reader.readAllConfigNames();
    (void)reader.readADCState();
    (void)reader.readAuthenticatedAccounts();

    EXPECT_EQ(events.takenChanges(), QStringList());
    EXPECT_EQ(folderEvents.takenChanges(), QStringList());
}

TEST(GCloudConfigReaderThreadTest, OneReaderServesSeveralThreads)
{
    const GCloudConfigReader reader = recorded("full-user-adc");
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&reader] {
            for (int round = 0; round < 50; ++round) {
                EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);
                EXPECT_EQ(reader.readAllConfigNames().size(), 4);
                EXPECT_EQ(reader.readConfigProperties(u"labs"_s).project, u"labs-sandbox-7731"_s);
                EXPECT_TRUE(reader.readADCState().isValid);
                EXPECT_EQ(reader.readAuthenticatedAccounts().size(), 4);
            }
        });
    }
}

} // namespace torvi

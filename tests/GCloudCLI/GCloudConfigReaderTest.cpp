// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudConfigReader.h"

#include "GCloudModels/AppError.h"
#include "tests/support/TestData.h"
#include "tests/support/TestDirectory.h"

#include <QScopeGuard>

#include <gtest/gtest.h>

#include <pwd.h>

using namespace Qt::StringLiterals;

namespace torvi {

class GCloudConfigReaderTest : public testing::Test
{
protected:
    TestDirectory directory;
    const GCloudConfigReader reader{ directory.path() };
};

TEST_F(GCloudConfigReaderTest, ActiveConfigurationIsTheFilesTextTrimmed)
{
    directory.write(u"active_config"_s, "work\n");
    EXPECT_EQ(reader.readActiveConfigName(), u"work"_s);

    directory.write(u"active_config"_s, "\xEF\xBB\xBF \r\n\tmy work\xC2\xA0\xE2\x80\xA9");
    EXPECT_EQ(reader.readActiveConfigName(), u"my work"_s);
}

TEST_F(GCloudConfigReaderTest, ActiveConfigurationIsDefaultWithoutTheFile)
{
    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);
}

TEST_F(GCloudConfigReaderTest, ActiveConfigurationIsEmptyWithAnEmptyFile)
{
    directory.write(u"active_config"_s, "");
    EXPECT_EQ(reader.readActiveConfigName(), u""_s);

    directory.write(u"active_config"_s, " \n ");
    EXPECT_EQ(reader.readActiveConfigName(), u""_s);
}

TEST_F(GCloudConfigReaderTest, ActiveConfigurationIsDefaultWhenTheFileIsNoUtf8)
{
    directory.write(u"active_config"_s, "caf\xE9");

    EXPECT_EQ(reader.readActiveConfigName(), u"default"_s);
}

TEST_F(GCloudConfigReaderTest, PropertiesComeFromTheirSections)
{
    directory.write(u"configurations/config_work"_s,
                    "project = not this one\n[core]\naccount = a@b\nproject = p\nregion = no\n"
                    "[compute]\nregion = r\nzone = z\nproject = no\n"
                    "[auth]\nimpersonate_service_account = s@p\n");

    EXPECT_EQ(reader.readConfigProperties(u"work"_s),
              (ConfigProperties{ u"p"_s, u"a@b"_s, u"r"_s, u"z"_s, u"s@p"_s }));
}

TEST_F(GCloudConfigReaderTest, PropertySetToNothingIsNotAbsent)
{
    directory.write(u"configurations/config_work"_s, "[core]\naccount = \n[auth]\n");

    EXPECT_EQ(reader.readConfigProperties(u"work"_s),
              (ConfigProperties{ std::nullopt, u""_s, std::nullopt, std::nullopt, std::nullopt }));
}

TEST_F(GCloudConfigReaderTest, PropertiesAreAbsentWithoutAnyFile)
{
    EXPECT_EQ(reader.readConfigProperties(u"work"_s), ConfigProperties());

    directory.write(u"configurations/config_other"_s, "[core]\nproject = p\n");
    EXPECT_EQ(reader.readConfigProperties(u"work"_s), ConfigProperties());
}

TEST_F(GCloudConfigReaderTest, PropertiesFallBackToTheOlderFileForAnyName)
{
    directory.write(u"properties"_s, "[core]\nproject = old\n");
    directory.write(u"configurations/config_new"_s, "[core]\nproject = new\n");

    EXPECT_EQ(reader.readConfigProperties(u"work"_s).project, u"old"_s);
    EXPECT_EQ(reader.readConfigProperties(u"default"_s).project, u"old"_s);
    EXPECT_EQ(reader.readConfigProperties(u"new"_s).project, u"new"_s);
}

TEST_F(GCloudConfigReaderTest, PropertiesOfAVanishedConfigurationAreAbsent)
{
    directory.write(u"configurations/config_work"_s, "[core]\nproject = p\n");
    ASSERT_EQ(reader.readAllConfigNames(), QStringList{ u"work"_s });
    directory.remove(u"configurations/config_work"_s);

    EXPECT_EQ(reader.readConfigProperties(u"work"_s), ConfigProperties());
}

TEST_F(GCloudConfigReaderTest, ConfigurationMayHaveAnyName)
{
    directory.write(u"configurations/config_"_s, "[core]\nproject = empty\n");
    directory.write(u"configurations/config_\u00FC b"_s, "[core]\nproject = other\n");

    EXPECT_EQ(reader.readConfigProperties(u""_s).project, u"empty"_s);
    EXPECT_EQ(reader.readConfigProperties(u"\u00FC b"_s).project, u"other"_s);
}

TEST_F(GCloudConfigReaderTest, NameWithANulNamesNoOtherConfiguration)
{
    directory.write(u"configurations/config_work"_s, "[core]\nproject = p\n");

    EXPECT_EQ(reader.readConfigProperties(u"work\0er"_s), ConfigProperties());
}

TEST_F(GCloudConfigReaderTest, ConfigurationNamesAreThePrefixedEntriesInOrder)
{
    directory.write(u"configurations/config_b"_s, "");
    directory.write(u"configurations/config_a"_s, "");
    directory.write(u"configurations/notes"_s, "");

    EXPECT_EQ(reader.readAllConfigNames(), (QStringList{ u"a"_s, u"b"_s }));
}

TEST_F(GCloudConfigReaderTest, ConfigurationNamesAreTakenByNameAloneWhateverTheyAre)
{
    directory.makeFolder(u"configurations/config_folder"_s);
    directory.makeFifo(u"configurations/config_fifo"_s);
    directory.makeLink(u"configurations/config_dangling"_s, u"nowhere"_s);
    directory.write(u"configurations/config_"_s, "");
    directory.write(u"configurations/config_.hidden"_s, "");
    directory.write(u"configurations/Config_upper"_s, "");
    directory.write(u"configurations/.config_hidden"_s, "");
    directory.write(u"configurations/config"_s, "");

    EXPECT_EQ(reader.readAllConfigNames(),
              (QStringList{ u""_s, u".hidden"_s, u"dangling"_s, u"fifo"_s, u"folder"_s }));
}

TEST_F(GCloudConfigReaderTest, ConfigurationNamesAreSortedByCodeUnit)
{
    for (const QString &name :
         { u"a"_s, u"B"_s, u"\u00E9"_s, u"z"_s, u"10"_s, u"9"_s, u"\uFF5E"_s, u"\U0001F600"_s }) {
        directory.write(u"configurations/config_"_s + name, "");
    }

    EXPECT_EQ(reader.readAllConfigNames(),
              (QStringList{ u"10"_s, u"9"_s, u"B"_s, u"a"_s, u"z"_s, u"\u00E9"_s, u"\U0001F600"_s,
                            u"\uFF5E"_s }));
}

TEST_F(GCloudConfigReaderTest, ConfigurationNameThatIsNoUtf8IsKeptWithReplacements)
{
    directory.makeFolder(u"configurations"_s);
    const QByteArray path
        = QFile::encodeName(directory.path(u"configurations"_s)) + "/config_a\xFF";
    ASSERT_EQ(::mknod(path.constData(), S_IFREG | 0600, 0), 0);

    EXPECT_EQ(reader.readAllConfigNames(), QStringList{ u"a\uFFFD"_s });
    EXPECT_EQ(::unlink(path.constData()), 0); // the directory's own clean-up cannot name it
}

TEST_F(GCloudConfigReaderTest, ThereAreNoConfigurationsWithoutTheFolder)
{
    EXPECT_EQ(reader.readAllConfigNames(), QStringList());

    directory.makeFolder(u"configurations"_s);
    EXPECT_EQ(reader.readAllConfigNames(), QStringList());
}

TEST_F(GCloudConfigReaderTest, ADCStateIsNoneWithoutTheFile)
{
    EXPECT_EQ(reader.readADCState(), ADCState());
    EXPECT_FALSE(reader.readADCState().isValid);
}

TEST_F(GCloudConfigReaderTest, ADCFileThatIsNoObjectIsNotValid)
{
    directory.write(u"application_default_credentials.json"_s, "[]");

    EXPECT_EQ(reader.readADCState(), ADCState());
}

TEST_F(GCloudConfigReaderTest, ADCStatePaysNoAttentionToTheEnvironment)
{
    directory.write(u"elsewhere.json"_s, R"({"type": "authorized_user"})");
    qputenv("GOOGLE_APPLICATION_CREDENTIALS",
            QFile::encodeName(directory.path(u"elsewhere.json"_s)));
    const auto restore = qScopeGuard([] { qunsetenv("GOOGLE_APPLICATION_CREDENTIALS"); });

    EXPECT_EQ(reader.readADCState(), ADCState());
}

TEST_F(GCloudConfigReaderTest, ThereAreNoAccountsWithoutTheDatabase)
{
    EXPECT_EQ(reader.readAuthenticatedAccounts(), QStringList());
}

TEST_F(GCloudConfigReaderTest, MissingDirectoryIsAnEmptyOne)
{
    const GCloudConfigReader nowhere(directory.path(u"nowhere/at/all"_s));

    EXPECT_EQ(nowhere.readActiveConfigName(), u"default"_s);
    EXPECT_EQ(nowhere.readConfigProperties(u"default"_s), ConfigProperties());
    EXPECT_EQ(nowhere.readAllConfigNames(), QStringList());
    EXPECT_EQ(nowhere.readADCState(), ADCState());
    EXPECT_EQ(nowhere.readAuthenticatedAccounts(), QStringList());
    EXPECT_FALSE(QFile::exists(directory.path(u"nowhere"_s)));
}

TEST_F(GCloudConfigReaderTest, FileInTheDirectorysPlaceIsAMissingDirectory)
{
    directory.write(u"file"_s, "");
    const GCloudConfigReader file(directory.path(u"file"_s));

    EXPECT_EQ(file.readActiveConfigName(), u"default"_s);
    EXPECT_EQ(file.readConfigProperties(u"default"_s), ConfigProperties());
    EXPECT_EQ(file.readAllConfigNames(), QStringList());
    EXPECT_EQ(file.readADCState(), ADCState());
    EXPECT_EQ(file.readAuthenticatedAccounts(), QStringList());
}

TEST_F(GCloudConfigReaderTest, DirectoryMayEndInASlash)
{
    directory.write(u"active_config"_s, "work");
    const GCloudConfigReader slashed(directory.path() + u'/');

    EXPECT_EQ(slashed.readActiveConfigName(), u"work"_s);
    EXPECT_EQ(slashed.configDirectory(), directory.path() + u'/');
}

class GCloudConfigReaderDirectoryTest : public testing::Test
{
protected:
    ~GCloudConfigReaderDirectoryTest() override
    {
        qputenv("HOME", m_home);
        qunsetenv("CLOUDSDK_CONFIG");
        QDir::setCurrent(m_workingDirectory);
    }

private:
    const QByteArray m_home = qgetenv("HOME");
    const QString m_workingDirectory = QDir::currentPath();
};

TEST_F(GCloudConfigReaderDirectoryTest, IsTheArgumentAsItStands)
{
    qputenv("CLOUDSDK_CONFIG", "/elsewhere");

    EXPECT_EQ(GCloudConfigReader(u"~/a//b/../"_s).configDirectory(), u"~/a//b/../"_s);
    EXPECT_EQ(GCloudConfigReader(u""_s).configDirectory(), u""_s);
}

TEST_F(GCloudConfigReaderDirectoryTest, IsTheEnvironmentsAsItStands)
{
    qputenv("CLOUDSDK_CONFIG", "~/\xC3\xBC//");

    EXPECT_EQ(GCloudConfigReader().configDirectory(), u"~/\u00FC//"_s);
}

TEST_F(GCloudConfigReaderDirectoryTest, IsTheCurrentOneWhenTheEnvironmentSaysNothingAsGcloudHasIt)
{
    const TestDirectory directory;
    directory.write(u"active_config"_s, "work");
    ASSERT_TRUE(QDir::setCurrent(directory.path()));
    qputenv("CLOUDSDK_CONFIG", "");

    const GCloudConfigReader reader;

    EXPECT_EQ(reader.configDirectory(), u""_s);
    EXPECT_EQ(reader.readActiveConfigName(), u"work"_s);
}

TEST_F(GCloudConfigReaderDirectoryTest, IsBelowTheHomeDirectoryOtherwise)
{
    qputenv("HOME", "/home/somebody");

    EXPECT_EQ(GCloudConfigReader().configDirectory(), u"/home/somebody/.config/gcloud"_s);
}

TEST_F(GCloudConfigReaderDirectoryTest, IsBelowTheUserDatabasesHomeWithoutAnEnvironment)
{
    qunsetenv("HOME");

    EXPECT_EQ(GCloudConfigReader().configDirectory(),
              QFile::decodeName(::getpwuid(::getuid())->pw_dir) + u"/.config/gcloud"_s);
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudConfigReader.h"
#include "GCloudCLI/INIParser.h"
#include "tests/properties/Random.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using Pairs = QMap<QString, QMap<QString, QString>>;

/// A second reading of the property file format, by regular expressions on the whole text.
Pairs readAgain(const QString &text)
{
    static const QRegularExpression lineBreak(u"[\\n\\r\\x0b\\x0c\\x85\\x{2028}\\x{2029}]"_s);
    static const QRegularExpression line(u"^[\\t\\p{Zs}]*(?:"
                                         "(?<comment>[#;].*)|"
                                         "\\[(?<section>.*)\\]|"
                                         "(?<key>[^=]*?)[\\t\\p{Zs}]*=(?<value>.*?)"
                                         ")[\\t\\p{Zs}]*$"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression ends(u"^[\\t\\p{Zs}]+|[\\t\\p{Zs}]+$"_s);
    Pairs sections;
    QString current;
    for (const QString &candidate : text.split(lineBreak)) {
        const auto match = line.match(candidate);
        if (match.hasCaptured(u"section")) {
            current = match.captured(u"section").remove(ends);
            sections[current];
        } else if (match.hasCaptured(u"key") && !match.captured(u"key").isEmpty()) {
            sections[current][match.captured(u"key")] = match.captured(u"value").remove(ends);
        }
    }
    return sections;
}

Pairs sorted(const INIParser::Sections &sections)
{
    Pairs pairs;
    for (auto section = sections.begin(); section != sections.end(); ++section) {
        pairs[section.key()];
        for (auto pair = section->begin(); pair != section->end(); ++pair) {
            pairs[section.key()][pair.key()] = pair.value();
        }
    }
    return pairs;
}

} // namespace

class ConfigDirectoryTest : public testing::Test
{
protected:
    Random random;
    QTemporaryDir directory;
    GCloudConfigReader reader{ directory.path() };

    const QStringList words{
        u"core"_s, u"project"_s, u"account"_s, u"größer"_s, u"a b"_s, u"🙂"_s
    };

    void write(const QString &name, const QString &content) const
    {
        QFile file(directory.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content.toUtf8());
    }

    QString randomPropertyText()
    {
        const QStringList pieces
            = words + QStringList{ u"["_s,      u"]"_s,      u"="_s,           u" "_s,  u"\t"_s,
                                   u"\n"_s,     u"\r\n"_s,   u"#"_s,           u";"_s,  u"\u00a0"_s,
                                   u"\u2028"_s, u"\u0085"_s, u"\v"_s,          u"%%"_s, u"'"_s,
                                   u"\n["_s,    u"]\n"_s,    u"\nproject = "_s };
        QString text;
        for (int i = random.below(30); i > 0; --i) {
            text += random.oneOf(pieces);
        }
        return text;
    }

    std::optional<QString> maybeWord()
    {
        return random.oneIn(3) ? std::nullopt : std::optional(random.oneOf(words));
    }

    /// Writes `properties` as gcloud does, in one of the orders that mean the same.
    void writeProperties(const QString &name, const ConfigProperties &properties)
    {
        const auto line = [](const char *key, const std::optional<QString> &value) {
            return value ? QString::fromUtf8(key) + u" = "_s + *value + u'\n' : QString();
        };
        QStringList sections{
            u"[core]\n"_s + line("account", properties.account)
                + line("project", properties.project),
            u"[compute]\n"_s + line("region", properties.region) + line("zone", properties.zone),
            u"[auth]\n"_s
                + line("impersonate_service_account", properties.impersonateServiceAccount),
            u"# a comment\n"_s
        };
        std::shuffle(sections.begin(), sections.end(),
                     std::mt19937(static_cast<unsigned>(random.below(1000))));
        write(name, sections.join(u'\n'));
    }

    void writeAccounts(const QStringList &emails) const
    {
        QFile::remove(directory.filePath(u"credentials.db"_s));
        sqlite3 *database = nullptr;
        ASSERT_EQ(sqlite3_open(qUtf8Printable(directory.filePath(u"credentials.db"_s)), &database),
                  SQLITE_OK);
        QByteArray sql("PRAGMA synchronous = OFF; BEGIN;"
                       "CREATE TABLE credentials (account_id TEXT PRIMARY KEY, value BLOB);");
        for (const QString &email : emails) {
            sql += "INSERT OR IGNORE INTO credentials VALUES ('" + email.toUtf8() + "', x'00');";
        }
        EXPECT_EQ(sqlite3_exec(database, (sql + "COMMIT;").constData(), nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(database);
    }

    QString randomName()
    {
        return random.oneOf(QStringList{ u"default"_s, u"work"_s, u"a"_s, u"B"_s, u"größer"_s });
    }
};

TEST_F(ConfigDirectoryTest, PropertyTextsReadTheSameTwice)
{
    const int texts = repetitions(20000);
    for (int i = 0; i < texts; ++i) {
        const QString text = randomPropertyText();

        ASSERT_EQ(sorted(INIParser::parse(text)), readAgain(text)) << text.toStdString();
    }
    std::cout << texts << " texts\n";
}

TEST_F(ConfigDirectoryTest, DirectoriesReadAsTheyWereWritten)
{
    const int directories = repetitions(300);
    for (int i = 0; i < directories; ++i) {
        QDir(directory.filePath(u"configurations"_s)).removeRecursively();
        QDir(directory.path()).mkdir(u"configurations"_s);
        QMap<QString, ConfigProperties> expected;
        for (int count = random.below(6); count > 0; --count) {
            const QString name = randomName();
            expected[name] = { maybeWord(), maybeWord(), maybeWord(), maybeWord(), maybeWord() };
            writeProperties(u"configurations/config_"_s + name, expected[name]);
        }
        const QString active = randomName();
        write(u"active_config"_s, random.oneIn(2) ? active : u" "_s + active + u"\n"_s);
        QSet<QString> accounts;
        for (int count = random.below(5); count > 0; --count) {
            accounts.insert(u"user%1@x"_s.arg(random.below(20)));
        }
        writeAccounts(accounts.values());
        const ADCType type = random.oneOf(allCases<ADCType>());
        const auto quotaProject = maybeWord();
        QJsonObject adc{ { u"type"_s, rawValue(type) } };
        if (quotaProject) {
            adc[u"quota_project_id"_s] = *quotaProject;
        }
        write(u"application_default_credentials.json"_s,
              QString::fromUtf8(QJsonDocument(adc).toJson()));

        ASSERT_EQ(reader.readActiveConfigName(), active);
        ASSERT_EQ(reader.readAllConfigNames(), expected.keys());
        for (auto entry = expected.begin(); entry != expected.end(); ++entry) {
            ASSERT_EQ(reader.readConfigProperties(entry.key()), entry.value())
                << entry.key().toStdString();
        }
        QStringList emails = accounts.values();
        emails.sort();
        ASSERT_EQ(reader.readAuthenticatedAccounts(), emails);
        ASSERT_EQ(reader.readADCState(), (ADCState{ type, quotaProject, std::nullopt, true }));
    }
    std::cout << directories << " directories\n";
}

} // namespace torvi

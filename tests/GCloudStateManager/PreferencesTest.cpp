// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/Preferences.h"

#include "tests/support/ForkedProcess.h"
#include "tests/support/PreferencesFolder.h"

#include <QScopeGuard>

#include <gtest/gtest.h>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kKey = u"com.veldra.test"_s;
const QString kOther = u"com.veldra.other"_s;

} // namespace

class PreferencesTest : public testing::Test
{
protected:
    PreferencesFolder folder;

    /// Preferences in which kKey stands in the file with that text.
    [[nodiscard]] std::shared_ptr<Preferences> holding(const QByteArray &stored) const
    {
        return folder.holding(kKey.toLatin1() + '=' + stored);
    }
};

TEST_F(PreferencesTest, MissingKeysHaveNeutralValues)
{
    const auto preferences = folder.open();

    EXPECT_EQ(preferences->strings(kKey), QStringList());
    EXPECT_EQ(preferences->data(kKey), std::nullopt);
    EXPECT_EQ(preferences->string(kKey), std::nullopt);
    EXPECT_FALSE(preferences->boolean(kKey));
    EXPECT_EQ(preferences->integer(kKey), 0);
}

class PreferencesStringsTest : public PreferencesTest,
                               public testing::WithParamInterface<QStringList>
{
};

TEST_P(PreferencesStringsTest, AreReadAsTheyWereWritten)
{
    const auto preferences = folder.open();

    preferences->setStrings(kKey, GetParam());

    EXPECT_EQ(preferences->strings(kKey), GetParam());
    EXPECT_EQ(folder.reopened()->strings(kKey), GetParam());
}

INSTANTIATE_TEST_SUITE_P(, PreferencesStringsTest,
                         testing::Values(QStringList{}, QStringList{ u""_s },
                                         QStringList{ u""_s, u""_s }, QStringList{ u"a"_s },
                                         QStringList{ u"a"_s, u"b"_s },
                                         QStringList{ u"a, b"_s, u"c;d"_s, u"e=f"_s },
                                         QStringList{ u" a "_s, u"\"b\""_s, u"\\c"_s, u"d\n\te"_s },
                                         QStringList{ u"@ByteArray(a)"_s, u"@b"_s },
                                         QStringList{ u"@Invalid()"_s },
                                         QStringList{ u"grün"_s, u"日本"_s, u"\U0001F600"_s }));

TEST_F(PreferencesTest, ATextIsAListOfOne)
{
    EXPECT_EQ(holding("a b")->strings(kKey), QStringList{ u"a b"_s });
}

struct StoredText
{
    const char *name;
    QByteArray text;
};

void PrintTo(const StoredText &stored, std::ostream *out)
{
    *out << stored.text.constData();
}

std::string rowName(const testing::TestParamInfo<StoredText> &row)
{
    return row.param.name;
}

class PreferencesOddValueTest : public PreferencesTest,
                                public testing::WithParamInterface<StoredText>
{
};

TEST_P(PreferencesOddValueTest, CountsAsMissing)
{
    const auto preferences = holding(GetParam().text);

    EXPECT_EQ(preferences->strings(kKey), QStringList());
    EXPECT_EQ(preferences->data(kKey), std::nullopt);
    EXPECT_EQ(preferences->string(kKey), std::nullopt);
    EXPECT_FALSE(preferences->boolean(kKey));
    EXPECT_EQ(preferences->integer(kKey), 0);
}

TEST_P(PreferencesOddValueTest, DoesNotKeepOthersFromBeingWritten)
{
    const auto preferences = holding(GetParam().text);

    preferences->setString(kOther, u"a"_s);

    EXPECT_EQ(folder.reopened()->string(kOther), u"a"_s);
}

INSTANTIATE_TEST_SUITE_P(
    , PreferencesOddValueTest,
    testing::Values(StoredText{ "Invalid", "@Invalid()" }, StoredText{ "Point", "@Point(1 2)" },
                    StoredText{ "EmptyVariant", "@Variant()" },
                    StoredText{ "Integer", R"(@Variant(\0\0\0\x2\0\0\0\x5))" },
                    StoredText{ "Boolean", R"(@Variant(\0\0\0\x1\x1))" },
                    StoredText{ "Map", R"(@Variant(\0\0\0\b\0\0\0\0))" },
                    StoredText{ "MapCutShort", R"(@Variant(\0\0\0\b\xff\xff\xff\xff))" },
                    StoredText{ "Pointer", R"(@Variant(\0\0\0\x1f\x1\x1\x1\x1\x1\x1\x1\x1))" },
                    StoredText{ "UnknownType", R"(@Variant(\xff\xff\xff\xff))" },
                    StoredText{ "UserType", R"(@Variant(\0\0\0\x7f\0\0\0\x4int\0\0\0\0\x5))" },
                    StoredText{ "Date", R"(@DateTime(\xff\xff\xff\xff))" },
                    StoredText{ "ListWithBytes", "a, @ByteArray(b)" },
                    StoredText{ "ListWithInvalid", "a, @Invalid()" }),
    rowName);

TEST_F(PreferencesTest, AListOfPretendedLengthIsEmptyWhenMemoryIsShort)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "sanitizers end the process when memory is short";
#endif
    for (const QByteArray list : { R"(@Variant(\0\0\0\v\xff\xff\xff\xff))",
                                   R"(@Variant(\0\0\0\t\xff\xff\xff\xf0\0\0\0\x2))" }) {
        const int code = exitCodeOf([&] {
            const rlimit limit{ .rlim_cur = 1'000'000'000, .rlim_max = 1'000'000'000 };
            if (::setrlimit(RLIMIT_AS, &limit) != 0) {
                return 1;
            }
            const auto preferences = holding(list);
            preferences->setString(kOther, u"a"_s);
            return preferences->strings(kKey).isEmpty() ? 0 : 2;
        });

        EXPECT_EQ(code, 0);
    }
}

TEST_F(PreferencesTest, DataIsReadAsItWasWritten)
{
    QByteArray bytes;
    for (int byte = 0; byte <= 0xff; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    const auto preferences = folder.open();

    preferences->setData(kKey, bytes);

    EXPECT_EQ(preferences->data(kKey), bytes);
    EXPECT_EQ(folder.reopened()->data(kKey), bytes);
    EXPECT_EQ(folder.reopened()->string(kKey), std::nullopt);
}

TEST_F(PreferencesTest, EmptyDataIsNotAbsent)
{
    folder.open()->setData(kKey, QByteArray(""));

    EXPECT_EQ(folder.reopened()->data(kKey), QByteArray(""));
}

TEST_F(PreferencesTest, ATextIsNoData)
{
    EXPECT_EQ(holding("{}")->data(kKey), std::nullopt);
}

TEST_F(PreferencesTest, AListIsNoText)
{
    EXPECT_EQ(holding("/opt, /usr")->string(kKey), std::nullopt);
}

TEST_F(PreferencesTest, AnEmptyTextIsNotAbsent)
{
    folder.open()->setString(kKey, QString());

    EXPECT_EQ(folder.reopened()->string(kKey), QString());
}

TEST_F(PreferencesTest, BytesThatAreNoUtf8DoNoHarmToOthers)
{
    const auto preferences = holding("caf\xe9\xff\n" + kOther.toLatin1() + "=a");

    EXPECT_EQ(preferences->string(kOther), u"a"_s);
}

class PreferencesTrueTest : public PreferencesTest, public testing::WithParamInterface<StoredText>
{
};

TEST_P(PreferencesTrueTest, IsTrue)
{
    EXPECT_TRUE(holding(GetParam().text)->boolean(kKey));
}

INSTANTIATE_TEST_SUITE_P(, PreferencesTrueTest,
                         testing::Values(StoredText{ "Word", "true" }, StoredText{ "One", "1" },
                                         StoredText{ "Quoted", "\"true\"" }),
                         rowName);

class PreferencesFalseTest : public PreferencesTest, public testing::WithParamInterface<StoredText>
{
};

TEST_P(PreferencesFalseTest, IsFalse)
{
    EXPECT_FALSE(holding(GetParam().text)->boolean(kKey));
}

INSTANTIATE_TEST_SUITE_P(, PreferencesFalseTest,
                         testing::Values(StoredText{ "Word", "false" }, StoredText{ "Zero", "0" },
                                         StoredText{ "Two", "2" }, StoredText{ "Capital", "True" },
                                         StoredText{ "Yes", "YES" }, StoredText{ "Empty", "" },
                                         StoredText{ "Spaces", "\" true\"" },
                                         StoredText{ "List", "true, true" },
                                         StoredText{ "Bytes", "@ByteArray(true)" }),
                         rowName);

TEST_F(PreferencesTest, BooleansAreReadAsTheyWereWritten)
{
    const auto preferences = folder.open();

    preferences->setBoolean(kKey, true);
    EXPECT_TRUE(preferences->boolean(kKey));
    EXPECT_TRUE(folder.reopened()->boolean(kKey));
    preferences->setBoolean(kKey, false);
    EXPECT_FALSE(preferences->boolean(kKey));
    EXPECT_FALSE(folder.reopened()->boolean(kKey));
}

TEST_F(PreferencesTest, IntegersAreReadAsTheyWereWritten)
{
    const auto preferences = folder.open();

    for (const qint64 value : { std::numeric_limits<qint64>::min(), qint64{ -1 }, qint64{ 5 },
                                std::numeric_limits<qint64>::max() }) {
        preferences->setInteger(kKey, value);
        EXPECT_EQ(preferences->integer(kKey), value);
        EXPECT_EQ(folder.reopened()->integer(kKey), value);
    }
}

TEST_F(PreferencesTest, WhatIsNoIntegerIsZero)
{
    for (const QByteArray text :
         { "", "five", "1.5", "0x5", "5 6", "5, 6", "@ByteArray(5)", "9223372036854775808" }) {
        PreferencesFolder other;
        EXPECT_EQ(other.holding(kKey.toLatin1() + '=' + text)->integer(kKey), 0)
            << text.constData();
    }
}

TEST_F(PreferencesTest, RemovesAKey)
{
    const auto preferences = folder.open();
    preferences->setString(kKey, u"a"_s);
    preferences->setString(kOther, u"b"_s);

    preferences->remove(kKey);

    EXPECT_EQ(preferences->string(kKey), std::nullopt);
    EXPECT_EQ(folder.reopened()->string(kKey), std::nullopt);
    EXPECT_EQ(folder.reopened()->string(kOther), u"b"_s);
}

TEST_F(PreferencesTest, KeepsWhatItDoesNotKnow)
{
    const auto preferences = folder.holding("unknown=1\n[Group]\nkey=a, b");

    preferences->setString(kKey, u"a"_s);

    EXPECT_EQ(folder.stored("unknown"), "1");
    EXPECT_EQ(folder.stored("key"), "a, b");
}

TEST_F(PreferencesTest, SurvivesAFileThatIsNoPreferencesFile)
{
    QByteArray noise;
    for (int i = 0; i < 20'000; ++i) {
        noise.append(static_cast<char>(i % 251 * (i % 241)));
    }
    const auto preferences = folder.holding(noise);
    EXPECT_EQ(preferences->string(kKey), std::nullopt);

    preferences->setString(kKey, u"a"_s);

    EXPECT_EQ(folder.reopened()->string(kKey), u"a"_s);
}

TEST_F(PreferencesTest, WriteFailuresKeepTheOldFileAndTheNextWriteMakesUpForThem)
{
    const auto preferences = folder.open();
    preferences->setString(kKey, u"old"_s);
    const auto limitFileSizes = [](rlim_t bytes) {
        const rlimit limit{ .rlim_cur = bytes, .rlim_max = RLIM_INFINITY };
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
    };

    const int code = exitCodeOf([&] {
        std::signal(SIGXFSZ, SIG_IGN); // so that writing fails, as it does on a full disk
        if (!limitFileSizes(100)) {
            return 1;
        }
        preferences->setString(kOther, QString(1000, u'x'));
        if (folder.stored(kKey.toLatin1()) != "old") {
            return 2;
        }
        if (!limitFileSizes(RLIM_INFINITY)) {
            return 3;
        }
        preferences->setString(kKey, u"new"_s);
        return 0;
    });

    EXPECT_EQ(code, 0);
    EXPECT_EQ(folder.reopened()->string(kKey), u"new"_s);
    EXPECT_EQ(folder.reopened()->string(kOther), QString(1000, u'x'));
}

TEST_F(PreferencesTest, TwoProcessesKeepEachOthersKeys)
{
    constexpr int kWrites = 100;
    const auto write = [this](const QString &key) {
        const auto preferences = folder.open();
        for (int value = 1; value <= kWrites; ++value) {
            preferences->setInteger(key, value);
        }
        return 0;
    };

    ForkedProcess other([&] { return write(kOther); });
    write(kKey);
    EXPECT_EQ(other.exitCode(), 0);

    EXPECT_EQ(folder.reopened()->integer(kKey), kWrites);
    EXPECT_EQ(folder.reopened()->integer(kOther), kWrites);
}

TEST_F(PreferencesTest, WhatCouldNotBeWrittenReadsAsIfItHadBeen)
{
    folder.open()->setString(kKey, u"old"_s);

    const int code = exitCodeOf([&] {
        const rlimit none{ .rlim_cur = 0, .rlim_max = 0 };
        std::signal(SIGXFSZ, SIG_IGN);
        const auto preferences = folder.open();
        if (::setrlimit(RLIMIT_FSIZE, &none) != 0) {
            return 1;
        }
        preferences->setString(kOther, u"new"_s);
        preferences->remove(kKey);
        return preferences->string(kOther) == u"new"_s && !preferences->string(kKey) ? 0 : 2;
    });

    EXPECT_EQ(code, 0);
    EXPECT_EQ(folder.reopened()->string(kKey), u"old"_s);
}

/// The environment is that of the test program, restored afterwards.
class PreferencesPathTest : public testing::Test
{
protected:
    PreferencesPathTest()
    {
        qputenv("HOME", "/home/somebody");
        qunsetenv("XDG_CONFIG_HOME");
    }

    ~PreferencesPathTest() override
    {
        qputenv("HOME", m_home);
        qunsetenv("XDG_CONFIG_HOME");
    }

private:
    const QByteArray m_home = qgetenv("HOME");
};

TEST_F(PreferencesPathTest, IsBelowTheHomeDirectory)
{
    EXPECT_EQ(Preferences::defaultPath(), u"/home/somebody/.config/torvi/preferences.ini"_s);
}

TEST_F(PreferencesPathTest, IsInTheXdgConfigurationFolder)
{
    qputenv("XDG_CONFIG_HOME", "/somewhere/else");

    EXPECT_EQ(Preferences::defaultPath(), u"/somewhere/else/torvi/preferences.ini"_s);
}

TEST_F(PreferencesPathTest, IgnoresAnXdgFolderThatIsNotAbsolute)
{
    for (const char *folder : { "", "relative", "./relative", "~/config" }) {
        qputenv("XDG_CONFIG_HOME", folder);

        EXPECT_EQ(Preferences::defaultPath(), u"/home/somebody/.config/torvi/preferences.ini"_s);
    }
}

TEST_F(PreferencesPathTest, IsAbsoluteWithoutAHomeVariable)
{
    qunsetenv("HOME");

    EXPECT_TRUE(Preferences::defaultPath().startsWith(u'/'));
    EXPECT_FALSE(Preferences::defaultPath().startsWith(u"/.config"));
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/JSONDocument.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace torvi {

using simdjson::dom::element_type;

namespace {

/// The text of the error that `utf8` raises; empty when it raises none.
std::string errorOf(const QByteArray &utf8)
{
    try {
        const JSONDocument document(utf8);
    } catch (const std::runtime_error &error) {
        return error.what();
    }
    return {};
}

} // namespace

struct WellFormedEntry
{
    const char *name;
    QByteArray text;
    element_type type;
};

class JSONDocumentTypeTest : public testing::TestWithParam<WellFormedEntry>
{
};

TEST_P(JSONDocumentTypeTest, TakesAnyValueAtTheTopLevel)
{
    const JSONDocument document(GetParam().text);

    EXPECT_EQ(document.root().type(), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(
    Values, JSONDocumentTypeTest,
    testing::Values(
        WellFormedEntry{ "object", " {} \n"_qba, element_type::OBJECT },
        WellFormedEntry{ "array", "[]"_qba, element_type::ARRAY },
        WellFormedEntry{ "string", "\"a\""_qba, element_type::STRING },
        WellFormedEntry{ "number", "12"_qba, element_type::INT64 },
        WellFormedEntry{ "boolean", "true"_qba, element_type::BOOL },
        WellFormedEntry{ "null", "null"_qba, element_type::NULL_VALUE },
        WellFormedEntry{ "behindAByteOrderMark", "\xEF\xBB\xBF[]"_qba, element_type::ARRAY },
        WellFormedEntry{ "numberBeyond64Bits", "18446744073709551616"_qba, element_type::DOUBLE },
        WellFormedEntry{ "numberBeyond64BitsInAnObject", "{\"a\": [-98765432109876543210]}"_qba,
                         element_type::OBJECT }),
    [](const auto &entry) { return entry.param.name; });

TEST(JSONDocumentTest, LeavesTheTextOfItsCallerAlone)
{
    const QByteArray text = "[1]"_qba;

    const JSONDocument document(text);

    EXPECT_EQ(text, "[1]");
}

TEST(JSONDocumentTest, KeepsTheOtherValuesBesideANumberBeyond64Bits)
{
    const JSONDocument document(
        R"({"a": 123456789012345678901234567890, "b": 1.123456789012345678901,
        "c": "\": 123456789012345678901234567890", "d": -1, "e": 12345678901234567890123e-3})"_qba);

    EXPECT_EQ(document.root()["a"].get_double().value(), 123456789012345678901234567890.0);
    EXPECT_EQ(document.root()["b"].get_double().value(), 1.123456789012345678901);
    EXPECT_EQ(document.root()["c"].get_string().value(), "\": 123456789012345678901234567890");
    EXPECT_EQ(document.root()["d"].get_int64().value(), -1);
    EXPECT_EQ(document.root()["e"].get_double().value(), 12345678901234567890.123);
}

struct MalformedEntry
{
    const char *name;
    QByteArray text;
    std::string error;
};

class JSONDocumentErrorTest : public testing::TestWithParam<MalformedEntry>
{
};

TEST_P(JSONDocumentErrorTest, SaysWhatIsWrongAndWhere)
{
    EXPECT_EQ(errorOf(GetParam().text), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, JSONDocumentErrorTest,
    testing::Values(
        MalformedEntry{ "empty", ""_qba, "the text is empty" },
        MalformedEntry{ "blank", " \n\t"_qba, "the text is empty" },
        MalformedEntry{ "byteOrderMarkAlone", "\xEF\xBB\xBF"_qba, "the text is empty" },
        MalformedEntry{ "textBehindTheEnd", "[]\n x"_qba,
                        "garbage at the end of the document at line 2, column 2" },
        MalformedEntry{ "secondValue", "[] []"_qba,
                        "garbage at the end of the document at line 1, column 4" },
        MalformedEntry{ "unclosedArray", "[1,\n2"_qba,
                        "invalid termination by number at line 2, column 2" },
        MalformedEntry{ "unclosedObject", "{\"a\": 1"_qba,
                        "invalid termination by number at line 1, column 8" },
        MalformedEntry{ "unclosedString", "[\"a]"_qba, "unterminated string at line 1, column 5" },
        MalformedEntry{ "missingComma", "[\n  1\n  2\n]"_qba,
                        "missing value separator at line 4, column 1" },
        MalformedEntry{ "missingColon", "{\"a\" 1}"_qba,
                        "missing name separator at line 1, column 7" },
        MalformedEntry{ "trailingComma", "[1,]"_qba,
                        "object is missing after a comma at line 1, column 5" },
        MalformedEntry{ "trailingCommaInAnObject", "{\"a\": 1,}"_qba,
                        "object is missing after a comma at line 1, column 10" },
        MalformedEntry{ "unquotedKey", "{a: 1}"_qba, "unterminated object at line 1, column 3" },
        MalformedEntry{ "singleQuotes", "['a']"_qba, "illegal number at line 1, column 2" },
        MalformedEntry{ "notANumber", "[NaN]"_qba, "illegal number at line 1, column 2" },
        MalformedEntry{ "notANumberAtTheTopLevel", "NaN"_qba, "illegal value at line 1, column 2" },
        MalformedEntry{ "infinity", "[-Infinity]"_qba, "illegal number at line 1, column 3" },
        MalformedEntry{ "leadingZero", "[01]"_qba, "missing value separator at line 1, column 4" },
        MalformedEntry{ "leadingPlus", "[+1]"_qba, "illegal number at line 1, column 2" },
        MalformedEntry{ "doubleOutOfRange", "[1e400]"_qba, "illegal number at line 1, column 7" },
        MalformedEntry{ "halfALiteral", "[tru]"_qba, "illegal value at line 1, column 3" },
        MalformedEntry{ "comment", "[] // c"_qba,
                        "garbage at the end of the document at line 1, column 4" },
        MalformedEntry{ "unknownEscape", "[\"\xC3\xA9\",\n \"a\\q\"]"_qba,
                        "invalid string at line 2, column 4" },
        MalformedEntry{ "shortEscape", "[\"\\u12\"]"_qba,
                        "invalid escape sequence at line 1, column 7" },
        MalformedEntry{ "highSurrogateAlone", "[\"\\u00e9\\ud83d\\u0041\"]"_qba,
                        "invalid string at line 1, column 9" },
        MalformedEntry{ "highSurrogateAtTheEnd", "[\"\\ud83d\"]"_qba,
                        "invalid string at line 1, column 3" },
        MalformedEntry{ "lowSurrogateAlone", "[\"\\ud83d\\ude00\\ude00\"]"_qba,
                        "invalid string at line 1, column 15" },
        MalformedEntry{ "lineBreakInAString", "[\"\xC3\xA9\n\"]"_qba,
                        "invalid string at line 1, column 4" },
        MalformedEntry{ "nul", "[\0]"_qba, "illegal number at line 1, column 2" },
        MalformedEntry{ "latin1", "[\"caf\xE9\"]"_qba, "invalid UTF8 string at line 1, column 6" },
        MalformedEntry{ "errorPage", "<html>\n</html>\n"_qba, "illegal value at line 1, column 2" },
        MalformedEntry{ "tooDeep", QByteArray(2000, '[') + QByteArray(2000, ']'),
                        "too deeply nested document at line 1, column 1026" }),
    [](const auto &entry) { return entry.param.name; });

TEST(JSONDocumentTest, NoBeginningOfAnArrayIsWellFormed)
{
    const QByteArray text
        = R"([{"name": "a\u00e9\"", "is_active": true, "n": [null, -1.5e3]}, {}])"_qba;
    ASSERT_EQ(errorOf(text), "");

    for (qsizetype length = 0; length < text.size(); ++length) {
        EXPECT_NE(errorOf(text.first(length)), "") << length;
    }
}

} // namespace torvi

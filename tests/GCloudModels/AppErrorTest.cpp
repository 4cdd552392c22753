// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudModels/AppError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

TEST(AppErrorTest, CommandFailureKeepsTheLineBreakOfStandardError)
{
    const AppError error = AppError::commandFailed(1, u"boom\n"_s);

    EXPECT_EQ(error.errorDescription(), u"gcloud command failed (exit 1): boom\n");
}

TEST(AppErrorTest, CommandFailureWithoutTextEndsWithTheBlank)
{
    const AppError error = AppError::commandFailed(2, QString());

    EXPECT_EQ(error.errorDescription(), u"gcloud command failed (exit 2): ");
}

TEST(AppErrorTest, NegativeExitCodeKeepsItsSign)
{
    const AppError error = AppError::commandFailed(-1, u"x"_s);

    EXPECT_EQ(error.errorDescription(), u"gcloud command failed (exit -1): x");
}

TEST(AppErrorTest, UnreadableFileNamesItsPath)
{
    const AppError error = AppError::configFileUnreadable(u"/a b/c"_s);

    EXPECT_EQ(error.errorDescription(), u"Could not read config file: /a b/c");
}

TEST(AppErrorTest, ParseErrorWithEmptyDetailEndsWithTheBlank)
{
    const AppError error = AppError::parseError(QString());

    EXPECT_EQ(error.errorDescription(), u"Failed to parse gcloud output: ");
}

TEST(AppErrorTest, UnknownIsItsMessageAlsoWhenEmpty)
{
    EXPECT_EQ(AppError::unknown(u"as it is"_s).errorDescription(), u"as it is");
    EXPECT_EQ(AppError::unknown(QString()).errorDescription(), u"");
}

TEST(AppErrorTest, MissingGcloudAsksForTheSdk)
{
    const AppError error = AppError::gcloudNotFound();

    EXPECT_EQ(error.errorDescription(),
              u"gcloud CLI not found. Please install the Google Cloud SDK.");
}

TEST(AppErrorTest, DifferentCasesWithTheSameTextAreNotEqual)
{
    EXPECT_NE(AppError::configFileUnreadable(u"t"_s), AppError::parseError(u"t"_s));
    EXPECT_EQ(AppError::parseError(u"t"_s), AppError::parseError(u"t"_s));
}

TEST(AppErrorTest, CasesWithDifferentPayloadsAreNotEqual)
{
    EXPECT_NE(AppError::commandFailed(1, u"t"_s), AppError::commandFailed(2, u"t"_s));
    EXPECT_NE(AppError::commandFailed(1, u"t"_s), AppError::commandFailed(1, u"u"_s));
}

TEST(AppErrorTest, IsAStandardExceptionWhoseTextIsTheDescriptionInUtf8)
{
    const AppError error = AppError::unknown(u"größer 東京"_s);

    const std::exception &exception = error;

    EXPECT_STREQ(exception.what(), "größer 東京");
}

} // namespace torvi

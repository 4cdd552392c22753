// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/GCloudTest.h"

using namespace Qt::StringLiterals;

namespace torvi {

// These tests may never reach the accounts of whoever runs them.
class GCloudGuardTest : public GCloudTest, public testing::WithParamInterface<const char *>
{
};

TEST_P(GCloudGuardTest, RefusesToRunWithoutTheVariable)
{
    environment.remove(QString::fromLatin1(GetParam()));

    EXPECT_TRUE(
        exitedWith(70, Program::run(u"/bin/sh"_s, { gcloudPath, u"version"_s }, environment)));
}

INSTANTIATE_TEST_SUITE_P(, GCloudGuardTest,
                         testing::Values("HOME", "CLOUDSDK_CONFIG", "HTTPS_PROXY",
                                         "REQUESTS_CA_BUNDLE"),
                         [](const auto &row) { return std::string(row.param); });

} // namespace torvi

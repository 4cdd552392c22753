// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "tests/gcloud/SignedInDirectory.h"

#include "tests/gcloud/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

// The one that makes what the other tests of this program copy.
TEST(SignedInDirectoryTest, TwoUsersAndAServiceAccountSignIn)
{
    if (const auto obstacle = SignedInDirectory::obstacle()) {
        GTEST_SKIP() << obstacle->toStdString();
    }
    if (const QString path = qEnvironmentVariable("TORVI_SIGNED_IN_DIRECTORY"); !path.isEmpty()) {
        SignedInDirectory::create(path);
    }
    const SignedInDirectory &directory = SignedInDirectory::shared();
    QProcessEnvironment environment = scratchEnvironment(directory.file({}));
    environment.insert(u"CLOUDSDK_CONFIG"_s, directory.file(u"config"_s));

    const Ended accounts = Program::run(
        u"gcloud"_s, { u"auth"_s, u"list"_s, u"--format=value(account,status)"_s }, environment);

    EXPECT_EQ(accounts.output,
              "dana@example.com\t*\n"
              "deployer@orchard-prod-5150.iam.gserviceaccount.com\t\n"
              "sam@labs.example.com\t\n");
}

} // namespace torvi

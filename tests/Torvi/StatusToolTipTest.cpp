// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/StatusToolTip.h"

#include "tests/support/FakeStatusItem.h"
#include "tests/support/StateManagerFixture.h"

using namespace Qt::StringLiterals;

namespace torvi {

class StatusToolTipTest : public StateManagerFixture
{
protected:
    FakeStatusItem item;
    StatusToolTip toolTip{ item, *manager, QProcessEnvironment() };
};

TEST_F(StatusToolTipTest, ShowsTheEmptyContextAtFirst)
{
    EXPECT_EQ(item.toolTipTitle, u"Torvi"_s);
    EXPECT_EQ(item.toolTipText,
              u"Project: None\nAccount: None\nConfiguration: None\nADC: Not configured"_s);
}

TEST_F(StatusToolTipTest, FollowsTheWholeContextAtOnce)
{
    reader->properties[u"default"_s] = { u"labs"_s, u"ada@example.com"_s, std::nullopt,
                                         std::nullopt, u"robot@labs.iam.gserviceaccount.com"_s };
    reader->accounts = { u"ada@example.com"_s };
    reader->adcState = { ADCType::impersonatedServiceAccount, std::nullopt, std::nullopt, true };

    manager->reloadFromFiles();

    EXPECT_EQ(item.toolTipTitle, u"Torvi – labs"_s);
    EXPECT_EQ(item.toolTipText,
              u"Project: labs\nAccount: ada@example.com\nConfiguration: default\n"
              "Impersonating: robot@labs.iam.gserviceaccount.com\nADC: Impersonated SA"_s);
}

TEST_F(StatusToolTipTest, EndsWithWhatTheEnvironmentOverridesAsLongAsItDoes)
{
    QProcessEnvironment environment;
    environment.insert(u"CLOUDSDK_CORE_PROJECT"_s, u"labs"_s);
    const StatusToolTip overridden(item, *manager, environment);
    EXPECT_EQ(item.toolTipText.section(u'\n', -1),
              u"CLOUDSDK_CORE_PROJECT makes gcloud use the project \"labs\"."_s);

    reader->properties[u"default"_s].project = u"labs"_s;
    manager->reloadFromFiles();

    EXPECT_EQ(item.toolTipText.section(u'\n', -1), u"ADC: Not configured"_s);
}

TEST_F(StatusToolTipTest, NamesEachKindOfApplicationDefaultCredentials)
{
    const QList<std::pair<ADCType, QString>> labels{
        { ADCType::userCredentials, u"ADC: User credentials"_s },
        { ADCType::serviceAccountKey, u"ADC: Service account key"_s },
        { ADCType::impersonatedServiceAccount, u"ADC: Impersonated SA"_s },
        { ADCType::none, u"ADC: Not configured"_s },
    };
    for (const auto &[type, line] : labels) {
        reader->adcState.type = type;

        manager->reloadFromFiles();

        EXPECT_EQ(item.toolTipText.section(u'\n', -1), line);
    }
}

} // namespace torvi

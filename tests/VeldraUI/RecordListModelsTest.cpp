// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/SavedAccountListModel.h"
#include "tests/VeldraUI/AuthStateFixture.h"
#include "tests/VeldraUI/RowMirror.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace torvi {

class AccountListModelTest : public AuthStateFixture
{
};

TEST_F(AccountListModelTest, ListsTheAccountsInTheManagersOrder)
{
    reader->properties[u"default"_s].account = u"b@x"_s;
    reader->accounts = { u"c@p.iam.gserviceaccount.com"_s, u"b@x"_s, u"a@x"_s };
    manager->reloadFromFiles();

    const AccountListModel &accounts = *state->accounts();
    ASSERT_EQ(accounts.rowCount(), 3);
    const auto at = [&](int row, int role) { return accounts.index(row).data(role); };
    EXPECT_EQ(at(0, AccountListModel::EmailRole), u"c@p.iam.gserviceaccount.com"_s);
    EXPECT_EQ(at(0, AccountListModel::IsServiceAccountRole), true);
    EXPECT_EQ(at(0, AccountListModel::IsActiveRole), false);
    EXPECT_EQ(at(1, AccountListModel::EmailRole), u"b@x"_s);
    EXPECT_EQ(at(1, AccountListModel::IsServiceAccountRole), false);
    EXPECT_EQ(at(1, AccountListModel::IsActiveRole), true);
    EXPECT_FALSE(at(1, Qt::DisplayRole).isValid());
}

TEST_F(AccountListModelTest, TellsOnlyWhatChanged)
{
    reader->accounts = { u"a@x"_s, u"b@x"_s, u"c@x"_s };
    reader->properties[u"default"_s].account = u"a@x"_s;
    manager->reloadFromFiles();
    RowMirror mirror(*state->accounts(), AccountListModel::EmailRole);

    reader->properties[u"default"_s].account = u"b@x"_s;
    manager->reloadFromFiles();
    EXPECT_EQ(mirror.messages, QStringList{ u"change 0-1"_s });

    mirror.messages.clear();
    reader->accounts = { u"c@x"_s, u"a@x"_s, u"b@x"_s, u"d@x"_s };
    manager->reloadFromFiles();
    EXPECT_EQ(mirror.messages, (QStringList{ u"move 2 to 0"_s, u"insert 3"_s }));
    EXPECT_EQ(mirror.rows, reader->accounts);

    mirror.messages.clear();
    reader->accounts = { u"a@x"_s };
    manager->reloadFromFiles();
    EXPECT_EQ(mirror.messages, (QStringList{ u"remove 2-3"_s, u"remove 0"_s }));
    EXPECT_EQ(mirror.rows, reader->accounts);
}

class ConfigurationListModelTest : public AuthStateFixture
{
};

TEST_F(ConfigurationListModelTest, TellsAbsentAccountsAndRegionsFromEmptyOnes)
{
    reader->names = { u"default"_s, u"empty"_s, u"labs"_s };
    reader->properties[u"empty"_s].account = u""_s;
    reader->properties[u"empty"_s].region = u""_s;
    reader->properties[u"labs"_s].account = u"a@x"_s;
    reader->properties[u"labs"_s].region = u"europe-west1"_s;
    manager->reloadFromFiles();

    const ConfigurationListModel &configurations = *state->configurations();
    const auto at = [&](int row, int role) { return configurations.index(row).data(role); };
    EXPECT_EQ(at(0, ConfigurationListModel::HasAccountRole), false);
    EXPECT_EQ(at(0, ConfigurationListModel::HasRegionRole), false);
    EXPECT_EQ(at(1, ConfigurationListModel::HasAccountRole), true);
    EXPECT_EQ(at(1, ConfigurationListModel::AccountRole), u""_s);
    EXPECT_EQ(at(1, ConfigurationListModel::HasRegionRole), true);
    EXPECT_EQ(at(1, ConfigurationListModel::RegionRole), u""_s);
    EXPECT_EQ(at(2, ConfigurationListModel::AccountRole), u"a@x"_s);
    EXPECT_EQ(at(2, ConfigurationListModel::RegionRole), u"europe-west1"_s);
}

TEST_F(ConfigurationListModelTest, TellsAnAbsentProjectFromAnEmptyOne)
{
    reader->names = { u"default"_s, u"empty"_s, u"labs"_s };
    reader->properties[u"empty"_s].project = u""_s;
    reader->properties[u"labs"_s].project = u"p1"_s;
    reader->activeName = u"labs"_s;
    manager->reloadFromFiles();

    const ConfigurationListModel &configurations = *state->configurations();
    ASSERT_EQ(configurations.rowCount(), 3);
    const auto at = [&](int row, int role) { return configurations.index(row).data(role); };
    EXPECT_EQ(at(0, ConfigurationListModel::NameRole), u"default"_s);
    EXPECT_EQ(at(0, ConfigurationListModel::HasProjectRole), false);
    EXPECT_EQ(at(1, ConfigurationListModel::HasProjectRole), true);
    EXPECT_EQ(at(1, ConfigurationListModel::ProjectIdRole), u""_s);
    EXPECT_EQ(at(2, ConfigurationListModel::ProjectIdRole), u"p1"_s);
    EXPECT_EQ(at(2, ConfigurationListModel::IsActiveRole), true);
    EXPECT_EQ(at(1, ConfigurationListModel::IsActiveRole), false);
    EXPECT_FALSE(at(1, Qt::DisplayRole).isValid());
}

TEST_F(ConfigurationListModelTest, TellsOnlyWhatChanged)
{
    reader->names = { u"a"_s, u"b"_s };
    manager->reloadFromFiles();
    RowMirror mirror(*state->configurations(), ConfigurationListModel::NameRole);

    reader->names = { u"a"_s, u"aa"_s, u"b"_s };
    reader->properties[u"b"_s].project = u"p"_s;
    manager->reloadFromFiles();

    EXPECT_EQ(mirror.messages, (QStringList{ u"insert 1"_s, u"change 2"_s }));
    EXPECT_EQ(mirror.rows, reader->names);
}

class SavedAccountListModelTest : public AuthStateFixture
{
protected:
    SavedAccountListModel model;
    RowMirror mirror{ model, SavedAccountListModel::TitleRole };
};

TEST_F(SavedAccountListModelTest, ShowsTheDisplayNameWhereThereIsOne)
{
    serviceAccounts->addServiceAccount({ u"a@p1"_s, u"p1"_s, u"Deployer"_s });
    serviceAccounts->addServiceAccount({ u"b@p1"_s, u"p1"_s, std::nullopt });
    serviceAccounts->addServiceAccount({ u"c@p1"_s, u"p1"_s, u""_s });
    model.setProjectId(u"p1"_s);
    model.setStateManager(state.get());

    EXPECT_EQ(mirror.rows, (QStringList{ u"Deployer"_s, u"b@p1"_s, u""_s }));
    EXPECT_EQ(model.index(0).data(SavedAccountListModel::EmailRole), u"a@p1"_s);
    EXPECT_FALSE(model.index(0).data(Qt::DisplayRole).isValid());
    EXPECT_EQ(model.count(), 3);
}

TEST_F(SavedAccountListModelTest, FollowsTheProjectAndTheStore)
{
    serviceAccounts->addServiceAccount({ u"a@p1"_s, u"p1"_s, std::nullopt });
    serviceAccounts->addServiceAccount({ u"b@p2"_s, u"p2"_s, std::nullopt });
    model.setStateManager(state.get());
    const QSignalSpy counts(&model, &SavedAccountListModel::countChanged);
    EXPECT_EQ(mirror.rows, QStringList());

    model.setProjectId(u"p1"_s);
    EXPECT_EQ(mirror.rows, QStringList{ u"a@p1"_s });
    EXPECT_EQ(counts.count(), 1);

    serviceAccounts->addServiceAccount({ u"c@p1"_s, u"p1"_s, std::nullopt });
    EXPECT_EQ(mirror.rows, (QStringList{ u"a@p1"_s, u"c@p1"_s }));
    EXPECT_EQ(mirror.messages.last(), u"insert 1"_s);

    serviceAccounts->removeServiceAccount(u"a@p1"_s, u"p1"_s);
    EXPECT_EQ(mirror.rows, QStringList{ u"c@p1"_s });

    model.setProjectId(u"p2"_s);
    EXPECT_EQ(mirror.rows, QStringList{ u"b@p2"_s });

    model.setStateManager(nullptr);
    EXPECT_EQ(mirror.rows, QStringList());
    serviceAccounts->addServiceAccount({ u"d@p2"_s, u"p2"_s, std::nullopt });
    EXPECT_EQ(mirror.rows, QStringList());
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ServiceAccountListModel.h"

#include "tests/VeldraUI/AuthStateFixture.h"
#include "tests/VeldraUI/RowMirror.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace torvi {

class ServiceAccountListModelTest : public AuthStateFixture
{
protected:
    std::unique_ptr<ServiceAccountListModel> model = std::make_unique<ServiceAccountListModel>();

    ServiceAccountListModelTest()
    {
        model->setStateManager(state.get());
        model->setProjectId(u"p1"_s);
    }

    /// What gcloud prints for accounts with these e-mails.
    static GCloudResult accounts(const QStringList &emails)
    {
        QStringList elements;
        for (const QString &email : emails) {
            elements.append(uR"({"email": "%1", "displayName": "Name of %1"})"_s.arg(email));
        }
        return success(u'[' + elements.join(u',') + u']');
    }

    void save(const QString &email, const QString &projectId = u"p1"_s)
    {
        serviceAccounts->addServiceAccount({ email, projectId, std::nullopt });
    }

    void discover(const QStringList &emails)
    {
        executor->expect(GCloudCommand::listServiceAccounts(u"p1"_s), accounts(emails));
        model->discover(u"p1"_s);
        processEvents();
    }

    /// Each row as in "saved a@x".
    [[nodiscard]] QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row);
            rows.append((index.data(ServiceAccountListModel::IsSavedRole).toBool()
                             ? u"saved "_s
                             : u"discovered "_s)
                        + index.data(ServiceAccountListModel::EmailRole).toString());
        }
        return rows;
    }
};

TEST_F(ServiceAccountListModelTest, ListsNothingAtFirstAndAsksNothing)
{
    processEvents();

    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_FALSE(model->isLoading());
    EXPECT_FALSE(model->discoveryFailed());
}

TEST_F(ServiceAccountListModelTest, ListsSavedAccountsBeforeDiscoveredOnes)
{
    save(u"z@x"_s);
    save(u"b@x"_s);
    save(u"other@x"_s, u"p2"_s);

    discover({ u"c@x"_s, u"a@x"_s });

    EXPECT_EQ(
        rows(),
        (QStringList{ u"saved z@x"_s, u"saved b@x"_s, u"discovered c@x"_s, u"discovered a@x"_s }));
    EXPECT_EQ(model->savedCount(), 2);
    EXPECT_EQ(model->discoveredCount(), 2);
    const QModelIndex last = model->index(3);
    EXPECT_EQ(last.data(ServiceAccountListModel::DisplayNameRole), u"Name of a@x"_s);
    EXPECT_EQ(model->index(0).data(ServiceAccountListModel::DisplayNameRole), u""_s);
    EXPECT_FALSE(last.data(Qt::DisplayRole).isValid());
}

TEST_F(ServiceAccountListModelTest, AnAccountThatIsSavedIsListedOnce)
{
    save(u"a@x"_s);

    discover({ u"a@x"_s, u"b@x"_s });

    EXPECT_EQ(rows(), (QStringList{ u"saved a@x"_s, u"discovered b@x"_s }));
}

TEST_F(ServiceAccountListModelTest, FollowsTheProject)
{
    save(u"a@x"_s, u"p2"_s);

    model->setProjectId(u"p2"_s);
    EXPECT_EQ(rows(), QStringList{ u"saved a@x"_s });

    model->setProjectId(u""_s);
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(ServiceAccountListModelTest, ADiscoveryBeginsFromTheEventLoopAndLoadsUntilItEnds)
{
    const auto run = executor->expect(GCloudCommand::listServiceAccounts(u"p1"_s));

    model->discover(u"p1"_s);
    EXPECT_FALSE(model->isLoading());
    processEvents();
    EXPECT_TRUE(model->isLoading());

    const QSignalSpy changes(model.get(), &ServiceAccountListModel::changed);
    run->finish(accounts({ u"a@x"_s }));
    EXPECT_FALSE(model->isLoading());
    EXPECT_FALSE(model->discoveryFailed());
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ServiceAccountListModelTest, AnEmptyResultIsAFailureWhateverItsCause)
{
    discover({});
    EXPECT_TRUE(model->discoveryFailed());

    executor->expect(GCloudCommand::listServiceAccounts(u"p1"_s), failure(u"denied"_s));
    model->discover(u"p1"_s);
    processEvents();
    EXPECT_TRUE(model->discoveryFailed());
    EXPECT_FALSE(state->hasError());
}

TEST_F(ServiceAccountListModelTest, ANewDiscoveryHasNotFailedYet)
{
    discover({});
    const auto run = executor->expect(GCloudCommand::listServiceAccounts(u"p1"_s));

    model->discover(u"p1"_s);
    processEvents();

    EXPECT_FALSE(model->discoveryFailed());
    run->finish(accounts({ u"a@x"_s }));
}

TEST_F(ServiceAccountListModelTest, ADiscoveryOfSavedAccountsOnlyHasNotFailed)
{
    save(u"a@x"_s);

    discover({ u"a@x"_s });

    EXPECT_FALSE(model->discoveryFailed());
    EXPECT_EQ(model->discoveredCount(), 0);
}

TEST_F(ServiceAccountListModelTest, AFailedDiscoveryForgetsTheOneBefore)
{
    discover({ u"a@x"_s });

    discover({});

    EXPECT_EQ(model->rowCount(), 0);
}

TEST_F(ServiceAccountListModelTest, OfOverlappingDiscoveriesTheLastToEndWins)
{
    const auto first = executor->expect(GCloudCommand::listServiceAccounts(u"p1"_s));
    const auto second = executor->expect(GCloudCommand::listServiceAccounts(u"p2"_s));
    model->discover(u"p1"_s);
    model->setProjectId(u"p2"_s);
    model->discover(u"p2"_s);
    processEvents();

    second->finish(accounts({ u"second@x"_s }));
    EXPECT_EQ(rows(), QStringList{ u"discovered second@x"_s });
    EXPECT_FALSE(model->isLoading());

    first->finish(accounts({ u"first@x"_s }));
    EXPECT_EQ(rows(), QStringList{ u"discovered first@x"_s });
}

TEST_F(ServiceAccountListModelTest, OverlappingDiscoveriesThatEndInOrderShowTheSecond)
{
    const auto first = executor->expect(GCloudCommand::listServiceAccounts(u"p1"_s));
    const auto second = executor->expect(GCloudCommand::listServiceAccounts(u"p2"_s));
    model->discover(u"p1"_s);
    model->discover(u"p2"_s);
    processEvents();

    first->finish(accounts({}));
    EXPECT_TRUE(model->discoveryFailed());
    second->finish(accounts({ u"second@x"_s }));

    EXPECT_FALSE(model->discoveryFailed());
    EXPECT_EQ(rows(), QStringList{ u"discovered second@x"_s });
}

TEST_F(ServiceAccountListModelTest, SavesADiscoveredAccountWithItsRecord)
{
    discover({ u"a@x"_s, u"b@x"_s });
    RowMirror mirror(*model, ServiceAccountListModel::EmailRole);

    model->save(u"b@x"_s);

    EXPECT_EQ(serviceAccounts->accounts[u"p1"_s],
              (QList{ ServiceAccount{ u"b@x"_s, u"p1"_s, u"Name of b@x"_s } }));
    EXPECT_EQ(rows(), (QStringList{ u"saved b@x"_s, u"discovered a@x"_s }));
    EXPECT_EQ(mirror.messages, (QStringList{ u"remove 1"_s, u"insert 0"_s }));
}

TEST_F(ServiceAccountListModelTest, SavesNothingThatWasNotDiscovered)
{
    model->save(u"a@x"_s);

    EXPECT_TRUE(serviceAccounts->accounts.isEmpty());
}

TEST_F(ServiceAccountListModelTest, ARemovedAccountIsADiscoveredOneAgain)
{
    discover({ u"a@x"_s });
    model->save(u"a@x"_s);

    model->remove(u"a@x"_s);

    EXPECT_TRUE(serviceAccounts->accounts[u"p1"_s].isEmpty());
    EXPECT_EQ(rows(), QStringList{ u"discovered a@x"_s });
}

TEST_F(ServiceAccountListModelTest, RemovesFromTheProjectOnly)
{
    save(u"a@x"_s);
    save(u"a@x"_s, u"p2"_s);

    model->remove(u"a@x"_s);

    EXPECT_EQ(serviceAccounts->accounts[u"p2"_s].size(), 1);
    EXPECT_EQ(model->rowCount(), 0);
}

TEST_F(ServiceAccountListModelTest, AddsWhatWasTyped)
{
    model->add(u" a@x "_s, u" Name "_s);
    model->add(u"b@x"_s, u""_s);

    EXPECT_EQ(serviceAccounts->accounts[u"p1"_s],
              (QList{ ServiceAccount{ u" a@x "_s, u"p1"_s, u" Name "_s },
                      ServiceAccount{ u"b@x"_s, u"p1"_s, std::nullopt } }));
    EXPECT_EQ(rows(), (QStringList{ u"saved  a@x "_s, u"saved b@x"_s }));
}

TEST_F(ServiceAccountListModelTest, WithoutAStateManagerItIsEmptyAndDoesNothing)
{
    save(u"a@x"_s);

    model->setStateManager(nullptr);
    model->discover(u"p1"_s);
    model->add(u"b@x"_s, u""_s);
    model->remove(u"a@x"_s);
    processEvents();

    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_EQ(serviceAccounts->accounts[u"p1"_s].size(), 1);
}

TEST_F(ServiceAccountListModelTest, ADiscoveryMayOutliveTheModelAndTheState)
{
    const auto first = executor->expect(GCloudCommand::listServiceAccounts(u"p1"_s));
    const auto second = executor->expect(GCloudCommand::listServiceAccounts(u"p2"_s));
    model->discover(u"p1"_s);
    model->discover(u"p2"_s);
    processEvents();

    state.reset();
    first->finish(accounts({ u"a@x"_s }));
    model.reset();
    second->finish(accounts({ u"a@x"_s }));
}

} // namespace torvi

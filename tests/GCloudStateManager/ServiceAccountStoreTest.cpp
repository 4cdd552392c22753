// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/ServiceAccountStore.h"

#include "tests/support/PreferencesFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

const QString kKey = u"com.veldra.serviceaccounts"_s;
const QString kProject = u"my-proj"_s;

ServiceAccount account(const QString &email, const QString &project = kProject,
                       const std::optional<QString> &displayName = std::nullopt)
{
    return { email, project, displayName };
}

} // namespace

class ServiceAccountStoreTest : public testing::Test
{
protected:
    PreferencesFolder folder;
    std::shared_ptr<Preferences> preferences = folder.open();
    std::unique_ptr<ServiceAccountStore> store = std::make_unique<ServiceAccountStore>(preferences);
    int changes = 0;

    ServiceAccountStoreTest()
    {
        countChanges();
    }

    void load(const QByteArray &json)
    {
        preferences->setData(kKey, json);
        store = std::make_unique<ServiceAccountStore>(preferences);
        countChanges();
    }

    [[nodiscard]] QByteArray stored() const
    {
        return folder.reopened()->data(kKey).value_or(QByteArray());
    }

    [[nodiscard]] ServiceAccountStoring::AccountsByProject reloaded() const
    {
        return ServiceAccountStore(folder.reopened()).allServiceAccounts();
    }

private:
    void countChanges()
    {
        QObject::connect(store.get(), &ServiceAccountStoring::changed, store.get(),
                         [this] { ++changes; });
    }
};

TEST_F(ServiceAccountStoreTest, IsEmptyAtFirst)
{
    EXPECT_TRUE(store->allServiceAccounts().isEmpty());
    EXPECT_TRUE(store->serviceAccounts(kProject).isEmpty());
}

TEST_F(ServiceAccountStoreTest, KeepsTheOrderInWhichAccountsWereAdded)
{
    store->addServiceAccount(account(u"b"_s));
    store->addServiceAccount(account(u"a"_s));
    store->addServiceAccount(account(u"c"_s));

    const QList<ServiceAccount> expected{ account(u"b"_s), account(u"a"_s), account(u"c"_s) };
    EXPECT_EQ(store->serviceAccounts(kProject), expected);
    EXPECT_EQ(reloaded().value(kProject), expected);
    EXPECT_EQ(changes, 3);
}

TEST_F(ServiceAccountStoreTest, StoresTheBytesOfACompactJsonObject)
{
    store->addServiceAccount(account(u"a@x"_s));

    EXPECT_EQ(stored(), R"({"my-proj":[{"email":"a@x","projectId":"my-proj"}]})");
}

TEST_F(ServiceAccountStoreTest, StoresADisplayNameOnlyWhenThereIsOne)
{
    store->addServiceAccount(account(u"a@x"_s));
    store->addServiceAccount(account(u"b@x"_s, kProject, u"Büro, \"B\"\n"_s));

    const QJsonArray accounts = QJsonDocument::fromJson(stored())[kProject].toArray();
    EXPECT_FALSE(accounts[0].toObject().contains(u"displayName"_s));
    EXPECT_EQ(accounts[1][u"displayName"_s], u"Büro, \"B\"\n"_s);
    EXPECT_EQ(reloaded(), store->allServiceAccounts());
    EXPECT_FALSE(reloaded()[kProject][0].displayName);
}

TEST_F(ServiceAccountStoreTest, KeepsOneEntryOfAnEmailAddedTwice)
{
    store->addServiceAccount(account(u"a@x"_s));

    store->addServiceAccount(account(u"a@x"_s));

    EXPECT_EQ(store->serviceAccounts(kProject).size(), 1);
    EXPECT_EQ(changes, 1);
}

TEST_F(ServiceAccountStoreTest, WritesNothingForAnEmailThatIsSavedAlready)
{
    store->addServiceAccount(account(u"a@x"_s));
    folder.discard();

    store->addServiceAccount(account(u"a@x"_s));

    EXPECT_FALSE(QFile::exists(folder.path()));
}

TEST_F(ServiceAccountStoreTest, KeepsOneEntryOfAnEmailInEachOfTwoProjects)
{
    store->addServiceAccount(account(u"a@x"_s, u"one"_s));
    store->addServiceAccount(account(u"a@x"_s, u"two"_s));

    EXPECT_EQ(store->serviceAccounts(u"one"_s), QList{ account(u"a@x"_s, u"one"_s) });
    EXPECT_EQ(store->serviceAccounts(u"two"_s), QList{ account(u"a@x"_s, u"two"_s) });
    EXPECT_EQ(reloaded().size(), 2);
}

TEST_F(ServiceAccountStoreTest, KeepsTheOldDisplayName)
{
    store->addServiceAccount(account(u"a@x"_s, kProject, u"old"_s));

    store->addServiceAccount(account(u"a@x"_s, kProject, u"new"_s));

    EXPECT_EQ(store->serviceAccounts(kProject), QList{ account(u"a@x"_s, kProject, u"old"_s) });
}

TEST_F(ServiceAccountStoreTest, TellsEmailsApartByCase)
{
    store->addServiceAccount(account(u"a@x"_s));
    store->addServiceAccount(account(u"A@x"_s));

    EXPECT_EQ(store->serviceAccounts(kProject).size(), 2);
    store->removeServiceAccount(u"A@X"_s, kProject);
    EXPECT_EQ(store->serviceAccounts(kProject).size(), 2);
}

TEST_F(ServiceAccountStoreTest, RemovesOneAndKeepsTheOrderOfTheOthers)
{
    load(R"({"my-proj":[{"email":"a","projectId":"my-proj"},{"email":"b","projectId":"my-proj"},
             {"email":"a","projectId":"my-proj"},{"email":"c","projectId":"my-proj"}]})");

    store->removeServiceAccount(u"a"_s, kProject);

    const QList<ServiceAccount> expected{ account(u"b"_s), account(u"c"_s) };
    EXPECT_EQ(store->serviceAccounts(kProject), expected);
    EXPECT_EQ(reloaded().value(kProject), expected);
    EXPECT_EQ(changes, 1);
}

TEST_F(ServiceAccountStoreTest, RemovesTheProjectWithItsLastAccount)
{
    store->addServiceAccount(account(u"a@x"_s));

    store->removeServiceAccount(u"a@x"_s, kProject);

    EXPECT_FALSE(store->allServiceAccounts().contains(kProject));
    EXPECT_EQ(stored(), "{}");
    EXPECT_EQ(changes, 2);
}

TEST_F(ServiceAccountStoreTest, RemovingFromAnUnknownProjectOnlyRewritesTheValue)
{
    store->addServiceAccount(account(u"a@x"_s));
    folder.discard();

    store->removeServiceAccount(u"a@x"_s, u"unknown"_s);

    EXPECT_EQ(store->serviceAccounts(kProject).size(), 1);
    EXPECT_EQ(reloaded(), store->allServiceAccounts());
    EXPECT_EQ(changes, 1);
}

TEST_F(ServiceAccountStoreTest, RemovingAnUnknownEmailOnlyRewritesTheValue)
{
    store->addServiceAccount(account(u"a@x"_s));
    folder.discard();

    store->removeServiceAccount(u"b@x"_s, kProject);

    EXPECT_EQ(reloaded(), store->allServiceAccounts());
    EXPECT_EQ(changes, 1);
}

TEST_F(ServiceAccountStoreTest, ANullDisplayNameIsAbsent)
{
    load(R"({"p":[{"email":"a","projectId":"p","displayName":null}]})");

    EXPECT_EQ(store->serviceAccounts(u"p"_s), QList{ account(u"a"_s, u"p"_s) });
}

TEST_F(ServiceAccountStoreTest, LoadsATextInPlaceOfBytesAsEmpty)
{
    preferences->setString(kKey, u"{\"p\":[{\"email\":\"a\",\"projectId\":\"p\"}]}"_s);

    EXPECT_TRUE(ServiceAccountStore(preferences).allServiceAccounts().isEmpty());
}

TEST_F(ServiceAccountStoreTest, KeepsABadValueUntilTheNextChange)
{
    load("no JSON");
    EXPECT_EQ(stored(), "no JSON");

    store->addServiceAccount(account(u"a@x"_s));

    EXPECT_EQ(reloaded(), store->allServiceAccounts());
}

TEST_F(ServiceAccountStoreTest, ReadsTheValueOnlyWhenConstructed)
{
    preferences->setData(kKey, R"({"p":[{"email":"a","projectId":"p"}]})");

    EXPECT_TRUE(store->allServiceAccounts().isEmpty());
}

struct BadValue
{
    const char *name;
    const char *json;
};

void PrintTo(const BadValue &value, std::ostream *out)
{
    *out << value.json;
}

class ServiceAccountStoreBadValueTest : public ServiceAccountStoreTest,
                                        public testing::WithParamInterface<BadValue>
{
};

TEST_P(ServiceAccountStoreBadValueTest, LoadsAsEmpty)
{
    load(GetParam().json);

    EXPECT_TRUE(store->allServiceAccounts().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    , ServiceAccountStoreBadValueTest,
    testing::Values(
        BadValue{ "Empty", "" }, BadValue{ "NoJson", "{" }, BadValue{ "Array", "[]" },
        BadValue{ "Scalar", "1" }, BadValue{ "Null", "null" },
        BadValue{ "TextAfterTheObject", R"({"p":[{"email":"a","projectId":"p"}]} x)" },
        BadValue{ "InvalidUtf8", "{\"p\":[{\"email\":\"\xff\",\"projectId\":\"p\"}]}" },
        BadValue{ "ProjectIsNoArray", R"({"q":[{"email":"a","projectId":"q"}],"p":{}})" },
        BadValue{ "ElementIsNoObject", R"({"q":[{"email":"a","projectId":"q"}],"p":["a"]})" },
        BadValue{ "EmailMissing",
                  R"({"q":[{"email":"a","projectId":"q"}],"p":[{"projectId":"p"}]})" },
        BadValue{ "ProjectIdMissing",
                  R"({"q":[{"email":"a","projectId":"q"}],"p":[{"email":"a"}]})" },
        BadValue{ "EmailOfAnotherType", R"({"p":[{"email":1,"projectId":"p"}]})" },
        BadValue{ "DisplayNameOfAnotherType",
                  R"({"p":[{"email":"a","projectId":"p","displayName":1}]})" }),
    [](const testing::TestParamInfo<BadValue> &row) { return std::string(row.param.name); });

} // namespace torvi

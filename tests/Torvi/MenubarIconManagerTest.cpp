// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/MenubarIconManager.h"

#include "tests/support/FakeStatusItem.h"
#include "tests/support/StateManagerFixture.h"

using namespace Qt::StringLiterals;

namespace torvi {

class MenubarIconManagerTest : public StateManagerFixture
{
protected:
    FakeStatusItem item;
    std::unique_ptr<MenubarIconManager> icon
        = std::make_unique<MenubarIconManager>(item, *manager, *settings);

    void activate(const std::optional<QString> &project, const std::optional<QString> &account)
    {
        reader->properties[u"default"_s].project = project;
        reader->properties[u"default"_s].account = account;
        reader->accounts = account ? QStringList{ *account } : QStringList();
        manager->reloadFromFiles();
    }

    QString titleFor(MenubarDisplayFormat format, const std::optional<QString> &project,
                     const std::optional<QString> &account = std::nullopt)
    {
        settings->format = format;
        activate(project, account);
        icon->update();
        return item.title;
    }

    static QString letters(qsizetype count)
    {
        return QString(u"abcdefghijklmnopqrstuvwxyz0123456789"_s).left(count);
    }
};

TEST_F(MenubarIconManagerTest, DrawsNothingBeforeItIsTold)
{
    EXPECT_TRUE(item.log->isEmpty());
}

TEST_F(MenubarIconManagerTest, ShowsTheCloudAndAnEmptyTitleForTheEmptyContext)
{
    icon->update();

    EXPECT_EQ(*item.log, (QStringList{ u"image cloud.fill (Torvi)"_s, u"title []"_s }));
}

TEST_F(MenubarIconManagerTest, DoesNothingWithoutAButton)
{
    item.isWithButton = false;

    icon->update();

    EXPECT_TRUE(item.log->isEmpty());
}

TEST_F(MenubarIconManagerTest, ImpersonationSwitchesTheSymbolAtTheNextUpdate)
{
    icon->update();
    reader->properties[u"default"_s].impersonateServiceAccount
        = u"robot@labs.iam.gserviceaccount.com"_s;

    manager->reloadFromFiles();

    EXPECT_EQ(item.symbol, u"cloud.fill"_s);
    icon->update();
    EXPECT_EQ(item.symbol, u"cloud.bolt.fill"_s);
    EXPECT_EQ(item.description, u"Torvi"_s);

    reader->properties[u"default"_s].impersonateServiceAccount.reset();
    manager->reloadFromFiles();
    icon->update();
    EXPECT_EQ(item.symbol, u"cloud.fill"_s);
}

TEST_F(MenubarIconManagerTest, ObservesNeitherTheContextNorTheSettings)
{
    titleFor(MenubarDisplayFormat::iconAndProject, u"labs"_s);
    item.log->clear();

    activate(u"other"_s, std::nullopt);
    settings->setMenubarDisplayFormat(MenubarDisplayFormat::iconOnly);

    EXPECT_TRUE(item.log->isEmpty());
}

TEST_F(MenubarIconManagerTest, IconOnlyHasNoTitle)
{
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconOnly, u"labs"_s, u"ada@example.com"_s), QString());
}

TEST_F(MenubarIconManagerTest, TheProjectStandsAfterOneSpace)
{
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProject, u"labs"_s, u"ada@example.com"_s),
              u" labs"_s);
}

TEST_F(MenubarIconManagerTest, NoProjectGivesAnEmptyTitle)
{
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProject, std::nullopt), QString());
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProject, u""_s), QString());
}

TEST_F(MenubarIconManagerTest, AProjectOf29CharactersIsCutTo19AndAnEllipsis)
{
    const QString title = titleFor(MenubarDisplayFormat::iconAndProject, letters(29));

    EXPECT_EQ(title, u' ' + letters(19) + u'…');
    EXPECT_EQ(title.size(), 21);
}

TEST_F(MenubarIconManagerTest, AProjectOf20CharactersIsShownWhole)
{
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProject, letters(20)), u' ' + letters(20));
}

TEST_F(MenubarIconManagerTest, AProjectOf21CharactersIsCut)
{
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProject, letters(21)),
              u' ' + letters(19) + u'…');
}

TEST_F(MenubarIconManagerTest, ProjectAndAccountOf15CharactersAreShownWhole)
{
    const QString account = u"1234567@a.co.uk"_s;
    ASSERT_EQ(account.size(), 15);

    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProjectAndAccount, letters(15), account),
              u' ' + letters(15) + u" | "_s + account);
}

TEST_F(MenubarIconManagerTest, ProjectAndAccountOf16CharactersAreCutTo14AndAnEllipsis)
{
    const QString account = u"12345678@a.co.uk"_s;
    ASSERT_EQ(account.size(), 16);

    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProjectAndAccount, letters(16), account),
              u' ' + letters(14) + u"… | "_s + account.left(14) + u'…');
}

TEST_F(MenubarIconManagerTest, AnAccountWithoutAProjectGivesAnEmptyTitle)
{
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProjectAndAccount, std::nullopt,
                       u"ada@example.com"_s),
              QString());
}

TEST_F(MenubarIconManagerTest, AProjectWithoutAnAccountEndsInTheSeparator)
{
    EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProjectAndAccount, u"labs"_s), u" labs | "_s);
}

TEST_F(MenubarIconManagerTest, CountsCharactersAsAReaderDoes)
{
    // One character each: a letter with a combining mark, a flag, a family.
    const QString accented = u"e\u0301"_s;
    const QString flag = u"🇫🇮"_s;
    const QString family = u"👩‍👩‍👧"_s;

    for (const QString &character : { accented, flag, family }) {
        EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProject, character.repeated(20)),
                  u' ' + character.repeated(20));
        EXPECT_EQ(titleFor(MenubarDisplayFormat::iconAndProject, character.repeated(21)),
                  u' ' + character.repeated(19) + u'…');
    }
}

} // namespace torvi

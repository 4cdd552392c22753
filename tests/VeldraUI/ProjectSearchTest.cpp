// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ProjectSearch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace torvi {

class ProjectSearchTest : public testing::Test
{
protected:
    static ProjectSearch searchIn(const QList<std::pair<QString, QString>> &idsAndNames)
    {
        QList<Project> projects;
        for (const auto &[id, name] : idsAndNames) {
            projects.append({ id, name, std::nullopt, false, std::nullopt });
        }
        return ProjectSearch(projects);
    }

    using Matches = std::vector<int>;
};

TEST_F(ProjectSearchTest, EmptyQueryMatchesAllInOrder)
{
    EXPECT_EQ(searchIn({ { u"a"_s, u"b"_s }, { u""_s, u""_s } }).matches(QString()),
              (Matches{ 0, 1 }));
}

TEST_F(ProjectSearchTest, NothingMatchesAmongNoProjects)
{
    EXPECT_EQ(ProjectSearch().matches(u"a"_s), Matches{});
    EXPECT_EQ(ProjectSearch().matches(QString()), Matches{});
}

TEST_F(ProjectSearchTest, CapitalsMatchLowerCaseAnywhereInTheId)
{
    const ProjectSearch search
        = searchIn({ { u"acme-prod-1"_s, u"x"_s }, { u"acme-dev"_s, u"y"_s } });

    EXPECT_EQ(search.matches(u"PROD"_s), Matches{ 0 });
    EXPECT_EQ(search.matches(u"ACME"_s), (Matches{ 0, 1 }));
    EXPECT_EQ(search.matches(u"-1"_s), Matches{ 0 });
}

TEST_F(ProjectSearchTest, TheNameMatchesWithAnyMixOfCase)
{
    const ProjectSearch search
        = searchIn({ { u"p-1"_s, u"Billing Export"_s }, { u"p-2"_s, u"Web"_s } });

    EXPECT_EQ(search.matches(u"bILLing eX"_s), Matches{ 0 });
}

TEST_F(ProjectSearchTest, AProjectThatMatchesTwiceIsFoundOnce)
{
    EXPECT_EQ(searchIn({ { u"web-web"_s, u"Web"_s }, { u"web"_s, u"web"_s } }).matches(u"web"_s),
              (Matches{ 0, 1 }));
}

TEST_F(ProjectSearchTest, ASingleSpaceIsAQuery)
{
    const ProjectSearch search = searchIn({ { u"p-1"_s, u"One Two"_s }, { u"p-2"_s, u"Three"_s } });

    EXPECT_EQ(search.matches(u" "_s), Matches{ 0 });
    EXPECT_EQ(search.matches(u" p"_s), Matches{});
}

TEST_F(ProjectSearchTest, NoMatchReachesFromIdIntoNameOrIntoTheNextProject)
{
    const ProjectSearch search = searchIn({ { u"ab"_s, u"cd"_s }, { u"ef"_s, u"gh"_s } });

    EXPECT_EQ(search.matches(u"bc"_s), Matches{});
    EXPECT_EQ(search.matches(u"de"_s), Matches{});
    EXPECT_EQ(search.matches(u"b\u00ffc"_s), Matches{});
}

TEST_F(ProjectSearchTest, LettersBeyondLatinMatchInAnyCase)
{
    const ProjectSearch search = searchIn({ { u"p-1"_s, u"ΑΘΗΝΑ Проект"_s },
                                            { u"p-2"_s, u"東京の請求"_s },
                                            { u"p-3"_s, u"Straße"_s } });

    EXPECT_EQ(search.matches(u"αθην"_s), Matches{ 0 });
    EXPECT_EQ(search.matches(u"ПРОЕКТ"_s), Matches{ 0 });
    EXPECT_EQ(search.matches(u"京"_s), Matches{ 1 });
    EXPECT_EQ(search.matches(u"STRASSE"_s), Matches{});
}

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/ProjectSearch.h"

#include <numeric>
#include <string_view>

namespace torvi {

namespace {

/// No byte of UTF-8: no query contains it, so no match reaches from one text into the next.
constexpr char kSeparator = '\xff';

/// Appends `text` in lower case. Ids are ASCII and names mostly are: they take a loop without a
/// branch, which saves most of the time that thousands of projects take.
void appendFolded(std::string &out, const QString &text)
{
    const std::size_t before = out.size();
    const QStringView units(text);
    out.resize(before + static_cast<std::size_t>(units.size()));
    char *folded = out.data() + before;
    unsigned seen = 0;
    for (const QChar character : units) {
        const unsigned unit = character.unicode();
        seen |= unit;
        *folded++ = static_cast<char>(unit + (unit - 'A' < 26U ? 'a' - 'A' : 0U));
    }
    if (seen >= 0x80) {
        out.resize(before);
        out += text.toLower().toStdString();
    }
}

} // namespace

ProjectSearch::ProjectSearch(const QList<Project> &projects)
{
    m_ends.reserve(static_cast<std::size_t>(projects.size()));
    for (const Project &project : projects) {
        appendFolded(m_texts, project.id);
        m_texts += kSeparator;
        appendFolded(m_texts, project.name);
        m_texts += kSeparator;
        m_ends.push_back(m_texts.size());
    }
}

int ProjectSearch::count() const
{
    return static_cast<int>(m_ends.size());
}

std::vector<int> ProjectSearch::matches(const QString &query) const
{
    if (query.isEmpty()) {
        std::vector<int> all(m_ends.size());
        std::iota(all.begin(), all.end(), 0);
        return all;
    }
    std::vector<int> matches;
    std::string needle;
    appendFolded(needle, query);
    const std::string_view texts = m_texts;
    int project = 0;
    for (std::size_t hit = texts.find(needle); hit != std::string_view::npos;) {
        while (m_ends[static_cast<std::size_t>(project)] <= hit) {
            ++project;
        }
        matches.push_back(project);
        hit = texts.find(needle, m_ends[static_cast<std::size_t>(project)]);
    }
    return matches;
}

} // namespace torvi

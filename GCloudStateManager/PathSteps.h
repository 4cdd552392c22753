// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <string>
#include <string_view>

namespace torvi {

/// The way from the file system's root along a path, one directory entry at a time, symbolic links
/// followed by hand so that each of them can be watched.
class PathSteps final
{
public:
    /// `path` is absolute; it need not be tidy or exist.
    explicit PathSteps(std::string_view path);

    /// Goes to the next entry of the way; false at the end of it. The entry before must have been a
    /// directory, or a link passed to followLink().
    [[nodiscard]] bool next();

    /// The directory that holds the entry, free of links.
    [[nodiscard]] const std::string &directory() const
    {
        return m_directory;
    }

    [[nodiscard]] const std::string &name() const
    {
        return m_name;
    }

    /// directory() and name() in one.
    [[nodiscard]] const std::string &path() const
    {
        return m_path;
    }

    [[nodiscard]] bool isLast() const
    {
        return m_names.empty();
    }

    /// Lets the way lead on through the link at path(), which points to `target`. False when there
    /// are too many links, as in a loop.
    [[nodiscard]] bool followLink(std::string_view target);

private:
    std::string m_directory = "/";
    std::string m_name;
    std::string m_path = "/";
    std::deque<std::string> m_names;
    int m_links = 0;
};

/// `name` in `directory`.
[[nodiscard]] std::string joinedPath(const std::string &directory, const std::string &name);

} // namespace torvi

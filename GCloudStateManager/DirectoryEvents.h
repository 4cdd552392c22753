// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GCloudStateManager/InotifyQueue.h"

#include <optional>
#include <set>
#include <string>
#include <unordered_map>

namespace torvi {

/// Notices every change below one directory: of a file's content or attributes, of what the
/// directories hold, of the directory itself. Reading is no change, by SQLite neither.
///
/// The directory may come, go and be replaced at any time, by itself or with a directory above it,
/// or through a symbolic link on the way to it. Links below it are not followed. Directories that
/// may not be watched, or for which the system has no watch left, are left out.
///
/// Thread: any, one at a time; never waits.
class DirectoryEvents final
{
public:
    /// Starts watching: no change after this is missed. Relative to the current directory of now;
    /// an empty path names no directory.
    explicit DirectoryEvents(const std::string &path);

    /// Whether anything is watched at all; if not, nothing will ever be noticed.
    [[nodiscard]] bool isWatching() const
    {
        return !m_watches.empty();
    }

    /// Readable when takeChanges() has something to look at.
    [[nodiscard]] int descriptor() const
    {
        return m_queue.descriptor();
    }

    /// Whether anything has changed since the last call.
    [[nodiscard]] bool takeChanges();

private:
    /// One watched directory, or link on the way. It can be on the way to the directory and below
    /// it at once, where links lead back.
    struct Watch
    {
        bool isBelow = false; ///< the directory itself or one below it
        std::string path; ///< where it is, if below
        bool isOnTheWay = false; ///< moving or removing it changes where the way leads
        std::set<std::string> awaitedNames; ///< entries with which the way goes on

        [[nodiscard]] bool redirects(const InotifyEvent &event) const;
    };

    void watchAll();
    [[nodiscard]] std::optional<std::string> watchTheWay();
    void watchStep(const std::string &path);
    void awaitName(const std::string &directory, const std::string &name);
    void watchTree(const std::string &top);
    [[nodiscard]] bool watchBelow(const std::string &directory);
    [[nodiscard]] Watch *add(const std::string &path, std::uint32_t mask);

    [[nodiscard]] bool handle(const InotifyEvent &event);
    [[nodiscard]] bool handleBelow(const std::string &directory, const InotifyEvent &event);
    [[nodiscard]] bool startAgain();
    [[nodiscard]] bool forgetTree(const std::string &top);

    std::string m_path;
    std::optional<std::string> m_directory; ///< free of links; absent while it does not exist
    InotifyQueue m_queue;
    std::unordered_map<int, Watch> m_watches;
};

} // namespace torvi

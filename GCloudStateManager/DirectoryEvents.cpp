// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/DirectoryEvents.h"

#include "GCloudStateManager/PathSteps.h"

#include <deque>
#include <filesystem>
#include <system_error>

namespace torvi {

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kSelf = IN_DELETE_SELF | IN_MOVE_SELF;
constexpr std::uint32_t kNames = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
constexpr std::uint32_t kContent = IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB;

/// Whether SQLite causes it also where it only reads: it opens a write-ahead log for writing, and
/// keeps an index of it. Who reads at each change would do so for ever.
bool isTraceOfReading(const InotifyEvent &event)
{
    return event.name.ends_with(".db-shm")
        || (event.name.ends_with(".db-wal") && (event.mask & (kNames | IN_MODIFY)) == 0);
}

fs::file_type typeOf(const std::string &path)
{
    std::error_code error;
    return fs::symlink_status(path, error).type();
}

void appendSubdirectories(const std::string &directory, std::deque<std::string> &paths)
{
    std::error_code error;
    fs::directory_iterator entry(directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (!entry->is_symlink(ignored) && entry->is_directory(ignored)) {
            paths.push_back(entry->path().native());
        }
    }
}

} // namespace

bool DirectoryEvents::Watch::redirects(const InotifyEvent &event) const
{
    return (isOnTheWay && (event.mask & (kSelf | IN_UNMOUNT | IN_IGNORED)) != 0)
        || awaitedNames.contains(event.name);
}

DirectoryEvents::DirectoryEvents(const std::string &path)
{
    std::error_code error;
    m_path = path.empty() ? path : fs::absolute(path, error).native();
    if (!m_path.empty() && m_queue.isOpen()) {
        watchAll();
    }
}

void DirectoryEvents::watchAll()
{
    m_directory = watchTheWay();
    if (m_directory) {
        watchTree(*m_directory);
    }
}

/// Each entry is watched before it is looked at, so that no replacement goes unnoticed. The entry
/// that is missing is awaited in the directory where it would be, and so is the last one: a
/// directory in which somebody stands is deleted without an event of its own.
std::optional<std::string> DirectoryEvents::watchTheWay()
{
    PathSteps steps(m_path);
    while (steps.next()) {
        watchStep(steps.path());
        fs::file_type type = typeOf(steps.path());
        const bool leadsOn = type == fs::file_type::directory || type == fs::file_type::symlink;
        if (steps.isLast() || !leadsOn) {
            awaitName(steps.directory(), steps.name());
            type = typeOf(steps.path()); // it may have come just before the watch
        }
        if (type == fs::file_type::symlink) {
            std::error_code error;
            const fs::path target = fs::read_symlink(steps.path(), error);
            if (error || !steps.followLink(target.native())) {
                return std::nullopt;
            }
        } else if (type != fs::file_type::directory) {
            return std::nullopt;
        }
    }
    return steps.path();
}

void DirectoryEvents::watchStep(const std::string &path)
{
    if (Watch *const watch = add(path, kSelf | IN_DONT_FOLLOW)) {
        watch->isOnTheWay = true;
    }
}

void DirectoryEvents::awaitName(const std::string &directory, const std::string &name)
{
    if (Watch *const watch = add(directory, kNames | IN_ONLYDIR)) {
        watch->awaitedNames.insert(name);
    }
}

/// Breadth first: when the system runs out of watches, the deepest directories go without.
void DirectoryEvents::watchTree(const std::string &top)
{
    std::deque<std::string> directories{ top };
    for (; !directories.empty(); directories.pop_front()) {
        if (watchBelow(directories.front())) {
            appendSubdirectories(directories.front(), directories);
        }
    }
}

/// False when there is nothing new to look at in `directory`. One that is known by another path has
/// been moved, and what lies below it with it.
bool DirectoryEvents::watchBelow(const std::string &directory)
{
    Watch *const watch = add(directory, kNames | kContent | IN_ONLYDIR | IN_DONT_FOLLOW);
    if (watch == nullptr || (watch->isBelow && watch->path == directory)) {
        return false;
    }
    watch->isBelow = true;
    watch->path = directory;
    return true;
}

DirectoryEvents::Watch *DirectoryEvents::add(const std::string &path, std::uint32_t mask)
{
    const std::optional<int> watch = m_queue.add(path, mask | IN_MASK_ADD);
    return watch ? &m_watches[*watch] : nullptr;
}

bool DirectoryEvents::takeChanges()
{
    bool changed = false;
    for (const InotifyEvent &event : m_queue.takeEvents()) {
        changed = handle(event) || changed;
    }
    return changed;
}

/// Whether `event` is a change below the directory, after acting on it.
bool DirectoryEvents::handle(const InotifyEvent &event)
{
    if ((event.mask & IN_Q_OVERFLOW) != 0) {
        return startAgain(); // a new directory, or a new way, may be among what was lost
    }
    const auto found = m_watches.find(event.watch);
    if (found == m_watches.end()) {
        return false; // of a watch that was given up
    }
    const Watch watch = found->second; // a copy: what follows changes the map
    if (watch.redirects(event)) {
        return startAgain();
    }
    if ((event.mask & IN_IGNORED) != 0) {
        m_watches.erase(found);
        return false;
    }
    return watch.isBelow && handleBelow(watch.path, event);
}

bool DirectoryEvents::handleBelow(const std::string &directory, const InotifyEvent &event)
{
    if ((event.mask & IN_ISDIR) == 0 || event.name.empty()) {
        return !isTraceOfReading(event);
    }
    const std::string child = joinedPath(directory, event.name);
    if ((event.mask & IN_MOVED_FROM) != 0 && forgetTree(child)) {
        return startAgain();
    }
    if ((event.mask & (IN_CREATE | IN_MOVED_TO)) != 0) {
        watchTree(child); // files made in it by now belong to the change that is reported anyway
    }
    return true;
}

/// Whether the directory was or is there, so that its content may be another one now.
bool DirectoryEvents::startAgain()
{
    const bool wasThere = m_directory.has_value();
    for (const auto &[watch, details] : m_watches) {
        m_queue.remove(watch);
    }
    m_watches.clear();
    watchAll();
    return wasThere || m_directory.has_value();
}

/// True when the way led through what is forgotten.
bool DirectoryEvents::forgetTree(const std::string &top)
{
    bool wasOnTheWay = false;
    std::erase_if(m_watches, [&](const auto &entry) {
        const auto &[watch, details] = entry;
        if (!details.isBelow
            || (details.path != top && !details.path.starts_with(joinedPath(top, {})))) {
            return false;
        }
        wasOnTheWay = wasOnTheWay || details.isOnTheWay || !details.awaitedNames.empty();
        m_queue.remove(watch);
        return true;
    });
    return wasOnTheWay;
}

} // namespace torvi

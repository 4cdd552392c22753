// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudStateManager/PathSteps.h"

#include <iterator>

namespace torvi {

namespace {

constexpr int kMaximumLinks = 40; // where the kernel gives up, too

std::deque<std::string> split(std::string_view path)
{
    std::deque<std::string> names;
    while (!path.empty()) {
        const std::size_t end = path.find('/');
        const std::string_view name = path.substr(0, end);
        if (!name.empty() && name != ".") {
            names.emplace_back(name);
        }
        path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    }
    return names;
}

/// `directory` is free of links, so that its text tells its parent.
std::string parent(const std::string &directory)
{
    const std::size_t slash = directory.rfind('/');
    return slash == 0 ? "/" : directory.substr(0, slash);
}

} // namespace

PathSteps::PathSteps(std::string_view path)
    : m_names(split(path))
{
}

bool PathSteps::next()
{
    m_directory = m_path;
    for (; !m_names.empty(); m_names.pop_front()) {
        if (m_names.front() != "..") {
            m_name = m_names.front();
            m_names.pop_front();
            m_path = joinedPath(m_directory, m_name);
            return true;
        }
        m_directory = m_path = parent(m_directory);
    }
    return false;
}

bool PathSteps::followLink(std::string_view target)
{
    const bool absolute = target.starts_with('/');
    std::deque<std::string> names = split(target);
    std::move(m_names.begin(), m_names.end(), std::back_inserter(names));
    m_names = std::move(names);
    m_path = absolute ? "/" : m_directory;
    return ++m_links <= kMaximumLinks;
}

std::string joinedPath(const std::string &directory, const std::string &name)
{
    return directory.ends_with('/') ? directory + name : directory + '/' + name;
}

} // namespace torvi

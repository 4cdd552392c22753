// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace torvi {

/// A temporary directory for tests that make, change, move and remove files and directories, each
/// named by its path in there.
class TemporaryTree final
{
public:
    TemporaryTree() = default;
    TemporaryTree(const TemporaryTree &) = delete;
    TemporaryTree &operator=(const TemporaryTree &) = delete;

    ~TemporaryTree()
    {
        std::filesystem::remove_all(m_top); // Qt overlooks names that are no UTF-8
    }

    [[nodiscard]] std::string path(const std::string &name = {}) const
    {
        return name.empty() ? m_top : m_top + '/' + name;
    }

    /// With those above it.
    void makeDirectory(const std::string &name) const
    {
        std::filesystem::create_directories(path(name));
    }

    /// In place when the file is there already.
    void write(const std::string &name, const std::string &content = "content") const
    {
        std::ofstream file(path(name), std::ios::binary);
        file << content;
        EXPECT_TRUE(file.flush()) << name;
    }

    void append(const std::string &name) const
    {
        std::ofstream file(path(name), std::ios::app);
        file << "more";
        EXPECT_TRUE(file.flush()) << name;
    }

    [[nodiscard]] std::string read(const std::string &name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return { std::istreambuf_iterator<char>(file), {} };
    }

    /// A link at `name` to `target`, which is a path in the tree too; replaces a link at once.
    void link(const std::string &name, const std::string &target) const
    {
        const std::string fresh = path("fresh-link");
        std::filesystem::create_symlink(path(target), fresh);
        std::filesystem::rename(fresh, path(name));
    }

    void move(const std::string &from, const std::string &to) const
    {
        std::filesystem::rename(path(from), path(to));
    }

    /// With what is in it.
    void remove(const std::string &name) const
    {
        EXPECT_GT(std::filesystem::remove_all(path(name)), 0U) << name;
    }

private:
    QTemporaryDir m_folder;
    std::string m_top = std::filesystem::canonical(m_folder.path().toStdString()).native();
};

} // namespace torvi

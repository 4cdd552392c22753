// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/syscall.h>
#include <utility>
#include <vector>

namespace torvi {

/// A thread of this process as the kernel shows it.
class BackgroundThread final
{
public:
    /// Those with that name, as given to pthread_setname_np.
    [[nodiscard]] static std::vector<BackgroundThread> named(const std::string &name)
    {
        std::vector<BackgroundThread> threads;
        for (const auto &entry : std::filesystem::directory_iterator("/proc/self/task")) {
            const BackgroundThread thread(entry.path().native());
            if (thread.line("comm") == name) {
                threads.push_back(thread);
            }
        }
        return threads;
    }

    /// Whether it is asleep in ppoll() on that many descriptors.
    [[nodiscard]] bool isPolling(int descriptors) const
    {
        std::istringstream call(line("syscall")); // the number, then the arguments
        std::string number;
        std::string address;
        std::string count;
        call >> number >> address >> count;
        return number == std::to_string(SYS_ppoll) && count == "0x" + std::to_string(descriptors);
    }

    /// How often it has gone to sleep: unchanged as long as nothing wakes it.
    [[nodiscard]] std::string sleeps() const
    {
        std::ifstream status(m_path + "/status");
        std::string result;
        while (std::getline(status, result) && !result.starts_with("voluntary_ctxt_switches")) { }
        return result;
    }

private:
    explicit BackgroundThread(std::string path)
        : m_path(std::move(path))
    {
    }

    [[nodiscard]] std::string line(const char *file) const
    {
        std::ifstream stream(m_path + '/' + file);
        std::string result;
        std::getline(stream, result);
        return result;
    }

    std::string m_path;
};

} // namespace torvi

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/ProcessSession.h"

#include "GCloudCLI/FileDescriptor.h"
#include "GCloudCLI/Pidfd.h"

#include <array>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string>

namespace torvi {

namespace {

/// A process that forks faster than it is found cannot be won over by trying longer.
constexpr int kRounds = 16;

/// The session of a live process, from /proc/PID/stat: "PID (NAME) STATE PPID PGRP SESSION ...",
/// where NAME may hold anything, also a parenthesis.
std::optional<pid_t> sessionOf(pid_t pid)
{
    const std::string path = "/proc/" + std::to_string(pid) + "/stat";
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::array<char, 512> text{};
    if (!file.isOpen() || ::read(file.get(), text.data(), text.size() - 1) <= 0) {
        return std::nullopt;
    }
    const char *afterName = std::strrchr(text.data(), ')');
    char state = 0;
    pid_t session = 0;
    if (afterName == nullptr
        || std::sscanf(afterName + 1, " %c %*d %*d %d", &state, &session)
            != 2 // NOLINT(cert-err34-c)
        || state == 'Z' || state == 'X') {
        return std::nullopt;
    }
    return session;
}

/// The descriptor is taken first, so that the signal reaches the process that was looked at even
/// when its number is given away meanwhile.
bool killIfIn(pid_t session, pid_t pid)
{
    const FileDescriptor process(::pidfd_open(pid, 0));
    return process.isOpen() && sessionOf(pid) == session
        && ::pidfd_send_signal(process.get(), SIGKILL, nullptr, 0) == 0;
}

bool killMembers(pid_t session)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> processes(::opendir("/proc"), &::closedir);
    bool killed = false;
    while (const dirent *entry = processes ? ::readdir(processes.get()) : nullptr) {
        const char *name = entry->d_name;
        pid_t pid = 0;
        if (std::from_chars(name, name + std::strlen(name), pid).ec == std::errc()) {
            killed = killIfIn(session, pid) || killed;
        }
    }
    return killed;
}

} // namespace

void killSession(pid_t leader)
{
    for (int round = 0; round < kRounds && killMembers(leader); ++round) { }
}

} // namespace torvi

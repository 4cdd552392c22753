// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudConfigReader.h"
#include "GCloudStateManager/AuthStateManager.h"
#include "benchmarks/SampleDirectory.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace torvi {

namespace {

void refresh(benchmark::State &state)
{
    const QTemporaryDir directory;
    makeSampleDirectory(directory.path(), static_cast<int>(state.range(0)), 5);
    AuthStateManager manager(nullptr, std::make_shared<GCloudConfigReader>(directory.path()),
                             nullptr, nullptr, nullptr, nullptr, nullptr);
    for (auto _ : state) {
        manager.reloadFromFiles();
    }
    if (manager.lastError()
        || manager.configurations().size() != static_cast<qsizetype>(state.range(0))) {
        state.SkipWithError("the sample was not read");
    }
}

/// Look, open, look again, read to the end, close: what reading one file safely takes.
void readWhole(const std::string &path)
{
    struct stat status
    {
    };
    if (stat(path.c_str(), &status) != 0) {
        return;
    }
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    fstat(descriptor, &status);
    std::array<char, 4096> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    while (read(descriptor, buffer.data(), buffer.size()) > 0) { }
    close(descriptor);
}

void floorSystemCalls(benchmark::State &state)
{
    const QTemporaryDir sample;
    makeSampleDirectory(sample.path(), static_cast<int>(state.range(0)), 5);
    const std::string directory = sample.path().toStdString();
    for (auto _ : state) {
        readWhole(directory + "/active_config");
        DIR *folder = opendir((directory + "/configurations").c_str());
        std::vector<std::string> names;
        while (const dirent *entry = readdir(folder)) {
            names.emplace_back(entry->d_name);
        }
        closedir(folder);
        std::ranges::sort(names);
        readWhole(directory + "/configurations/config_config-0");
        readWhole(directory + "/application_default_credentials.json");
        for (const std::string &name : names) {
            if (name.starts_with("config_")) {
                readWhole(directory + "/configurations/" + name);
            }
        }
        sqlite3 *database = nullptr;
        sqlite3_stmt *statement = nullptr;
        struct stat status
        {
        };
        stat((directory + "/credentials.db").c_str(), &status);
        sqlite3_open_v2((directory + "/credentials.db").c_str(), &database,
                        SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
        sqlite3_busy_timeout(database, 25);
        sqlite3_prepare_v2(database, "SELECT account_id FROM credentials", -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement, 0));
        }
        sqlite3_finalize(statement);
        sqlite3_close(database);
    }
}

} // namespace

BENCHMARK(refresh)->Arg(5)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(floorSystemCalls)->Arg(5)->Arg(200)->Unit(benchmark::kMicrosecond);

} // namespace torvi

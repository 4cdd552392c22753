// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

// The floor of `torvictl status`: a bare Qt Core program that makes the same system and SQLite
// calls on $CLOUDSDK_CONFIG and understands nothing of what it reads.

#include <QCoreApplication>
#include <QStringList>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

size_t readWhole(const std::string &path)
{
    struct stat status
    {
    };
    if (stat(path.c_str(), &status) != 0) {
        return 0;
    }
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    std::array<char, 65536> buffer{};
    const ssize_t count = read(descriptor, buffer.data(), buffer.size());
    close(descriptor);
    return count > 0 ? static_cast<size_t>(count) : 0;
}

size_t readConfigurations(const std::string &directory)
{
    size_t bytes = 0;
    DIR *folder = opendir(directory.c_str());
    std::vector<std::string> names;
    while (const dirent *entry = readdir(folder)) {
        names.emplace_back(entry->d_name);
    }
    closedir(folder);
    std::ranges::sort(names);
    for (const std::string &name : names) {
        if (name.starts_with("config_")) {
            bytes += readWhole(directory + '/' + name);
        }
    }
    return bytes;
}

size_t readAccounts(const std::string &path)
{
    size_t bytes = 0;
    sqlite3 *database = nullptr;
    sqlite3_stmt *statement = nullptr;
    sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    sqlite3_busy_timeout(database, 25);
    sqlite3_prepare_v2(database, "SELECT account_id FROM credentials", -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        sqlite3_column_text(statement, 0);
        bytes += static_cast<size_t>(sqlite3_column_bytes(statement, 0));
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return bytes;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const std::string directory = qgetenv("CLOUDSDK_CONFIG").toStdString();
    size_t bytes = readWhole(directory + "/active_config");
    bytes += readConfigurations(directory + "/configurations");
    bytes += readWhole(directory + "/configurations/config_config-0");
    bytes += readWhole(directory + "/application_default_credentials.json");
    bytes += readAccounts(directory + "/credentials.db");
    const std::string line = std::to_string(bytes) + '\n';
    return write(STDOUT_FILENO, line.data(), line.size()) > 0 ? 0 : 1;
}

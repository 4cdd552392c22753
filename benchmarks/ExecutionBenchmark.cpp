// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudPathResolving.h"
#include "GCloudCLI/ProcessExecutor.h"

#include <QFile>
#include <QTemporaryDir>
#include <qcoro/qcorotask.h>

#include <benchmark/benchmark.h>

#include <array>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

constexpr int kFloodBytes = 50'000'000;

/// A script in gcloud's place.
class Script final : public GCloudPathResolving
{
public:
    explicit Script(const QByteArray &lines)
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write("#!/bin/sh\n" + lines + '\n') < 0) {
            qFatal("cannot write the script");
        }
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    [[nodiscard]] QString resolve(std::stop_token /*stop*/) const override
    {
        return m_path;
    }

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"gcloud"_s);
};

QByteArray flood()
{
    return "head -c " + QByteArray::number(kFloodBytes) + " /dev/zero | tr '\\0' x";
}

/// Runs the script in plain C and reads its output into one buffer.
size_t spawnAndRead(const Script &script)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        qFatal("no pipe");
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    std::string program = script.resolve({}).toStdString();
    std::array<char *, 2> arguments{ program.data(), nullptr };
    pid_t child = -1;
    posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::string output;
    std::vector<char> chunk(65536);
    for (ssize_t count = 0; (count = read(ends[0], chunk.data(), chunk.size())) > 0;) {
        output.append(chunk.data(), static_cast<size_t>(count));
    }
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return output.size();
}

void executeAtOnce(benchmark::State &state)
{
    ProcessExecutor executor(std::make_shared<Script>("exit 0"));
    for (auto _ : state) {
        benchmark::DoNotOptimize(QCoro::waitFor(executor.execute(GCloudCommand::version())));
    }
}

void floorSpawnAndWait(benchmark::State &state)
{
    const Script script("exit 0");
    for (auto _ : state) {
        benchmark::DoNotOptimize(spawnAndRead(script));
    }
}

void executeFlood(benchmark::State &state)
{
    ProcessExecutor executor(std::make_shared<Script>(flood()));
    for (auto _ : state) {
        const GCloudResult result = QCoro::waitFor(executor.execute(GCloudCommand::version()));
        if (result.stdout.size() != kFloodBytes) {
            state.SkipWithError("output was lost");
        }
    }
}

void floorFlood(benchmark::State &state)
{
    const Script script(flood());
    for (auto _ : state) {
        if (spawnAndRead(script) != kFloodBytes) {
            state.SkipWithError("output was lost");
        }
    }
}

} // namespace

BENCHMARK(executeAtOnce)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(floorSpawnAndWait)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(executeFlood)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(floorFlood)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace torvi

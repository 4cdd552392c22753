// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudPathResolver.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

/// A home directory for the while of one benchmark, with an executable gcloud below it.
class Home
{
public:
    explicit Home(const QString &folder)
    {
        qputenv("HOME", m_directory.path().toUtf8());
        const QString gcloud = m_directory.filePath(folder + u"/google-cloud-sdk/bin/gcloud"_s);
        QDir().mkpath(QFileInfo(gcloud).path());
        QFile file(gcloud);
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("cannot write");
        }
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }

    ~Home()
    {
        qputenv("HOME", m_saved);
    }

    Q_DISABLE_COPY_MOVE(Home)

    void sourceFromZshrc(const QString &folder)
    {
        QFile file(m_directory.filePath(u".zshrc"_s));
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("cannot write");
        }
        file.write(QByteArray("export EDITOR=vi\n").repeated(200));
        file.write("source '" + m_directory.filePath(folder).toUtf8()
                   + "/google-cloud-sdk/path.zsh.inc'\n");
    }

private:
    QByteArray m_saved = qgetenv("HOME");
    QTemporaryDir m_directory;
};

void locateByWellKnownList(benchmark::State &state)
{
    const Home home(u"Desktop"_s);
    const GCloudPathResolver resolver(std::nullopt);
    for (auto _ : state) {
        benchmark::DoNotOptimize(resolver.resolve());
    }
}

void locateByStartUpFile(benchmark::State &state)
{
    Home home(u"tools"_s);
    home.sourceFromZshrc(u"tools"_s);
    const GCloudPathResolver resolver(std::nullopt);
    for (auto _ : state) {
        benchmark::DoNotOptimize(resolver.resolve());
    }
}

void floorAccessCalls(benchmark::State &state)
{
    for (auto _ : state) {
        for (int i = 0; i < 11; ++i) {
            benchmark::DoNotOptimize(access("/nowhere/google-cloud-sdk/bin/gcloud", X_OK));
        }
    }
}

} // namespace

BENCHMARK(locateByWellKnownList)->Unit(benchmark::kMicrosecond);
BENCHMARK(locateByStartUpFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(floorAccessCalls)->Unit(benchmark::kMicrosecond);

} // namespace torvi

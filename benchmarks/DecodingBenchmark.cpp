// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudJSONParser.h"
#include "benchmarks/SampleDirectory.h"

#include <QJsonDocument>

#include <benchmark/benchmark.h>
#include <simdjson.h>

namespace torvi {

namespace {

constexpr int kProjects = 10000;

void decodeProjects(benchmark::State &state)
{
    const QString text = QString::fromUtf8(sampleProjects(kProjects));
    for (auto _ : state) {
        benchmark::DoNotOptimize(GCloudJSONParser::parseProjects(text));
    }
}

void floorBareParse(benchmark::State &state)
{
    const QByteArray bytes = sampleProjects(kProjects);
    for (auto _ : state) {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(
            parser.parse(bytes.constData(), static_cast<size_t>(bytes.size())).error());
    }
}

void qtJson(benchmark::State &state)
{
    const QByteArray bytes = sampleProjects(kProjects);
    for (auto _ : state) {
        benchmark::DoNotOptimize(QJsonDocument::fromJson(bytes));
    }
}

} // namespace

BENCHMARK(decodeProjects)->Unit(benchmark::kMicrosecond);
BENCHMARK(floorBareParse)->Unit(benchmark::kMicrosecond);
BENCHMARK(qtJson)->Unit(benchmark::kMicrosecond);

} // namespace torvi

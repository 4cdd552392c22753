// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv); // executing awaits on an event loop
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

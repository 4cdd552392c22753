// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/Signals.h"
#include "torvictl/CommandLine.h"
#include "torvictl/StandardErrorAuthHandler.h"
#include "torvictl/Terminal.h"

#include <QCoreApplication>

#include <csignal>
#include <optional>
using namespace torvi;

namespace {

/// Runs `operation` and ends the event loop with its exit code.
QCoro::Task<> run(CommandLine::Operation operation, DependencyContainer &container,
                  std::optional<int> &exitCode)
{
    try {
        exitCode = co_await operation(container);
    } catch (const std::exception &error) {
        Terminal::printError(QString::fromUtf8(error.what()));
        exitCode = 1;
    }
    QCoreApplication::exit(*exitCode);
}

} // namespace

int main(int argc, char **argv)
{
    const auto parsed = CommandLine::parse(argc, argv);
    if (const int *exitCode = std::get_if<int>(&parsed)) {
        return *exitCode;
    }
    std::signal(SIGPIPE, SIG_IGN); // a reader that leaves is seen where it is written to
    const QCoreApplication application(argc, argv);
    const Signals signals([](int number) { QCoreApplication::exit(128 + number); });
    DependencyContainer container(std::make_shared<StandardErrorAuthHandler>());

    std::optional<int> exitCode;
    run(std::get<CommandLine::Operation>(parsed), container, exitCode);
    if (!exitCode) {
        exitCode = QCoreApplication::exec();
    }
    return *exitCode;
}

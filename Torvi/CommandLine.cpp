// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/CommandLine.h"

#include <QCoreApplication>

#include <CLI/CLI.hpp>

#include <iostream>

namespace torvi {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(torvi::CommandLine)
};

} // namespace

std::variant<CommandLine::Options, int> CommandLine::parse(int argc, const char *const *argv)
{
    Options options;
    CLI::App app(Text::tr("Shows the Google Cloud context of the gcloud command line in the panel.")
                     .toStdString(),
                 "torvi");
    app.footer(
        Text::tr(
            "When Torvi runs already, it carries out the request, and this command ends at once. "
            "Without a request it opens its popover.")
            .toStdString());
    app.set_version_flag("--version", "torvi " TORVI_VERSION);
    app.add_flag("--live-title", options.isTitleLive,
                 Text::tr("Let the title follow every change, not only the openings of the popover")
                     .toStdString());
    CLI::Option_group *requests = app.add_option_group("Requests");
    requests->require_option(0, 1);
    const auto addRequest = [&](const char *name, Request request, const std::string &description) {
        requests->add_flag_callback(
            name, [&options, request] { options.request = request; }, description);
    };
    addRequest("--toggle", Request::toggle,
               Text::tr("Open the popover, or close it").toStdString());
    addRequest("--manager", Request::manager, Text::tr("Open the manager window").toStdString());
    addRequest("--quit", Request::quit, Text::tr("End the Torvi that runs").toStdString());
    requests->add_flag(
        "--doctor", options.wantsDiagnosis,
        Text::tr("Tell what Torvi found on this desktop, without anything private").toStdString());
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &printed) { // help and version
        return app.exit(printed);
    } catch (const CLI::ParseError &error) {
        std::cerr << error.what() << '\n'
                  << Text::tr("Run with --help for more information.").toStdString() << std::endl;
        return kUsageError;
    }
    return options;
}

} // namespace torvi

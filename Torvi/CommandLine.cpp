// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/CommandLine.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace torvi {

std::variant<CommandLine::Options, int> CommandLine::parse(int argc, const char *const *argv)
{
    Options options;
    CLI::App app("Shows the Google Cloud context of the gcloud command line in the panel.",
                 "torvi");
    app.footer(
        "When Torvi runs already, it carries out the request, and this command ends at once. "
        "Without a request it opens its popover.");
    app.set_version_flag("--version", "torvi " TORVI_VERSION);
    app.add_flag("--live-title", options.isTitleLive,
                 "Let the title follow every change, not only the openings of the popover");
    CLI::Option_group *requests = app.add_option_group("Requests");
    requests->require_option(0, 1);
    const auto addRequest = [&](const char *name, Request request, const char *description) {
        requests->add_flag_callback(
            name, [&options, request] { options.request = request; }, description);
    };
    addRequest("--toggle", Request::toggle, "Open the popover, or close it");
    addRequest("--manager", Request::manager, "Open the manager window");
    addRequest("--quit", Request::quit, "End the Torvi that runs");
    requests->add_flag("--doctor", options.wantsDiagnosis,
                       "Tell what Torvi found on this desktop, without anything private");
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &printed) { // help and version
        return app.exit(printed);
    } catch (const CLI::ParseError &error) {
        std::cerr << error.what() << "\nRun with --help for more information." << std::endl;
        return kUsageError;
    }
    return options;
}

} // namespace torvi

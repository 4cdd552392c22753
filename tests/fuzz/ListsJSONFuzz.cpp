// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudJSONParser.h"
#include "GCloudCLI/Utf8.h"
#include "GCloudModels/AppError.h"

#include <cstdlib>

using namespace torvi;

namespace {

/// Any text is a list or an error that says so.
template <typename Parse>
void parseList(Parse parse)
{
    try {
        (void)parse();
    } catch (const AppError &error) {
        const auto *parseError = std::get_if<AppError::ParseError>(&error.asCase());
        if (parseError == nullptr
            || !parseError->detail.startsWith(QStringLiteral("Failed to parse JSON: "))) {
            std::abort();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto text = decodeUtf8({ data, static_cast<qsizetype>(size) });
    if (!text) {
        return 0;
    }
    parseList([&text] { return GCloudJSONParser::parseProjects(*text); });
    parseList([&text] { return GCloudJSONParser::parseAccounts(*text); });
    parseList([&text] { return GCloudJSONParser::parseConfigurations(*text); });
    parseList(
        [&text] { return GCloudJSONParser::parseServiceAccounts(*text, QStringLiteral("p")); });
    return 0;
}

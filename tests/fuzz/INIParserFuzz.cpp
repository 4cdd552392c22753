// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/INIParser.h"
#include "GCloudCLI/Utf8.h"

#include <cstdlib>

using namespace torvi;

/// What the format promises of every text: keys are not empty, and neither keys nor values nor
/// names carry white space at their ends.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto text = decodeUtf8({ data, static_cast<qsizetype>(size) });
    if (!text) {
        return 0;
    }
    const INIParser::Sections sections = INIParser::parse(*text);
    for (const auto &section : sections) {
        for (auto pair = section.begin(); pair != section.end(); ++pair) {
            if (pair.key().isEmpty() || pair.key().startsWith(u' ') || pair.value().endsWith(u' ')
                || pair.key().contains(u'\n') || pair.value().contains(u'\n')) {
                std::abort();
            }
        }
    }
    return 0;
}

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudJSONParser.h"
#include "GCloudCLI/Utf8.h"
#include "GCloudModels/AppError.h"

#include <cstdlib>

using namespace torvi;

/// Any text is properties or the decoder's own error, never one of ours.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto text = decodeUtf8({ data, static_cast<qsizetype>(size) });
    if (!text) {
        return 0;
    }
    try {
        (void)GCloudJSONParser::parseConfigProperties(*text);
    } catch (const AppError &) {
        std::abort();
    } catch (const std::exception &) {
        return 0;
    }
    return 0;
}

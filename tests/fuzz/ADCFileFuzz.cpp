// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/GCloudConfigReader.h"
#include "GCloudModels/AppError.h"
#include "tests/fuzz/ScratchFile.h"

#include <cstdlib>

using namespace torvi;

/// Any bytes are a state or the one prescribed error; an invalid state says nothing else.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const ScratchFile file(QStringLiteral("application_default_credentials.json"));
    static const GCloudConfigReader reader(file.directory());
    file.write(data, size);
    try {
        const ADCState state = reader.readADCState();
        if (!state.isValid && state != ADCState{}) {
            std::abort();
        }
    } catch (const AppError &error) {
        if (error != AppError::configFileUnreadable(file.path())) {
            std::abort();
        }
    }
    return 0;
}

// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "GCloudCLI/SignInAddress.h"

#include <QUrl>

#include <cstdlib>

using namespace torvi;

/// Whatever gcloud prints, what is handed over is a valid address of the sign-in service that
/// stands in the chunk byte for byte.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView chunk(data, static_cast<qsizetype>(size));
    const auto address = SignInAddress::find(chunk);
    if (address
        && (!address->startsWith(QStringLiteral("https://accounts.google.com/o/oauth2/auth"))
            || !QUrl(*address).isValid() || !chunk.contains(address->toUtf8()))) {
        std::abort();
    }
    return 0;
}

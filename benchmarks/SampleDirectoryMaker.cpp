// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "benchmarks/SampleDirectory.h"

/// SampleDirectoryMaker DIRECTORY CONFIGURATIONS ACCOUNTS
int main(int argc, char **argv)
{
    if (argc != 4) {
        return 2;
    }
    torvi::makeSampleDirectory(QString::fromLocal8Bit(argv[1]), QByteArray(argv[2]).toInt(),
                               QByteArray(argv[3]).toInt());
    return 0;
}

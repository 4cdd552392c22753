// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/VeldraApp.h"

int main(int argc, char **argv)
{
    return torvi::VeldraApp::run(argc, argv);
}

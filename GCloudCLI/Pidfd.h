// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

// The header of glibc 2.36 forgot to say that its functions are C.
extern "C" {
#include <sys/pidfd.h>
}

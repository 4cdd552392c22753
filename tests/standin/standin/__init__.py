# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The parts of the gcloud stand-in; `tests/standin/README.md` tells how to drive it."""

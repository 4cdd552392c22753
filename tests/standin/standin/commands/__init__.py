# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""How each command is played, one function a command: run(session, arguments) -> None."""

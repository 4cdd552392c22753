# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# Completions of torvi for bash; as /usr/share/bash-completion/completions/torvi they are found by themselves.
complete -W '--toggle --manager --quit --doctor --live-title --help --version' torvi

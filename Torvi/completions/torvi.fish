# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

complete -c torvi -f
complete -c torvi -l toggle -d 'Open the popover, or close it'
complete -c torvi -l manager -d 'Open the manager window'
complete -c torvi -l quit -d 'End the Torvi that runs'
complete -c torvi -l doctor -d 'Tell what Torvi found on this desktop'
complete -c torvi -l live-title -d 'Let the title follow every change'
complete -c torvi -l help -d 'Print help'
complete -c torvi -l version -d 'Print the version'

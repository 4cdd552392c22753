# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# fish completion for torvictl

function __torvictl_configurations
    set -l config $HOME/.config/gcloud
    set -q CLOUDSDK_CONFIG; and set config $CLOUDSDK_CONFIG
    for file in $config/configurations/config_*
        string replace -r '.*/config_' '' $file
    end
end

complete -c torvictl -f
complete -c torvictl -l help -d 'Show help'
complete -c torvictl -n __fish_use_subcommand -l version -d 'Show the version'

complete -c torvictl -n __fish_use_subcommand -a status -d 'Show what is active'
complete -c torvictl -n __fish_use_subcommand -a watch -d 'Show what is active, again at each change'
complete -c torvictl -n __fish_use_subcommand -a projects -d 'List the projects that the active account sees'
complete -c torvictl -n __fish_use_subcommand -a switch-project -d 'Make another project active'
complete -c torvictl -n __fish_use_subcommand -a switch-account -d 'Make another account active'
complete -c torvictl -n __fish_use_subcommand -a activate-configuration -d 'Activate a named configuration'
complete -c torvictl -n __fish_use_subcommand -a create-configuration -d 'Create a named configuration'
complete -c torvictl -n __fish_use_subcommand -a delete-configuration -d 'Delete a named configuration'
complete -c torvictl -n __fish_use_subcommand -a set-quota-project -d 'Set the quota project of the credentials'
complete -c torvictl -n __fish_use_subcommand -a adc-login -d 'Log in to Application Default Credentials'
complete -c torvictl -n __fish_use_subcommand -a impersonate -d 'Impersonate a service account'
complete -c torvictl -n __fish_use_subcommand -a clear-impersonation -d 'Stop impersonating'
complete -c torvictl -n __fish_use_subcommand -a identity-token -d 'Print an identity token'
complete -c torvictl -n __fish_use_subcommand -a service-accounts -d 'List the service accounts of a project'
complete -c torvictl -n __fish_use_subcommand -a saved-accounts -d 'List the saved service accounts of a project'
complete -c torvictl -n __fish_use_subcommand -a save-account -d 'Save a service account'
complete -c torvictl -n __fish_use_subcommand -a forget-account -d 'Forget a saved service account'
complete -c torvictl -n __fish_use_subcommand -a recents -d 'List recently used projects'
complete -c torvictl -n __fish_use_subcommand -a pin -d 'Pin a project'
complete -c torvictl -n __fish_use_subcommand -a unpin -d 'Unpin a project'
complete -c torvictl -n __fish_use_subcommand -a settings -d 'Show or change the settings'
complete -c torvictl -n __fish_use_subcommand -a locate -d 'Print the path of gcloud'
complete -c torvictl -n __fish_use_subcommand -a doctor -d 'Tell what Torvi found on this machine'

complete -c torvictl -n '__fish_seen_subcommand_from status watch projects service-accounts saved-accounts recents settings' -l json -d 'Print JSON'
complete -c torvictl -n '__fish_seen_subcommand_from status watch' -l format -x -a 'waybar polybar i3blocks plain' -d 'Print one line for a bar'
complete -c torvictl -n '__fish_seen_subcommand_from impersonate clear-impersonation' -l mode -x -a 'adcOnly cliOnly both'
complete -c torvictl -n '__fish_seen_subcommand_from save-account forget-account' -l project -x -a '(torvictl recents 2>/dev/null)'
complete -c torvictl -n '__fish_seen_subcommand_from save-account' -l label -x
complete -c torvictl -n '__fish_seen_subcommand_from switch-project set-quota-project pin unpin service-accounts saved-accounts' -a '(torvictl recents 2>/dev/null)'
complete -c torvictl -n '__fish_seen_subcommand_from activate-configuration delete-configuration' -a '(__torvictl_configurations)'
complete -c torvictl -n '__fish_seen_subcommand_from settings; and not __fish_seen_subcommand_from set' -a set
complete -c torvictl -n '__fish_seen_subcommand_from set' -a 'launchAtLogin menubarDisplayFormat gcloudPathOverride refreshIntervalMinutes'

# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# bash completion for torvictl

_torvictl() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]} words=--help
    local config=${CLOUDSDK_CONFIG-$HOME/.config/gcloud}

    if ((COMP_CWORD == 1)); then
        words='status watch projects switch-project switch-account activate-configuration
            create-configuration delete-configuration set-quota-project adc-login impersonate
            clear-impersonation identity-token service-accounts saved-accounts save-account
            forget-account recents pin unpin settings locate doctor --help --version'
    elif [[ $previous == --mode ]]; then
        words='adcOnly cliOnly both'
    elif [[ $previous == --format ]]; then
        words='waybar polybar i3blocks plain'
    else
        case $command in
            status | watch) words+=' --json --format' ;;
            projects | recents) words+=' --json' ;;
            service-accounts | saved-accounts) words+=" --json $(torvictl recents 2>/dev/null)" ;;
            switch-project | set-quota-project | pin | unpin)
                words+=" $(torvictl recents 2>/dev/null)"
                ;;
            activate-configuration | delete-configuration)
                words+=" $(cd "$config/configurations" 2>/dev/null && printf '%s\n' config_* |
                    sed 's/^config_//')"
                ;;
            impersonate | clear-impersonation) words+=' --mode' ;;
            save-account) words+=' --project --label' ;;
            forget-account) words+=' --project' ;;
            settings)
                if ((COMP_CWORD == 2)); then
                    words+=' --json set'
                elif ((COMP_CWORD == 3)); then
                    words='launchAtLogin menubarDisplayFormat gcloudPathOverride
                        refreshIntervalMinutes'
                else
                    case $previous in
                        launchAtLogin) words='true false' ;;
                        menubarDisplayFormat)
                            words='icon_only icon_and_project icon_and_project_and_account'
                            ;;
                        gcloudPathOverride)
                            mapfile -t COMPREPLY < <(compgen -f -- "$word")
                            return
                            ;;
                    esac
                fi
                ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -F _torvictl torvictl

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# tryPackages.sh DEB...: installs, runs and removes the packages in a bare Debian 12 that is made for
# it, from the sources that this machine is set up with. As root.
set -euo pipefail

root=$(mktemp -d /var/tmp/torvi-try.XXXXXX)
trap 'umount "$root/proc" 2>/dev/null || true; rm -rf --one-file-system "$root"' EXIT
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"; }
say() { printf '\n== %s\n' "$*"; }

# Where apt takes this machine's bookworm from.
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Codename: bookworm' 'Created-By: Packages' |
    grep -v security | head -n 1)
say "bare Debian 12, with a session bus"
chmod 755 "$root"
debootstrap --variant=minbase --include=dbus-daemon,libglib2.0-bin bookworm "$root" "$mirror" >"$root.log" 2>&1 ||
    { tail "$root.log"; exit 1; }
mount -t proc proc "$root/proc"
for settings in /etc/apt/apt.conf.d /etc/apt/trusted.gpg.d /etc/apt/keyrings /etc/ssl/certs; do
    [[ ! -d $settings ]] || { mkdir -p "$root$settings" && cp -rL "$settings/." "$root$settings/"; }
done
cp /etc/resolv.conf "$root/etc/" 2>/dev/null || true
inside apt-get update -qq
inside dpkg --get-selections | cut -f1 | sort >"$root/before"
cp "$@" "$root/"

say "install"
inside sh -c 'apt-get install -y -qq --no-install-recommends /*.deb' >"$root.log" 2>&1 ||
    { tail "$root.log"; exit 1; }
inside dpkg -l torvi torvictl | tail -n 2

say "run"
inside torvictl --version
inside torvi --version
inside sh -c "ls /usr/share/bash-completion/completions/torvi* /usr/share/zsh/vendor-completions/_torvi* \
    /usr/share/fish/vendor_completions.d/torvi*"
inside sh -c 'install -Dm644 -t ~/.config/autostart /usr/share/applications/com.veldra.Torvi.desktop'
inside torvictl status
inside torvictl doctor || [[ $? == 1 ]] # there is no gcloud
inside torvi --doctor || [[ $? == 1 ]]
inside env QT_QPA_PLATFORM=offscreen dbus-run-session -- sh -c '
    gdbus call --session -d com.veldra.Torvi -o /com/veldra/Torvi \
        -m org.freedesktop.Application.Activate {} &&
    gdbus call --session -d com.veldra.Torvi -o /com/veldra/Torvi \
        -m org.freedesktop.Application.ActivateAction quit [] {}' 2>&1 | tee "$root/session"
if grep -q 'not installed\|unavailable' "$root/session"; then
    echo "a module of Qt is missing among the dependencies"
    exit 1
fi

say "remove"
inside apt-get purge -y -qq torvi torvictl >/dev/null
inside apt-get autoremove -o APT::AutoRemove::RecommendsImportant=false -y -qq --purge >/dev/null
inside dpkg --get-selections | cut -f1 | sort | diff "$root/before" -
echo "the same packages as before"
inside find / -xdev -iname '*torvi*' -not -name '*.deb' -not -path '/root/*' | tee "$root/left"
[[ ! -s $root/left ]]
echo "nothing left"
rm -f "$root.log"

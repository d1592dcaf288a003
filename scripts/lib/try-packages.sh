#!/usr/bin/env bash
# In a bare Debian, as root: installs the former packages, upgrades them, removes and purges them, and
# has the program used in between.
set -euo pipefail
names=(quorvel quorvel-virtual-keyer)
user=ham

say() {
    echo "-- $*"
}

# quietly COMMAND...: says what it said only when it fails.
quietly() {
    "$@" >/tmp/quietly.log 2>&1 </dev/null || {
        tail -n 30 /tmp/quietly.log >&2
        return 1
    }
}

install_packages() {
    quietly apt-get install -y --no-install-recommends --allow-downgrades "$@"
}

version_of() {
    dpkg-query -W -f='${Version}' "$1"
}

use_it() {
    runuser --user "$user" -- env -i PATH=/usr/bin:/bin HOME="/home/$user" LANG=C.UTF-8 \
        timeout 240 bash /packages/try-program.sh
}

# left_behind: what the packages have left anywhere but in the user's own folder.
left_behind() {
    find / -xdev \( -path /home -o -path /packages -o -path /proc -o -path /tmp \) -prune -o \
        -iname '*quorvel*' -print
    dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${names[@]}" 2>/dev/null || true
}

quietly apt-get update
# A screen, a hand that types, and what starts a program from its entry in the menu.
install_packages xvfb xauth xdotool openbox libglib2.0-bin fonts-dejavu-core procps
quietly useradd --create-home "$user"

say "install the version before"
install_packages /packages/former/*.deb
former=$(version_of quorvel)
use_it

say "upgrade from $former"
install_packages /packages/new/*.deb
new=$(version_of quorvel)
dpkg --compare-versions "$new" gt "$former"
say "it is $new now"
use_it
quietly dpkg --verify "${names[@]}"

say "remove"
quietly apt-get remove -y "${names[@]}"
if command -v quorvel quorvel-virtual-keyer; then
    echo "A program is still there." >&2
    exit 1
fi

say "purge"
quietly dpkg --purge "${names[@]}"
quietly apt-get autoremove -y --purge
remains=$(left_behind)
if [[ -n $remains ]]; then
    echo "This was left behind:" >&2
    echo "$remains" >&2
    exit 1
fi
say "nothing is left of it"

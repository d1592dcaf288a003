#!/usr/bin/env bash
# Tries the packages where nothing of this tree is: in a bare Debian of this machine's release, made for
# it and removed afterwards. To be run by root: clean-root.sh FORMER NEW, two folders of packages.
#
# The programs run in namespaces of their own, so that no mount and no process is left, and see none
# of this machine's devices.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
former=$1
new=$2
root=$(mktemp -d "${TMPDIR:-/var/tmp}/quorvel-root.XXXXXXXX")
chmod 755 "$root"
trap 'rm -rf --one-file-system "$root"' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# make_root: with this machine's own way to the packages, mirrors, proxies and certificates included.
make_root() {
    local mirror
    # shellcheck disable=SC2016 # It is apt that expands it.
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | head -n 1)
    # shellcheck disable=SC1091 # It is the system's.
    debootstrap --variant=minbase --include=ca-certificates \
        "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$root" "$mirror" >"$root.log" 2>&1 || {
        tail -n 20 "$root.log" >&2
        return 1
    }
    rm -f "$root.log"
    rm -rf "$root"/etc/apt/sources.list*
    cp -a /etc/apt/. "$root/etc/apt/"
    cp -aL /etc/resolv.conf /etc/hosts "$root/etc/"
    cp -a /etc/ssl/certs/. "$root/etc/ssl/certs/"
    mkdir -p "$root/packages/former" "$root/packages/new"
    cp "$former"/*.deb "$root/packages/former/"
    cp "$new"/*.deb "$root/packages/new/"
    cp "$here/try-packages.sh" "$here/try-program.sh" "$root/packages/"
    # Nothing is started by an installation.
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
    chmod 755 "$root/usr/sbin/policy-rc.d"
}

# in_root COMMAND...: with nothing of this session but the proxies.
in_root() {
    local -a proxies
    mapfile -t proxies < <(env | grep -iE '^(https?_proxy|no_proxy)=' || true)
    # shellcheck disable=SC2016 # The inner shell expands it.
    env -i "${proxies[@]}" PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive \
        unshare --mount --pid --ipc --fork --kill-child sh -ec '
        root=$1
        shift
        mount -t proc proc "$root/proc"
        mount -t devpts -o newinstance,ptmxmode=0666,mode=0620,gid=5 devpts "$root/dev/pts"
        mount -t tmpfs tmpfs "$root/dev/shm"
        rm -f "$root/dev/ptmx"
        ln -s pts/ptmx "$root/dev/ptmx"
        exec chroot "$root" "$@"
    ' sh "$root" "$@"
}

make_root
in_root bash /packages/try-packages.sh

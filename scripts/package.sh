#!/usr/bin/env bash
# Makes the Debian packages of what is committed, in build/package; --check looks at them closely
set -euo pipefail
source scripts/lib/packages.sh

check=false
case ${1:-} in
"") ;;
--check) check=true ;;
*)
    echo "usage: ./dev package [--check]" >&2
    exit 2
    ;;
esac

require_packages build package
version=$(dpkg-parsechangelog -S Version)
upstream=${version%-*}
out=$PWD/build/package
# Nothing of an earlier run gets into these.
rm -rf "$out/first" "$out/second"

# make_packages FOLDER: from the last commit, with the time of the changelog's entry in them.
make_packages() {
    local folder=$out/$1
    mkdir -p "$folder/quorvel-$upstream"
    git archive HEAD | tar --extract --directory "$folder/quorvel-$upstream"
    (
        cd "$folder"
        tar --create --gzip --exclude="quorvel-$upstream/debian" --sort=name \
            --mtime="@$(git -C "$OLDPWD" log -1 --format=%ct)" --owner=0 --group=0 \
            --file "quorvel_$upstream.orig.tar.gz" "quorvel-$upstream"
        cd "quorvel-$upstream"
        dpkg-buildpackage --unsigned-source --unsigned-changes >"$folder/build.log" 2>&1
    ) || {
        tail -n 40 "$folder/build.log" >&2
        return 1
    }
}

# of_both_builds FOLDER: a line with the sum of each package.
of_both_builds() {
    (cd "$out/$1" && sha256sum ./*.deb)
}

check_packages() {
    echo "== lintian"
    lintian --fail-on error,warning --info "$out"/first/quorvel_*.changes
    echo "== the menu's entry, the software centre's, the manual pages"
    desktop-file-validate packaging/org.quorvel.Quorvel.desktop
    appstreamcli validate --no-net packaging/org.quorvel.Quorvel.metainfo.xml
    mandoc -T lint -W warning packaging/man/*
    echo "== a second build has the same bytes"
    make_packages second
    diff <(of_both_builds first) <(of_both_builds second)
    try_packages
}

# make_former_packages: the same programs under a lower version, for the upgrade.
make_former_packages() {
    local package folder=$out/former
    rm -rf "$folder"
    mkdir -p "$folder"
    for package in "$out"/first/*.deb; do
        [[ $package != *-dbgsym_* ]] || continue
        dpkg-deb --raw-extract "$package" "$folder/tree"
        sed -i "s/^Version: .*/&~former/" "$folder/tree/DEBIAN/control"
        dpkg-deb --root-owner-group --build "$folder/tree" "$folder/$(basename "$package")" \
            >/dev/null
        rm -rf "$folder/tree"
    done
}

# try_packages: installs, upgrades, uses, removes and purges them in a bare Debian, which takes root.
try_packages() {
    local -a as_root=()
    echo "== installed, upgraded, used, removed and purged in a clean root"
    if ((EUID != 0)); then
        if ! sudo --non-interactive true 2>/dev/null; then
            echo "LEFT OUT: this takes root, or sudo without a password." >&2
            return
        fi
        as_root=(sudo "--preserve-env=http_proxy,https_proxy,no_proxy,TMPDIR")
    fi
    require_packages clean-root
    make_former_packages
    rm -rf "$out/new"
    mkdir -p "$out/new"
    find "$out/first" -maxdepth 1 -name '*.deb' ! -name '*-dbgsym_*' -exec cp {} "$out/new/" ';'
    "${as_root[@]}" bash scripts/lib/clean-root.sh "$out/former" "$out/new"
}

[[ -z $(git status --porcelain) ]] || echo "What is not committed is not in the packages." >&2
grep -q "^project(quorvel VERSION $upstream " CMakeLists.txt || {
    echo "debian/changelog says $upstream, CMakeLists.txt another version." >&2
    exit 1
}
make_packages first
if "$check"; then
    check_packages
fi
ls "$out"/first/*.deb

#!/usr/bin/env bash
# Builds and starts Quorvel with a virtual keyer; without a display it shows that both work
set -euo pipefail
source scripts/lib/packages.sh
source scripts/lib/processes.sh

# The release build: it is what an operator would run, and no warning of a newer compiler stands
# in the way of the first look.
bin=build/release/bin
out=build/run

# start_keyer OPTION...: returns when the virtual keyer is plugged in, false when that fails. What
# it keys goes to the descriptor in $keyed.
# shellcheck disable=SC2120 # A run without display gives options, by way of its steps.
start_keyer() {
    start keyer "$bin/quorvel-virtual-keyer" "$@" \
        1>&"$keyed" 2>"$out/keyer.log"
    # It says so in the user's language, with the port's path in brackets.
    wait_while keyer 10 grep -qF '/quorvel/ports/usbserial-virtual)' "$out/keyer.log" && return
    echo "The virtual keyer could not be plugged in:" >&2
    tail -n 20 "$out/keyer.log" >&2
    return 1
}

if [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]; then
    require_packages build
    source scripts/lib/run-on-display.sh
else
    require_packages build screen
    source scripts/lib/run-without-display.sh
fi
source scripts/lib/build.sh

build_preset release
mkdir -p "$out"
run

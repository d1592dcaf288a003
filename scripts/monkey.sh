#!/usr/bin/env bash
# Uses the whole window at random under the address sanitizer: SECONDS [SEED]
set -euo pipefail
source scripts/lib/packages.sh
seconds=${1:-60}
if [[ ! $seconds =~ ^[1-9][0-9]*$ || ! ${2:-0} =~ ^[0-9]+$ ]]; then
    echo "usage: ./dev monkey SECONDS [SEED], two numbers" >&2
    exit 2
fi
require_packages build test
source scripts/lib/build.sh
build_preset asan-ubsan --target quorvel-monkey

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=1:halt_on_error=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
runtime=$(mktemp -d)
trap 'rm -rf "$runtime"' EXIT
XDG_RUNTIME_DIR=$runtime XDG_CONFIG_HOME=$runtime/config XDG_STATE_HOME=$runtime/state \
    build/asan-ubsan/tests/quorvel-monkey "$seconds" ${2:+"$2"} </dev/null

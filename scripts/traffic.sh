#!/usr/bin/env bash
# Mixed traffic by real keys, mouse and paddle, compared with what was meant: SECONDS [SEED] [--loggers]
set -euo pipefail
source scripts/lib/packages.sh
program=traffic.py loggers=()
if [[ ${!#} == --loggers ]]; then
    program=shared_keyer.py loggers=(--loggers)
    set -- "${@:1:$#-1}"
fi
seconds=${1:-60}
if [[ ! $seconds =~ ^[1-9][0-9]*$ || ! ${2:-0} =~ ^[0-9]+$ ]]; then
    echo "usage: ./dev traffic SECONDS [SEED] [--loggers], two numbers" >&2
    exit 2
fi
require_packages build screen test "${loggers[@]#--}"
source scripts/lib/build.sh
build_preset dev --target quorvel --target quorvel-key-guard --target quorvel-send \
    --target quorvel-virtual-keyer
/usr/bin/python3 -B "tests/integration/$program" build/dev/bin/quorvel \
    build/dev/bin/quorvel-virtual-keyer "$seconds" ${2:+"$2"} "${loggers[@]}" </dev/null

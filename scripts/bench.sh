#!/usr/bin/env bash
# Builds the benchmarks optimised and runs each; the arguments are theirs
set -euo pipefail
source scripts/lib/packages.sh
require_packages build bench
source scripts/lib/build.sh
build_preset bench

echo "== all in all"
python3 -B bench/table.py build/bench/bin build/bench/bench build/bench/table.json
for benchmark in build/bench/bench/*; do
    case $benchmark in
    *-ideal-host | *-paste | *-sent-character) continue ;; # the table has what they print
    esac
    if [[ -f $benchmark && -x $benchmark ]]; then
        echo "== $(basename "$benchmark")"
        "$benchmark" "$@"
    fi
done

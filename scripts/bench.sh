#!/usr/bin/env bash
# Builds the benchmarks optimised and runs each; the arguments are theirs
set -euo pipefail
source scripts/lib/packages.sh
require_packages build bench
source scripts/lib/build.sh
build_preset bench

for benchmark in build/bench/bench/*; do
    if [[ -f $benchmark && -x $benchmark ]]; then
        echo "== $(basename "$benchmark")"
        "$benchmark" "$@"
    fi
done

#!/usr/bin/env bash
# Runs every fuzz target for SECONDS (60 by default); what it finds stays in build/fuzz
set -euo pipefail
source scripts/lib/packages.sh
seconds=${1:-60}
if [[ ! $seconds =~ ^[1-9][0-9]*$ ]]; then
    echo "How long is a number of seconds, not \"$seconds\"." >&2
    exit 2
fi
require_packages build clang fuzz
source scripts/lib/build.sh
build_preset fuzz

cd build/fuzz
for target in fuzz/*; do
    [[ -f $target && -x $target ]] || continue
    name=$(basename "$target")
    echo "== $name"
    mkdir -p "corpus/$name"
    "$target" -max_total_time="$seconds" -max_len=4096 -timeout=10 \
        -artifact_prefix="$name-" "corpus/$name"
done

#!/usr/bin/env bash
# Runs every fuzz target for SECONDS (60 by default), from fuzz/corpus on: [SECONDS [TARGET|keep]]
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

# Half of the time would go into remembering where each piece of memory comes from. A crash tells it
# when its input is run again without this.
export ASAN_OPTIONS=${ASAN_OPTIONS:-malloc_context_size=0:quarantine_size_mb=16}

# An input that stands for minutes of keying takes as long as the few hundred short ones that find
# more.
longest_input() {
    case $1 in
    receive-path | virtual-keyer) echo 256 ;;
    *) echo 4096 ;;
    esac
}

unpack_corpus() {
    mkdir -p "corpus/$1"
    [[ ! -f ../../fuzz/corpus/$1.tar.xz ]] || tar -xJf "../../fuzz/corpus/$1.tar.xz" -C "corpus/$1"
}

# Replaces what is kept by the fewest inputs that reach as much.
keep_corpus() {
    local kept
    kept=$(mktemp -d)
    "$2" -merge=1 "$kept" "corpus/$1"
    mkdir -p ../../fuzz/corpus
    tar -cJf "../../fuzz/corpus/$1.tar.xz" --sort=name --owner=0 --group=0 --mtime=@0 -C "$kept" .
    rm -r "$kept"
}

cd build/fuzz
for target in fuzz/*; do
    name=$(basename "$target")
    [[ -f $target && -x $target && (${2:-keep} == keep || $2 == "$name") ]] || continue
    echo "== $name"
    unpack_corpus "$name"
    "$target" -max_total_time="$seconds" -max_len="$(longest_input "$name")" -timeout=10 -entropic=0 \
        -print_final_stats=1 -artifact_prefix="$name-" "corpus/$name"
    [[ ${2:-} != keep ]] || keep_corpus "$name" "$target"
done

#!/usr/bin/env bash
# Runs every fuzz target from what is kept on: [SECONDS [TARGET|keep]], or without a fuzzer: runs TARGET COUNT [SEED]
set -euo pipefail
source scripts/lib/packages.sh

# vary TARGET COUNT [SEED]: variations of what is kept, optimised and without sanitizers, which is many
# times as fast.
vary() {
    if [[ ! ${2:-} =~ ^[1-9][0-9]*$ || ! -f fuzz/corpus/$1.tar.xz || ! ${3:-1} =~ ^[0-9]+$ ]]; then
        echo "usage: ./dev fuzz runs TARGET COUNT [SEED]" >&2
        exit 2
    fi
    require_packages build bench
    source scripts/lib/build.sh
    build_preset bench --target fuzz-replay
    corpus=$(mktemp -d)
    trap 'rm -r "$corpus"' EXIT
    tar -xJf "fuzz/corpus/$1.tar.xz" -C "$corpus"
    time build/bench/tests/fuzz-replay "$1" "$corpus" "$2" "${3:-1}"
}

if [[ ${1:-} == runs ]]; then
    vary "${2:-}" "${3:-}" "${4:-1}"
    exit
fi
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

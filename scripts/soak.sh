#!/usr/bin/env bash
# Ten thousand lives of ports and key guards, also under the sanitizers; a million characters: [LIVES [CHARACTERS]]
set -euo pipefail
source scripts/lib/packages.sh
cycles=${1:-10000}
characters=${2:-1000000}
if [[ ! $cycles =~ ^[1-9][0-9]*$ || ! $characters =~ ^[1-9][0-9]*$ ]]; then
    echo "How many lives, and how many characters, are numbers." >&2
    exit 2
fi
require_packages build test
source scripts/lib/build.sh
export QUORVEL_SOAK_CYCLES=$cycles
export QT_FORCE_STDERR_LOGGING=1
export ASAN_OPTIONS=detect_leaks=1:halt_on_error=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export TSAN_OPTIONS=suppressions=$PWD/tests/tsan.supp:halt_on_error=1
# QtTest ends a test function after five minutes otherwise.
export QTEST_FUNCTION_TIMEOUT=7200000

echo "== characters"
build_preset dev --target sending-soak
QT_QPA_PLATFORM=offscreen QUORVEL_SOAK_CHARACTERS=$characters \
    build/dev/tests/sending-soak SendingSoak </dev/null

for preset in dev asan-ubsan tsan; do
    runner=()
    # gcc's thread sanitizer cannot map its shadow where the kernel randomises addresses widely.
    [[ $preset != tsan ]] || ! setarch -R true 2>/dev/null || runner=(setarch -R)
    echo "== $preset"
    build_preset "$preset" --target serial-soak --target key-guard-tests
    "${runner[@]}" "build/$preset/tests/serial-soak" PortLifeCycleSoak </dev/null
    "${runner[@]}" "build/$preset/tests/key-guard-tests" KeyGuardProcessTest \
        nothingIsLeftOfManyLinks </dev/null
done

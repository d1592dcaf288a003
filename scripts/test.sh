#!/usr/bin/env bash
# Builds and runs every test, also under the sanitizers; --preset NAME and ctest's options narrow it
set -uo pipefail
source scripts/lib/packages.sh

# Whole programs run as they are, all other tests under the sanitizers.
presets=(plain asan-ubsan tsan)
everything=true
if [[ ${1:-} == --preset && -n ${2:-} ]]; then
    presets=("$2")
    everything=false
    shift 2
elif (($#)); then
    # A filter is for the work on one test, where the sanitizers' builds would only be waited for.
    presets=(dev)
    everything=false
fi
ctest_arguments=("$@")

require_packages build screen test
source scripts/lib/build.sh

passed=0
failed=0
times=()

# attribute NAME: the number that ctest's report gives to an attribute of the whole run.
attribute() {
    sed -n "s/^[[:space:]]*$1=\"\([0-9]*\)\".*/\1/p" "$report" | head -n 1
}

# count_report: adds what ctest reported. A test that did not run has not passed.
count_report() {
    local total failures skipped disabled
    total=$(attribute tests)
    failures=$(attribute failures)
    skipped=$(attribute skipped)
    disabled=$(attribute disabled)
    local bad=$((failures + skipped + disabled))
    passed=$((passed + total - bad))
    failed=$((failed + bad))
}

# run_preset PRESET: false when it did not build, a test failed, or none ran.
run_preset() {
    local preset=$1 begin=$SECONDS status
    local -a runner=()
    # gcc's thread sanitizer cannot map its shadow where the kernel randomises addresses widely.
    [[ $preset != tsan ]] || ! setarch -R true 2>/dev/null || runner=(setarch -R)
    echo "== $preset: build"
    if ! build_preset "$preset"; then
        echo "== $preset: does not build, which counts as one failed test" >&2
        failed=$((failed + 1))
        return 1
    fi
    times+=("$preset: build $((SECONDS - begin)) s")

    begin=$SECONDS
    report=$PWD/build/tested-$preset.xml
    rm -f "$report"
    echo "== $preset: test"
    "${runner[@]}" ctest --preset "$preset" --output-junit "$report" "${ctest_arguments[@]}" \
        </dev/null
    status=$?
    times+=("$preset: test $((SECONDS - begin)) s")
    if [[ ! -s $report ]] || (($(attribute tests) == 0)); then
        echo "== $preset: no test was run, which counts as one failed test" >&2
        failed=$((failed + 1))
        return 1
    fi
    count_report
    return "$status"
}

# names PRESET: of all tests that it has.
names() {
    ctest --preset "$1" --show-only | sed -n 's/^ *Test *#[0-9]*: //p' | sort
}

# count_left_out: a test that none of the runs had counts as failed.
count_left_out() {
    local left_out
    if [[ -z $(names dev) ]]; then
        echo "== which tests there are cannot be told" >&2
        failed=$((failed + 1))
    fi
    mapfile -t left_out < <(comm -23 <(names dev) <({ names plain; names asan-ubsan; } | sort -u))
    if ((${#left_out[@]} > 0)); then
        echo "== in none of the runs: ${left_out[*]}" >&2
        failed=$((failed + ${#left_out[@]}))
    fi
}

result=0
for preset in "${presets[@]}"; do
    run_preset "$preset" || result=1
done
[[ $everything == false ]] || count_left_out

printf '%s\n' "${times[@]}" "in all: $SECONDS s"
((failed == 0 && passed > 0)) || result=1
echo "$passed passed, $failed failed"
exit "$result"

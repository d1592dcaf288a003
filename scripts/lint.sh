#!/usr/bin/env bash
# Checks the format, builds with clang's warnings as errors, runs clang-tidy, cppcheck, shellcheck
set -uo pipefail
source scripts/lib/packages.sh
source scripts/lib/sources.sh
require_packages build test format lint
source scripts/lib/build.sh

failed_checks=()

# check NAME COMMAND...: runs one check and tells how long it took; all run, also after a failure.
check() {
    local name=$1 begin=$SECONDS
    shift
    echo "== $name"
    "$@" || failed_checks+=("$name")
    echo "== $name: $((SECONDS - begin)) s"
}

tidy() {
    # Not what moc and uic have written, which lies in the build directory.
    run-clang-tidy -quiet -j "$(nproc)" -p build/clang '^(?!.*/build/clang/)' \
        >build/clang/tidy.txt 2>build/clang/tidy.err && return
    grep -E -A 6 '(error|warning):' build/clang/tidy.txt ||
        tail -n 40 build/clang/tidy.txt build/clang/tidy.err
    return 1
}

static_analysis() {
    local -a files
    mapfile -t files < <(cpp_files)
    # It takes "abc"_ba for a pointer and qint64 for a long; the compilers, which know both, warn
    # of either mistake.
    cppcheck --quiet -j "$(nproc)" --std=c++20 --language=c++ --library=qt -I . --inline-suppr \
        --enable=warning,performance,portability --error-exitcode=1 \
        --suppress=strPlusChar --suppress=invalidPrintfArgType_sint "${files[@]}"
}

check "format" bash scripts/format.sh --check
check "shellcheck" shellcheck -x dev scripts/*.sh .ci/run
check "cppcheck" static_analysis
check "clang build" build_preset clang
check "clang-tidy" tidy

if ((${#failed_checks[@]})); then
    echo "lint: found something in: $(IFS=,; echo "${failed_checks[*]}")"
    exit 1
fi
echo "lint: clean"

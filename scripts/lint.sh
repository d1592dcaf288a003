#!/usr/bin/env bash
# Format, shellcheck, cppcheck, a build with clang, clang-tidy; --quick leaves the last two out
set -uo pipefail
source scripts/lib/packages.sh
source scripts/lib/sources.sh

groups=(format lint)
[[ ${1:-} == --quick ]] || groups+=(build test clang)
require_packages "${groups[@]}"
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
    # What it is told to leave alone it gets wrong in C++20: literals such as "abc"_ba, Qt's
    # integers, lambdas that make a table, the length of a std::array. The compilers, clang-tidy and
    # the address sanitizer see to these.
    cppcheck --quiet -j "$(nproc)" --std=c++20 --language=c++ --library=qt -I . --inline-suppr \
        --enable=warning,performance,portability --error-exitcode=1 \
        --suppress=strPlusChar --suppress=invalidPrintfArgType_sint --suppress=syntaxError \
        --suppress=internalAstError --suppress=arrayIndexOutOfBounds "${files[@]}"
}

check "format" bash scripts/format.sh --check
check "shellcheck" shellcheck -x dev scripts/*.sh .ci/run
check "cppcheck" static_analysis
if [[ ${1:-} != --quick ]]; then
    check "clang build" build_preset clang
    check "clang-tidy" tidy
fi

if ((${#failed_checks[@]})); then
    echo "lint: found something in: $(IFS=,; echo "${failed_checks[*]}")"
    exit 1
fi
echo "lint: clean"

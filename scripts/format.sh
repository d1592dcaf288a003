#!/usr/bin/env bash
# Formats every C++ file in place; --check only tells which are not formatted
set -euo pipefail
source scripts/lib/packages.sh
source scripts/lib/sources.sh
require_packages format
source scripts/lib/owner.sh
hand_over_to_owner

mapfile -t files < <(cpp_files)
if [[ ${1:-} == --check ]]; then
    clang-format --dry-run -Werror "${files[@]}"
else
    clang-format -i "${files[@]}"
fi

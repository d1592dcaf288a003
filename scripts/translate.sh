#!/usr/bin/env bash
# Brings translations/*.ts up to date with the texts in the sources, or the FILEs; a new one begins so
set -euo pipefail
source scripts/lib/packages.sh
require_packages build
source scripts/lib/owner.sh
hand_over_to_owner

files=("$@")
((${#files[@]})) || files=(translations/quorvel_*.ts)
# Where no text is that an operator reads.
mapfile -t folders < <(
    find . -mindepth 2 \( -name '*.cpp' -o -name '*.ui' \) -not -path './build/*' |
        cut -d / -f 2 | sort -u | grep -vxE 'bench|cmake|fuzz|tests'
)
# Without places in the sources, which would change with every line above them.
"$(qmake6 -query QT_HOST_BINS)/lupdate" -locations none -no-obsolete -source-language en -I . \
    "${folders[@]}" -ts "${files[@]}"

#!/usr/bin/env bash
# Builds a preset (dev, clang, asan-ubsan, tsan, release or bench; dev when none is named)
set -euo pipefail
source scripts/lib/packages.sh

preset=${1:-dev}
groups=(build)
case $preset in
release) ;;
bench) groups+=(bench) ;;
clang) groups+=(test clang) ;;
*) groups+=(test) ;;
esac
require_packages "${groups[@]}"
source scripts/lib/build.sh
build_preset "$preset"

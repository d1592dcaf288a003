#!/usr/bin/env bash
# Prints what becomes of the key: every state by every ending; STATE:ENDING..., either "*", narrows it
set -euo pipefail
source scripts/lib/packages.sh
require_packages build screen test
source scripts/lib/build.sh
build_preset dev --target quorvel --target quorvel-key-guard --target quorvel-virtual-keyer
/usr/bin/python3 -B tests/integration/endings_test.py build/dev/bin/quorvel \
    build/dev/bin/quorvel-virtual-keyer "$@" </dev/null

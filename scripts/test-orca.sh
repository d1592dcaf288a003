#!/usr/bin/env bash
# Has a real screen reader, Orca, speak a first contact, and compares what it says
set -euo pipefail
source scripts/lib/packages.sh
require_packages build screen test orca
source scripts/lib/build.sh
build_preset dev --target quorvel --target quorvel-key-guard --target quorvel-virtual-keyer
/usr/bin/python3 -B tests/integration/orca_test.py build/dev/bin/quorvel \
    build/dev/bin/quorvel-virtual-keyer "$@" </dev/null

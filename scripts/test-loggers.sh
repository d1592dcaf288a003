#!/usr/bin/env bash
# Has real loggers of the distribution send through Quorvel; TEST... narrows it
set -euo pipefail
source scripts/lib/packages.sh
require_packages build screen test loggers
source scripts/lib/build.sh
build_preset dev --target quorvel --target quorvel-key-guard --target quorvel-virtual-keyer
/usr/bin/python3 -B tests/integration/tlf_test.py build/dev/bin/quorvel \
    build/dev/bin/quorvel-virtual-keyer "$@" </dev/null

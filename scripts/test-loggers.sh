#!/usr/bin/env bash
# Has real loggers of the distribution, Tlf and Xlog, send through Quorvel
set -euo pipefail
source scripts/lib/packages.sh
require_packages build screen test loggers
source scripts/lib/build.sh
build_preset dev --target quorvel --target quorvel-key-guard --target quorvel-virtual-keyer
for logger in tlf xlog; do
    /usr/bin/python3 -B "tests/integration/${logger}_test.py" build/dev/bin/quorvel \
        build/dev/bin/quorvel-virtual-keyer </dev/null
done

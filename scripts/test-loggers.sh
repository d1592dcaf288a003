#!/usr/bin/env bash
# Has real loggers of the distribution, Tlf and Xlog, send through Quorvel
set -euo pipefail
source scripts/lib/packages.sh
require_packages build screen test loggers
source scripts/lib/build.sh
build_preset dev --target quorvel --target quorvel-key-guard --target quorvel-send \
    --target quorvel-virtual-keyer
run() {
    /usr/bin/python3 -B "tests/integration/$1" build/dev/bin/quorvel \
        build/dev/bin/quorvel-virtual-keyer "${@:2}" </dev/null
}
for logger in tlf xlog cwdaemon; do
    run "${logger}_test.py"
done
run shared_keyer.py 60 --loggers

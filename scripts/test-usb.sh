#!/usr/bin/env bash
# Tests serial port and hot-plug with the kernel's own driver, in a guest; arguments name the tests
set -euo pipefail
source scripts/lib/packages.sh
source scripts/lib/processes.sh
require_packages build usb
source scripts/lib/build.sh
source tests/usb/guest-image.sh

bin=build/usb/bin
build_preset usb
if ! make_guest "$bin/quorvel-port-probe"; then
    echo "The USB test cannot run: there is no guest to run it in." >&2
    exit 1
fi

# Whatever hangs in it, the test ends, and all that it has started with it.
status=0
start test env PYTHONPATH=tests/integration timeout --kill-after=5 300 \
    python3 -B tests/usb/usb_test.py "$guest" "$bin/quorvel-virtual-keyer" "$@"
wait "${pids[test]}" || status=$?
if ((status == 124 || status == 137)); then
    echo "The USB test did not end within its time." >&2
fi
exit "$status"

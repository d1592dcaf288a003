#!/usr/bin/env bash
# The installed program, as an ordinary user has it, on a screen in memory: started from its entry in
# the menu, it connects to the virtual keyer, which has to key what is typed, and ends when told to.
set -euo pipefail
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
mkdir -m 700 "$XDG_RUNTIME_DIR"
mkdir -p "$XDG_CONFIG_HOME/quorvel"
printf '[General]\nWKPortName=usbserial-virtual\n' >"$XDG_CONFIG_HOME/quorvel/quorvel.conf"

# wait_for WHAT COMMAND...
wait_for() {
    local what=$1 deadline=$((SECONDS + 60))
    shift
    until "$@" >/dev/null 2>&1; do
        if ((SECONDS > deadline)); then
            echo "waited in vain for $what" >&2
            cat "$work"/*.log >&2
            exit 1
        fi
        sleep 0.1
    done
}

has_ended() {
    ! pgrep --exact --uid "$(id -u)" quorvel
}

is_in_front() {
    [[ $(xdotool getactivewindow getwindowname) == Quorvel ]]
}

Xvfb -displayfd 3 -screen 0 1024x600x24 -nolisten tcp 3>"$work/display" 2>"$work/screen.log" &
wait_for "the screen" test -s "$work/display"
DISPLAY=:$(<"$work/display")
export DISPLAY
openbox >"$work/windows.log" 2>&1 &
quorvel-virtual-keyer --headless --speed 40 --transcript "$work/wire" >"$work/keyed" \
    2>"$work/keyer.log" &
wait_for "the keyer" grep -q "^Plugged in" "$work/keyer.log"
quorvel --version
quorvel --check-ports 2>/dev/null | grep -A 1 "^usbserial-virtual" |
    grep -q "OK: Nothing is in the way."
gio launch /usr/share/applications/org.quorvel.Quorvel.desktop >"$work/quorvel.log" 2>&1
wait_for "the window" is_in_front
wait_for "the keyer's answer" grep -q " host [89AB].$" "$work/wire"
xdotool type --delay 60 "test "
wait_for "the text on the key line" grep -q TEST "$work/keyed"
pkill --exact --uid "$(id -u)" quorvel
wait_for "its end" has_ended

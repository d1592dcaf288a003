#!/usr/bin/env bash
# Makes the pictures of the guide and the README, in light and dark, on a screen in memory
set -euo pipefail
source scripts/lib/packages.sh
source scripts/lib/processes.sh
require_packages build screen
source scripts/lib/build.sh

bin=build/release/bin
images=docs/images

start_screen() {
    start screen Xvfb -displayfd 3 -screen 0 1280x960x24 -nolisten tcp \
        3>"$private_directory/display" 2>"$private_directory/screen.log"
    wait_while screen 20 test -s "$private_directory/display" || return 1
    DISPLAY=:$(<"$private_directory/display")
    export DISPLAY
    start windows openbox >"$private_directory/windows.log" 2>&1
    wait_while windows 20 xdotool get_desktop
}

start_keyer() {
    start keyer "$bin/quorvel-virtual-keyer" --headless --speed 25 --transcript "$transcript" \
        >"$private_directory/keyed" 2>"$private_directory/keyer.log"
    wait_while keyer 10 grep -q '^Plugged in as ' "$private_directory/keyer.log"
}

# active_window_is TITLE
active_window_is() {
    [[ $(xdotool getactivewindow getwindowname) == *"$1"* ]]
}

# open_window NAME COMMAND...: starts Quorvel and waits until it has the speed of the keyer's pot.
open_window() {
    start "$@" >"$private_directory/quorvel.log" 2>&1
    wait_while "$1" 30 active_window_is Quorvel &&
        wait_while "$1" 30 grep -q ' host [89AB].$' "$transcript"
}

# keyed TEXT: the keyer has keyed it.
keyed() {
    [[ $(tr -d ' \n' <"$private_directory/keyed") == *"$1"* ]]
}

# picture NAME: of the active window with its frame, once it has come to rest.
picture() {
    local former="" now=""
    for _ in {1..50}; do
        import -frame -window "$(xdotool getactivewindow)" "$private_directory/picture.png"
        now=$(sha256sum <"$private_directory/picture.png")
        [[ $now != "$former" ]] || break
        former=$now
        sleep 0.3
    done
    mv "$private_directory/picture.png" "$images/$1.png"
    echo "$images/$1.png"
}

# write_settings [LINE...]: what Quorvel finds at its next start.
write_settings() {
    printf '%s\n' "[General]" WKPortName=usbserial-virtual MyCall=N0CALL "$@" \
        >"$XDG_CONFIG_HOME/quorvel/quorvel.conf"
}

# shoot_window SUFFIX [VARIABLE=VALUE...]: the main window while it sends, and while it tunes.
shoot_window() {
    local suffix=$1
    shift
    write_settings
    open_window quorvel env "$@" "$bin/quorvel"
    xdotool key F1
    xdotool key ctrl+l type --delay 40 w9xyz
    xdotool key ctrl+m
    wait_while quorvel 60 keyed CQTESTN0CALLN0
    picture "main-window$suffix"
    xdotool key Escape key ctrl+t
    wait_while quorvel 20 active_window_is TRANSMITTING
    picture "tune$suffix"
    xdotool key Escape
    wait_while quorvel 20 active_window_is Quorvel
    stop quorvel
}

# shoot_pane PANE SUFFIX [VARIABLE=VALUE...]: a pane of the preferences, opened as it was left.
shoot_pane() {
    local pane=$1 suffix=$2
    shift 2
    write_settings "MBPreferencesSelection=Preferences${pane}Pane"
    open_window quorvel env "$@" "$bin/quorvel"
    xdotool key ctrl+comma
    wait_while quorvel 20 active_window_is "$pane"
    picture "preferences-${pane,,}$suffix"
    stop quorvel
}

# shoot SUFFIX [VARIABLE=VALUE...]: all pictures of one theme, which the variables choose.
shoot() {
    local suffix=$1 pane
    transcript=$private_directory/transcript$suffix
    start_keyer
    shoot_window "$@"
    for pane in General Messages WinKeyer; do
        shoot_pane "$pane" "$@"
    done
    stop keyer
}

make_private_directory
mkdir -m 700 "$private_directory/runtime"
mkdir -p "$private_directory/config/quorvel" "$images"
export XDG_RUNTIME_DIR=$private_directory/runtime
export XDG_CONFIG_HOME=$private_directory/config
export DBUS_SESSION_BUS_ADDRESS=disabled:
export QT_QPA_PLATFORM=xcb

build_preset release
start_screen
shoot ""
cp scripts/lib/dark-kdeglobals "$XDG_CONFIG_HOME/kdeglobals"
shoot -dark QT_QPA_PLATFORMTHEME=kde XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5

#!/usr/bin/env bash
# Makes pictures of every window in build/screenshots, and from them those of the guide and the README
#
# In light and dark, on a small screen, and on a larger one where everything is twice the size.
set -euo pipefail
source scripts/lib/packages.sh
source scripts/lib/processes.sh
require_packages build screen
source scripts/lib/build.sh

bin=build/release/bin
images=build/screenshots

# start_screen WIDTHxHEIGHT
start_screen() {
    rm -f "$private_directory/display"
    start screen Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp \
        3>"$private_directory/display" 2>"$private_directory/screen.log"
    wait_while screen 20 test -s "$private_directory/display" || return 1
    DISPLAY=:$(<"$private_directory/display")
    export DISPLAY
    start windows openbox >"$private_directory/windows.log" 2>&1
    wait_while windows 20 xdotool get_desktop
}

stop_screen() {
    stop windows
    stop screen
}

start_keyer() {
    start keyer with_paddle "$bin/quorvel-virtual-keyer" --headless --paddle --speed 25 \
        --transcript "$transcript" >"$private_directory/keyed" 2>"$private_directory/keyer.log"
    wait_while keyer 10 grep -q '^Plugged in as ' "$private_directory/keyer.log"
}

# with_paddle COMMAND...: whose standard input is the paddle.
with_paddle() {
    exec "$@" <"$private_directory/paddle"
}

# active_window_is TITLE
active_window_is() {
    [[ $(xdotool getactivewindow getwindowname) == *"$1"* ]]
}

# windows_are COUNT: so many windows of Quorvel can be seen.
windows_are() {
    [[ $(xdotool search --onlyvisible --pid "${pids[quorvel]}" 2>/dev/null | wc -l) == "$1" ]]
}

# open_window: starts Quorvel and waits until it has the speed of the keyer's pot.
open_window() {
    start quorvel "$bin/quorvel" >"$private_directory/quorvel.log" 2>&1
    wait_while quorvel 30 active_window_is Quorvel &&
        wait_while quorvel 30 grep -q ' host [89AB].$' "$transcript"
}

# keyed TEXT: the keyer has keyed it.
keyed() {
    [[ $(tr -d ' \n' <"$private_directory/keyed") == *"$1"* ]]
}

# take NAME [WINDOW]: a picture of the active window with its frame, or of that one.
take() {
    import -frame -window "${2:-$(xdotool getactivewindow)}" "$directory/$1$theme.png"
}

# picture NAME [WINDOW]: the same, once it has come to rest.
picture() {
    local former="" now=""
    for _ in {1..50}; do
        take "$@"
        now=$(sha256sum <"$directory/$1$theme.png")
        [[ $now != "$former" ]] || break
        former=$now
        sleep 0.3
    done
    echo "$directory/$1$theme.png"
}

# write_settings [LINE...]: what Quorvel finds at its next start.
write_settings() {
    printf '%s\n' "[General]" MyCall=N0CALL "$@" >"$XDG_CONFIG_HOME/quorvel/quorvel.conf"
}

# open_without_port PICTURE: up to the alert that there is none, where it is on the screen.
open_without_port() {
    start quorvel "$bin/quorvel" >"$private_directory/quorvel.log" 2>&1
    wait_while quorvel 30 windows_are 2
    picture "$1" root
    wait_while quorvel 20 closes_alert
}

# shoot_first_start: before any port was chosen, and without one after that.
shoot_first_start() {
    write_settings
    open_without_port first-alert
    picture first-steps
    stop quorvel
    write_settings "WKPortName=None"
    open_without_port later-alert
    xdotool type --delay 40 "cq test"
    picture not-connected
    stop quorvel
}

closes_alert() {
    windows_are 1 || {
        xdotool key Escape
        sleep 1.5 # an alert takes no key within a second of the last
        windows_are 1
    }
}

# shoot_help LETTER PICTURE: the window that the Help menu opens by that letter.
shoot_help() {
    xdotool key alt+h
    sleep 0.5
    xdotool key "$1"
    wait_while quorvel 20 windows_are 2
    picture "$2"
    xdotool key Escape
    wait_while quorvel 20 windows_are 1
}

# shoot_window: the main window while it sends, and while it tunes, and the windows of its help.
shoot_window() {
    write_settings "WKPortName=$port"
    open_window
    xdotool key F1
    xdotool key ctrl+l type --delay 40 w9xyz
    xdotool key ctrl+m
    wait_while quorvel 60 keyed CQTESTN0CA
    take main-window
    xdotool key ctrl+j
    wait_while quorvel 20 active_window_is Sent
    picture sent
    xdotool key Escape
    wait_while quorvel 20 windows_are 1
    xdotool key Escape key ctrl+t
    wait_while quorvel 20 active_window_is TRANSMITTING
    picture tune
    xdotool key Escape
    wait_while quorvel 20 active_window_is Quorvel
    shoot_help g guide
    shoot_help a about
    shoot_help c check-ports
    stop quorvel
}

# Whether the paddle, of which only the dit contact closes, has keyed something.
is_paddled() {
    tail -c 40 "$private_directory/keyed" | grep -q "[EISH5]"
}

# shoot_traffic: a beacon that waits, and what waits for the paddle to be free.
shoot_traffic() {
    write_settings "WKPortName=$port" BeaconInterval=99
    open_window
    xdotool key ctrl+b key F7
    wait_while quorvel 20 keyed "?"
    sleep 2 # the countdown begins with the keyer's word that it is idle
    take beacon
    xdotool key Escape
    printf . >&9
    wait_while quorvel 20 is_paddled
    sleep 1
    xdotool key F2 type --delay 40 "tu 73"
    sleep 1
    take break-in
    xdotool key Escape
    printf ' ' >&9
    stop quorvel
}

# start_login_service: which tells of the machine's sleep, on a system bus of its own.
start_login_service() {
    export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$private_directory/system-bus
    start bus dbus-daemon --session --nofork --nopidfile --address="$DBUS_SYSTEM_BUS_ADDRESS"
    wait_while bus 10 test -S "$private_directory/system-bus"
    start login told_to_sleep /usr/bin/python3 -B tests/integration/login_service.py \
        >"$private_directory/login"
    wait_while login 20 login_answered ready
}

# told_to_sleep COMMAND...: whose standard input tells it to.
told_to_sleep() {
    exec "$@" <"$private_directory/sleep"
}

login_answered() {
    [[ $(tail -n 1 "$private_directory/login") == "$1"* ]]
}

# say_login WORD: has the login service announce it, and waits until that is through.
say_login() {
    : >"$private_directory/login"
    echo "$1" >&8
    wait_while login 20 test -s "$private_directory/login"
}

# shoot_sleep: the strips after a sleep, which stopped a sending, and during which text was entered.
shoot_sleep() {
    write_settings "WKPortName=$port"
    open_window
    xdotool key F1
    wait_while quorvel 60 keyed CQTESTN0CA
    say_login sleep
    sleep 1
    picture asleep
    say_login wake
    sleep 2
    picture woken-up
    xdotool key Escape
    say_login sleep
    xdotool type --delay 40 "tu 73"
    sleep 1
    picture asleep-text
    say_login wake
    sleep 3
    picture woken-up-text
    xdotool key Escape
    stop quorvel
}

# shoot_question: which a port brings that is plugged in.
shoot_question() {
    write_settings
    start quorvel "$bin/quorvel" >"$private_directory/quorvel.log" 2>&1
    wait_while quorvel 30 windows_are 2
    wait_while quorvel 20 closes_alert
    start_keyer
    wait_while quorvel 20 windows_are 2
    picture plugged-in root
    stop quorvel
}

# shoot_pages: the other pages of the keyer's pane, each with a control in focus.
shoot_pages() {
    write_settings "WKPortName=$port" MBPreferencesSelection=PreferencesWinKeyerPane
    open_window
    xdotool key ctrl+comma
    wait_while quorvel 20 active_window_is WinKeyer
    local page
    for page in paddle outputs speed standalone; do
        xdotool key ctrl+Tab
        sleep 0.5
        xdotool key Tab
        picture "preferences-winkeyer-$page"
        xdotool key shift+Tab # a list turns no page
    done
    stop quorvel
}

# shoot_pane PANE: a pane of the preferences, opened as it was left.
shoot_pane() {
    write_settings "WKPortName=$port" "MBPreferencesSelection=Preferences${1}Pane"
    open_window
    xdotool key ctrl+comma
    wait_while quorvel 20 active_window_is "$1"
    picture "preferences-${1,,}"
    stop quorvel
}

# shoot SIZE SCALE: all pictures in the present theme, in a directory of the size and scale.
shoot() {
    local pane
    directory=$images/$1-scale-$2
    transcript=$private_directory/transcript$theme-$2
    mkdir -p "$directory"
    export QT_SCALE_FACTOR=$2
    start_screen "$1"
    shoot_first_start
    shoot_question
    shoot_window
    shoot_traffic
    shoot_sleep
    shoot_pages
    for pane in General Messages WinKeyer; do
        shoot_pane "$pane"
    done
    stop keyer
    stop_screen
}

shoot_screens() {
    shoot 1024x600 1
    shoot 1920x1080 2
}

port=usbserial-virtual
make_private_directory
mkdir -m 700 "$private_directory/runtime"
mkdir -p "$private_directory/config/quorvel"
mkfifo "$private_directory/paddle" "$private_directory/sleep"
exec 9<>"$private_directory/paddle" 8<>"$private_directory/sleep"
export XDG_RUNTIME_DIR=$private_directory/runtime
export XDG_CONFIG_HOME=$private_directory/config
export XDG_DATA_HOME=$private_directory/data
export XDG_STATE_HOME=$private_directory/state
export DBUS_SESSION_BUS_ADDRESS=disabled:
export QT_QPA_PLATFORM=xcb
start_login_service
# It goes by what the windows say, in English.
export LC_ALL=C.UTF-8

build_preset release
rm -rf "$images"
theme=""
shoot_screens
cp scripts/lib/dark-kdeglobals "$XDG_CONFIG_HOME/kdeglobals"
export QT_QPA_PLATFORMTHEME=kde XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5
theme=-dark
shoot_screens
for each in docs/images/*.png; do
    cp "$images/1024x600-scale-1/$(basename "$each")" "$each"
done

# The run where no window can be shown: types into the window on a screen in memory and shows what
# the keyer keyed. To be sourced by run.sh.

text="TEST DE QUORVEL"

# choose_port: settings in which the virtual keyer's port is chosen already.
choose_port() {
    mkdir -p "$XDG_CONFIG_HOME/quorvel"
    printf '[General]\nWKPortName=usbserial-virtual\n' >"$XDG_CONFIG_HOME/quorvel/quorvel.conf"
}

start_screen() {
    start screen Xvfb -displayfd 3 -screen 0 1280x960x24 -nolisten tcp \
        3>"$private_directory/display" 2>"$out/screen.log"
    wait_while screen 20 test -s "$private_directory/display" || return 1
    DISPLAY=:$(<"$private_directory/display")
    export DISPLAY
    start windows openbox >"$out/windows.log" 2>&1
    wait_while windows 20 xdotool get_desktop
}

# is_connected: the keyer has answered the last question of the application's greeting, which is
# the one for the speed pot; its answer has the highest bits 10.
is_connected() {
    grep -q ' host [89AB].$' "$out/transcript.txt"
}

window_is_active() {
    local window
    window=$(xdotool search --onlyvisible --class quorvel | tail -n 1) && [[ -n $window ]] &&
        xdotool windowactivate "$window" && [[ $(xdotool getactivewindow) == "$window" ]]
}

text_is_keyed() {
    [[ $(tr -d ' \n' <"$out/keyed.txt") == *"${text// /}"* ]]
}

open_window() {
    start quorvel "$bin/quorvel" >"$out/quorvel.log" 2>&1
    wait_while quorvel 30 window_is_active
}

type_text() {
    xdotool type --delay 60 "$text" && wait_while quorvel 60 text_is_keyed
}

end_application() {
    kill -TERM "${pids[quorvel]}" && await_end quorvel 20 && wait "${pids[quorvel]}"
}

# step NAME COMMAND...: runs the command; says which step it was that failed.
step() {
    local name=$1
    shift
    "$@" && return
    echo "$name failed." >&2
    return 1
}

show() {
    step "The screen in memory" start_screen &&
        step "Plugging in the virtual keyer" \
            start_keyer --headless --speed 40 --transcript "$out/transcript.txt" &&
        step "Opening the window" open_window &&
        step "Connecting to the keyer" wait_while quorvel 30 is_connected &&
        step "Keying the typed text" type_text &&
        step "Taking a picture of the screen" import -window root "$out/screen.png" &&
        step "Quitting" end_application
}

run() {
    echo "There is no display (neither DISPLAY nor WAYLAND_DISPLAY is set), so no window can be"
    echo "opened for you. Instead, Quorvel runs on a screen in memory, and \"$text\" is typed."
    make_private_directory
    mkdir -m 700 "$private_directory/runtime"
    export XDG_RUNTIME_DIR=$private_directory/runtime
    export XDG_CONFIG_HOME=$private_directory/config
    export XDG_DATA_HOME=$private_directory/data
    # Whatever bus this shell can reach belongs to another session.
    export DBUS_SESSION_BUS_ADDRESS=disabled:
    export QT_QPA_PLATFORM=xcb
    choose_port
    rm -f "$out"/{keyed.txt,transcript.txt,screen.png,*.log}
    exec {keyed}>"$out/keyed.txt"

    if ! show; then
        local log
        for log in "$out"/*.log "$out/keyed.txt"; do
            echo "== $log"
            tail -n 20 "$log"
        done >&2
        return 1
    fi
    echo "The virtual keyer keyed: $(<"$out/keyed.txt")"
    echo "The window at that moment: $PWD/$out/screen.png"
}

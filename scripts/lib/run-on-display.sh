# The run in the user's own desktop session. To be sourced by run.sh.

# What is keyed shows in the terminal, letter by letter, as well as in the keyer's own window.
keyed=1

start_quorvel() {
    start quorvel env XDG_CONFIG_HOME="$PWD/$out/config" "$bin/quorvel"
}

keyer_is_chosen() {
    grep -qs '^WKPortName=usbserial-virtual$' "$out/config/quorvel/quorvel.conf"
}

# follows_ports: the application has listed the ports directory and watches it from now on.
follows_ports() {
    local inode
    inode=$(stat -c %i "$XDG_RUNTIME_DIR/quorvel/ports") &&
        grep -qsi "^inotify .*ino:$(printf '%x' "$inode") " "/proc/${pids[quorvel]}"/fdinfo/*
}

# Once the keyer's port is chosen, the application finds it at its start. Before that, the keyer
# is plugged in while the application runs, as the operator would do, and is offered.
run() {
    # A session without a runtime directory of the user's own, such as after su, gets one.
    if [[ ! -d ${XDG_RUNTIME_DIR:-} || ! -O ${XDG_RUNTIME_DIR:-} ]]; then
        make_private_directory
        export XDG_RUNTIME_DIR=$private_directory
    fi
    if keyer_is_chosen; then
        start_keyer && start_quorvel || return 1
    else
        echo "The first time, Quorvel says that no port is chosen. Then the virtual keyer is plugged"
        echo "in: answer \"Yes\", and type."
        start_quorvel && wait_while quorvel 30 follows_ports && start_keyer || return 1
    fi

    local status=0
    wait "${pids[quorvel]}" || status=$?
    return "$status"
}

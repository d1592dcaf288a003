# The run in the user's own desktop session. To be sourced by run.sh.

run() {
    # A session without a runtime directory of the user's own, such as after su, gets one.
    if [[ ! -d ${XDG_RUNTIME_DIR:-} || ! -O ${XDG_RUNTIME_DIR:-} ]]; then
        make_private_directory
        export XDG_RUNTIME_DIR=$private_directory
    fi
    port_chosen_in "$out/config"
    start_keyer || return 1

    local status=0
    start quorvel env XDG_CONFIG_HOME="$PWD/$out/config" "$bin/quorvel"
    wait "${pids[quorvel]}" || status=$?
    return "$status"
}

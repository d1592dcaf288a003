# Starts programs beside the script, waits for what they do, and ends them with it. To be sourced.

declare -A pids=()
started=()
private_directory=""

# start NAME COMMAND...: starts a program; redirections of the call are the program's.
start() {
    local name=$1
    shift
    "$@" </dev/null &
    pids[$name]=$!
    started+=("$name")
}

is_running() {
    kill -0 "${pids[$1]}" 2>/dev/null
}

# wait_while NAME SECONDS COMMAND...: asks the command until it succeeds; false when the program
# NAME has ended before, or the time is over.
wait_while() {
    local name=$1 deadline=$((SECONDS + $2))
    shift 2
    until "$@" >/dev/null 2>&1; do
        is_running "$name" && ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}

# await_end NAME SECONDS: false when the program still runs then.
await_end() {
    local deadline=$((SECONDS + $2))
    while is_running "$1"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}

# stop NAME: ends a program in its own way, or by force when it takes too long over it.
stop() {
    kill -TERM "${pids[$1]}" 2>/dev/null || return 0
    await_end "$1" 10 || kill -KILL "${pids[$1]}" 2>/dev/null || true
}

# make_private_directory: a directory of this run that only the user can enter, in the variable.
make_private_directory() {
    private_directory=$(mktemp -d "${TMPDIR:-/tmp}/quorvel-run.XXXXXXXX")
}

stop_all() {
    # A second Ctrl-C does not leave half of it running.
    trap '' HUP INT TERM
    local i
    for ((i = ${#started[@]} - 1; i >= 0; i--)); do
        stop "${started[i]}"
    done
    started=()
    [[ -z $private_directory ]] || rm -rf "$private_directory"
}

trap stop_all EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

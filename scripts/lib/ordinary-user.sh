# Runs a command as an ordinary user, made for it, in a copy of the tree. To be sourced, by root.

ordinary_user=quorvel-ci
# What the builds leave in it is there for the next run.
ordinary_place=/var/cache/quorvel-ci

# copy_tree: with the times of the files, by which a build knows what has changed. The user's own
# hand does it, so that nobody who had the user's number before leads root's astray.
copy_tree() {
    mkdir -p "$ordinary_place"/{home,tree} &&
        chown -R "$ordinary_user:" "$ordinary_place"/{home,tree} &&
        runuser --user "$ordinary_user" -- find "$ordinary_place/tree" -mindepth 1 -maxdepth 1 \
            ! -name build -exec rm -rf {} + &&
        tar --create --exclude=./build --exclude=./.git . |
        runuser --user "$ordinary_user" -- tar --extract --directory "$ordinary_place/tree"
}

# proxies: the variables that say which way leads to the packages, as arguments of env.
proxies() {
    env | grep -iE '^(https?_proxy|no_proxy)=' || true
}

# run_as_ordinary_user COMMAND...: in the copy, with nothing of root's session but the proxies. What
# the command leaves is not in the tree, which would else be partly that user's.
run_as_ordinary_user() {
    local -a environment
    mapfile -t environment < <(proxies)
    mkdir -p "$ordinary_place"
    exec {ordinary_lock}>"$ordinary_place/lock"
    if ! flock --nonblock "$ordinary_lock"; then
        echo "Another run has $ordinary_place." >&2
        return 1
    fi
    id "$ordinary_user" >/dev/null 2>&1 ||
        useradd --home-dir "$ordinary_place/home" --shell /bin/bash "$ordinary_user" || return 1
    trap 'userdel --force "$ordinary_user"' EXIT
    copy_tree || return 1
    (
        cd "$ordinary_place/tree" &&
            runuser --user "$ordinary_user" -- env --ignore-environment \
                PATH=/usr/local/bin:/usr/bin:/bin HOME="$ordinary_place/home" \
                USER="$ordinary_user" LOGNAME="$ordinary_user" SHELL=/bin/bash \
                "${environment[@]}" "$@" {ordinary_lock}>&-
    )
}

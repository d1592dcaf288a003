# In somebody else's tree root works as that user. To be sourced.

# user_environment USER: what names a user, and the variables that hold of root's session alone, as
# arguments of env.
user_environment() {
    local home
    home=$(getent passwd "$1" | cut -d : -f 6)
    printf '%s\n' --unset=XDG_RUNTIME_DIR --unset=XDG_CONFIG_HOME --unset=XDG_CACHE_HOME \
        --unset=DBUS_SESSION_BUS_ADDRESS --unset=CCACHE_DIR "HOME=$home" "USER=$1" "LOGNAME=$1"
}

# hand_over_to_owner: starts the script anew as the tree's owner, when root runs it in a tree that
# belongs to another user: what root builds there, its owner could neither build on nor remove, and
# would be without at the next test. Called when the packages are installed, which takes root.
hand_over_to_owner() {
    local owner
    local -a command environment
    owner=$(stat -c %U .)
    # An owner that has no name here is a user of another system, such as a container's host.
    if ((EUID != 0)) || [[ $owner == root || $owner == UNKNOWN ]]; then
        return 0
    fi
    echo "These files belong to $owner, as whom the rest is done." >&2
    mapfile -d '' -t command </proc/$$/cmdline
    mapfile -t environment < <(user_environment "$owner")
    exec runuser --user "$owner" -- env "${environment[@]}" "${command[@]}"
}

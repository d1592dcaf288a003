# Installs what is missing of the groups of packages that a command needs. To be sourced.

# package_names GROUP...: the packages that packaging/packages.txt names in these groups; of those
# that take each other's place, "new|old", as it stands.
package_names() {
    local -a wanted=("$@")
    local line name group=""
    while read -r line; do
        name=${line%%#*}
        name=${name//[[:space:]]/}
        case $name in
        "") ;;
        \[*\]) group=${name:1:-1} ;;
        *) [[ " ${wanted[*]} " != *" $group "* ]] || echo "$name" ;;
        esac
    done <packaging/packages.txt
}

# is_installed PACKAGE
is_installed() {
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# package_of_this_release NEW|OLD...: the first of them that the release has, else the last.
package_of_this_release() {
    local -a alternatives
    local package
    IFS='|' read -r -a alternatives <<<"$1"
    for package in "${alternatives[@]::${#alternatives[@]}-1}"; do
        if is_installed "$package" || apt-cache show "$package" >/dev/null 2>&1; then
            echo "$package"
            return
        fi
    done
    echo "${alternatives[-1]}"
}

# missing_packages PACKAGE...: those of them that are not installed.
missing_packages() {
    local installed package
    local -a packages=()
    for package in "$@"; do
        packages+=("$(package_of_this_release "$package")")
    done
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${packages[@]}" 2>/dev/null ||
        true)
    for package in "${packages[@]}"; do
        [[ $'\n'$installed$'\n' == *$'\n'"$package installed"$'\n'* ]] || echo "$package"
    done
}

# require_packages GROUP...: returns when all are installed; ends the script when that cannot be.
require_packages() {
    local -a names missing
    mapfile -t names < <(package_names "$@")
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "Not a Debian system: what takes the place of these packages has to be there:" \
            "${names[*]}" >&2
        return
    fi
    mapfile -t missing < <(missing_packages "${names[@]}")
    ((${#missing[@]})) || return 0

    local -a as_root=(env)
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and installing them takes root or sudo:" >&2
            echo "    apt-get install --no-install-recommends ${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
        # Without a terminal sudo cannot ask for a password, and would wait for one in vain.
        [[ -t 0 ]] || as_root+=(--non-interactive)
        as_root+=(env)
    fi
    as_root+=(DEBIAN_FRONTEND=noninteractive)
    echo "Installing ${#missing[@]} missing packages: ${missing[*]}" >&2
    if "${as_root[@]}" apt-get update -q >&2; then
        # Only now apt knows which packages this release has.
        mapfile -t missing < <(missing_packages "${names[@]}")
        "${as_root[@]}" apt-get install -q -y --no-install-recommends \
            -o DPkg::Lock::Timeout=300 "${missing[@]}" >&2 && return
    fi
    echo "The packages could not be installed: ${missing[*]}" >&2
    exit 1
}

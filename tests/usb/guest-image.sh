# Makes what the guest boots from: a kernel, a first root, the packages that it has beyond the
# host's. All of it is unpacked, nothing installed. To be sourced.

guest=build/usb/guest

# What ftdi_sio, the channels to the host and the guest's root stand on.
modules=(ftdi_sio xhci_pci virtio_pci virtio_console 9p 9pnet_virtio overlay)

# kernel_package: the package that linux-image-amd64 stands for.
kernel_package() {
    apt-cache depends linux-image-amd64 | sed -n 's/^ *Depends: \(linux-image-[^ ]*\)$/\1/p'
}

# download_guest_packages DIRECTORY
download_guest_packages() (
    local -a names
    mapfile -t names < <(package_names usb-guest)
    local kernel
    kernel=$(kernel_package)
    if [[ -z $kernel ]]; then
        echo "apt does not know linux-image-amd64; apt-get update may help." >&2
        return 1
    fi
    cd "$1" && apt-get -q -o APT::Sandbox::User=root download "${names[@]}" "$kernel" >&2
)

# unpack_packages PACKAGES ROOT: with /lib, /bin and /sbin as links, or they would hide the host's.
unpack_packages() {
    local package directory
    for directory in bin lib lib64 sbin; do
        mkdir -p "$2/usr/$directory"
        ln -sn "usr/$directory" "$2/$directory"
    done
    for package in "$1"/*.deb; do
        dpkg-deb --fsys-tarfile "$package" |
            tar -x -C "$2" --keep-directory-symlink --no-same-owner || return 1
    done
    # The guest has the host's users, and its own empty directories instead of the host's.
    rm -rf "$2/etc" "$2/var"
}

# kernel_tool NAME ARGUMENT...: runs the unpacked depmod or modprobe on the unpacked modules.
kernel_tool() (
    local libraries=("$PWD/$guest/root/usr/lib"/*-linux-gnu)
    export LD_LIBRARY_PATH=${libraries[0]}
    exec -a "$1" "$guest/root/usr/bin/kmod" "${@:2}"
)

# module_paths VERSION: the files of the modules and of what they need, in the order of loading.
module_paths() (
    set -o pipefail
    kernel_tool depmod -b "$guest/root" "$1" || exit 1
    for module in "${modules[@]}"; do
        kernel_tool modprobe -d "$guest/root" -S "$1" --show-depends "$module" || exit 1
    done | sed -n 's/^insmod \([^ ]*\).*/\1/p' | awk '!seen[$0]++'
)

# fill_first_root DIRECTORY
fill_first_root() {
    local version path
    version=$(ls "$guest/root/usr/lib/modules") || return 1
    mkdir -p "$1/bin" "$1/modules.d"
    cp "$guest/root/usr/bin/busybox" "$1/bin/busybox" || return 1
    module_paths "$version" >"$guest/modules" || return 1
    while read -r path; do
        cp "$path" "$1/modules.d/" && echo "/modules.d/${path##*/}" || return 1
    done <"$guest/modules" >"$1/modules"
}

# make_guest_packages: downloads and unpacks, once; what is there stays until it is removed.
make_guest_packages() {
    local names
    names=$(package_names usb-guest)
    [[ -e $guest/complete && $(<"$guest/complete") == "$names" ]] && return
    rm -rf "$guest"
    mkdir -p "$guest"/{packages,root,first-root}
    if ! download_guest_packages "$guest/packages"; then
        echo "The guest's packages could not be downloaded." >&2
        return 1
    fi
    unpack_packages "$guest/packages" "$guest/root" && fill_first_root "$guest/first-root" &&
        cp "$guest"/root/boot/vmlinuz-* "$guest/kernel" && rm -r "$guest/packages" &&
        echo "$names" >"$guest/complete"
}

# make_guest PROBE: the first root also says where on the host the probe is.
make_guest() {
    make_guest_packages || return 1
    local tree=$PWD/$guest/first-root
    cp tests/usb/init "$tree/init" && chmod 755 "$tree/init" &&
        realpath "$1" >"$tree/probe" &&
        cp packaging/70-quorvel-keyers.rules "$tree/" &&
        (cd "$tree" && find . | bin/busybox cpio -o -H newc 2>/dev/null) >"$guest/initrd"
}

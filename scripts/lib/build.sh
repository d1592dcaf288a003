# Configures and builds presets. To be sourced when the packages are there, by the script itself: in
# somebody else's tree, root's script starts anew here as that user.

source scripts/lib/owner.sh
hand_over_to_owner

# CMake takes the compiler cache from here when it configures a build directory for the first time.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    # Without this it would not keep what is compiled with precompiled headers.
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
fi

# build_preset PRESET [ARGUMENT...]: the arguments are cmake --build's, such as --target NAME.
build_preset() {
    local preset=$1
    shift
    cmake --preset "$preset" --log-level=WARNING && cmake --build --preset "$preset" "$@"
}

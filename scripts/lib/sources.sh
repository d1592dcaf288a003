# The C++ files of the tree. To be sourced.

cpp_files() {
    find . \( -path ./build -o -path './.*' \) -prune -o \( -name '*.h' -o -name '*.cpp' \) -print |
        sort
}

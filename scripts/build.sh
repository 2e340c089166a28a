# shellcheck shell=bash
# Builds a preset of CMakePresets.json in build/PRESET. To be sourced.

# Without a home folder of one's own the compiler cache lies beside the builds.
[[ -w ${HOME:-} ]] || export CCACHE_DIR=$PWD/build/ccache

# build PRESET [TARGET...]
build() {
    local preset=$1 log=build/$1/configure.log
    shift
    mkdir -p "build/$preset"
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        return 1
    fi
    cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}

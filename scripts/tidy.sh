#!/usr/bin/env bash
# Looks over source files with clang-tidy and clazy: tidy.sh [FILE...], all that the suite's build compiles where none is
# named.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/dependencies.sh

# A folder of its own: clang can't read the precompiled header that another compiler has built.
folder=build/tidy

generate() {
    mkdir -p "$folder"
    cmake --preset debug -B "$folder" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >"$folder/configure.log"
    ninja -C "$folder" -t targets all | sed -En 's/^(.*_autogen): phony$|^(.*\.moc): CUSTOM_COMMAND$/\1\2/p' |
        xargs cmake --build "$folder" --target >"$folder/generate.log"
}

compiled_files() {
    sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "$folder/compile_commands.json" | grep -v _autogen/ | sort -u
}

tidy() {
    printf '%s\n' "$@" |
        xargs -d '\n' -n 1 -P "$(nproc)" clang-tidy -p "$folder" --quiet 2> >(grep -v ' generated\.$' >&2)
}

# Its own findings are what counts: the compiler beneath it isn't the one that the warnings are set for.
clazy() {
    local said
    if ! said=$(printf '%s\n' "$@" | xargs -d '\n' -n 1 -P "$(nproc)" clazy-standalone -p "$folder" \
        --checks=level1 --ignore-included-files --extra-arg=-Wno-error 2>&1); then
        grep -B 2 -A 2 'rror' <<<"$said" >&2 || true
        echo "clazy could not look through everything" >&2
        return 1
    fi
    ! grep -A 2 '\[-Wclazy' <<<"$said" >&2
}

main() {
    local files=("$@") failed=0
    install_packages "${packages_build[@]}" "${packages_tidy[@]}"
    generate
    ((${#files[@]})) || mapfile -t files < <(compiled_files)
    tidy "${files[@]}" || failed=1
    clazy "${files[@]}" || failed=1
    return "$failed"
}

main "$@"

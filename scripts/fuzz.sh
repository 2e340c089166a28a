#!/usr/bin/env bash
# Feeds the parsers with made-up input, two at a time: fuzz.sh SECONDS [NAME...], all of them where none is named.
# What is found new stays in build/fuzz/corpus, and what makes a parser fail in build/fuzz/found.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/build.sh

fuzz_one() {
    local name=$1 seconds=$2 corpus=build/fuzz/corpus/$1 log=build/fuzz/$1.log words=()
    [[ ! -f tests/fuzz/$name.dict ]] || words=("-dict=tests/fuzz/$name.dict")
    mkdir -p "$corpus" build/fuzz/found
    if "build/fuzz/bin/fuzz_$name" -max_total_time="$seconds" -timeout=10 "${words[@]}" \
        -artifact_prefix="build/fuzz/found/$name-" "$corpus" "tests/fuzz/corpus/$name" >"$log" 2>&1; then
        echo "fuzz_$name: $(tail -n 1 "$log")"
    else
        tail -n 60 "$log" >&2
        echo "fuzz_$name failed; its input is in build/fuzz/found" >&2
        return 1
    fi
}

main() {
    local seconds=$1 names=("${@:2}")
    ((${#names[@]})) || mapfile -t names < <(basename -as .cpp tests/fuzz/fuzz_*.cpp | sed 's/^fuzz_//')
    build fuzz "${names[@]/#/fuzz_}"
    export -f fuzz_one
    # shellcheck disable=SC2016  # the inner shell expands them
    printf '%s\0' "${names[@]}" | xargs -0 -P 2 -I '{}' bash -c 'fuzz_one "$1" "$2"' fuzz '{}' "$seconds"
}

main "${1:?usage: fuzz.sh SECONDS [NAME...]}" "${@:2}"

#!/usr/bin/env bash
# Everything that a change has to pass: the format, the suite in the release build and under the sanitizers, and a
# minute of fuzzing for each parser. Ends with the count.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")"
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh

export QT_QPA_PLATFORM=offscreen

# Counts the test functions, and the rows of those that run over a table, of the presets' last runs.
count_tests() {
    local preset logs=()
    for preset in "$@"; do logs+=("build/$preset/Testing/Temporary/LastTest.log"); done
    awk '/^PASS / && !/::(init|cleanup)TestCase\(\)/ { passed++ }
         /^FAIL! / { failed++ }
         /^SKIP / { skipped++ }
         END { printf "%d passed, %d failed, %d skipped\n", passed, failed, skipped }' "${logs[@]}"
}

run_suite() {
    local preset=$1 result=0
    echo "== $preset"
    build "$preset"
    # One more than there are cores, since a test waits for a display or a clock now and then.
    ctest --preset "$preset" --parallel "$(($(nproc) + 1))" || result=$?
    echo "$preset: $(count_tests "$preset")"
    ((result == 0)) || echo "$preset: the suite failed" >&2
    return "$result"
}

check_format() {
    echo "== format"
    if command -v clang-format-14 >/dev/null; then
        scripts/format.sh --check
    else
        echo "skipped: clang-format-14 is not there"
    fi
}

can_fuzz() {
    clang++ -fsanitize=fuzzer -x c++ -o build/can_fuzz - 2>/dev/null \
        <<<'extern "C" int LLVMFuzzerTestOneInput(const char *, unsigned long) { return 0; }'
}

fuzz() {
    echo "== fuzz"
    if can_fuzz; then scripts/fuzz.sh 60; else echo "skipped: clang++ with its fuzzer is not there"; fi
}

main() {
    install_packages "${packages_build[@]}" "${packages_check[@]}"
    begin_session
    check_format
    run_suite release
    run_suite asan
    fuzz
    echo "== all"
    count_tests release asan
}

main

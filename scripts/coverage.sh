#!/usr/bin/env bash
# What of each room's code the suite runs, in lines and branches. The pages in build/coverage/html show it line by line,
# and build/coverage/lines.txt names what doesn't run. Fails where a room runs less than 90 % of its lines.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh

export QT_QPA_PLATFORM=offscreen

folder=build/coverage
rooms=(shell command_center documents printing tour platform)
least=90

run_suite() {
    find "$folder" -name '*.gcda' -delete
    ctest --preset coverage --parallel "$(nproc)"
}

# All objects are read: a header's functions count where the linker took them from, which may be a test. What the
# compiler adds for exceptions is no branch that anybody wrote.
read_counters() {
    gcovr --root . --filter src/ --exclude-throw-branches --exclude-unreachable-branches -j "$(nproc)" \
        --json "$folder/counters.json" "$folder"
}

report() {
    gcovr --root . --add-tracefile "$folder/counters.json" --exclude-throw-branches --exclude-unreachable-branches "$@"
}

# A figure of gcovr's summary, such as "lines: 98.1% (512 out of 522)".
figure() {
    sed -n "s/^$1: //p" <<<"$2"
}

report_room() {
    local summary
    summary=$(report --filter "src/$1/" --fail-under-line "$least" --print-summary --output "$folder/room.txt") || {
        echo "$1: less than $least % of the lines" >&2
        failed=1
    }
    printf '%-16s%-32s%s\n' "$1" "$(figure lines "$summary")" "$(figure branches "$summary")"
}

main() {
    local room failed=0
    install_packages "${packages_build[@]}" "${packages_check[@]}" "${packages_coverage[@]}"
    begin_session
    build coverage
    run_suite || failed=1 # the figures may tell why
    read_counters
    mkdir -p "$folder/html"
    report --html-details "$folder/html/index.html" --txt "$folder/lines.txt"
    printf '%-16s%-32s%s\n' room lines branches
    for room in "${rooms[@]}"; do report_room "$room"; done
    return "$failed"
}

main

#!/usr/bin/env bash
# Builds the program, with whatever that needs, and opens it. Where there is no display the tour walks by itself on a
# virtual one, and leaves a page with a picture of each step, and the documents as PDF files.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")"
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh
source scripts/display.sh

programs=build/release/bin

open_program() {
    export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-$1}
    "$programs/orvane"
}

walk() {
    echo "There is no display here, so the tour walks by itself on a virtual one."
    start_virtual_display 1280x1024
    "$programs/tourwalk" --out "$PWD/out" # ends with a line of figures
}

main() {
    install_packages "${packages_build[@]}" "${packages_run[@]}"
    local display=none
    if has_x11_display; then
        display=xcb
    elif has_wayland_display; then
        display=wayland
        install_packages "${packages_wayland[@]}"
    else
        install_packages "${packages_virtual_display[@]}"
    fi
    build release orvane tourwalk
    begin_session
    if [[ $display == none ]]; then walk; else open_program "$display"; fi
}

main

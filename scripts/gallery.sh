#!/usr/bin/env bash
# Takes the README's pictures, docs/gallery, anew: the real windows on a virtual display, each at the tour's step that
# shows it best. Installs what is missing.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh
source scripts/display.sh

walked=build/gallery
gallery=docs/gallery

# What each picture shows, and the walk's picture of it without its number.
pictures=(opening=intro command-center=step-101 guide=step-106 manual=step-219 procedure=step-304
    tool=step-406 record=step-511 preview=step-505)

take_pictures() {
    rm -rf "$walked"
    build/release/bin/tourwalk --out "$PWD/$walked"
}

choose_pictures() {
    local picture chosen
    mkdir -p "$gallery"
    for picture in "${pictures[@]}"; do
        chosen=("$walked"/[0-9][0-9]-"${picture#*=}".png)
        cp "${chosen[0]}" "$gallery/${picture%=*}.png"
    done
}

main() {
    install_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_virtual_display[@]}"
    build release orvane tourwalk
    begin_session
    start_virtual_display 1100x760
    take_pictures
    choose_pictures
    ls "$gallery"
}

main

#!/usr/bin/env bash
# Makes the Debian package with its release note in build/release/package, and looks it through.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh

folder=build/release/package
tree=$folder/tree # what the package would install, for those checks that look at files
note=$folder/release-note.md

# The same commit gives the same package.
set_date() {
    [[ -n ${SOURCE_DATE_EPOCH:-} ]] || SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null) || SOURCE_DATE_EPOCH=
    if [[ -n $SOURCE_DATE_EPOCH ]]; then export SOURCE_DATE_EPOCH; else unset SOURCE_DATE_EPOCH; fi
}

make_package() {
    build release orvane_installed
    rm -rf "$folder"
    cpack --config build/release/CPackConfig.cmake
    rm -rf "$folder/_CPack_Packages"
    packaging/changelog.sh note CHANGELOG.md >"$note"
    package=$(echo "$folder"/*.deb)
}

# check NAME COMMAND...: all checks run, though one fails.
check() {
    echo "== $1"
    "${@:2}" || failed+=("$1")
}

check_package() {
    dpkg-deb --extract "$package" "$tree"
    check lintian lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$package"
    check desktop-file-validate desktop-file-validate "$tree"/usr/share/applications/*.desktop
    check appstreamcli appstreamcli validate --no-net "$tree"/usr/share/metainfo/*.xml
    # Of the libraries beneath, none has the marks of control flow protection, without which it comes to nothing.
    check hardening-check hardening-check --nocfprotection "$tree"/usr/lib/orvane/{orvane,tourwalk} \
        "$tree"/usr/bin/{tourlint,dealertext}
    rm -rf "$tree"
}

main() {
    local package='' failed=()
    install_packages "${packages_build[@]}" "${packages_package[@]}"
    begin_session
    set_date
    make_package
    check_package
    echo "== made"
    # shellcheck disable=SC2016  # these are dpkg's names
    dpkg-deb --show --showformat='${Package} ${Version} ${Architecture}\nDepends: ${Depends}\n' "$package"
    ls "$package" "$note"
    ((${#failed[@]} == 0)) && return
    echo "The package failed: ${failed[*]}" >&2
    return 1
}

main

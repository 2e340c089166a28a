# shellcheck shell=bash
# The Debian packages that the project needs, and the one way to install those that are missing. To be sourced.

# shellcheck disable=SC2034  # the lists are for those who source this
{
    # The record pictures are drawn during the build, with these two fonts.
    packages_build=(g++ cmake ninja-build ccache mold qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-documentation-tools
        fonts-liberation fonts-kaushanscript)
    # The fonts stand in for the ones that the documents name; the help file is a database; xdpyinfo tells whether a
    # display answers.
    packages_run=(fonts-liberation fonts-dejavu-core libqt6sql6-sqlite x11-utils)
    packages_wayland=(qt6-wayland)
    packages_virtual_display=(xvfb openbox)
    packages_bench=(libbenchmark-dev time poppler-utils unrtf pandoc abiword libreoffice-writer-nogui)
    # A test prints on a scheduler of its own, and reads what comes out.
    packages_printing=(cups printer-driver-cups-pdf poppler-utils)
    # Tests run the program on displays of their own, with a hand that clicks and types there.
    packages_hand=("${packages_virtual_display[@]}" xdotool)
    # A test listens to the program as a screen reader does, on buses of its own.
    packages_access=("${packages_virtual_display[@]}" at-spi2-core dbus)
    packages_check=(fonts-liberation fonts-dejavu-core libqt6sql6-sqlite "${packages_printing[@]}" "${packages_hand[@]}"
        "${packages_access[@]}" mandoc clang-format-14 clang libclang-rt-14-dev)
    packages_tidy=(clang-tidy clazy)
    # hardening-check is among the scripts for developers.
    packages_package=(dpkg-dev file lintian appstream desktop-file-utils devscripts)
    packages_coverage=(gcovr)
}

missing_packages() {
    local package
    for package in "$@"; do
        # The second letter of the state is an i for what is installed.
        [[ $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null) == ?i* ]] || echo "$package"
    done
}

as_root() {
    local command=(env DEBIAN_FRONTEND=noninteractive "$@")
    if ((EUID == 0)); then "${command[@]}"; else sudo "${command[@]}"; fi
}

try_install() {
    as_root apt-get -qq -y -o DPkg::Lock::Timeout=300 --no-install-recommends install "$@"
}

# A machine without package lists, or with old ones, fails the first try.
install_or_update() {
    try_install "$@" || { as_root apt-get -qq -o DPkg::Lock::Timeout=300 update && try_install "$@"; }
}

cannot_install() {
    echo "$1" "To go on, have an administrator run:" >&2
    echo "    apt-get update && apt-get install --no-install-recommends ${*:2}" >&2
    return 1
}

# Installs those of the packages that are missing; says nothing where there are none.
install_packages() {
    local missing log=build/install.log
    command -v dpkg-query >/dev/null || return 0 # another system: the build tells what it lacks
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    if ((EUID != 0)) && ! sudo -v 2>/dev/null; then
        cannot_install "Packages are missing, and you are neither root nor allowed to use sudo." "${missing[@]}"
        return
    fi
    echo "Installing ${missing[*]}"
    mkdir -p build
    install_or_update "${missing[@]}" >"$log" 2>&1 && return
    cat "$log" >&2
    cannot_install "The packages could not be installed." "${missing[@]}"
}

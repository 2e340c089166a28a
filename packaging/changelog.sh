#!/usr/bin/env bash
# Tells what CHANGELOG.md says in the form that a package needs. A section is headed "## 1.0, 2026-12-01", that
# of the coming one "## Unreleased (to be 1.1)", with its entries as a list.
#
#   changelog.sh debian FILE MAINTAINER    Debian's changelog of all versions
#   changelog.sh releases FILE             all versions as release elements of AppStream
#   changelog.sh note FILE                 the newest version's section, as a release note
set -euo pipefail

form=${1:-}
file=${2:-}
maintainer=${3:-}

# Each version with its day, the newest first. An unreleased one has the day of the build.
versions() {
    sed -nE -e 's/^## ([0-9][0-9.]*), ([0-9]{4}-[0-9]{2}-[0-9]{2})$/\1 \2 stable/p' \
        -e "s/^## Unreleased \(to be ([0-9][0-9.]*)\)$/\1 $(build_day) development/p" "$file"
}

build_day() {
    if [[ -n ${SOURCE_DATE_EPOCH:-} ]]; then date -u -d "@$SOURCE_DATE_EPOCH" +%F; else date -u -r "$file" +%F; fi
}

# section NUMBER: the lines below the heading of the so many-th version.
section() {
    awk -v wanted="$1" '/^## / { number++; next } number == wanted' "$file"
}

# An entry is one line, however many it had; headings in between are left out.
entries() {
    awk '/^- / { if (entry) print entry; entry = substr($0, 3); next }
         /^ / && entry { sub(/^ +/, ""); entry = entry " " $0; next }
         { if (entry) print entry; entry = "" }
         END { if (entry) print entry }'
}

# Lines of at most 76 characters, the first of an entry with a star.
fold_entries() {
    awk '{ line = "  *"
           for (i = 1; i <= NF; i++) {
               if (length(line) + 1 + length($i) > 76) { print line; line = "   " }
               line = line " " $i
           }
           print line }'
}

debian() {
    local number=0 version day
    while read -r version day _; do
        number=$((number + 1))
        printf 'orvane (%s) unstable; urgency=medium\n\n' "$version"
        section "$number" | entries | fold_entries
        printf '\n -- %s  %s\n\n' "$maintainer" "$(LC_ALL=C date -u -R -d "$day 12:00")"
    done < <(versions) | sed '$d'
}

releases() {
    local version day kind
    while read -r version day kind; do
        printf '    <release version="%s" date="%s" type="%s"/>\n' "$version" "$day" "$kind"
    done < <(versions)
}

note() {
    local version day kind
    read -r version day kind < <(versions)
    printf '# orvane %s\n\n' "$version"
    if [[ $kind == stable ]]; then printf 'Released on %s.\n' "$day"; else printf 'Not released yet.\n'; fi
    section 1
}

case $form in
debian | releases | note) ;;
*)
    echo "Usage: changelog.sh debian FILE MAINTAINER | releases FILE | note FILE" >&2
    exit 2
    ;;
esac
[[ -n $(versions) ]] || {
    echo "$file: no section is headed by a version" >&2
    exit 1
}
"$form"

#!/usr/bin/env bash
# Compares rich text with three other programs, and ends with a table of figures: compare_richtext.sh [--keep] [PROGRAMS]
# What each figure is, and why some differ, is in docs/interchange.md.
#
# Theirs: each program makes rich text of sheets and pages that are HTML, and tells in plain text and in HTML what is in
# it; the reader here has to find the same. Ours: each program opens the pages and documents as they are written here.
# PROGRAMS is a folder with the benchmarks, which are built where none is named. --keep puts what the programs wrote of
# the sheets under tests/data/rtf, with what they said of it. Installs what is missing.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh

others=(libreoffice abiword pandoc)
made=build/bench/richtext
samples=tests/data/rtf
declare -A tell_of_rich_text=([libreoffice]=tell_libreoffice [abiword]=tell_abiword_of_rich_text [pandoc]=tell_pandoc)
kept=(looks lists table marks letters places)

office() { soffice "-env:UserInstallation=file://${PWD// /%20}/$made/profile" --headless "$@" >/dev/null 2>&1; }

# tell_PROGRAM FOLDER FILE...: what it says of these files, as plain text and as HTML. The name's end tells the format.
tell_libreoffice() {
    office --convert-to "html:HTML (StarWriter)" --outdir "$1" "${@:2}"
    office --convert-to "txt:Text (encoded):UTF8" --outdir "$1" "${@:2}"
}

tell_abiword() {
    local file name format
    for file in "${@:2}"; do
        name=$(basename "${file%.*}")
        for format in html txt abw; do abiword --to="$format" --to-name="$1/$name.$format" "$file" 2>/dev/null; done
    done
}

# Its HTML has bold type wherever a weight is told, be it that of normal type, and rich text tells it everywhere. What it
# has understood of rich text is told by its own kind of file, with the same properties as HTML.
tell_abiword_of_rich_text() {
    local file name
    tell_abiword "$@"
    for file in "${@:2}"; do
        name=$1/$(basename "$file" .rtf)
        sed -e 's/<p [^>]*list-style:Bullet List[^>]*>/<ul><li>/' -e 's/<field type="list_label".*<\/field>//' \
            -e 's/<c [^>]*props="\([^"]*\)"[^>]*>/<span style="\1">/g' -e 's/<\/c>/<\/span>/g' \
            -e '1,/<section/d' "$name.abw" >"$name.html"
    done
}

tell_pandoc() {
    local file name
    for file in "${@:2}"; do
        name=$(basename "${file%.*}")
        # Sizes are left out, since it writes none as rich text.
        pandoc -s --wrap=none -M title="" -f "${file##*.}" -t html "$file" 2>/dev/null |
            sed 's/font-size:[0-9.]*pt//g' >"$1/$name.html"
        pandoc --wrap=none -f "${file##*.}" -t plain "$file" >"$1/$name.txt" 2>/dev/null
    done
}

# write_PROGRAM FOLDER FILE...: rich text of these files in HTML, and what the program says of it.
write_libreoffice() {
    office --infilter="HTML (StarWriter)" --convert-to "rtf:Rich Text Format" --outdir "$1" "${@:2}"
    tell_libreoffice "$1" "$1"/*.rtf
}

# These two tell it from the HTML: of its own rich text one tells no sizes, and the other loses letters.
write_abiword() {
    local file
    for file in "${@:2}"; do abiword --to=rtf --to-name="$1/$(basename "$file" .html).rtf" "$file" 2>/dev/null; done
    tell_abiword "$@"
}

write_pandoc() {
    local file
    for file in "${@:2}"; do
        pandoc -s -M title="" -f html -t rtf "$file" >"$1/$(basename "$file" .html).rtf" 2>/dev/null
    done
    tell_pandoc "$@"
}

# A line of figures for each file, ALL/AMISS of words, paragraphs, bold, italic, sizes and bullets.
compare_files() {
    local file figures
    for file in "$1"/*.rtf; do
        figures=$("$programs/richtextfacts" compare "$file" "${file%.rtf}.txt" "${file%.rtf}.html")
        echo "$(basename "$file" .rtf) $figures"
    done
}

# sum_up TITLE: the sum of such lines, after the lines that have something amiss.
sum_up() {
    awk -v title="$1" '{ amiss = 0
           for (i = 2; i <= 7; ++i) { split($i, n, "/"); all[i] += n[1]; miss[i] += n[2]; amiss += n[2] }
           if (amiss) details = details "    " $0 "\n" }
         END { printf "%-24s %3d files", title, NR
               for (i = 2; i <= 7; ++i) printf " %6d/%-4d", all[i], miss[i]
               printf "\n%s", details }'
}

compare_theirs() {
    local other folder
    for other in "${others[@]}"; do
        folder=$made/theirs/$other
        mkdir -p "$folder"
        "write_$other" "$folder" "$samples"/sheets/*.html "$made"/html/*.html
        compare_files "$folder" | sum_up "theirs, of $other"
    done
}

compare_ours() {
    local other folder file
    for other in "${others[@]}"; do
        folder=$made/ours/$other
        mkdir -p "$folder"
        cp "$made"/rtf/*.rtf "$folder"
        "${tell_of_rich_text[$other]}" "$folder" "$folder"/*.rtf
        compare_files "$folder" >"$folder.figures"
        grep -e '-own ' "$folder.figures" | sum_up "ours in $other"
        grep -v -e '-own ' "$folder.figures" | sum_up "our pages in $other"
    done
}

# The pages and documents as they are, as HTML, and as they are written after they have been read; the sheets as well,
# from what a word processor made of them.
make_sources() {
    local file name
    mkdir -p "$made/pages" "$made/html" "$made/rtf"
    "$programs/page_texts" "$made/pages"
    for file in "$made"/pages/*.rtf; do
        name=$(basename "$file" .rtf)
        "$programs/richtextfacts" html "$file" "$made/html/$name.html"
        cp "$file" "$made/rtf/$name.rtf"
        "$programs/richtextfacts" rewrite "$file" "$made/rtf/$name-own.rtf"
    done
    office --infilter="HTML (StarWriter)" --convert-to "rtf:Rich Text Format" --outdir "$made/pages" "$samples"/sheets/*.html
    for file in "$samples"/sheets/*.html; do
        name=$(basename "$file" .html)
        "$programs/richtextfacts" rewrite "$made/pages/$name.rtf" "$made/rtf/$name-own.rtf"
    done
}

keep_samples() {
    local other sheet name
    for other in "${others[@]}"; do
        mkdir -p "$samples/$other"
        for sheet in "${kept[@]}"; do
            name=$made/theirs/$other/$sheet
            cp "$name.rtf" "$samples/$other"
            "$programs/richtextfacts" expect "$name.txt" "$name.html" >"$samples/$other/$sheet.facts"
        done
    done
}

main() {
    local keep=
    if [[ ${1:-} == --keep ]]; then keep=yes && shift; fi
    install_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_bench[@]}"
    programs=${1:-build/bench/bin}
    [[ -n ${1:-} ]] || build bench richtextfacts page_texts
    begin_session
    rm -rf "$made"
    mkdir -p "$made"
    make_sources
    printf '%-24s %3s files %11s %11s %11s %11s %11s %11s\n' "all/amiss" "" words paragraphs bold italic sizes bullets
    compare_theirs
    compare_ours
    [[ -z $keep ]] || keep_samples
}

main "$@"

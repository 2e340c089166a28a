#!/usr/bin/env bash
# Times whole programs, each against its measure in one run: the start up to the intro against a bare multi-document
# window, reading a long rich text against other readers of it, and printing a module's document into a PDF file against
# word processors that print the same rich text. Installs what is missing.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh
source scripts/display.sh

programs=build/bench/bin
work=build/bench/work

# The mean time of each command in seconds, a line each.
times_of() {
    hyperfine --warmup 2 --runs "$1" --shell=none --ignore-failure --export-csv "$work/times.csv" "${@:2}" >/dev/null 2>&1
    tail -n +2 "$work/times.csv" | awk -F, '{ print $(NF-6) }'
}

memory_of() { /usr/bin/time -f %M "$1" 2>&1 >/dev/null | tail -n 1; }

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }

compare_start() {
    local times
    mapfile -t times < <(times_of 20 "$programs/start_intro" "$programs/start_bare")
    printf 'start to the intro        %8.1f ms\n' "$(awk -v t="${times[0]}" 'BEGIN { print t * 1000 }')"
    printf 'start of a bare window    %8.1f ms   ratio %s (at most 1.3)\n' \
        "$(awk -v t="${times[1]}" 'BEGIN { print t * 1000 }')" "$(ratio "${times[0]}" "${times[1]}")"
    local intro bare
    intro=$(memory_of "$programs/start_intro")
    bare=$(memory_of "$programs/start_bare")
    printf 'memory                    %8d kB   bare %d kB, ratio %s (at most 1.3)\n' "$intro" "$bare" "$(ratio "$intro" "$bare")"
}

compare_reading() {
    local file=$work/long.rtf names=(orvane unrtf pandoc abiword libreoffice) times i
    "$programs/long_document" >"$file"
    mapfile -t times < <(times_of 5 \
        "$programs/rtf2text $file" \
        "unrtf --text $file" \
        "pandoc -f rtf -t plain -o $work/pandoc.txt $file" \
        "abiword --to=txt --to-name=$work/abiword.txt $file" \
        "soffice --headless --convert-to txt:Text --outdir $work $file")
    for i in "${!names[@]}"; do
        printf 'reading %s with %-12s %8.2f s   ratio of ours %s\n' "$(du -k "$file" | cut -f 1) kB" "${names[i]}" \
            "${times[i]}" "$(ratio "${times[0]}" "${times[i]}")"
    done
}

pages_of() { pdfinfo "$1" | awk '/^Pages:/ { print $2 }'; }

# How often each word stands in a plain text; the marks of bullets are none.
words_of() { grep -oE '[[:alnum:]]+' "$1" | sort | uniq -c; }

compare_printing() {
    local module=$1 file=$work/module$1 names=(orvane abiword libreoffice) times i
    "$programs/module_document" "$module" "$file.rtf"
    mapfile -t times < <(times_of 5 \
        "$programs/module_document $module $file.pdf" \
        "abiword --to=pdf --to-name=$file-abiword.pdf $file.rtf" \
        "soffice --headless --convert-to pdf --outdir $work/office $file.rtf")
    for i in "${!names[@]}"; do
        printf 'module %d as PDF by %-12s %8.2f s   ratio of ours %s\n' "$module" "${names[i]}" "${times[i]}" \
            "$(ratio "${times[0]}" "${times[i]}")"
    done
    printf 'pages of module %d: ours %d, libreoffice %d\n' "$module" "$(pages_of "$file.pdf")" \
        "$(pages_of "$work/office/module$module.pdf")"
    "$programs/rtf2text" "$file.rtf" >"$file.txt"
    soffice --headless --convert-to txt:Text --outdir "$work/office" "$file.rtf" >/dev/null 2>&1
    printf 'words of module %d that differ in libreoffice: %d\n' "$module" \
        "$(diff <(words_of "$file.txt") <(words_of "$work/office/module$module.txt") | grep -c '^[<>]' || true)"
}

main() {
    install_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_virtual_display[@]}" "${packages_bench[@]}"
    build bench
    mkdir -p "$work"
    begin_session
    start_virtual_display
    compare_start
    compare_reading
    local module
    for module in 1 2 3 4; do compare_printing "$module"; done
}

main

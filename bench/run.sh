#!/usr/bin/env bash
# Measures every budget against its measure in one run, and prints a line for each with its ratio, its limit and whether
# it is met; then, without a limit, reading a long rich text against other readers of it. run.sh [PROGRAMS]
#
# PROGRAMS is a folder with the benchmarks, which are built where none is named. Installs what is missing.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/dependencies.sh
source scripts/build.sh
source scripts/session.sh
source scripts/display.sh
source bench/timing.sh

made=build/bench/made # without the folder's own path, which may have blanks
starts=40     # runs of what takes a tenth of a second
conversions=5 # and of what takes seconds
rest_seconds=10

milliseconds() { awk -v s="$1" 'BEGIN { printf "%.1f ms", s * 1000 }'; }

office() { echo "soffice -env:UserInstallation=file://${PWD// /%20}/$made/profile --headless"; }

# processor_time PROGRAM OURS BARE: the medians of the two benchmarks' times, a line each, in the program's unit.
processor_time() {
    local result
    result=$("$programs/$1" --benchmark_filter="^($2|$3)\$" --benchmark_repetitions=15 --benchmark_format=csv \
        --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true 2>/dev/null)
    awk -F, -v name="\"$2_median\"" '$1 == name { print $4 }' <<<"$result"
    awk -F, -v name="\"$3_median\"" '$1 == name { print $4 }' <<<"$result"
}

compare_put() {
    local length times
    for length in 15 150 1500; do
        mapfile -t times < <(processor_time bench_richtext "readRichText/$length" "setHtml/$length")
        budget "put of $length paragraphs to setHtml of the same" "$(ratio "${times[0]}" "${times[1]}")" 1 \
            "${times[0]} ms to ${times[1]} ms"
    done
}

compare_start() {
    local times
    mapfile -t times < <(medians "$starts" "$programs/start_intro" "$programs/start_bare")
    budget "start to the intro to start of a bare window" "$(ratio "${times[0]}" "${times[1]}")" 1.3 \
        "$(milliseconds "${times[0]}") to $(milliseconds "${times[1]}"), medians of $starts"
}

compare_opening() {
    local times
    mapfile -t times < <(processor_time bench_windows openGuideWindow openBareSubWindow)
    budget "opening a module window to opening a bare sub-window" "$(ratio "${times[0]}" "${times[1]}")" 2 \
        "${times[0]} ms to ${times[1]} ms"
}

compare_printing() {
    local module file times
    for module in 1 2 3 4; do
        file=$made/module$module
        "$programs/module_document" "$module" "$file.rtf"
        mapfile -t times < <(medians "$conversions" \
            "$programs/module_document $module $file.pdf" \
            "$(office) --convert-to pdf --outdir $made/office $file.rtf" \
            "abiword --to=pdf --to-name=$file-abiword.pdf $file.rtf")
        budget "module $module as PDF to an office suite" "$(ratio "${times[0]}" "${times[1]}")" 0.1 \
            "$(milliseconds "${times[0]}") to $(milliseconds "${times[1]}")"
        printf '%-58s %8s  %20s %s\n' "module $module as PDF to a word processor" \
            "$(ratio "${times[0]}" "${times[2]}")" "" "$(milliseconds "${times[0]}") to $(milliseconds "${times[2]}")"
    done
}

# memory_of COMMAND...: the most that it holds at a time, in MB.
memory_of() { /usr/bin/time -f %M "$@" 2>&1 >/dev/null | tail -n 1 | awk '{ printf "%.1f", $1 / 1024 }'; }

compare_memory() {
    local all bare
    all=$(memory_of "$programs/open_windows" all)
    bare=$(memory_of "$programs/start_bare")
    budget "memory with all windows open less that of a bare window" "$(awk "BEGIN { printf \"%.1f\", $all - $bare }")" \
        40 "$all MB to $bare MB"
}

# How often the threads of a process have gone to sleep, each of which a wake-up has ended.
sleeps_of() { cat /proc/"$1"/task/*/status | awk '/^voluntary_ctxt_switches/ { n += $2 } END { print n }'; }

# count_wake_ups WHAT SECONDS COMMAND...: of the program at rest, once the toolkit has looked after its caches for the last
# time: every ten seconds for a while, when much has been shown.
count_wake_ups() {
    local before after
    start "wake-ups with $1" "${@:3}"
    local process=$!
    sleep "$2"
    before=$(sleeps_of "$process")
    sleep "$rest_seconds"
    after=$(sleeps_of "$process")
    kill "$process"
    wait "$process" 2>/dev/null || true
    budget "wake-ups at rest with $1" $((after - before)) 0 "in $rest_seconds s"
}

compare_wake_ups() {
    count_wake_ups "diagram and console" 35 "$programs/open_windows" diagram stay
    count_wake_ups "a document and console" 35 "$programs/open_windows" document stay
    count_wake_ups "all windows" 120 "$programs/open_windows" all stay
}

compare_reading() {
    local file=$made/long.rtf names=(libreoffice abiword pandoc unrtf) times i
    "$programs/long_document" >"$file"
    mapfile -t times < <(medians "$conversions" "$programs/rtf2text $file" \
        "$(office) --convert-to txt:Text --outdir $made/office $file" \
        "abiword --to=txt --to-name=$made/abiword.txt $file" \
        "pandoc -f rtf -t plain -o $made/pandoc.txt $file" \
        "unrtf --text $file")
    for i in "${!names[@]}"; do
        printf '%-58s %8s  %20s %s\n' "reading $(du -k "$file" | cut -f 1) kB of rich text to ${names[i]}" \
            "$(ratio "${times[0]}" "${times[i + 1]}")" "" \
            "$(milliseconds "${times[0]}") to $(milliseconds "${times[i + 1]}")"
    done
}

main() {
    install_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_virtual_display[@]}" "${packages_bench[@]}"
    programs=${1:-build/bench/bin}
    [[ -n ${1:-} ]] || build bench
    mkdir -p "$made/office"
    begin_session
    start_virtual_display 1280x1024
    printf '%s cores\n' "$(nproc)"
    compare_put
    compare_start
    compare_opening
    compare_printing
    compare_memory
    compare_wake_ups
    compare_reading
}

main "$@"

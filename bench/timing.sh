# shellcheck shell=bash
# Times commands against each other in one run. To be sourced.

# medians RUNS COMMAND...: the median time of each command in seconds, a line each. They take turns, so that whatever
# else the machine does meets all of them.
medians() {
    local runs=$1 run i start command times=()
    shift
    for ((run = 0; run <= runs; ++run)); do
        for ((i = 1; i <= $#; ++i)); do
            read -ra command <<<"${!i}"
            start=${EPOCHREALTIME/./}
            if ! "${command[@]}" >/dev/null 2>&1; then
                echo "failed: ${!i}" >&2
                return 1
            fi
            # The first round only warms up.
            ((run == 0)) || times[i]+="$((${EPOCHREALTIME/./} - start)) "
        done
    done
    for ((i = 1; i <= $#; ++i)); do median_of "${times[i]}"; done
}

# median_of MICROSECONDS...: in seconds.
median_of() {
    tr ' ' '\n' <<<"$1" | grep . | sort -n |
        awk '{ t[NR] = $1 } END { printf "%.6f\n", (t[int((NR + 1) / 2)] + t[int(NR / 2) + 1]) / 2e6 }'
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }

# budget WHAT VALUE LIMIT DETAILS: a line of the table; met where the value is no more than the limit.
budget() {
    local verdict=missed
    if awk -v a="$2" -v b="$3" 'BEGIN { exit !(a <= b) }'; then verdict=met; fi
    printf '%-58s %8s  limit %-6s %-7s %s\n' "$1" "$2" "$3" "$verdict" "$4"
}

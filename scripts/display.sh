# shellcheck shell=bash
# Which display there is, and a virtual one where there is none. To be sourced after session.sh.

display_jobs=()

has_x11_display() {
    [[ -n ${DISPLAY:-} ]] && timeout 10 xdpyinfo >/dev/null 2>&1
}

has_wayland_display() {
    local socket=${WAYLAND_DISPLAY:-}
    [[ $socket == /* ]] || socket=${XDG_RUNTIME_DIR:-}/$socket
    [[ -S $socket ]]
}

stop_virtual_display() {
    local job
    for job in "${display_jobs[@]}"; do
        if kill "$job" 2>/dev/null; then wait "$job" || true; fi
    done
    end_session
}

# start NAME COMMAND...: runs the command in the background until the session's end, and returns with its first line
# of output in $first_line, or fails with what it complained of.
start() {
    # shellcheck disable=SC2154  # session.sh sets the folder
    local name=$1 line=$session_folder/$1.line log=$session_folder/$1.log
    shift
    mkfifo "$line"
    "$@" >"$line" 2>"$log" &
    display_jobs=("$!" "${display_jobs[@]}")
    read -r -t 30 first_line <"$line" && return
    echo "$name did not start." >&2
    cat "$log" >&2
    return 1
}

# start_virtual_display WIDTHxHEIGHT: a window is active only where a window manager makes it so.
start_virtual_display() {
    local size=$1 first_line=
    trap stop_virtual_display EXIT
    start Xvfb Xvfb -displayfd 1 -screen 0 "${size}x24" -nolisten tcp -noreset
    unset WAYLAND_DISPLAY XAUTHORITY
    export DISPLAY=:$first_line QT_QPA_PLATFORM=xcb
    start openbox openbox --sm-disable --startup "echo ready"
    command -v dbus-daemon >/dev/null || return 0
    start dbus-daemon dbus-daemon --session --nofork --print-address=1
    export DBUS_SESSION_BUS_ADDRESS=$first_line
}

# shellcheck shell=bash
# What the toolkit expects of a user's session and a bare machine doesn't have. To be sourced.

session_folder=

end_session() {
    [[ -z $session_folder ]] || rm -rf "$session_folder"
}

begin_session() {
    [[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8
    session_folder=$(mktemp -d)
    trap end_session EXIT
    [[ -d ${XDG_RUNTIME_DIR:-} ]] || export XDG_RUNTIME_DIR=$session_folder
}

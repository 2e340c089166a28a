#!/usr/bin/env bash
# Formats every source file of the tree; with --check only names those that need it.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."

sources() {
    find src tools tests bench -type f \( -name '*.cpp' -o -name '*.h' \) -print0
}

check() {
    local complaints
    complaints=$(sources | xargs -0 clang-format-14 --dry-run -Werror 2>&1) && return
    echo "Run scripts/format.sh over these:" >&2
    cut -d : -f 1 <<<"$complaints" | grep -E '\.(cpp|h)$' | sort -u >&2
    return 1
}

if [[ ${1:-} == --check ]]; then check; else sources | xargs -0 clang-format-14 -i; fi

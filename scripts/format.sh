#!/usr/bin/env bash
# Formats every source file of the tree; with --check only tells which ones are not.
set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."

action=(-i)
[[ ${1:-} != --check ]] || action=(--dry-run -Werror)

find . \( -path ./build -o -path ./out -o -path ./.git \) -prune -o -type f \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format-14 "${action[@]}"

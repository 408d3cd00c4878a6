#!/usr/bin/env bash
# Fails if a tracked C++ file is not as clang-format leaves it.
#   formatting.sh CLANG_FORMAT
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# The folder may belong to another user than the one who runs the gate, as in a container.
mapfile -t files < <(git -c safe.directory='*' ls-files -- '*.h' '*.cpp')
((${#files[@]})) || { echo "git lists no C++ file here"; exit 1; }
"$1" --dry-run --Werror "${files[@]}" || {
    echo "To mend it: $(basename "$1") -i FILE"
    exit 1
}
echo "${#files[@]} files are formatted."

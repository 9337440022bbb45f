#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What must hold for the tree as a whole: includes name files of the tree and form no circles, every source has its
# licence header, no file of the program is longer than 400 lines, no text refers to what a reader does not have.
#
#   check_tree.sh [folder]      (the project's own without one)
set -euo pipefail
. "$(dirname "$0")/sources.sh"
cd "${1:-$(dirname "$0")/..}"
status=0
problem() {
    echo "$*"
    status=1
}

mapfile -t sources < <(sources -true)
[ ${#sources[@]} -gt 0 ] || { echo "no sources here"; exit 1; }

# Each include as "file included", from the root of the tree; what the build generates stands beside the source.
pairs=$(grep -HoE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"[^"]+"' "${sources[@]}" |
    sed -E 's/:[[:space:]]*#[^"]*"/ /; s/"$//' | grep -v '\.moc$' || true)
while read -r file included; do
    [ -z "$included" ] || [ -f "$included" ] || problem "$file: includes $included, which is no file of the tree"
    [ "$file" != "$included" ] || problem "includes form a circle: $file includes itself"
done <<<"$pairs"
# A topological sort of "file includes file" names what it cannot order.
if ! circle=$(tsort <<<"$pairs" 2>&1 >/dev/null); then
    problem "includes form a circle: $circle"
fi

for file in "${sources[@]}"; do
    case $file in tests/*) continue ;; esac
    lines=$(wc -l <"$file")
    [ "$lines" -le 400 ] || problem "$file: $lines lines, over 400"
done

# Scripts have their header behind the line that names their interpreter.
mapfile -t others < <(find . \( -path './build*' -o -path ./.git \) -prune -o -type f \
    \( -name '*.sh' -o -name '*.cmake' -o -name CMakeLists.txt -o -path ./tessarin -o -path ./.ci/run \) -printf '%P\n')
for file in "${sources[@]}" "${others[@]}"; do
    header=$(head -n 3 "$file")
    if [[ $header != *SPDX-FileCopyrightText:* || $header != *SPDX-License-Identifier:* ]]; then
        problem "$file: no licence header in its first lines"
    fi
done

# Documents, numbers and places that are not in the tree tell its readers nothing; nor do the marks of a merge. (The
# brackets keep this pattern from finding itself.)
references='\<[Ss]pe[c]s?\>|[Ss]peci[f]ication|\<Part [0-9]+\.[0-9]|\<[Ii]ssue #?[0-9]|/wor[k]/|^(<{7}|>{7})( |$)'
if found=$(find . \( -path './build*' -o -path ./.git -o -path ./LICENSE \) -prune -o -type f -print0 |
    xargs -0 grep -InE "$references"); then
    problem "refers to what is not in the tree:"$'\n'"$found"
fi
[ $status = 0 ] && echo "tree: ${#sources[@]} files checked"
exit $status

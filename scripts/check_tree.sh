#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What must hold for the tree as a whole: includes form no circles, every source has its licence header, no file of the
# program is longer than 400 lines.
#
#   check_tree.sh [folder]      (the project's own without one)
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"
status=0
problem() {
    echo "$*"
    status=1
}

mapfile -t sources < <(find pde cups platform plugin controls ppd ink host tools tests -name '*.h' -o -name '*.cpp' | sort)
[ ${#sources[@]} -gt 0 ] || { echo "no sources here"; exit 1; }

# Circles: a topological sort of "file includes file" names what it cannot order.
pairs=$(grep -HoE '^#include "[^"]+"' "${sources[@]}" | sed -E 's/:#include "/ /; s/"$//')
if ! circle=$(tsort <<<"$pairs" 2>&1 >/dev/null); then
    problem "includes form a circle: $circle"
fi

for file in "${sources[@]}"; do
    head -n 2 "$file" | grep -q 'SPDX-FileCopyrightText' && head -n 2 "$file" | grep -q 'SPDX-License-Identifier' ||
        problem "$file: no licence header in its first two lines"
    case $file in tests/*) continue ;; esac
    lines=$(wc -l <"$file")
    [ "$lines" -le 400 ] || problem "$file: $lines lines, over 400"
done
[ $status = 0 ] && echo "tree: ${#sources[@]} files checked"
exit $status

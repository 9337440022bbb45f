#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The tree check finds each fault that is planted in a small tree of its own.
#
#   tree_check_test.sh <check_tree.sh>
set -euo pipefail
check=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
header='// SPDX-FileCopyrightText: someone
// SPDX-License-Identifier: GPL-3.0-or-later'

plant() { # a fresh tree without faults
    rm -rf "$work/tree"
    for room in pde cups platform plugin controls ppd ink host tools tests; do
        mkdir -p "$work/tree/$room"
    done
    printf '%s\n#include "ppd/b.h"\n' "$header" >"$work/tree/ppd/a.h"
    printf '%s\nint b;\n' "$header" >"$work/tree/ppd/b.h"
}

expect() { # status, words of the output
    local status=0 output
    output=$("$check" "$work/tree") || status=$?
    if [ "$status" != "$1" ] || ! grep -qF "$2" <<<"$output"; then
        echo "FAILED: expected status $1 and \"$2\", got $status and: $output"
        exit 1
    fi
}

plant
expect 0 "tree: 2 files checked"
printf '%s\n#include "ppd/a.h"\n' "$header" >"$work/tree/ppd/b.h"
expect 1 "includes form a circle"
plant
echo 'int c;' >"$work/tree/ink/c.h"
expect 1 "ink/c.h: no licence header"
plant
{ echo "$header"; printf '//\n%.0s' {1..399}; } >"$work/tree/host/long.cpp"
expect 1 "host/long.cpp: 401 lines, over 400"
echo "passed"

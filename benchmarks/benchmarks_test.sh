#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The benchmarks run, and every row of their table has its figure. What the figures are is no matter here.
#
#   benchmarks_test.sh <folder of the build> panel|start
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "FAILED: $*"
    cat "$work/out"
    exit 1
}
case $2 in
panel)
    "$1/benchmarks/tessarin_bench" --benchmark_min_time=0.001 >"$work/out" 2>"$work/errors" || fail "$(cat "$work/errors")"
    rows=$(grep -cE '^\| .* \| [0-9.e+-]+ \| [0-9.]* ?\| (met|missed)? ?\|$' "$work/out") || true
    wanted=$(grep -c '^    {"' "$here/ratio_table.cpp")
    [ "$rows" = "$wanted" ] || fail "$rows rows in place of $wanted"
    while IFS= read -r name; do
        grep -qF "| $name |" "$here/README.md" || fail "README.md has no figure of: $name"
    done < <(sed -nE 's/^    \{"([^"]+)".*/\1/p' "$here/ratio_table.cpp" | sed -E 's/^scan of [0-9]+ MiB/scan of 4, 16, 64 MiB/')
    ;;
start)
    "$here/start/dialog_start.sh" "$1" 3 >"$work/out" 2>&1 || fail "it ended with $?"
    [ "$(grep -cE '^\| .* 3 queues .* \| [0-9.]+ \|' "$work/out")" = 2 ] || fail "there are not two rows"
    grep -qE '^\| .* 3 queues .* \| [0-9.]+ \| 1.2 \| (met|missed) \|$' "$work/out" || fail "there is no row"
    ;;
esac

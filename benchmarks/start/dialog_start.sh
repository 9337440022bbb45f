#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The dialog's start with many queues on a print server, against programs with a bare window. Ends with rows of the
# table of ratios.
#
#   dialog_start.sh <folder of the build> <queues>
set -euo pipefail
build=$1
queues=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
export HOME=$work XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=offscreen
. "$here/../../tests/cups/private_scheduler.sh"
trap 'stop_scheduler; rm -rf "$work"' EXIT
start_scheduler
for ((i = 1; i <= queues; i++)); do
    lpadmin -p "queue$i" -E -v file:/dev/null -m raw 2>/dev/null
done
[ "$(lpstat -p | grep -c '^printer')" = "$queues" ]
ln -s "$build/benchmarks/first_paint.so" "$work/first_paint.so" # a path that is preloaded may hold no blank
row() { # window, what it is, goal; prints the row
    local measured ratio
    measured=$("$build/benchmarks/start_times" 15 "$work/first_paint.so" \
        "$build/benchmarks/$1" "$build/bin/tessarin-print" --log none)
    ratio=${measured##* }
    echo "| dialog's cold start to its window, $queues queues / $2 | $ratio | $3 |" \
        "$([ -z "$3" ] || awk -v ratio="$ratio" -v goal="$3" 'BEGIN { print ratio <= goal ? "met" : "missed" }') |"
    echo "($measured)" >&2
}
row empty_window "an empty window" 1.2
row text_window "a window with a word" ""

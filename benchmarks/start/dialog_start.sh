#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The dialog's start with many queues on a print server, against a program with an empty window. Ends with a row of the
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
measured=$("$build/benchmarks/start_times" 15 "$work/first_paint.so" \
    "$build/benchmarks/empty_window" "$build/bin/tessarin-print" --log none)
ratio=${measured##* }
echo "| dialog's cold start to its window, $queues queues / an empty window | $ratio | 1.2 |" \
    "$(awk -v ratio="$ratio" 'BEGIN { print ratio <= 1.2 ? "met" : "missed" }') |"
echo "($measured)" >&2

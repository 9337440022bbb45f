#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Prints a document to a queue from the dialog, on a virtual display, by its Print shortcut.
#
#   print_from_dialog.sh <tessarin-print> <queue> <document>
set -euo pipefail
program=$1
queue=$2
document=$3
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >"$work/xvfb.log" 2>&1 &
read -r -t 30 number <"$work/display"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
"$program" --log none --printer "$queue" "$document" &
dialog=$!
window=$(timeout 60 xdotool search --sync --onlyvisible --pid "$dialog" --name . | tail -n 1)
sleep 1
xdotool windowfocus --sync "$window"
xdotool key --delay 80 alt+p
status=0
timeout 60 tail --pid="$dialog" -f /dev/null
wait "$dialog" || status=$?
exit "$status"

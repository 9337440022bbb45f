#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The dialog on Wayland, used with the keyboard. The compositor runs on a virtual display, which brings the keys to it;
# the dialog itself knows no X display.
#
#   wayland_test.sh <tessarin-print> <case>
#
# Cases: print, print-scaled (one and a half times the size), cancel.
set -euo pipefail

program=$1
case=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
ticket=$work/ticket
export HOME=$work XDG_CONFIG_HOME=$work/config
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*"
    tail -n 20 "$work/compositor.log" "$work/out.log" "$work/err.log" 2>/dev/null
    exit 1
}

. "$here/../dialog/virtual_display.sh"

# What the dialog and the compositor said to each other, as Qt's Wayland library writes it.
said() {
    grep -sqE -- "$1" "$work/err.log"
}

start_display
[ "$case" != print-scaled ] || export QT_SCALE_FACTOR=1.5
weston --backend=x11-backend.so --use-pixman --no-config --width=1024 --height=600 --idle-time=0 --socket=test \
    >"$work/compositor.log" 2>&1 &
wait_until "the compositor starts" test -S "$work/test"
# Without a window manager the keyboard is where the pointer is.
xdotool mousemove 512 300

env -u DISPLAY -u QT_QPA_PLATFORM -u XDG_CURRENT_DESKTOP XDG_SESSION_TYPE=wayland WAYLAND_DISPLAY=test \
    WAYLAND_DEBUG=1 "$program" --sample --log "$work/panel.log" --ticket "$ticket" >"$work/out.log" 2>"$work/err.log" &
dialog=$!
wait_until "the dialog has a window" said 'set_title\("Print . Sample printer"\)'
wait_until "the window is drawn" said 'wl_surface@[0-9]+\.attach\(wl_buffer@'
wait_until "the window takes the keyboard" said 'wl_keyboard@[0-9]+\.enter'

case $case in
print | print-scaled)
    keys alt+1                # the page General
    keys alt+c ctrl+a 3       # three copies
    keys alt+e alt+Down       # the list of paper sizes
    wait_until "the list opens" said 'xdg_popup@[0-9]+\.grab' # a tool tip takes no input
    keys Down Return
    keys alt+2                # the panel
    keys alt+p
    wait_for_end 0
    for line in copies=3 PageSize=A5 vornMediaType=PhotoPearl07; do
        grep -qxF "$line" "$ticket" || fail "the ticket has no line $line: $(cat "$ticket")"
    done
    ;;
cancel)
    keys Escape
    wait_for_end 1
    [ ! -e "$ticket" ] || fail "a cancelled dialog wrote a ticket"
    ;;
*)
    fail "unknown case $case"
    ;;
esac
echo "passed: $case"

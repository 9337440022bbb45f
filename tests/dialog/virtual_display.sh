# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A dialog on a virtual display, to be sourced. Needs $work (a folder), $program (tessarin-print) and a function fail.
#
#   start_display
#   open_dialog <arguments>...   sets $dialog (process) and $window; output in $work/out.log and $work/err.log
#   click <x> <y>                in the window
#   keys <key>...
#   wait_for_window <title>      of the dialog's process; gives it the keyboard
#   wait_for_end <status>

start_display() {
    mkfifo "$work/display"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >"$work/xvfb.log" 2>&1 &
    local number
    read -r -t 30 number <"$work/display" || fail "the virtual display did not start"
    export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
    unset WAYLAND_DISPLAY
}

open_dialog() {
    "$program" "$@" >"$work/out.log" 2>"$work/err.log" &
    dialog=$!
    window=$(timeout 60 xdotool search --sync --onlyvisible --pid "$dialog" --name . | tail -n 1) ||
        fail "no window appeared"
    # The window is there before it is painted and takes input.
    sleep 1
    xdotool windowfocus --sync "$window"
}

click() { # x y
    xdotool mousemove --window "$window" "$1" "$2" sleep 0.2 click 1 sleep 0.3
}

keys() {
    xdotool key --delay 80 "$@"
    sleep 0.3
}

wait_for_window() { # title
    local found
    found=$(timeout 60 xdotool search --sync --onlyvisible --pid "$dialog" --name "$1" | tail -n 1) ||
        fail "no window \"$1\" appeared"
    sleep 0.5
    xdotool windowfocus --sync "$found"
}

wait_for_end() { # expected status
    local status=0
    timeout 60 tail --pid="$dialog" -f /dev/null || fail "the dialog did not end"
    wait "$dialog" || status=$?
    [ "$status" = "$1" ] || fail "exit status $status, expected $1"
}

# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A dialog on a virtual display, to be sourced. Needs $work (a folder), $program (tessarin-print) and a function fail.
#
#   start_display                of the size in $screen, if that is set
#   open_dialog <arguments>...   sets $dialog (process) and $window; output in $work/out.log and $work/err.log
#   wait_until <what> <command>...   fails when the command has not succeeded within a minute
#   wait_for_printer <name>      until the dialog has it open, which its title says
#   wait_for_window <title>      gives it the keyboard
#   back_to_dialog               gives the dialog the keyboard, once it is the only window again
#   click <x> <y>                in the window
#   keys <key>...
#   wait_for_end <status>

start_display() {
    mkfifo "$work/display"
    # Without a reset: at one, when its last client has gone, the server would end for want of who reads its number.
    Xvfb -displayfd 3 -screen 0 "${screen:-1280x1024}x24" -nolisten tcp -noreset \
        3>"$work/display" >"$work/xvfb.log" 2>&1 &
    local number
    read -r -t 30 number <"$work/display" || fail "the virtual display did not start"
    export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
    unset WAYLAND_DISPLAY
}

windows() { # options of a search, which all have to hold
    xdotool search --all --onlyvisible "$@" 2>/dev/null
}

wait_until() { # what, command...
    local what=$1 i
    shift
    for ((i = 0; i < 300; i++)); do
        "$@" >/dev/null && return
        sleep 0.2
    done
    fail "in vain: $what"
}

open_dialog() {
    "$program" "$@" >"$work/out.log" 2>"$work/err.log" &
    dialog=$!
    wait_until "a window appears" windows --name '^Print'
    window=$(windows --name '^Print' | tail -n 1)
    # The window is there before it is painted and takes input.
    sleep 1
    timeout 60 xdotool windowfocus --sync "$window"
}

shows_printer() { # name; the dialog's title is not of a kind that the search can read
    [ "$(timeout 20 xdotool getwindowname "$window")" = "Print – $1" ]
}

wait_for_printer() { # name
    wait_until "$1 opens" shows_printer "$1"
    sleep 0.3
}

click() { # x y
    xdotool mousemove --window "$window" "$1" "$2" sleep 0.2 click 1 sleep 0.3
}

keys() {
    xdotool key --delay 80 "$@"
    sleep 0.3
}

wait_for_window() { # title
    wait_until "a window \"$1\" appears" windows --name "$1"
    sleep 0.5
    timeout 60 xdotool windowfocus --sync "$(windows --name "$1" | tail -n 1)"
}

dialog_is_alone() {
    [ "$(windows --name . | wc -l)" = 1 ]
}

back_to_dialog() {
    wait_until "the other windows close" dialog_is_alone
    timeout 60 xdotool windowfocus --sync "$window"
}

wait_for_end() { # expected status
    local status=0
    timeout 60 tail --pid="$dialog" -f /dev/null || fail "the dialog did not end"
    wait "$dialog" || status=$?
    [ "$status" = "$1" ] || fail "exit status $status, expected $1"
}

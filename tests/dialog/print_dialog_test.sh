#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The print dialog as a person meets it: tessarin-print on a virtual display, used with mouse and keyboard.
#
#   print_dialog_test.sh <tessarin-print> <case>
#
# Cases: print, cancel, keyboard, refused-tab, pages. Places are those of the window at its first size, in pixels.
set -euo pipefail

program=$1
case=$2
work=$(mktemp -d)
ticket=$work/ticket
export HOME=$work XDG_CONFIG_HOME=$work/config # presets and memory of the tests' own
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*"
    for file in "$work"/*.log "$ticket"; do
        [ -f "$file" ] && { echo "--- $file"; cat "$file"; }
    done
    exit 1
}

start_display() {
    mkfifo "$work/display"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >"$work/xvfb.log" 2>&1 &
    local number
    read -r -t 30 number <"$work/display" || fail "the virtual display did not start"
    export DISPLAY=:$number
}

start_dialog() {
    export QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
    unset WAYLAND_DISPLAY
    "$program" --sample --log "$work/panel.log" --ticket "$ticket" "$@" >"$work/out.log" 2>"$work/err.log" &
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

wait_for_end() { # expected status
    local status=0
    timeout 30 tail --pid="$dialog" -f /dev/null || fail "the dialog did not end"
    wait "$dialog" || status=$?
    [ "$status" = "$1" ] || fail "exit status $status, expected $1"
}

expect_line() {
    grep -qxF -- "$1" "$ticket" || fail "the ticket has no line $1"
}

start_display
case $case in
print)
    start_dialog
    click 560 151        # Media Type: its list opens
    keys Down Return     # the next medium
    click 560 227        # Print Resolution
    keys Up Return
    click 531 277        # Brightness: the handle, which takes the focus
    keys Left Left
    click 255 109         # the tab Color
    click 560 189        # Color Mode
    keys Down Return
    click 326 109         # the tab Correction
    click 677 526        # Print
    wait_for_end 0
    [ "$(grep -c "^vorn" "$ticket")" = 31 ] || fail "the ticket has $(grep -c "^vorn" "$ticket") of the 31 settings"
    expect_line vornMediaType=PhotoSatin06
    expect_line vornResolution=1200x600dpi
    expect_line vornBrightness=-10
    expect_line vornColorModel=RGBphoto
    expect_line vornRefLight=65
    expect_line vornNoPrint=0
    ;;
keyboard)
    start_dialog
    keys alt+p           # Print by its shortcut
    wait_for_end 0
    [ "$(grep -c "^vorn" "$ticket")" = 31 ] || fail "the ticket has $(grep -c "^vorn" "$ticket") of the 31 settings"
    expect_line vornMediaType=PhotoPearl07
    ;;
cancel)
    start_dialog
    click 560 151
    keys Down Return
    keys Escape
    wait_for_end 1
    [ ! -e "$ticket" ] || fail "a cancelled dialog wrote a ticket"
    ;;
refused-tab)
    start_dialog
    click 560 151
    keys Home Down Down Return   # the chart paper, a profile without colour data
    sleep 1
    keys Return                  # the warning's only button
    xdotool windowfocus --sync "$window"
    click 326 109                 # the tab Correction is refused
    click 531 277                # where Brightness is; it is disabled
    keys Left
    click 677 526
    wait_for_end 0
    grep -qF 'Handle event #4501' "$work/panel.log" || fail "no event reached the panel"
    expect_line vornMediaType=ColorChart02
    expect_line vornBrightness=0
    ;;
pages)
    start_dialog
    keys alt+1                   # the page General
    keys alt+c ctrl+a 3          # three copies
    keys alt+e Down Tab          # the next paper size
    keys alt+4                   # the page Summary
    keys alt+l                   # all back to their defaults
    sleep 0.5
    keys alt+u                   # and that undone
    sleep 0.5
    keys alt+2
    keys alt+p
    wait_for_end 0
    expect_line copies=3
    expect_line PageSize=A5
    expect_line media=A5
    ;;
*)
    fail "unknown case $case"
    ;;
esac
echo "passed: $case"

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

. "$(dirname "$0")/virtual_display.sh"

start_dialog() {
    open_dialog --sample --log "$work/panel.log" --ticket "$ticket" "$@"
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
    wait_for_window '^Tessarin ToolBox$'
    keys Return                  # the warning's only button
    back_to_dialog
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

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
export HOME=$work XDG_CONFIG_HOME=$work/config # presets and memory of the test's own
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT
fail() {
    echo "FAILED: $*"
    cat "$work/err.log"
    exit 1
}
. "$(dirname "$0")/../dialog/virtual_display.sh"
start_display
open_dialog --log none --printer "$queue" "$document"
wait_for_printer "$queue"
keys alt+p
wait_for_end 0

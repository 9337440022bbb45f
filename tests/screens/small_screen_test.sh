#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Runs a program of tests on a virtual display of 1024 x 600.
#
#   small_screen_test.sh <program>
set -euo pipefail

program=$1
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
export HOME=$work XDG_CONFIG_HOME=$work/config
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*"
    exit 1
}

. "$here/../dialog/virtual_display.sh"

screen=1024x600
start_display
"$program" || fail "status $?"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The print dialog through the desktop's accessibility bus, as a screen reader meets it: on a virtual display, with a
# message bus of the test's own.
#
#   bus_test.sh <tessarin-print>
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

start_display
# The bus that a session of the tester's may have is none of this test's.
unset AT_SPI_BUS_ADDRESS DBUS_SESSION_BUS_ADDRESS NO_AT_BRIDGE
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
dbus-run-session -- /usr/bin/python3 -W ignore::DeprecationWarning "$here/read_dialog.py" "$program" "$work" \
    "$here/../fixtures/ppd/ink-counters.ppd" || fail "the dialog does not read as it should"

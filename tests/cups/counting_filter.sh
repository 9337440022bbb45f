#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A driver's filter for the tests: it notes the title, copies and options it was given, counts ink, and has the
# scheduler keep the counters in the printer's PPD. @RECEIVED@ and @INKDATA@ are filled in when the test installs it.
set -eu
received=@RECEIVED@
printf '%s\n' "$3" >"$received/title.$1"
printf '%s\n' "$4" >"$received/copies.$1"
printf '%s\n' "$5" >"$received/options.$1"
cat "${6:-/dev/stdin}" >"$received/document.$1"
[ -f "$received/counters" ] && @INKDATA@ write "$received/counters"
exit 0

# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What the scripts of this folder share: the private scheduler with its queues, the probe, and a temporary home.
#
#   <script> <queue_probe> <sample PPD>
set -euo pipefail

probe=$1
sample=$2
cups=$(cd "$(dirname "$0")/../cups" && pwd)
. "$cups/private_scheduler.sh"
. "$cups/queues.sh"
work=$(mktemp -d)
trap 'jobs -p | xargs -r kill -CONT 2>/dev/null; stop_scheduler; rm -rf "$work"' EXIT
# The administrator's options, too, are the test's own.
mkdir -p "$work/home" "$work/etc"
export HOME=$work/home CUPS_SERVERROOT=$work/etc LC_ALL=C.UTF-8
unset LPDEST PRINTER

fail() {
    echo "FAILED: $*"
    exit 1
}

same() { # what, expected, found
    [ "$2" = "$3" ] || fail "$1:
expected: $2
found:    $3"
}

contains() { # what, line, text: one of the text's lines is this one
    grep -qxF -- "$2" <<<"$3" || fail "$1:
expected the line: $2
found: $3"
}

wait_for_line() { # file, regular expression
    local i
    for ((i = 0; i < 400; i++)); do
        grep -qs -- "$2" "$1" && return
        sleep 0.1
    done
    fail "no line $2 in: $(cat "$1")"
}

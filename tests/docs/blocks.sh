# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The samples in a document, to be sourced.

# block <document> <number>: the number-th fenced block, without its fences.
block() {
    awk -v wanted="$2" '/^```/ { inside = !inside; if (inside) number++; next } inside && number == wanted' "$1"
}

# indented <document> <number>: the number-th block that is set in by four blanks, without these.
indented() {
    awk -v wanted="$2" '
        /^```/ { fenced = !fenced }
        /^    / && !fenced { if (!inside) number++; inside = 1; if (number == wanted) print substr($0, 5); next }
        { inside = 0 }' "$1"
}

# command_line <document> <expression>: the only line set in by four blanks that begins like this, without these and
# without what is remarked at its end.
command_line() {
    local found
    found=$(sed -nE "/^    $2/ { s/^ +//; s/ +# .*//; p }" "$1")
    [ "$(grep -c . <<<"$found")" = 1 ] || { echo "$1: not one line like $2: $found" >&2; return 1; }
    echo "$found"
}

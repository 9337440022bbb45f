#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A person at a terminal types the beginning of a line, presses the tabulator and Enter: what the program then gets.
#
#   terminal_test.sh <completion file>
set -uo pipefail
completions=$(readlink -f "$1")
# shellcheck source=tests/completion/completion_support.sh
. "$(dirname "$0")/completion_support.sh"
failures=0
cd "$work/here" || exit 1
touch 'a document.pdf' 'printer one.ppd'
mkdir 'my pictures'

# typed KEYS [SHELL COMMAND]: the arguments that the program got, each in <>.
typed() {
    rm -f "$work/printed"
    printf '%s\n' "PS1='$ '" 'bind "set bell-style none"' "${2-:}" ". '$completions'" >"$work/profile"
    # The line is typed when the shell has asked for it: what comes earlier is echoed, not edited.
    {
        for ((i = 0; i < 100; i++)); do
            grep -q '\$ ' "$work/screen" 2>/dev/null && break
            sleep 0.1
        done
        printf '%b\nexit\n' "$1"
        for ((i = 0; i < 100; i++)); do
            [ -e "$work/ended" ] && break
            sleep 0.1
        done
    } | TERM=dumb timeout 30 script -qfec "bash --noprofile --rcfile '$work/profile' -i; touch '$work/ended'" \
        "$work/screen" >"$work/output" 2>&1
    cat "$work/printed" 2>/dev/null
    rm -f "$work/screen" "$work/ended"
}

expect() { # what the program gets, the keys, the shell's settings
    local got
    got=$(typed "$2" "${3-:}")
    if [ "$got" != "$1" ]; then
        echo "FAILED: $2 (${3-})"
        echo "  expected: $1"
        echo "  got:      $got"
        sed 's/^/  screen: /' "$work/output"
        failures=$((failures + 1))
    fi
}

expect '<--printer><Photo_2><x>' 'tessarin-print --pri\tPh\t2 x'
expect '<-d><Photo_1><-o><PageSize=Letter><x>' 'tessarin-print -d Photo_1 -o Pa\tL\tx'
expect '<-d><Photo_1><-o><MediaType=Canvas><x>' 'tessarin-print -d Photo_1 -o Me\tC\tx'
expect '<-d><Photo_1><--preset><Glossy photos><x>' 'tessarin-print -d Photo_1 --preset Glossy\\ p\tx'
expect '<-d><Photo_1><--preset><Glossy photos><x>' 'tessarin-print -d Photo_1 --preset "Glossy p\tx'
expect '<-d><Photo_1><--preset><Glossy "A4"><x>' "tessarin-print -d Photo_1 --preset 'Glossy \"\tx"
expect "<-d><Photo_1><--preset><Bob's><x>" 'tessarin-print -d Photo_1 --preset B\tx'
expect '<-d><Photo_1><--preset=Cost: $5 `x` \><x>' 'tessarin-print -d Photo_1 --preset=C\tx'
expect '<-d><Photo_1><--preset><Cost: $5 `x` \><x>' 'tessarin-print -d Photo_1 --preset "Co\tx'
expect '<-d><Photo_1><--preset><Cost: $5 `x` \><x>' 'tessarin-print -d Photo_1 --preset Cost:\tx'
expect '<-d><Photo_1><--preset=Cost: $5 `x` \><x>' 'tessarin-print -d Photo_1 --preset=Cost:\tx' 'COMP_WORDBREAKS=${COMP_WORDBREAKS//[=:]}'
expect '<-d><Photo_1><--preset><Größe=XL><x>' 'tessarin-print -d Photo_1 --preset Gr\tx'
expect '<-d><Photo_1><a document.pdf>' 'tessarin-print -d Photo_1 a\t'
expect '<-d><Photo_1><a document.pdf>' 'tessarin-print -d Photo_1 "a d\t'
expect '<--ticket=a document.pdf><x>' 'tessarin-print --ticket=a\tx'
expect '<--ticket=a document.pdf><x>' 'tessarin-print --ticket=a\tx' 'COMP_WORDBREAKS=${COMP_WORDBREAKS//=}'
expect '<--ppd><printer one.ppd><--summary><json><x>' 'tessarin-print --ppd p\t--su\tj\tx'
expect '<--pictures><my pictures/>' 'tessarin-print --pictures m\t'
expect '<a document.pdf>' 'tessarin-print ~/here/a\t' 'tessarin-print() { printf "<%s>" "${1##*/}" >"$HOME/printed"; }'
[ "$failures" = 0 ] && echo "passed"
exit "$((failures > 0))"

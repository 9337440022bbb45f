#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The completions offer exactly the options that each program's help names, and complete a value where it takes one.
#
#   options_test.sh <completion file> <folder of the programs>
set -uo pipefail
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
# shellcheck source=packaging/bash-completion/tessarin-print
. "$1"
programs=$2
status=0

for program in tessarin-print tessarin-replay tessarin-inkdata; do
    # An option's line: two blanks, its names, the value in <...> for those that take one.
    help=$("$programs/$program" --help) || { echo "FAILED: $program --help"; exit 1; }
    lines=$(grep -oE '^  --?[A-Za-z][^ ]*(, --?[A-Za-z][^ ]*)*( <[^ ]*>)?' <<<"$help")
    named=$(grep -oE -- '--?[A-Za-z][A-Za-z-]*' <<<"$(sed 's/<.*//' <<<"$lines")" | sort)
    offered=$(_tessarin_options "$program" | sort)
    [ -n "$named" ] || { echo "FAILED: no options in the help of $program: $help"; exit 1; }
    if difference=$(diff <(echo "$named") <(echo "$offered")); then
        echo "$program: $(wc -l <<<"$named") options"
    else
        echo "FAILED: $program: options of the help (<) and offered (>):"
        grep '^[<>]' <<<"$difference"
        status=1
    fi
    while IFS= read -r line; do
        for option in $(sed 's/<.*//; s/,//g' <<<"$line"); do
            _tessarin_kind "$program" "$option"
            case $line in
                *'<'*) [ -n "$kind" ] || { echo "FAILED: $program $option: its value is not completed"; status=1; } ;;
                *) [ -z "$kind" ] || { echo "FAILED: $program $option: takes no value, completed as $kind"; status=1; } ;;
            esac
        done
    done <<<"$lines"
done
[ $status = 0 ] && echo "passed"
exit $status

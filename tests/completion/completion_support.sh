# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What the tests of the completions need, to be sourced: programs that answer as a print server's would, and a line
# completed as the shell would have it completed.
#
#   $work                  a folder of the test's own, the current one
#   completed WORD...      the completions of a line of these words, one a line, in the order in which they are offered.
#                          Each is a word as the shell sees it: "--summary=js" is --summary = js

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin" "$work/here"
export HOME=$work

program() { # name, script on standard input
    { echo '#!/bin/bash'; cat; } >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}

program lpstat <<'END'
[ "$*" = -e ] && printf '%s\n' Photo_1 Photo_2 office office/draft
END
program lpoptions <<'END'
case $* in
    "-p Photo_1 -l")
        echo "PageSize/Media Size: *A4 Letter Custom.WIDTHxHEIGHT"
        echo "MediaType/Paper: the kind: Plain *Glossy Canvas"
        ;;
    -l) echo "DefaultsOwn/Of the default queue: On *Off" ;;
    *) echo "lpoptions: unexpected arguments: $*" >>"$HOME/faults" ;;
esac
END
program tessarin-print <<'END'
case "$*" in
    "-d Photo_1 --list-presets") printf '%s\n' 'Glossy photos' 'Glossy "A4"' "Bob's" 'Cost: $5 `x` \' 'Größe=XL' ;;
    "-d a b --list-presets") echo "Of a queue with a blank" ;;
    "--ppd $HOME/my printer.ppd --list-presets") echo "Of a file" ;;
    "--sample --list-presets") echo "Of the sample" ;;
    --list-presets) echo "Of the default" ;;
    *) printf '<%s>' "$@" >>"$HOME/printed" ;;
esac
END
PATH=$work/bin:$PATH

completed() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMP_LINE=$1
    local i
    for ((i = 1; i < $#; i++)); do
        # What the shell breaks off at "=" and ":" stands without a blank.
        [[ ${COMP_WORDS[i]} == [=:] || ${COMP_WORDS[i - 1]} == [=:] ]] || COMP_LINE+=' '
        COMP_LINE+=${COMP_WORDS[i]}
    done
    COMP_POINT=${#COMP_LINE}
    COMPREPLY=()
    _tessarin "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    [ ${#COMPREPLY[@]} = 0 ] || printf '%s\n' "${COMPREPLY[@]}"
}

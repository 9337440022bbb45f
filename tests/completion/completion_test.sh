#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What is offered at each place of a command line, without the bash-completion package and with any settings of the
# shell.
#
#   completion_test.sh <completion file> <folder of the settings' sources>
set -uo pipefail
completions=$(readlink -f "$1")
settings=$(readlink -f "$2")
# shellcheck source=tests/completion/completion_support.sh
. "$(dirname "$0")/completion_support.sh"
# shellcheck source=packaging/bash-completion/tessarin-print
. "$completions"
failures=0

expect() { # what is expected, lines joined by "|"; then the words
    local wanted=$1 got
    shift
    got=$(completed "$@" | paste -sd '|')
    if [ "$got" != "$wanted" ]; then
        echo "FAILED: $*"
        echo "  expected: $wanted"
        echo "  got:      $got"
        failures=$((failures + 1))
    fi
}

if declare -F _init_completion _get_comp_words_by_ref >/dev/null; then
    echo "FAILED: the shell of this test has the helpers that it is to do without"
    exit 1
fi
for command in tessarin-print tessarin-replay tessarin-inkdata; do
    complete -p "$command" | grep -q -- '-F _tessarin' || { echo "FAILED: $command is not completed"; exit 1; }
done

cd "$work/here" || exit 1
touch 'a document.pdf' printer.ppd packed.ppd.gz notes.txt json.txt
mkdir folder

# Printers.
expect 'Photo_1|Photo_2|office|office/draft' tessarin-print -d ''
expect 'Photo_1|Photo_2' tessarin-print -d Ph
expect 'office|office/draft' tessarin-print --printer of
expect 'Photo_1|Photo_2' tessarin-print --printer = Ph
expect 'Photo_1|Photo_2|office|office/draft' tessarin-print --printer =
expect '' tessarin-print -d nothing

# Settings.
expect 'copies=|multiple-document-handling=|page-ranges=|page-set=|orientation-requested=|number-up=|media=|sides=|landscape=|PageSize=|MediaType=' \
    tessarin-print -d Photo_1 -o ''
expect 'page-ranges=|page-set=' tessarin-print -o pag
expect 'DefaultsOwn=' tessarin-print -o Def
expect 'A4|Letter' tessarin-print -d Photo_1 -o PageSize =
expect 'Letter' tessarin-print -d Photo_1 -o PageSize = L
expect 'Plain|Glossy|Canvas' tessarin-print --printer = Photo_1 -o MediaType =
expect '1|2|4|6|9|16' tessarin-print -o number-up =
expect 'all|odd|even' tessarin-print -n 2 -o page-set =
expect 'two-sided-long-edge|two-sided-short-edge' tessarin-print -o sides = two
expect '' tessarin-print -o copies =
expect '' tessarin-print -o Unknown = x
expect '' tessarin-print -o 'page set' = a
# A PPD file or the sample printer has nothing to do with the default queue.
expect '' tessarin-print --sample -o Def
expect '' tessarin-print --ppd printer.ppd -o Def

# Presets, quoted as the word is.
expect 'Glossy\ photos|Glossy\ \"A4\"|Bob\'\''s|Cost:\ \$5\ \`x\`\ \\|Größe=XL' tessarin-print -d Photo_1 --preset ''
expect 'Glossy\ photos|Glossy\ \"A4\"' tessarin-print -d Photo_1 --preset 'Glossy\ '
expect 'Glossy\ photos' tessarin-print -d Photo_1 --preset = 'Glossy\ p'
expect 'Glossy photos|Glossy \"A4\"' tessarin-print -d Photo_1 --preset '"Glo'
expect 'Cost: \$5 \`x\` \\' tessarin-print -d Photo_1 --preset '"Cost: \$'
expect 'Glossy photos|Glossy "A4"' tessarin-print -d Photo_1 --preset "'Glossy "
expect "Bob'\\''s" tessarin-print -d Photo_1 --preset "'Bo"
expect 'Glossy photos' tessarin-print -d Photo_1 --preset = '"Glossy p'
expect '\ \$5\ \`x\`\ \\' tessarin-print -d Photo_1 --preset Cost :
expect 'XL' tessarin-print -d Photo_1 --preset Größe = X
expect '' tessarin-print -d Photo_1 --preset 'Glossy" p'
expect 'Of\ the\ default' tessarin-print --preset ''
expect 'Of\ the\ sample' tessarin-print --sample --preset O
expect 'Of\ a\ queue\ with\ a\ blank' tessarin-print -d '"a b"' --preset ''
expect 'Of\ a\ queue\ with\ a\ blank' tessarin-print -d 'a\ b' --preset ''
expect 'Of\ a\ file' tessarin-print --ppd '~/my\ printer.ppd' --preset ''
expect 'Of\ the\ default' "$work/bin/tessarin-print" --preset ''
expect '' "$work/absent/tessarin-print" --preset ''

# Files and other values.
expect 'folder|packed.ppd.gz|printer.ppd' tessarin-print --ppd '' # in the order of the shell
expect 'packed.ppd.gz|printer.ppd' tessarin-print --ppd = p
expect 'notes.txt' tessarin-print --ppd no
expect 'notes.txt' tessarin-print --ticket no
expect 'folder' tessarin-print --pictures ''
expect 'folder' tessarin-print --bundle = f
expect 'none|stderr|syslog' tessarin-print --log ''
expect 'notes.txt' tessarin-print --log not
expect 'json|text' tessarin-print --summary ''
expect 'json' tessarin-print --summary = j
expect 'notes.txt' tessarin-print --summary no
expect '--sample|--separate-jobs|--summary' tessarin-print --summary --s
expect '' tessarin-print -n ''
expect '' tessarin-print -P ''
mkdir -p "$work/bundle/translations"
touch "$work/bundle/translations/TessarinPDE_de.qm" "$work/bundle/translations/TessarinPDE_pt_BR.qm"
TESSARIN_BUNDLE=$work/bundle expect 'de|en|pt_BR' tessarin-print --language ''
TESSARIN_BUNDLE=$work/bundle expect 'pt_BR' tessarin-replay --language pt

# Documents, and what stands before them.
expect 'a document.pdf' tessarin-print a
expect 'notes.txt' tessarin-print --summary text not
expect '--no-dialog' tessarin-print -d Photo_1 notes.txt --no
expect '' tessarin-print -- --no
touch -- --notes
expect '--notes' tessarin-print -- --no
expect '--notes' tessarin-print -d Photo_1 -- notes.txt --no
rm -- --notes

# The other programs.
expect 'packed.ppd.gz|printer.ppd' tessarin-replay --ppd p
expect '' tessarin-replay --printer-id ''
expect '--quiet-log' tessarin-replay --q
expect 'notes.txt' tessarin-replay --stable no
expect 'read|show|write' tessarin-inkdata ''
expect 'show' tessarin-inkdata --json s
expect '--json' tessarin-inkdata show --j
expect 'notes.txt' tessarin-inkdata show no

# A cursor in the middle of a word and of the line.
COMP_WORDS=(tessarin-print -d Photo_1 notes.txt) COMP_CWORD=2 COMP_LINE='tessarin-print -d  Photo_1 notes.txt' COMP_POINT=21
COMPREPLY=()
_tessarin tessarin-print Photo_1 -d
[ "${COMPREPLY[*]}" = "Photo_1 Photo_2" ] || { echo "FAILED: a cursor inside a word: ${COMPREPLY[*]}"; failures=1; }

# Settings of the shell that break many a completion.
# shellcheck disable=SC2034 # for the completion
IFS=,
expect 'A4|Letter' tessarin-print -d Photo_1 -o PageSize =
unset IFS
set -o noglob
TESSARIN_BUNDLE=$work/bundle expect 'de|en|pt_BR' tessarin-print --language ''
set +o noglob
shopt -s failglob nullglob nocasematch
expect 'Glossy\ photos|Glossy\ \"A4\"' tessarin-print -d Photo_1 --preset Glo
TESSARIN_BUNDLE='' expect 'en' tessarin-print --language ''
shopt -u failglob nullglob nocasematch

# A print server that hangs does not hold the shell back for long.
program lpstat <<<'sleep 60'
SECONDS=0
expect '' tessarin-print -d ''
[ "$SECONDS" -lt 20 ] || { echo "FAILED: waited $SECONDS s for a print server"; failures=1; }
program lpstat <<<'echo "no server" >&2; exit 1'
[ -z "$(completed tessarin-print -d '' 2>&1)" ] || { echo "FAILED: an error is shown amid the line"; failures=1; }

# All attributes of jobs, and their values where they have names, as the program's own sources have them.
attributes=$(grep -ohE 'constexpr char k[A-Za-z]+\[\] = "[a-z-]+"' "$settings/job_settings.h" | grep -oE '"[a-z-]+"' | tr -d '"')
[ "$(wc -l <<<"$attributes")" -ge 8 ] || { echo "FAILED: no attributes in $settings/job_settings.h"; failures=1; }
printer=() queue=''
for attribute in $attributes; do
    tr ' ' '\n' < <(_tessarin_settings) | grep -qxF -- "$attribute" ||
        { echo "FAILED: -o does not know $attribute"; failures=1; }
done

if [ -s "$work/faults" ]; then
    cat "$work/faults"
    failures=1
fi
[ "$failures" = 0 ] && echo "passed"
exit "$((failures > 0))"

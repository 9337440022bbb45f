#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The check of the catalogue finds each fault that is planted into a copy of it.
#
#   catalogue_faults_test.sh <check_catalogue.sh> <folder of the catalogue>
set -euo pipefail
check=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$2" "$work/whole"

# In place of ctest, a list that has all tests of the catalogue, some with a parameter behind them.
{
    echo 'echo "Test project $PWD"'
    sed -nE 's/^\|.*\| `([^`]+)` \|$/\1/p' "$work/whole/catalogue.md" | sort -u | awk '
        { printf "echo \x27  Test #%d: %s%s\x27\n", NR, $0, NR % 3 ? "" : "  # GetParam() = 8-byte object <00-01>" }'
    echo 'echo; echo "Total Tests: some"'
} >"$work/ctest"
run() { # folder
    bash "$check" "$work/ctest_program" "$work" "$1" >"$work/out" 2>&1
}
printf '#!/bin/sh\n. "%s"\n' "$work/ctest" >"$work/ctest_program"
chmod 755 "$work/ctest_program"

run "$work/whole" || { cat "$work/out"; echo "FAILED: the catalogue as it is was refused"; exit 1; }

# Plants a fault by a command that runs in the copy's folder.
expect() { # message, command
    rm -rf "$work/copy"
    cp -r "$work/whole" "$work/copy"
    (cd "$work/copy" && bash -c "$2")
    if run "$work/copy" || ! grep -qF "$1" "$work/out"; then
        echo "FAILED: not found: $1"
        cat "$work/out"
        exit 1
    fi
}

row='| presets | %s | told | `fuzz.preset_file` |\n'
expect 'rows, fewer than 80' "sed -i '86,\$d' catalogue.md"
expect 'has not four cells' "sed -i '12s/ | / /' catalogue.md"
expect 'has not four cells' "printf '| presets | a | b | c | \`fuzz.preset_file\` |\n' >>catalogue.md"
expect 'has an empty cell' "printf '$row' ' ' >>catalogue.md"
expect 'heads another table' "printf '\n| area | input | expected outcome | test |\n' >>catalogue.md"
expect 'heads another table' "sed -i 's/^| area | input/| area | inputs/' catalogue.md"
expect 'an input stands twice: an empty file of presets' "printf '$row' 'An empty file of  presets' | tr -s ' ' >>catalogue.md"
expect 'no row of the area: translations' "sed -i 's/^| translations /| presets /' catalogue.md"
expect 'no such area: colours' "printf '$row' 'a new one' | sed 's/presets/colours/' >>catalogue.md"
expect 'no such test: fuzz.preset_files' "sed -i 's/fuzz.preset_file\`/fuzz.preset_files\`/' catalogue.md"
expect 'no such test: fuzz.preset' "sed -i 's/fuzz.preset_file\`/fuzz.preset\`/' catalogue.md"
expect 'the test is not between backticks' "sed -i 's/\`fuzz.preset_file\`/fuzz.preset_file/' catalogue.md"
expect 'a file that no row names: ppd/new.ppd' 'touch ppd/new.ppd'
expect 'a file that no row names: new' 'touch new'
expect 'a row names a file that is not there: ppd/bom.ppd' 'rm ppd/bom.ppd'
: >"$work/ctest"
expect 'no tests are registered' true
echo 'exit 1' >"$work/ctest"
expect 'cannot be listed' true
echo "passed: every planted fault was found"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Holds the catalogue of bad input to what it says of itself: one table of at least 80 whole rows, no input twice, all
# areas, every test registered in the build, every file of the folder named.
#
#   check_catalogue.sh <ctest> <build folder> <folder of the catalogue>
set -euo pipefail
ctest=$1
build=$2
folder=$3
table=$folder/catalogue.md
areas=('PPD' 'extra data' 'counter file' 'interface file' 'bundle metadata' 'translations' 'presets' 'command line'
    'queue names' 'submission')
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Cases of GoogleTest are listed by their programs, which need no more than this.
mkdir -m 700 "$work/runtime"
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work/runtime LC_ALL=C.UTF-8
status=0
problem() {
    echo "catalogue: $*"
    status=1
}

# The rows as "line, area, input, outcome, test" between tabs; what is wrong with a line as "!" and a sentence.
awk '
    function cell(text) { gsub(/^ +| +$/, "", text); return text }
    /^\|/ {
        if ($0 ~ /\t/) { print "!line " NR " holds a tab"; next }
        cells = split($0, part, "|")
        if (cells != 6 || cell(part[6]) != "") { print "!line " NR " has not four cells"; next }
        for (i = 2; i <= 5; i++) {
            part[i] = cell(part[i])
            if (part[i] == "") { print "!line " NR " has an empty cell" }
        }
        if (part[2] == "area") {
            if (part[3] part[4] part[5] != "inputexpected outcometest" || tables++) { print "!line " NR " heads another table" }
        } else if (part[2] !~ /^-+$/) {
            if (!tables) { print "!line " NR " stands before the head of the table" }
            print NR "\t" part[2] "\t" part[3] "\t" part[4] "\t" part[5]
        }
    }' "$table" >"$work/rows"
while IFS= read -r line; do
    problem "${line#!}"
done < <(grep '^!' "$work/rows" || true)
sed -i '/^!/d' "$work/rows"
cut -f 2 "$work/rows" >"$work/areas"
cut -f 3 "$work/rows" >"$work/inputs"

count=$(wc -l <"$work/rows")
[ "$count" -ge 80 ] || problem "$count rows, fewer than 80"
while IFS= read -r input; do
    problem "an input stands twice: $input"
done < <(tr '[:upper:]' '[:lower:]' <"$work/inputs" | sort | uniq -d)

for area in "${areas[@]}"; do
    grep -qxF "$area" "$work/areas" || problem "no row of the area: $area"
done
while IFS= read -r area; do
    problem "no such area: $area"
done < <(sort -u "$work/areas" | { grep -vxF -f <(printf '%s\n' "${areas[@]}") || true; })

# The list names each parameter behind the test, with addresses that differ from one build to the next.
(cd "$build" && "$ctest" -N) >"$work/list" || problem "the tests in $build cannot be listed"
sed -nE 's/^ *Test +#[0-9]+: //; t name; d; : name; s/ +# (Get|Type)Param\(\) = .*//; p' "$work/list" |
    sort -u >"$work/tests"
[ -s "$work/tests" ] || problem "no tests are registered in $build"
while IFS= read -r line; do
    problem "$line"
done < <(awk -F'\t' '
    FNR == NR { registered[$0]; next }
    $5 !~ /^`[^`]+`$/ { print "line " $1 ": the test is not between backticks: " $5; next }
    { name = substr($5, 2, length($5) - 2) }
    !(name in registered) { print "line " $1 ": no such test: " name }
' "$work/tests" "$work/rows")

files=0
while IFS= read -r file; do
    files=$((files + 1))
    grep -qF -- "\`$file\`" "$work/inputs" || problem "a file that no row names: $file"
done < <(cd "$folder" && find . -type f ! -path ./catalogue.md -printf '%P\n' | sort)
# What a row names in one of the folders is there.
while IFS= read -r file; do
    [ -f "$folder/$file" ] || problem "a row names a file that is not there: $file"
done < <(grep -oE '`[a-z-]+/[^`]+`' "$work/inputs" | tr -d '`' |
    while IFS= read -r file; do [ ! -d "$folder/${file%%/*}" ] || echo "$file"; done)

[ $status = 0 ] && echo "catalogue: $count rows, $files files checked"
exit $status

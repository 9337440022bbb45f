#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Every text of the dialog has a finished translation in every language, with the same places for values in it, and no
# translation is left over.
#
#   dialog_texts_test.sh <lupdate> <lconvert> <source tree>
set -euo pipefail
lupdate=$1
lconvert=$2
cd "$3"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0
problem() {
    echo "$*"
    status=1
}
languages=0
for file in host/translations/tessarin-print_*.ts; do
    languages=$((languages + 1))
    cp "$file" "$work/updated.ts"
    "$lupdate" -silent -no-obsolete -locations none host settings printing preview hosting \
        $([[ $file == *_en.ts ]] && echo -pluralonly) -ts "$work/updated.ts" 2>"$work/errors"
    # Line by line, the same tool having written both.
    "$lconvert" -i "$file" -o "$work/as-it-is.ts"
    "$lconvert" -i "$work/updated.ts" -o "$work/as-it-should-be.ts"
    diff "$work/as-it-is.ts" "$work/as-it-should-be.ts" >"$work/difference" ||
        problem "$file has other texts than the program:"$'\n'"$(head -n 20 "$work/difference")"
    if grep -nE 'type="(unfinished|vanished|obsolete)"' "$file"; then
        problem "$file: not finished"
    fi
    # The places for values and the shortcut's mark, of each message in one line.
    awk -v file="$file" '
        function places(text,   found) {
            gsub(/&amp;&amp;/, "", text)
            found = ""
            for (i = 1; i <= 9; i++) if (index(text, "%" i)) found = found "%" i
            return found (text ~ /&amp;[^ ]/ ? " shortcut" : "")
        }
        /<message/ { source = ""; translation = ""; plural = /numerus/ }
        /<source>/ { source = $0; while (source !~ /<\/source>/ && (getline line) > 0) source = source line }
        /<translation>/ && !plural {
            translation = $0
            while (translation !~ /<\/translation>/ && (getline line) > 0) translation = translation line
            if (places(source) != places(translation)) { print file ": " source " -> " translation; wrong = 1 }
        }
        /<numerusform><\/numerusform>/ { print file ": an empty form of " source; wrong = 1 }
        END { exit wrong }' "$file" >"$work/places" || problem "$(cat "$work/places")"
done
[ "$languages" -ge 10 ] || problem "only $languages languages"
[ $status = 0 ] && echo "$languages languages"
exit $status

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The commands of docs/translating.md, run as they stand there in a copy of what they touch: the tools are found, a new
# language begins with every text and none of them finished, and present ones are as they should be.
#
#   translating_test.sh <source tree>
set -euo pipefail
tree=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "FAILED: $*"
    exit 1
}
. "$(dirname "$0")/blocks.sh"
document=$tree/docs/translating.md
cp -r "$tree"/{host,settings,printing,preview,hosting,resources,packaging} "$work/"
cd "$work"

run() { # commands, with the tools where the document says that they are
    PATH=/usr/sbin:/usr/bin:/sbin:/bin bash -euc "$(indented "$document" 1)"$'\n'"$1" >out 2>&1 || fail "$1: $(cat out)"
}

messages() { # file
    grep -c '<message' "$1"
}

# Correcting: the editor is there, and so is the file.
editor=$(indented "$document" 2 | head -n 1)
run "command -v ${editor%% *}"
[ -s "${editor#* }" ] || fail "$editor"

# The tests that are named are there.
while read -r words; do
    grep -rqE --include=*.cpp --include=CMakeLists.txt "(TEST[A-Z_]*\(|NAME ).*$words" "$tree/tests" || fail "no tests $words"
done < <(grep -oE '\./tessarin test -R [^`]*' "$document" | sed 's/.* -R //' | tr -d '"' | tr '|' '\n')

# Adding a language.
run "$(indented "$document" 4)"
for name in resources/translations/TessarinPDE host/translations/tessarin-print; do
    new=${name}_sv.ts
    grep -q '<TS version="2.1" language="sv" sourcelanguage="en">' "$new" || fail "$new is of another language"
    [ "$(messages "$new")" = "$(messages "${name}_de.ts")" ] || fail "$new has $(messages "$new") texts"
    [ "$(grep -c 'type="unfinished"' "$new")" = "$(messages "$new")" ] || fail "$new has finished texts"
done
new=packaging/man/po/sv.po
diff <(grep '^msgid' "$new") <(grep '^msgid' packaging/man/po/de.po) || fail "$new has other texts"
[ "$(grep -v '^msgstr ""$' "$new" | grep '^msgstr')" = 'msgstr "Content-Type: text/plain; charset=UTF-8\nLanguage: sv\n"' ] ||
    fail "$new has translations: $(grep '^msgstr "..*"' "$new")"
while read -r file; do
    [ -e "$tree/$file" ] || fail "no $file"
done < <(sed -n '/^## Adding/,/^## After/p' "$document" | grep -oE '`[a-zA-Z]+[./][^`<]*`' | tr -d '`')

# After a change: nothing has changed.
rm host/translations/tessarin-print_sv.ts
run "$(indented "$document" 5)"
for file in host/translations/*.ts; do
    # One and the same tool writes both: a character may be written in several ways.
    run "lconvert -i $file -o updated.ts; lconvert -i $tree/$file -o present.ts"
    diff present.ts updated.ts || fail "$file is not as the commands leave it"
done
echo "passed"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The man pages as they are installed: in English and nine other languages, each with a name line of its own language
# that "whatis" finds, without a warning of the formatter; no translation is of a text that the pages no longer have.
#
#   man_pages_test.sh <cmake> <install script of packaging/> <packaging/man>
set -euo pipefail
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
status=0
problem() {
    echo "FAILED: $*"
    status=1
}
"$1" -DCMAKE_INSTALL_PREFIX="$prefix" -P "$2" >/dev/null
sources=$3
man=$prefix/share/man
pages=(man1/tessarin-inkdata.1 man1/tessarin-print.1 man1/tessarin-replay.1 man7/tessarin-settings.7)

name_line() { # page
    lexgrog "$1" | sed -nE 's/^[^"]*: "(.*)"$/\1/p'
}

check_page() { # file, the program's name
    local name warnings
    name=$(name_line "$1") || true
    [[ $name == "$2 - "* ]] || problem "$1: no line that names it: $(lexgrog "$1" 2>&1)"
    warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" 2>&1 >/dev/null) || true
    [ -z "$warnings" ] || problem "$1: $warnings"
}

for page in "${pages[@]}"; do
    program=${page##*/}
    program=${program%.*}
    check_page "$man/$page" "$program"
    for language in de es fr it ja nl pl pt_BR zh_CN; do
        translated=$man/$language/$page
        [ -s "$translated" ] || {
            problem "$translated: not installed"
            continue
        }
        check_page "$translated" "$program"
        [ "$(name_line "$translated")" != "$(name_line "$man/$page")" ] || problem "$translated: named in English"
        # Both are the same page but for what is translated.
        [ "$(grep -c '^\.TP' "$translated")" = "$(grep -c '^\.TP' "$man/$page")" ] || problem "$translated: not whole"
    done
done

# Every text of the translations is one of the pages.
: >"$prefix/empty.po"
for page in "${pages[@]}"; do
    awk -v list=1 -f "$sources/translate.awk" "$prefix/empty.po" "$sources/${page##*/}"
done | sort -u >"$prefix/texts"
for po in "$sources"/po/*.po; do
    [ "$(grep -c '^msgstr ""$' "$po")" = 0 ] || problem "$po: a text without translation"
    sed -nE 's/^msgid "(.+)"$/\1/p' "$po" | sed 's/\\"/"/g' | sort -u | comm -23 - "$prefix/texts" >"$prefix/left"
    [ ! -s "$prefix/left" ] || problem "$po: on no page: $(cat "$prefix/left")"
    msgids=$(grep -c '^msgid "..*"' "$po")
    [ "$msgids" -ge 18 ] || problem "$po: $msgids texts"
done
[ $status = 0 ] && echo "passed"
exit $status

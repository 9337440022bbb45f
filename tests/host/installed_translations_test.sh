#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The dialog's installed translations have their sums, and one that was changed since is not used: the dialog speaks
# English then, and ends by itself.
#
#   installed_translations_test.sh <tessarin-print> <installed translations> <folder of the data below the prefix>
set -euo pipefail
program=$1 translations=$2 data=$3
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
fail() {
    echo "FAILED: $*"
    exit 1
}

count=$(find "$translations" -name 'tessarin-print_*.qm' | wc -l)
[ "$count" -ge 10 ] || fail "only $count translations"
(cd "$translations" && sha256sum --quiet -c tessarin-print_*.qm.sha256) || fail "sums do not match"
[ "$(find "$translations" -name 'tessarin-print_*.sha256' | wc -l)" = "$count" ] || fail "a translation has no sum"

mkdir -p "$prefix/bin" "$prefix/$data"
cp "$program" "$prefix/bin/tessarin-print"
cp -r "$translations" "$prefix/$data/translations"
file=$prefix/$data/translations/tessarin-print_de.qm
help_in() { # language
    timeout 60 "$prefix/bin/tessarin-print" --language "$1" --help 2>&1 || fail "--language $1 --help ends with status $?"
}
english=$(help_in en)
german=$(help_in de)
[ "$german" != "$english" ] || fail "no German"
# Flipped here and there: in the header, the tables and the texts.
size=$(stat -c %s "$file")
for ((at = 20; at < size; at += size / 25)); do
    cp "$translations/tessarin-print_de.qm" "$file"
    byte=$(od -An -tu1 -j $at -N 1 "$file")
    # shellcheck disable=SC2059 # the byte is written as an escape
    printf "\\x$(printf %02x $((255 - byte)))" | dd of="$file" bs=1 seek=$at conv=notrunc status=none
    [ "$(help_in de)" = "$english" ] || fail "a translation with byte $at changed was used"
done
# The sum is the only witness: without it the file counts as somebody's own.
cp "$translations/tessarin-print_de.qm" "$file"
rm "$file.sha256"
[ "$(help_in de)" = "$german" ] || fail "a translation without a sum is not used"
echo "passed"

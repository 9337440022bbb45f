#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The user's defaults for a queue: written through libcups, and nothing else in the user's file changed by it.
. "$(dirname "$0")/probe_support.sh"

start_scheduler
make_queues "$sample"
lpadmin -d generic
file=$HOME/.cups/lpoptions

saved() { # queue, option: as every program sees it
    lpoptions -p "$1" | tr ' ' '\n' | sed -n "s/^$2=//p"
}

# The first defaults ever: the server's default queue does not become the user's, and copies are not kept.
same 'the file written' "$file" "$("$probe" defaults -o vornMediaType=Photo6 -o copies=3 -o vornEmpty= photo)"
same 'the first file' 'Dest photo vornMediaType=Photo6' "$(cat "$file")"
[ -e "$file.backup" ] && fail "there is a copy of a file that was not there"

# Other queues, instances, the default, a queue that the server does not have now, and a remark.
cat >"$file" <<END
# by hand
Dest photo vornResolution=600dpi vornMediaType=Matte
Dest gone vornMediaType=Silk "odd
Default elsewhere/draft x="a b"
Dest photo/draft vornResolution=1200dpi
Dest generic PageSize=A5 job-billing="garden shed"
END
echo 'Dest generic InputSlot=Upper' >"$CUPS_SERVERROOT/lpoptions"
echo 'Dest generic/of-all PageSize=A6' >>"$CUPS_SERVERROOT/lpoptions"
cp "$file" "$work/before"
cp "$CUPS_SERVERROOT/lpoptions" "$work/before.all"
"$probe" defaults -o vornMediaType=Photo6 -o vornText="it's \"so\" {a b} \\" -o PageSize=A4 photo >/dev/null ||
    fail "defaults with blanks, quotes and braces were not kept"
same 'blanks, quotes and braces' "it's \"so\" {a b} \\" \
    "$(lpoptions -p photo | sed -n "s/.*vornText='\(.*\)'.*/\1/p" | sed "s/\\\\\(.\)/\1/g")"
same 'an option of before' 600dpi "$(saved photo vornResolution)"
same 'a changed option' Photo6 "$(saved photo vornMediaType)"
same 'the instance' 1200dpi "$(saved photo/draft vornResolution)"
same 'another queue' A5 "$(saved generic PageSize)"
for line in '# by hand' 'Dest gone vornMediaType=Silk "odd' 'Default elsewhere/draft x="a b"'; do
    contains 'a line that is none of ours' "$line" "$(cat "$file")"
done
grep -q 'of-all\|Upper' "$file" && fail "the administrator's options became the user's: $(cat "$file")"
cmp -s "$CUPS_SERVERROOT/lpoptions" "$work/before.all" || fail "the administrator's options changed"
cmp -s "$file.backup" "$work/before" || fail "the copy is not the file that was there"

# An instance of its own.
"$probe" defaults -o vornMediaType=Silk photo/draft >/dev/null
same 'the instance' Silk "$(saved photo/draft vornMediaType)"
same 'the queue of the instance' Photo6 "$(saved photo vornMediaType)"

# What the file cannot hold is refused, and nothing is written.
cp "$file" "$work/before"
for value in 'a#b' '{a' $'a\nb' $'a\tb'; do
    answer=$("$probe" defaults -o vornFine=1 -o vornText="$value" photo) && fail "$value was kept"
    same 'a value that cannot be kept' \
        'failed: queue photo: the values of these options cannot be kept as defaults: vornText' "$answer"
    cmp -s "$file" "$work/before" || fail "the file changed for $value"
done

# A line that libcups writes but cannot read back: the file is as it was.
long=$(head -c 9000 /dev/zero | tr '\0' 'x')
answer=$("$probe" defaults -o vornText="$long" photo) && fail "a line that is too long was kept"
case $answer in
"failed: file $file: these options of photo could not be kept: "*) ;;
*) fail "the message about a line that is too long: $answer" ;;
esac
cmp -s "$file" "$work/before" || fail "the file was not put back"

# No queue, and no server.
answer=$("$probe" defaults -o a=b nothing) && fail "defaults for a queue that is not there"
same 'unknown queue' 'failed: queue nothing: the print server has no queue of this name' "$answer"
halt_scheduler
answer=$("$probe" defaults -o a=b photo) && fail "defaults without a server"
same 'server gone' "failed: print server $CUPS_SERVER: it cannot be reached: nothing answers there" "$answer"
cmp -s "$file" "$work/before" || fail "the file changed without a server"
echo "passed: the user's defaults"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The list of queues, and opening them: whole, with odd names, on a server without queues, and on one that is gone.
. "$(dirname "$0")/probe_support.sh"

start_scheduler
same 'a server without queues' '' "$("$probe" list)"

make_queues "$sample"
lpadmin -d generic
mkdir -p "$HOME/.cups"
echo 'Dest photo/draft vornResolution=600dpi' >"$HOME/.cups/lpoptions"
found=$("$probe" list)
model='Tessarin Sample 12, 1.0'
contains photo "photo|Photo printer|$model||Photo printer  ·  Studio 2  ·  idle" "$found"
contains instance "photo/draft|Photo printer|$model||Photo printer  ·  Studio 2  ·  idle" "$found"
contains generic 'generic|generic|Generic PostScript Printer|default|idle' "$found"
contains paused "paused|paused|$model||stopped (paused)" "$found"
contains rejecting 'rejecting|rejecting|Generic PostScript Printer||idle  ·  takes no jobs' "$found"
contains 'odd name' "odd_name&co|odd_name&co|$model||idle" "$found"
contains 'name beyond ASCII' "Büro-1|Büro-1|$model||idle" "$found"
same 'number of destinations' 12 "$(wc -l <<<"$found")"

for queue in photo photo/draft 'odd_name&co' Büro-1; do
    same "opening $queue" "${queue%/*}: Tessarin Sample 12, 1.0" "$("$probe" open "$queue")"
done
answer=$("$probe" open nothing) && fail "a queue that is not there was opened"
same 'unknown queue' "failed: queue nothing: the print server $CUPS_SERVER has no queue of this name" "$answer"

# Many queues.
for ((i = 0; i < 200; i++)); do
    echo "lpadmin -p many$i -E -v file:/dev/null 2>/dev/null"
done | sh
before=$SECONDS
same 'number of many destinations' 212 "$("$probe" list | wc -l)"
[ $((SECONDS - before)) -le 60 ] || fail "listing 212 destinations took $((SECONDS - before)) seconds"

# A server that hangs is given up, one that is gone at once.
kill -STOP "$scheduler_pid"
before=$SECONDS
answer=$("$probe" list) && fail "a hanging server was listed"
kill -CONT "$scheduler_pid"
same 'hanging server' "failed: print server $CUPS_SERVER: it cannot be reached: it does not answer" "$answer"
[ $((SECONDS - before)) -le 30 ] || fail "the hanging server was given up after $((SECONDS - before)) seconds"
halt_scheduler
answer=$("$probe" list) && fail "a server that is gone was listed"
same 'server gone' "failed: print server $CUPS_SERVER: it cannot be reached: nothing answers there" "$answer"
resume_scheduler
same 'the server is back' 212 "$("$probe" list | wc -l)"
echo "passed: the list of queues"

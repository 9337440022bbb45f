#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Jobs to their ends: done, cancelled, given up, stopped, and on a server that goes away meanwhile.
. "$(dirname "$0")/probe_support.sh"

start_scheduler
make_queues "$sample"
echo 'A document.' >"$work/document.txt"

submit() { # queue: the job's number
    "$probe" send "$1" "$work/document.txt" | sed -n 's/^jobs: //p'
}

job=$(submit photo)
same 'a job that is done' 'done: ' "$("$probe" follow photo "$job" | tail -n 1)"

# Printing, then cancelled.
job=$(submit slow)
"$probe" follow --cancel-when "$work/cancel1" slow "$job" >"$work/slow" &
follower=$!
wait_for_line "$work/slow" '^printing: '
touch "$work/cancel1"
wait_for_line "$work/slow" '^cancelled: '
wait "$follower"
lpstat -W completed -o slow | grep -q -- "^slow-$job " || fail "the server does not have the job as ended"

# Given up by the server.
job=$(submit broken)
same 'a job that is given up' 'aborted: the cable is cut' "$("$probe" follow broken "$job" | tail -n 1)"

# Stopped by a filter that fails.
job=$(submit failing)
"$probe" follow --cancel-when "$work/cancel2" failing "$job" >"$work/failing" &
follower=$!
wait_for_line "$work/failing" '^stopped: .*the head is dry'
touch "$work/cancel2"
wait_for_line "$work/failing" '^cancelled: '
wait "$follower"

# Waiting for a stopped printer, while the server goes away and comes back; a cancelling in between is not lost.
job=$(submit paused)
"$probe" follow --cancel-when "$work/cancel3" paused "$job" >"$work/paused" &
follower=$!
wait_for_line "$work/paused" '^stopped: the ink is being changed'
halt_scheduler
wait_for_line "$work/paused" 'cannot be reached'
same 'state while the server is away' stopped "$(tail -n 1 "$work/paused" | cut -d : -f 1)"
resume_scheduler
for ((i = 0; i < 300; i++)); do
    tail -n 1 "$work/paused" | grep -q '^stopped: the ink' && break
    sleep 0.1
done
tail -n 1 "$work/paused" | grep -q '^stopped: the ink' || fail "following did not recover: $(cat "$work/paused")"
halt_scheduler
touch "$work/cancel3"
sleep 2
resume_scheduler
wait_for_line "$work/paused" '^cancelled: '
wait "$follower"

# A server that keeps no record of jobs, and a queue that is deleted.
job=$(submit paused)
"$probe" follow paused "$job" >"$work/deleted" &
follower=$!
wait_for_line "$work/deleted" '^stopped: '
lpadmin -x paused
wait "$follower"
grep -q '^\(aborted: the print server no longer has the queue paused\|cancelled: .*\)$' "$work/deleted" ||
    fail "the end of a deleted queue's job: $(cat "$work/deleted")"
same 'an unknown job' 'done: the print server keeps no record of it' "$("$probe" follow photo 999)"
echo "passed: jobs followed to their ends"

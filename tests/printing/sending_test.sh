#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What arrives at the filter: one job for all documents or one each, titles, options over saved ones, and retries.
. "$(dirname "$0")/probe_support.sh"

start_scheduler
make_queues "$sample"
received=$scheduler/received
printf 'first\n' >"$work/a.txt"
printf 'second document\n' >"$work/b.txt"
printf 'third\n' >"$work/c.txt"

options() { # job: its options, one a line; quoted as the server quotes them
    tr ' ' '\n' <"$received/options.$1"
}

# Two documents as one job, with a title, and with progress to the last byte (6 and 16 of them).
answer=$("$probe" send --title 'Two letters' photo "$work/a.txt" "$work/b.txt")
same 'one job' 'progress: 22 of 22
jobs: 1
unsent: ' "$answer"
wait_for_job 1
same 'title' 'Two letters' "$(cat "$received/title.1")"
cmp -s "$work/b.txt" "$received/document.1" || fail "the last document arrived changed"

# One each.
answer=$("$probe" send --separate --title Letters 'odd_name&co' "$work/a.txt" "$work/b.txt")
same 'separate jobs' 'progress: 22 of 22
jobs: 2 3
unsent: ' "$answer"
wait_for_job 2
wait_for_job 3
cmp -s "$work/a.txt" "$received/document.2" || fail "the first document arrived changed"
cmp -s "$work/b.txt" "$received/document.3" || fail "the second document arrived changed"
same 'title of a separate job' 'Letters – b.txt' "$(cat "$received/title.3")"

# A failure part way: the rest is sent by the next attempt, and nothing twice.
answer=$("$probe" send --separate --retry-after "printf 'late\n' >'$work/late.txt'" Büro-1 \
    "$work/a.txt" "$work/late.txt" "$work/c.txt")
contains 'a failure part way' "failed: document $work/late.txt: No such file or directory" "$answer"
contains 'what was printed' 'Printed already: a.txt' "$answer"
contains 'what was not' 'Not printed: late.txt, c.txt' "$answer"
contains 'what is left' 'unsent: late.txt c.txt' "$answer"
same 'jobs in the end' 'jobs: 4 6 7
unsent: ' "$(tail -n 2 <<<"$answer")"
for job in 4 6 7; do
    wait_for_job "$job"
done
same 'documents that were printed' 'first late third' \
    "$(cat "$received/document.4" "$received/document.6" "$received/document.7" | tr '\n' ' ' | sed 's/ $//')"
[ -e "$received/document.5" ] && fail "the job of the missing document was printed"

# The ticket over the saved options; saved attributes that would overrule it are left out, others stay.
mkdir -p "$HOME/.cups"
echo 'Dest photo vornMediaType=Matte media=A3 sides=two-sided-long-edge print-color-mode=monochrome ColorModel=Gray print-quality=3 number-up=4 page-ranges=2-3 landscape=true copies=7 job-billing=garden vornNote=kept' \
    >"$HOME/.cups/lpoptions"
answer=$("$probe" send -o vornMediaType=Photo6 -o vornText='a "quoted" {text} it'"'"'s' -o sides=one-sided photo "$work/a.txt")
job=$(sed -n 's/^jobs: //p' <<<"$answer")
wait_for_job "$job"
given=$(options "$job")
for option in vornMediaType=Photo6 sides=one-sided vornNote=kept job-billing=garden; do
    contains 'option at the filter' "$option" "$given"
done
for name in media print-color-mode ColorModel print-quality number-up page-ranges landscape; do
    grep -q "^$name=\(A3\|monochrome\|Gray\|3\|4\|2-3\|true\)$" <<<"$given" && fail "the saved $name came along: $given"
done
grep -q landscape <<<"$given" && fail "the saved landscape came along: $given"
same 'copies' 1 "$(cat "$received/copies.$job")"
grep -qF -- ' vornText=a\ \"quoted\"\ {text}\ it\'"'"'s' "$received/options.$job" ||
    fail "a value with blanks, quotes and braces arrived changed: $(cat "$received/options.$job")"

# Queues that take no jobs say so; a paused one takes them.
answer=$("$probe" send rejecting "$work/a.txt") && fail "a rejecting queue took a job"
contains 'rejecting queue' 'failed: queue rejecting: it is not accepting jobs' "$answer"
answer=$("$probe" send paused "$work/a.txt") || fail "a paused queue took no job: $answer"

# Ten megabytes in few steps.
head -c 10000000 /dev/zero | tr '\0' 'x' >"$work/large.txt"
contains 'progress of a large document' 'progress: 10000000 of 10000000' "$("$probe" send photo "$work/large.txt")"
echo "passed: jobs as they arrive"

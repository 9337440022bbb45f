#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Titles, values and names of queues that no one gives in earnest, and places where nothing can be written: each
# arrives as it is, or is refused with a reason; none reaches another queue or another file.
. "$(dirname "$0")/probe_support.sh"

start_scheduler
make_queues "$sample"
received=$scheduler/received
printf 'a document\n' >"$work/a.txt"

# Sends to "photo" and waits; $job is the number, $given all options as the filter had them.
sent() { # options of the probe...
    local answer
    answer=$("$probe" send "$@" photo "$work/a.txt") || fail "it was not sent: $answer"
    job=$(sed -n 's/^jobs: //p' <<<"$answer")
    wait_for_job "$job"
    given=$(cat "$received/options.$job")
    cmp -s "$work/a.txt" "$received/document.$job" || fail "job $job: the document arrived changed"
}

has() { # what, text: the options hold it as it stands
    [[ $given == *"$2"* ]] || fail "$1: no $2 in: $given"
}

jobs_until_now() {
    lpstat -W all -o 2>/dev/null | wc -l
}

# Titles: marks of other languages are text; the server would leave out a title with control characters.
for title in 'it'"'"'s "a" {b} $(id) `id` \c' 'PPD: {PPD:} *PPD-Adobe: "4.3"' '%s%n%d' '../../etc/passwd' '<b>&amp;' "$(printf 'é%.0s' {1..120})"; do
    sent --title "$title"
    same 'a title of marks' "$title" "$(cat "$received/title.$job")"
done
for title in $'two\nlines' $'a bell\arings' $'now\e[31mred'; do
    sent --title "$title"
    same 'a title with a control character' "${title//[[:cntrl:]]/ }" "$(cat "$received/title.$job")"
done
sent --title "$(printf 'x%.0s' {1..2000})"

# Values of options; the server writes a backslash before blanks, quotes and itself.
sent -o 'vornNote=PPD: {a} "b" '"'c'"' \d' -o 'vornCode=$(id);`id`|id&' -o 'vornEqual=a=b=c' -o vornForm=%s%n
has 'quotes and braces' 'vornNote=PPD:\ {a}\ \"b\"\ \'"'"'c\'"'"'\ \\d'
has 'marks of a shell' 'vornCode=$(id);`id`|id&'
has 'signs of equality' 'vornEqual=a=b=c'
has 'a format' 'vornForm=%s%n'
sent -o $'vornLines=one\ntwo'
has 'a line end' $'vornLines=one\\\ntwo'
long=$(printf 'y%.0s' {1..900})
sent -o "vornLong=$long"
has 'a long value' "vornLong=$long"

# Names of queues that are none, and lead to none.
before=$(jobs_until_now)
for queue in ../photo ../../photo ./photo ' photo' 'photo ' ' ' 'photo?x=1' 'photo#1' 'pho%74o' $'photo\n' 'photo;id' \
    "$(printf 'q%.0s' {1..200})" "$(printf 'ü%.0s' {1..100})" '*' 'ipp://localhost/printers/photo' '{photo}' '"photo"' \
    / /photo photo/nosuch photo/../../etc; do
    for task in open send; do
        answer=$(timeout 120 "$probe" "$task" "$queue" "$work/a.txt") && fail "$task: there is no queue $queue: $answer"
        [[ $answer == *'failed: queue '* ]] || fail "$task $queue: no reason was given: $answer"
    done
done
same 'jobs of queues that are none' "$before" "$(jobs_until_now)"

# No room for the printer's description.
answer=$(TMPDIR=$work/a.txt "$probe" open photo) && fail "a printer was opened without a folder for its PPD"
[[ $answer == 'failed: folder for the PPD of queue photo: '* ]] || fail "no folder for the PPD: $answer"

# The server has no room for the job: the failure is told, nothing is printed, and it prints when there is room again.
mv "$scheduler/Spool" "$scheduler/Spool.away"
answer=$("$probe" send photo "$work/a.txt") && fail "a server without a spool folder took a job: $answer"
contains 'what was not sent' 'unsent: a.txt' "$answer"
grep -q '^failed: queue photo: it does not take the ' <<<"$answer" || fail "a server without a spool folder: $answer"
rm -rf "$scheduler/Spool"
mv "$scheduler/Spool.away" "$scheduler/Spool"
sent --title 'room again'
echo "passed: odd titles, values and names"

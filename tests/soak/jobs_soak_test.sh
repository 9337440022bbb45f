#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Many jobs from several senders at a time, each with a title, a document, copies and options of its own: all arrive at
# the filter exactly as they were sent, none is lost, none comes twice.
#
#   jobs_soak_test.sh <tessarin-print> <sample PPD>        TESSARIN_SOAK_JOBS: how many
set -euo pipefail

program=$1
sample=$2
jobs=${TESSARIN_SOAK_JOBS:-200}
senders=4
queues=(photo 'odd_name&co' Büro-1)
cups=$(cd "$(dirname "$0")/../cups" && pwd)
. "$cups/private_scheduler.sh"
. "$cups/queues.sh"
work=$(mktemp -d)
trap 'jobs -p | xargs -r kill 2>/dev/null; stop_scheduler; rm -rf "$work"' EXIT
mkdir -p "$work/home" "$work/etc" "$work/sent"
mkdir -m 700 "$work/run"
export HOME=$work/home XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/run CUPS_SERVERROOT=$work/etc
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen
unset LPDEST PRINTER

fail() {
    echo "FAILED: $*"
    exit 1
}

# Any number of jobs at a time, and a log that stays small; the filter notes each time it runs.
prepare_scheduler() {
    start_scheduler
    make_queues "$sample"
    # shellcheck disable=SC2154 # set by start_scheduler
    received=$scheduler/received
    sed -i "s|^received=.*|&\necho \"\$1\" >>\"\$received/arrivals\"|" "$scheduler/ServerBin/filter/noting"
    halt_scheduler
    sed -i 's/^LogLevel .*/LogLevel warn\nMaxJobs 0/' "$scheduler/ServerRoot/cupsd.conf"
    resume_scheduler
}

# The sliders of the panel, each a line of its name and its choices.
slider_choices() {
    awk '/^\*OpenUI \*vorn/ { name = substr($2, 2); sub(/\/.*/, "", name); line = name; numbers = 1 }
        line != "" && $1 == "*" name { choice = $2; sub(/[\/:].*/, "", choice); line = line " " choice
                                       if (choice !~ /^-?[0-9]+$/) numbers = 0 }
        /^\*CloseUI/ && line != "" { if (numbers && split(line, all) > 5) print line; line = "" }' "$sample"
}

# options_of NUMBER: one option a line. Every slider runs through its choices at a pace of its own.
options_of() {
    local number=$1 place=0 line
    local -a words
    while read -r line; do
        read -ra words <<<"$line"
        echo "${words[0]}=${words[1 + (number * (2 * place + 1) + place) % (${#words[@]} - 1)]}"
        place=$((place + 1))
    done <"$work/sliders"
    echo "vornNoPrint=$((number / 2 % 2))"
    printf '%s\n' "vornText=it's job \"$number\" of {$jobs}, a\\b"
}

send_job() { # number, queue
    local option
    local -a options=()
    printf 'document %s\n' "$1" >"$work/Letter $1.txt"
    options_of "$1" >"$work/sent/$1"
    while IFS= read -r option; do
        options+=(-o "$option")
    done <"$work/sent/$1"
    "$program" --no-dialog --log none -d "$2" -n $((1 + $1 % 5)) "${options[@]}" "$work/Letter $1.txt" >"$work/answer.$1"
}

send_every() { # the first number: this one and every $senders-th after it
    local number
    for ((number = $1; number <= jobs; number += senders)); do
        send_job "$number" "${queues[number % ${#queues[@]}]}"
    done
}

wait_until_idle() {
    while [ -n "$(lpstat -W not-completed -o)" ]; do
        sleep 0.1
    done
}

# received_options JOB: one option a line, in order, without what the server says of its own.
received_options() {
    sed -E 's/([^\\]) /\1\n/g' "$received/options.$1" | sed -E 's/\\(.)/\1/g' |
        grep -vE '^(job-uuid|job-originating-host-name|(date-)?time-at-[a-z]+|document-name-supplied)=|^$' | sort
}

# What every job of no options has, with a job's own options in place of it.
expected_options() { # number
    { cat "$work/sent/$1"; awk -F= 'NR == FNR { own[$1] = 1; next } !($1 in own)' "$work/sent/$1" "$work/plain"; } | sort
}

check_job() { # number, job
    local number=$1 job=$2
    [ "$(cat "$received/document.$job")" = "document $number" ] || fail "job $job has another document than letter $number"
    [ "$(cat "$received/title.$job")" = "Letter $number.txt" ] || fail "job $job: title $(cat "$received/title.$job")"
    [ "$(cat "$received/copies.$job")" = $((1 + number % 5)) ] || fail "job $job: copies $(cat "$received/copies.$job")"
    diff <(expected_options "$number") <(received_options "$job") || fail "job $job has other options than letter $number"
}

prepare_scheduler
slider_choices >"$work/sliders"
[ "$(wc -l <"$work/sliders")" -ge 20 ] || fail "the sample printer has too few sliders: $(cat "$work/sliders")"
printf 'plain\n' >"$work/plain.txt"
"$program" --no-dialog --log none -d photo "$work/plain.txt" >"$work/answer.plain"
wait_until_idle
received_options 1 >"$work/plain"
rm "$received/arrivals"

start=$SECONDS
pids=()
for ((sender = 1; sender <= senders; sender++)); do
    send_every "$sender" &
    pids+=($!)
done
for pid in "${pids[@]}"; do
    wait "$pid" || fail "a sender failed; the errors are above"
done
wait_until_idle
echo "$jobs jobs sent and printed in $((SECONDS - start)) s"

twice=$(sort "$received/arrivals" | uniq -d)
[ -z "$twice" ] || fail "these jobs came to the filter twice: $twice"
arrived=$(wc -l <"$received/arrivals")
[ "$arrived" = "$jobs" ] || fail "$arrived jobs arrived of $jobs"
for ((number = 1; number <= jobs; number++)); do
    job=$(sed -n 's/^job .*-//p' "$work/answer.$number")
    [ -e "$received/title.$job" ] || fail "letter $number is lost; its job: '$job'"
    check_job "$number" "$job"
done
echo "passed: $jobs jobs as they were sent"

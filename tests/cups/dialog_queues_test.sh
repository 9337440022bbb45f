#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The dialog with queues of every temper and a server that comes and goes, used by its keys as a person would.
#
#   dialog_queues_test.sh <tessarin-print> <sample PPD> <case>
set -euo pipefail
program=$1
sample=$2
case=$3
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
. "$here/private_scheduler.sh"
. "$here/queues.sh"
. "$here/../dialog/virtual_display.sh"
export HOME=$work/home XDG_CONFIG_HOME=$work/config
mkdir -p "$HOME"
cleanup() {
    kill -CONT "$scheduler_pid" 2>/dev/null || true
    stop_scheduler
    # shellcheck disable=SC2046 # one word for each process
    kill $(jobs -p) 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

fail() {
    echo "FAILED: $*"
        tail -n 40 "$work"/*.log
    [ -z "$scheduler" ] || tail -n 40 "$scheduler/Log/error_log"
    exit 1
}

open_on() { # queue
    open_dialog --log none --printer "$1" "$work/document.txt"
    wait_for_printer "$1"
}

wait_for_jobs() { # queue, number
    wait_until "queue $1 gets $2 jobs" expect_jobs_now "$@"
}

expect_jobs_now() { # queue, number
    [ "$(jobs_of "$1")" = "$2" ]
}

no_job_waits() { # queue
    [ -z "$(lpstat -W not-completed -o "$1" 2>/dev/null)" ]
}

# What a key does may take a moment to be possible: it is pressed until it has done its work.
press_until() { # what, key, command...
    local what=$1 key=$2 i
    shift 2
    for ((i = 0; i < 30; i++)); do
        "$@" >/dev/null && return
        keys "$key"
        sleep 1.5
    done
    fail "in vain: $what"
}

has_ended() {
    ! kill -0 "$dialog" 2>/dev/null
}

# Print fails and says so; the dialog stays, and is left.
expect_not_printed() {
    keys alt+p
    wait_for_window 'Not printed'
    keys Escape
    back_to_dialog
    keys Escape
    wait_for_end 1
}

document_is_on_its_way() {
    [ -n "$(find "$scheduler/Spool" -type f -size +1M)" ]
}

jobs_of() { # queue: how many jobs it ever got
    lpstat -W all -o "$1" 2>/dev/null | wc -l
}

expect_jobs() { # queue, number
    expect_jobs_now "$@" || fail "queue $1 has $(jobs_of "$1") jobs, expected $2"
}

start_scheduler
make_queues "$sample"
printf 'a document\n' >"$work/document.txt"
start_display

case $case in
options)
    # A script prints: all settings, and what it asked for with blanks, quotes and braces, exactly.
    "$program" --no-dialog --log none -d 'odd_name&co' -n 2 -P 1-3,5- -o vornMediaType=PhotoSatin06 \
        -o 'vornNote=it'"'"'s "a" {b} \c' -o vornBrightness=-10 "$work/document.txt" >"$work/out.log" 2>"$work/err.log" ||
        fail "it did not print"
    [ "$(cat "$work/out.log")" = "job odd_name&co-1" ] || fail "the job was not named: $(cat "$work/out.log")"
    wait_for_job 1
    received=$scheduler/received/options.1
    [ "$(tr ' ' '\n' <"$received" | grep -c '^vorn[A-Za-z]*=')" -ge 31 ] || fail "settings are missing: $(cat "$received")"
    for option in vornMediaType=PhotoSatin06 vornBrightness=-10 vornCartridgeType=PhotoBlack PageSize=A4; do
        grep -qE "(^| )$option( |\$)" "$received" || fail "no $option: $(cat "$received")"
    done
    grep -qF 'vornNote=it\'"'"'s\ \"a\"\ {b}\ \\c' "$received" || fail "the note was changed: $(cat "$received")"
    [ "$(cat "$scheduler/received/copies.1")" = 2 ] || fail "the copies were lost"
    ;;
impossible)
    # A script that asks for what cannot be prints nothing.
    status=0
    "$program" --no-dialog --log none -d photo -o vornMediaType=Unheard "$work/document.txt" 2>"$work/err.log" || status=$?
    [ $status = 2 ] || fail "exit status $status, expected 2"
    grep -qF 'not possible on this printer: vornMediaType=Unheard' "$work/err.log" || fail "it did not say what"
    expect_jobs photo 0
    ;;
default)
    # Without a name the user's default is opened; what was printed on is remembered.
    lpoptions -d photo >/dev/null
    open_dialog --log none "$work/document.txt"
    wait_for_printer photo
    keys alt+p
    wait_for_end 0
    expect_jobs photo 1
    lpoptions -d generic >/dev/null
    open_dialog --log none "$work/document.txt"
    wait_for_printer photo
    keys alt+p
    wait_for_end 0
    expect_jobs photo 2
    ;;
other-driver)
    # A printer without the panel's options still prints.
    open_on generic
    keys alt+p
    wait_for_end 0
    expect_jobs generic 1
    ;;
rejecting)
    open_on rejecting
    expect_not_printed
    expect_jobs rejecting 0
    ;;
paused)
    # The job waits; the dialog may be closed meanwhile.
    open_on paused
    keys alt+p
    wait_for_jobs paused 1
    sleep 2
    kill -0 "$dialog" || fail "the dialog did not wait for the job"
    press_until "the dialog closes" Return has_ended
    wait_for_end 0
    expect_jobs paused 1
    ;;
failing)
    # The job is stopped or given up; the dialog says so and keeps everything.
    open_on broken
    expect_not_printed
    ;;
cancelled)
    open_on slow
    keys alt+p
    wait_for_jobs slow 1
    sleep 2
    keys Escape          # cancels the job
    wait_until "the job is cancelled" no_job_waits slow
    kill -0 "$dialog" || fail "the dialog did not stay"
    press_until "the dialog closes" Escape has_ended
    wait_for_end 1
    ;;
down)
    # No server when the dialog opens; it comes later.
    halt_scheduler
    open_dialog --log none --printer photo "$work/document.txt"
    resume_scheduler
    press_until "the queue opens" alt+y shows_printer photo # Try Again
    keys alt+p
    wait_for_end 0
    expect_jobs photo 1
    ;;
away)
    # The server goes while the dialog is open: nothing is lost, and Retry prints once.
    open_on photo
    halt_scheduler
    keys alt+p
    wait_for_window 'Not printed'
    resume_scheduler
    keys alt+r           # Retry
    wait_for_end 0
    expect_jobs photo 1
    ;;
listing)
    # The server goes while the queues are being listed, and hangs; later it is there again.
    lpoptions -d photo >/dev/null
    halt_scheduler # which writes its queues down
    resume_scheduler
    kill -STOP "$scheduler_pid"
    open_dialog --log none "$work/document.txt"
    kill -KILL "$scheduler_pid"
    wait "$scheduler_pid" 2>/dev/null || true
    sleep 2
    resume_scheduler
    press_until "a queue opens" F5 shows_printer photo
    keys alt+p
    wait_for_end 0
    expect_jobs photo 1
    ;;
cut)
    # The server goes in the middle of the document: Retry prints it once, whole.
    halt_scheduler # which writes its queues down
    resume_scheduler
    truncate -s 4G "$work/document.txt" # it takes long to send and no room here
    open_on photo
    keys alt+p
    wait_until "the document is on its way" document_is_on_its_way
    kill -KILL "$scheduler_pid"
    wait "$scheduler_pid" 2>/dev/null || true
    wait_for_window 'Not printed'
    resume_scheduler
    cancel -a -x photo 2>/dev/null || true # what the server remembers of the half of it
    printf 'short\n' >"$work/document.txt"
    keys alt+r           # Retry
    wait_for_end 0
    grep -qx short "$scheduler"/received/document.* || fail "the document did not arrive"
    ;;
separate)
    # Several documents, each as a job of its own, by the check box.
    cp "$work/document.txt" "$work/second.txt"
    open_dialog --log none --printer photo "$work/document.txt" "$work/second.txt"
    wait_for_printer photo
    keys alt+j
    keys alt+p
    wait_for_end 0
    expect_jobs photo 2
    ;;
again)
    # One of two jobs is given up: Retry prints that one, and not the other a second time.
    printf 'good\n' >"$work/document.txt"
    printf 'bad\n' >"$work/second.txt"
    open_dialog --log none --separate-jobs --printer picky "$work/document.txt" "$work/second.txt"
    wait_for_printer picky
    keys alt+p
    wait_for_window 'Not printed'
    touch "$scheduler/received/mended"
    keys alt+r           # Retry
    wait_for_end 0
    [ "$(sort "$scheduler/received/printed" | tr '\n' ' ')" = 'bad good ' ] ||
        fail "printed: $(cat "$scheduler/received/printed")"
    expect_jobs picky 3
    ;;
exact)
    # What a person prints arrives at the filter, every setting as the ticket has it, on a queue of any name.
    printer=Büro-1
    open_dialog --log none --ticket "$work/ticket" --printer "$printer" "$work/document.txt"
    wait_for_printer "$printer"
    keys alt+1                   # the page General
    keys alt+c ctrl+a 2          # two copies
    keys alt+e Down Tab          # the next paper size
    keys alt+2
    keys alt+p
    wait_for_end 0
    wait_for_job 1
    received=$scheduler/received/options.1
    [ "$(tr ' ' '\n' <"$received" | grep -c '^vorn[A-Za-z]*=')" = 31 ] || fail "not 31 settings: $(cat "$received")"
    [ "$(cat "$scheduler/received/copies.1")" = 2 ] || fail "the copies were lost"
    grep -qx 'PageSize=A5' "$work/ticket" || fail "the paper was not chosen: $(cat "$work/ticket")"
    compared=0
    while IFS= read -r line; do
        case $line in vorn* | PageSize=* | media=* | number-up=*) ;; *) continue ;; esac
        grep -qE "(^| )$line( |\$)" "$received" || fail "$line did not arrive: $(cat "$received")"
        compared=$((compared + 1))
    done <"$work/ticket"
    [ $compared -ge 33 ] || fail "only $compared settings were compared"
    ;;
gone)
    # The printer that was asked for is not there: no other one takes its place.
    open_dialog --log none --printer nowhere "$work/document.txt"
    window=$(windows --name '^Print' | tail -n 1)
    sleep 2
    keys F5
    sleep 2
    keys alt+p
    [ "$(timeout 20 xdotool getwindowname "$window")" = Print ] || fail "another printer opened"
    expect_jobs photo 0
    keys Escape
    wait_for_end 1
    ;;
bare)
    # Without a driver there is little to choose, and printing works.
    open_on bare
    keys alt+p
    wait_for_end 0
    expect_jobs bare 1
    ;;
filter)
    # The filter fails: the dialog says so and stays until the person has seen it.
    open_on failing
    keys alt+p
    wait_for_jobs failing 1
    sleep 3
    kill -0 "$dialog" || fail "the dialog took a failure for a success"
    press_until "the dialog closes" Escape has_ended
    wait_for_end 1
    ;;
hanging)
    # The server hangs while the document is sent: Cancel frees the person, and printing again prints once.
    open_on photo
    kill -STOP "$scheduler_pid"
    keys alt+p
    sleep 1
    keys Escape
    sleep 1
    kill -CONT "$scheduler_pid"
    press_until "the document is printed" alt+p has_ended
    wait_for_end 0
    [ "$(find "$scheduler/received" -name 'document.*' | wc -l)" = 1 ] || fail "it was not printed once"
    ;;
silent)
    # A server that hangs holds nobody: the dialog closes at once.
    kill -STOP "$scheduler_pid"
    open_dialog --log none --printer photo "$work/document.txt"
    before=$SECONDS
    keys Escape
    wait_for_end 1
    [ $((SECONDS - before)) -le 30 ] || fail "it took $((SECONDS - before)) s to close"
    ;;
deleted)
    open_on photo
    lpadmin -x photo
    expect_not_printed
    ;;
changed-ppd)
    # The driver changes under the dialog: what it shows is what is sent.
    open_on photo
    lpadmin -p photo -P "$scheduler/ppds/slow.ppd" 2>/dev/null
    touch "$scheduler/received/go"
    keys alt+p
    wait_for_end 0
    expect_jobs photo 1
    ;;
*)
    fail "unknown case $case"
    ;;
esac
echo "passed: $case"

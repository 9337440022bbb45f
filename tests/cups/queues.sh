# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Queues of every temper on the private scheduler, to be sourced after private_scheduler.sh.
#
#   make_queues <sample PPD>   makes these queues, in the folder $scheduler:
#       photo        the sample printer; its filter notes options and document in $scheduler/received
#       generic      a generic PostScript printer from the system's drivers
#       paused       takes jobs, prints none: "the ink is being changed"
#       rejecting    takes no jobs
#       failing      its filter fails: "the head is dry"
#       odd_name&co  a name that needs quoting in a shell and in a URI
#       Büro-1       a name that is not ASCII
#       slow         its filter waits until $scheduler/received/go exists
#       broken       its device fails and the job is given up
#       picky        its device gives documents up that hold the word "bad", until $scheduler/received/mended exists,
#                    and notes the others in $scheduler/received/printed
#       bare         has no driver
#   halt_scheduler             ends the scheduler as a system does, but keeps its folder
#   resume_scheduler           starts it again
queues_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

install_filter() { # name; the program on standard input
    cat >"$scheduler/ServerBin/filter/$1"
    chmod 755 "$scheduler/ServerBin/filter/$1"
}

with_filter() { # PPD, filter: the PPD with this filter for text alone
    sed -e '/^\*cupsFilter/d' -e "s|^\*FormatVersion:.*|&\n*cupsFilter: \"text/plain 0 $2\"|" "$1"
}

add_queue() { # name, then options of lpadmin
    local name=$1
    shift
    # The warning that drivers are a thing of the past is no news here.
    lpadmin -p "$name" -E "$@" 2>&1 | grep -v 'deprecated' || true
    lpstat -p "$name" >/dev/null
}

make_queues() {
    local sample=$1 ppds=$scheduler/ppds name
    local generic=drv:///sample.drv/generic.ppd
    mkdir -p "$ppds"
    sed -e "s|@RECEIVED@|$scheduler/received|" -e 's|@INKDATA@|true|' "$queues_folder/counting_filter.sh" |
        install_filter noting
    printf '#!/bin/sh\necho "ERROR: the head is dry" >&2\nexit 1\n' | install_filter failing
    printf '#!/bin/sh\nwhile [ ! -e %s/go ]; do sleep 0.1; done\n' "$scheduler/received" | install_filter slow
    printf '#!/bin/sh\n[ $# = 0 ] && exit 0\necho "ERROR: the cable is cut" >&2\nexit 1\n' \
        >"$scheduler/ServerBin/backend/brokendevice"
    printf '%s\n' '#!/bin/sh' '[ $# = 0 ] && exit 0' "received=$scheduler/received" 'document=$(cat "${6:--}")' \
        'case $document in *bad*) [ -e "$received/mended" ] || exit 1 ;; esac' \
        'echo "$document" >>"$received/printed"' >"$scheduler/ServerBin/backend/pickydevice"
    chmod 755 "$scheduler/ServerBin/backend/brokendevice" "$scheduler/ServerBin/backend/pickydevice"
    for name in noting failing slow; do
        with_filter "$sample" "$name" >"$ppds/$name.ppd"
    done

    add_queue photo -v file:/dev/null -P "$ppds/noting.ppd" -D 'Photo printer' -L 'Studio 2' -o printer-error-policy=abort-job
    add_queue generic -v file:/dev/null -m "$generic"
    add_queue paused -v file:/dev/null -P "$ppds/noting.ppd"
    cupsdisable -r 'the ink is being changed' paused
    add_queue rejecting -v file:/dev/null -m "$generic"
    cupsreject -r 'no more today' rejecting
    add_queue failing -v file:/dev/null -P "$ppds/failing.ppd" -o printer-error-policy=abort-job
    add_queue 'odd_name&co' -v file:/dev/null -P "$ppds/noting.ppd"
    add_queue 'Büro-1' -v file:/dev/null -P "$ppds/noting.ppd"
    add_queue slow -v file:/dev/null -P "$ppds/slow.ppd"
    sed '/^\*cupsFilter/d; s|^\*FormatVersion:.*|&\n*cupsFilter: "text/plain 0 -"|' "$sample" >"$ppds/plain.ppd"
    add_queue picky -v pickydevice:/1 -P "$ppds/plain.ppd" -o printer-error-policy=abort-job
    add_queue bare -v file:/dev/null -m raw
    add_queue broken -v brokendevice:/1 -P "$ppds/noting.ppd" -o printer-error-policy=abort-job
}

halt_scheduler() {
    kill "$scheduler_pid"
    wait "$scheduler_pid" 2>/dev/null || true
}

resume_scheduler() {
    cupsd -f -c "$scheduler/ServerRoot/cupsd.conf" -s "$scheduler/ServerRoot/cups-files.conf" \
        >>"$scheduler/Log/cupsd.out" 2>&1 &
    scheduler_pid=$!
    local i
    for ((i = 0; i < 100; i++)); do
        [ "$(LC_ALL=C lpstat -r 2>/dev/null)" = 'scheduler is running' ] && return
        sleep 0.1
    done
    echo "the scheduler did not start again" >&2
    return 1
}

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The way of the ink counters: a job printed from the dialog reaches the driver's filter with every option; the filter
# counts ink and hands the counters to the scheduler, which keeps them in the queue's PPD; the panel, opened on the queue
# again, shows them.
#
#   ink_loop_test.sh <folder of the programs> <sample PPD>
set -euo pipefail

programs=$1
sample=$2
here=$(cd "$(dirname "$0")" && pwd)
. "$here/private_scheduler.sh"
work=$(mktemp -d)
trap 'stop_scheduler; rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work HOME=$work LC_ALL=C.UTF-8

fail() {
    echo "FAILED: $*"
    exit 1
}

replay() { # PPD, then the script on standard input
    "$programs/tessarin-replay" --quiet-log --ppd "$1"
}

start_scheduler

# A queue with the sample printer's PPD and the counting filter.
sed -e "s|@RECEIVED@|$scheduler/received|" -e "s|@INKDATA@|$programs/tessarin-inkdata|" "$here/counting_filter.sh" \
    >"$scheduler/ServerBin/filter/counting"
chmod 755 "$scheduler/ServerBin/filter/counting"
sed -e '/^\*cupsFilter/d' -e 's|^\*FormatVersion:.*|&\n*cupsFilter: "text/plain 0 counting"|' "$sample" >"$work/queue.ppd"
lpadmin -p photo -E -v file:/dev/null -P "$work/queue.ppd" -o printer-error-policy=abort-job 2>/dev/null
printf 'A document.\n' >"$work/document.txt"

queue_ppd() { # the queue's PPD as a person's program gets it
    cp "$scheduler/ServerRoot/ppd/photo.ppd" "$work/now.ppd"
    echo "$work/now.ppd"
}

print_job() { # prints the document from the dialog, as a person would; the job's number in $job
    "$here/print_from_dialog.sh" "$programs/tessarin-print" photo "$work/document.txt" >"$work/print.log" 2>&1 ||
        { cat "$work/print.log"; fail "the dialog did not print"; }
    job=$(lpstat -W all -o | sed -n 's/^photo-\([0-9]*\) .*/\1/p' | sort -n | tail -n 1)
    wait_for_job "$job"
}

# A small counter text. (The scheduler writes the values into the PPD without quotes.)
printf 'TotalInk_K=5000\nLastInk_K=30\nTotalInk_C=12345\nLastInk_C=149\nLastInk_M=150\n' >"$scheduler/received/counters"
print_job
given=$scheduler/received/options.$job
grep -q . "$given" || fail "the filter got no options"
expected='vornNoPrint=0 vornColorGamma=0 vornPSInterpreter=1 vornCartridgeType=PhotoBlack vornMediaType=PhotoPearl07
 vornResolution=1200dpi vornIntent=Perceptual0 vornColorModel=RGB vornDithering=Diffusion vornColorspace=1
 vornCMYKspace=10 vornBrightness=0 vornContrast=0 vornRefLight=65 vornGamut=0 vornShadows=0 vornGreyToneA=0
 vornGreyToneB=0 vornUCR=0 vornBrightC=0 vornBrightM=0 vornTAC=0 vornIntensity=0 vornInklimitK=0 vornInklimitC=0
 vornInklimitM=0 vornInklimitY=0 vornColorK=0 vornColorC=0 vornColorM=0 vornColorY=0'
for option in $expected; do
    tr ' ' '\n' <"$given" | grep -qxF -- "$option" || { cat "$given"; fail "the filter did not get $option"; }
done
cmp -s "$work/document.txt" "$scheduler/received/document.$job" || fail "the document arrived changed"

ppd=$(queue_ppd)
grep -q '^\*EXData0000: .' "$ppd" || fail "the scheduler kept no counters in the PPD"
"$programs/tessarin-inkdata" read "$ppd" | cmp -s - "$scheduler/received/counters" || fail "the counters came back changed"
state=$(printf '%s\n' '{"do":"panels"}' '{"do":"panelView"}' '{"do":"state"}' | replay "$ppd" | tail -n 1)
case $state in
*'"inkLast":[30,0,0,0,0,150,149,'*) ;;
*) fail "the panel does not have the last job's counters: $state" ;;
esac
case $state in
*'"inkTotal":[5000,0,0,0,0,0,12345,'*) ;;
*) fail "the panel does not have the total counters" ;;
esac
case $state in
*'{"name":"Magenta","value":"2","level":100,'*) ;;
*) fail "the panel does not show magenta at 2, level 100" ;;
esac

# A block that needs more than ten chunks: at least 4 KiB that cannot be compressed, behind the records.
{ cat "$scheduler/received/counters"; head -c 4096 /dev/urandom | base64 -w 60 | sed 's/^/# /'; echo 'TotalInk_Y=777'; } >"$work/large"
head -c 4096 /dev/urandom >>"$work/large"
cp "$work/large" "$scheduler/received/counters"
print_job
ppd=$(queue_ppd)
"$programs/tessarin-inkdata" read "$ppd" | cmp -s - "$work/large" || fail "the large block came back changed"
grep -q '^\*EXData000a: .' "$ppd" || fail "the eleventh chunk is not EXData000a"
full=$(sed -n 's/^\*EXData0003: //p' "$ppd")
[ ${#full} = 211 ] || fail "a full chunk has ${#full} characters, expected 211"
case $full in
*=) fail "a full chunk ends in =" ;;
esac
state=$(printf '%s\n' '{"do":"panels"}' '{"do":"panelView"}' '{"do":"state"}' | replay "$ppd" | tail -n 1)
case $state in
*'"inkTotal":[5000,0,0,0,777,0,12345,'*) ;;
*) fail "the panel does not have the counters of the large block" ;;
esac
echo "passed: two jobs, their options, and their counters"

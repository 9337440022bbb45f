#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Throws changed inputs at the readers, for some seconds each, two at a time.
#
#   fuzz.sh <folder of the fuzzers> <seconds> [reader]...
#
# New inputs that reach new code are collected in <folder>/corpus/<reader>; one that breaks a reader is left in
# <folder>/found and named. One line for each reader tells inputs run and code edges reached, a table the lines of the
# readers' sources that were reached. Exit status 1 when something broke, or when all readers together reached less
# than 95 % of those lines.
set -euo pipefail
fuzzers=$1
seconds=$2
shift 2
here=$(cd "$(dirname "$0")/../tests" && pwd)
all_readers=(keyword_scanner printer_ppd dialog_ppd counter_text extra_data formatter preset_file replay_script)
readers=("$@")
[ $# -gt 0 ] || readers=("${all_readers[@]}")
least_lines=95 # percent
rm -rf "$fuzzers/profiles"
mkdir -p "$fuzzers/found" "$fuzzers/logs" "$fuzzers/profiles"

export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1
export LSAN_OPTIONS="suppressions='$here/fuzz/lsan.supp':print_suppressions=0"
export UBSAN_OPTIONS=print_stacktrace=1

fuzz() { # reader
    local reader=$1 log=$fuzzers/logs/$1.log corpus=$fuzzers/corpus/$1 seeds=("$here/fuzz/corpus/$1") dictionary=()
    case $reader in
    keyword_scanner | printer_ppd | dialog_ppd)
        seeds+=("$here/fixtures/ppd" "$here/fixtures/bad/ppd")
        dictionary=(-dict="$here/fuzz/ppd.dict")
        ;;
    counter_text)
        seeds+=("$here/fixtures/ink")
        dictionary=(-dict="$here/fuzz/ink.dict")
        ;;
    extra_data) dictionary=(-dict="$here/fuzz/extra.dict") ;;
    formatter) dictionary=(-dict="$here/fuzz/format.dict") ;;
    preset_file) dictionary=(-dict="$here/fuzz/preset.dict") ;;
    replay_script) dictionary=(-dict="$here/fuzz/replay.dict") ;;
    esac
    mkdir -p "$corpus"
    local status=0
    LLVM_PROFILE_FILE=$fuzzers/profiles/$reader.profraw "$fuzzers/${reader}_fuzz" -max_total_time="$seconds" \
        -detect_leaks=0 -timeout=25 -rss_limit_mb=4096 -max_len=65536 -print_final_stats=1 \
        -artifact_prefix="$fuzzers/found/$reader-" "${dictionary[@]}" "$corpus" "${seeds[@]}" >"$log" 2>&1 </dev/null || status=$?
    local runs edges
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    edges=$(sed -nE 's/.* cov: ([0-9]+) .*/\1/p' "$log" | tail -n 1)
    if [ $status != 0 ]; then
        echo "$reader: BROKEN after ${runs:-?} inputs"
        tail -n 60 "$log"
        return 1
    fi
    echo "$reader: ${runs:-?} inputs, ${edges:-?} edges"
}

# The lines that the readers reached of what they are to reach.
report_lines() {
    local reader objects=() sources=("$here"/../ppd/*.cpp "$here"/../ink/{extra_data,counter_}*.cpp
        "$here/../platform/formatter.cpp")
    for reader in "${readers[@]}"; do
        objects+=(-object "$fuzzers/${reader}_fuzz")
    done
    llvm-profdata merge -o "$fuzzers/profiles/all.profdata" "$fuzzers"/profiles/*.profraw
    llvm-cov report "${objects[@]:1}" -instr-profile="$fuzzers/profiles/all.profdata" "${sources[@]}" >"$fuzzers/lines"
    awk -v least="$least_lines" -v all="$([ ${#readers[@]} = ${#all_readers[@]} ] && echo 1 || echo 0)" '
        $1 ~ /\.cpp$/ || $1 == "TOTAL" { printf "%-32s %5d lines, %s reached\n", $1, $8, $10 }
        $1 == "TOTAL" { reached = $10 + 0 }
        END { exit all && reached < least }' "$fuzzers/lines"
}

failed=0
for ((i = 0; i < ${#readers[@]}; i += 2)); do
    pids=()
    for reader in "${readers[@]:i:2}"; do
        fuzz "$reader" &
        pids+=($!)
    done
    for pid in "${pids[@]}"; do
        wait "$pid" || failed=1
    done
done
report_lines || {
    echo "less than $least_lines % of the lines were reached" >&2
    failed=1
}
exit $failed

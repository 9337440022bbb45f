#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Writes the traces of all golden sessions and of random ones as a build gives them, to be compared with another
# build's.
#
#   replay_traces.sh <folder of the build> <folder for the traces> <how many random sessions> [checker]...
#
# A checker is a program, with its options, under which the replay tool runs; its own output is in the files *.errors.
set -euo pipefail
build=$(cd "$1" && pwd)
traces=$2
count=$3
checker=("${@:4}")
tests=$(cd "$(dirname "$0")/../tests" && pwd)
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8

remark() { # script, name, what stands for none
    local value
    value=$(sed -n "s/^# $2: //p" "$1" | head -n 1)
    echo "${value:-$3}"
}

trace() { # name, PPD, script, options...
    local name=$1 ppd=$2 script=$3 expected=$4 status=0
    shift 4
    "${checker[@]}" "$build/bin/tessarin-replay" --stable --ppd "$ppd" "$@" "$script" \
        >"$traces/$name.trace" 2>"$traces/$name.errors" || status=$?
    echo "status $status" >>"$traces/$name.trace"
    if [ "$status" != "$expected" ]; then
        echo "$name ended with $status in place of $expected" >&2
        tail -n 40 "$traces/$name.errors" >&2
        return 1
    fi
}

# Every second session, from the given one on; all of them, whatever becomes of one.
golden() { # 0 or 1
    local scripts script name ppd options status=0 number
    cd "$tests/sessions"
    scripts=(*.script)
    for ((number = $1; number < ${#scripts[@]}; number += 2)); do
        script=${scripts[number]}
        name=${script%.script}
        ppd=$(remark "$script" ppd sample)
        case $ppd in
        sample) ppd=../../examples/tessarin-sample.ppd ;;
        */*) ;;
        *) ppd=../fixtures/ppd/$ppd.ppd ;;
        esac
        options=$(remark "$script" options "")
        # shellcheck disable=SC2086 # options are words
        trace "golden-$name" "$ppd" "$script" "$(remark "$script" status 0)" ${options/--stable/} || status=1
    done
    return $status
}

random() {
    local number
    cd "$traces"
    "$build/tests/write_sessions" . "$count"
    for ((number = 0; number < count; number++)); do
        trace "random-$number" "$number.ppd" "$number.script" 0 || return 1
    done
}

rm -rf "$traces"
mkdir -p "$traces"
traces=$(cd "$traces" && pwd)
(golden 0) &
pid=$!
trap 'kill $pid 2>/dev/null || true; wait' EXIT
status=0
(golden 1) || status=1
wait "$pid" || status=1
(random) || status=1
echo "$(find "$traces" -name '*.trace' | wc -l) traces"
exit $status

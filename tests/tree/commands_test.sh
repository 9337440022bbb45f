#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The project's commands: help, wrong usage, and their exit status. Nothing is installed or built here.
#
#   commands_test.sh <source tree>
set -euo pipefail
tessarin=$1/tessarin

expect() { # status, words of the output, arguments...
    local wanted=$1 words=$2 status=0 output
    shift 2
    output=$(cd / && "$tessarin" "$@" 2>&1) || status=$?
    if [ "$status" != "$wanted" ] || ! grep -qF -- "$words" <<<"$output"; then
        echo "FAILED: tessarin $*: expected status $wanted and \"$words\", got $status and: $output"
        exit 1
    fi
}

expect 0 "./tessarin run [options]" help
expect 0 "Exit status" --help
expect 2 "--seconds needs a number" fuzz --no-setup --seconds x
expect 2 "./tessarin run [options]"
expect 2 "unknown command fly" fly
expect 2 "unknown option --fly" --fly
expect 2 "build takes no arguments" build now
expect 2 "package takes no arguments but --try and --twice" package now
expect 2 "package takes no arguments but" package --twice now
expect 2 "setup takes no arguments" --no-setup setup now
# Without the means to install anything, the missing packages are named.
bin=$(mktemp -d)
trap 'rm -rf "$bin"' EXIT
for program in bash dirname readlink grep; do
    ln -s "$(command -v $program)" "$bin/$program"
done
printf '#!/bin/bash\nexit 1\n' >"$bin/dpkg-query"
printf '#!/bin/bash\necho 1000\n' >"$bin/id"
chmod +x "$bin/dpkg-query" "$bin/id"
status=0
output=$(PATH=$bin "$tessarin" setup 2>&1) || status=$?
[ "$status" = 3 ] && grep -qF "cmake ninja-build" <<<"$output" && grep -qF "no sudo" <<<"$output" ||
    { echo "FAILED: setup without sudo: status $status, $output"; exit 1; }

# The 32-bit system: without the means to make it the command says what it needs.
export TESSARIN_I386=$bin/system
status=0
output=$(PATH=$bin "$tessarin" --no-setup test --32 2>&1) || status=$?
[ "$status" = 3 ] && grep -qF "Debian 12 in $bin/system" <<<"$output" && grep -qF "needs root" <<<"$output" ||
    { echo "FAILED: --32 without sudo: status $status, $output"; exit 1; }
printf '#!/bin/bash\necho 0\n' >"$bin/id"
printf '#!/bin/bash\necho amd64\n' >"$bin/dpkg"
chmod +x "$bin/dpkg"
printf '#!/bin/bash\necho "E: no such host"\nexit 1\n' >"$bin/debootstrap"
chmod +x "$bin/debootstrap"
status=0
output=$(PATH=$bin:$PATH "$tessarin" --no-setup test --32 2>&1) || status=$?
[ "$status" = 3 ] && grep -qF "E: no such host" <<<"$output" && grep -qF "is there a network" <<<"$output" ||
    { echo "FAILED: --32 without network: status $status, $output"; exit 1; }

# Packages and their trial, in a tree of the commands alone, with programs that only seem to build packages and to enter
# a system. What the trial has left behind counts, however it ended.
tree=$bin/tree
export TESSARIN_FRESH=$bin/fresh STANDINS=$bin
mkdir "$tree"
cp -r "$1/tessarin" "$1/scripts" "$tree/"
stand_in() { # program, its commands
    printf '#!/bin/bash\n%s\n' "$2" >"$bin/$1"
    chmod +x "$bin/$1"
}
stand_in dpkg-buildpackage 'for name in tessarin-print tessarin-panel tessarin-panel-dev; do
    mkdir -p ../content/DEBIAN
    printf "Package: %s\nVersion: 1\nArchitecture: all\nMaintainer: a\nDescription: b\n" $name >../content/DEBIAN/control
    : >../content/DEBIAN/md5sums
    dpkg-deb -b ../content ../${name}_1_all.deb
done
: >../a.changes >../a.buildinfo'
stand_in lintian 'exit 0'
stand_in unshare '[[ $* == *trial.sh* ]] || exit 0
ls "$TESSARIN_FRESH.trial" >"$STANDINS/entered"
[ -e "$STANDINS/stop" ] || exit 0
kill -TERM $PPID
for ((i = 0; i < 10; i++)); do
    sleep 0.1
    [ -e "$TESSARIN_FRESH.trial/program" ] || { echo "the ground is gone"; exit 1; }
done
echo "on firm ground"'
mkdir "$bin/failing"
printf '#!/bin/bash\n[[ $* == *fresh.trial* ]] || exec /bin/cp "$@"\ntouch "$TESSARIN_FRESH.trial/part"\necho "no room" >&2\nexit 1\n' \
    >"$bin/failing/cp"
chmod +x "$bin/failing/cp"

try_packages() { # status, words of the output, folders for programs
    local status=0
    output=$(PATH=$3$bin:$PATH "$tree/tessarin" --no-setup package --try 2>&1) || status=$?
    [ "$status" = "$1" ] && grep -qF "$2" <<<"$output" ||
        { echo "FAILED: a trial: expected status $1 and \"$2\", got $status and $output"; exit 1; }
    [ ! -e "$bin/fresh.trial" ] && [ ! -e "$tree/build-package/older" ] && [ ! -e "$tree/build-package/trial.sh" ] ||
        { echo "FAILED: a trial leaves $(ls -d "$bin"/fresh.trial "$tree"/build-package/{older,trial.sh} 2>&1)"; exit 1; }
}

try_packages 3 "is there a network" ""
rm -rf "$bin/fresh"
mkdir "$bin/fresh"
touch "$bin/fresh"/{made,made-for-tessarin,program}
try_packages 0 "tessarin-print_1_all.deb" ""
grep -qx program "$bin/entered" || { echo "FAILED: the trial was in: $(cat "$bin/entered")"; exit 1; }
try_packages 1 "no room" "$bin/failing:"
# One that is stopped.
touch "$bin/stop"
try_packages 1 "on firm ground" ""
rm "$bin/stop"
# One whose removal was cut off.
mkdir "$bin/cut"
printf '#!/bin/bash\n[[ $* == *fresh.trial* ]] || exec /bin/rm "$@"\n/bin/rm -rf "${@:3:1}"\nexit 1\n' >"$bin/cut/rm"
chmod +x "$bin/cut/rm"
touch "$bin/fresh/aaa"
PATH=$bin/cut:$bin:$PATH "$tree/tessarin" --no-setup package --try >"$bin/output" 2>&1 || true
[ -e "$bin/fresh.trial" ] || { echo "FAILED: nothing was cut off: $(cat "$bin/output")"; exit 1; }
try_packages 0 "tessarin-print_1_all.deb" ""
# One that was killed while copying.
mkdir "$bin/fresh.trial"
touch "$bin/fresh.trial/made-for-tessarin" "$bin/fresh.trial/part"
try_packages 0 "tessarin-print_1_all.deb" ""
# What is not this program's stays.
mkdir "$bin/fresh.trial"
touch "$bin/fresh.trial/somebody-elses"
output=$(PATH=$bin:$PATH "$tree/tessarin" --no-setup package --try 2>&1) && status=0 || status=$?
[ "$status" = 3 ] && [ -e "$bin/fresh.trial/somebody-elses" ] ||
    { echo "FAILED: another's folder: status $status, $output"; exit 1; }
rm -r "$bin/fresh.trial"
# Two at once.
exec {lock}<"$bin/fresh.lock"
flock "$lock"
rm "$bin/entered"
stand_in flock "echo \"\$*\" >>$bin/locked; exec $(command -v flock) \"\$@\""
PATH=$bin:$PATH "$tree/tessarin" --no-setup package --try >"$bin/output" 2>&1 {lock}<&- &
trial=$!
until grep -q '^[0-9]*$' "$bin/locked" 2>/dev/null; do # asked for with nothing but its number, it is waited for
    kill -0 $trial 2>/dev/null || { echo "FAILED: no waiting: $(cat "$bin/output")"; exit 1; }
    sleep 0.1
done
[ ! -e "$bin/fresh.trial" ] && [ ! -e "$bin/entered" ] && grep -q "waiting for another trial" "$bin/output" ||
    { echo "FAILED: two trials at once: $(cat "$bin/output")"; exit 1; }
exec {lock}<&-
wait $trial && [ -e "$bin/entered" ] || { echo "FAILED: after waiting: $(cat "$bin/output")"; exit 1; }
echo "passed"

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
echo "passed"

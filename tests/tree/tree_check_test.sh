#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The tree check finds each fault that is planted in a small tree of its own.
#
#   tree_check_test.sh <check_tree.sh>
set -euo pipefail
check=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
tree=$work/tree
header='// SPDX-FileCopyrightText: someone
// SPDX-License-Identifier: GPL-3.0-or-later'

plant() { # a fresh tree without faults
    rm -rf "$tree"
    mkdir -p "$tree/ppd" "$tree/ink" "$tree/host" "$tree/tests" "$tree/build" "$tree/.cache"
    printf '%s\n#include "ppd/b.h"\n#include "ppd/a.moc"\n' "$header" >"$tree/ppd/a.h"
    printf '%s\nint b;\n' "$header" >"$tree/ppd/b.h"
    printf '#!/bin/sh\n%s\n' "${header//\/\//#}" >"$tree/tessarin"
    # What the build leaves behind is nobody's fault.
    echo '#include "nowhere.h"' >"$tree/build/generated.cpp"
    echo '#include "nowhere.h"' >"$tree/.cache/kept.cpp"
}

expect() { # status, words of the output
    local status=0 output
    output=$("$check" "$tree") || status=$?
    if [ "$status" != "$1" ] || ! grep -qF -- "$2" <<<"$output"; then
        echo "FAILED: expected status $1 and \"$2\", got $status and: $output"
        exit 1
    fi
}

plant
expect 0 "tree: 2 files checked"

plant
printf '%s\n  #  include "ppd/a.h"\n' "$header" >"$tree/ppd/b.h"
expect 1 "includes form a circle"
plant
printf '%s\n#include "ppd/b.h"\n' "$header" >"$tree/ppd/b.h"
expect 1 "includes form a circle: ppd/b.h includes itself"
plant
printf '%s\n#include "b.h"\n' "$header" >"$tree/ppd/a.h"
expect 1 "ppd/a.h: includes b.h, which is no file of the tree"

plant
echo 'int c;' >"$tree/ink/c.h"
expect 1 "ink/c.h: no licence header"
plant
printf '#!/bin/sh\nexit\n' >"$tree/tessarin"
expect 1 "tessarin: no licence header"
plant
echo 'project(x)' >"$tree/host/CMakeLists.txt"
expect 1 "host/CMakeLists.txt: no licence header"

plant
{ echo "$header"; printf '//%.0s\n' {1..398}; } >"$tree/host/long.cpp"
expect 0 "tree: 3 files checked"
echo '//' >>"$tree/host/long.cpp"
expect 1 "host/long.cpp: 401 lines, over 400"
plant
{ echo "$header"; printf '//%.0s\n' {1..399}; } >"$tree/tests/long.cpp"
expect 0 "tree: 3 files checked"

# Put together here, so that the check of the project's own tree does not find them.
for words in "as the spe""c says" "see the speci""fication" "Part"" 2.3 holds" "issue"" 12" "/wor""k/main" "<<<""<<<< HEAD"; do
    plant
    echo "$words" >"$tree/README.md"
    expect 1 "README.md:1:$words"
done
plant
echo "a special part, a specific issue, a network" >"$tree/README.md"
expect 0 "tree: 2 files checked"
echo "passed"

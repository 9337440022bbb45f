#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The completions are installed where a shell looks for them: a file under the name of each command.
#
#   install_test.sh <cmake> <install script of packaging/>
set -euo pipefail
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
"$1" -DCMAKE_INSTALL_PREFIX="$prefix" -P "$2" >/dev/null
for command in tessarin-print tessarin-replay tessarin-inkdata; do
    file=$prefix/share/bash-completion/completions/$command
    # Each file by itself, in a shell that has nothing else.
    bash --noprofile --norc -c '. "$1" && complete -p "$2"' bash "$file" "$command" | grep -q -- "-F _tessarin $command" ||
        { echo "FAILED: $file does not complete $command"; exit 1; }
done
echo "passed"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# clang-tidy over all production files, with the compile commands of the build tree "build".
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/sources.sh
mapfile -t files < <(sources -name '*.cpp' -not -path './tests/*')
[ ${#files[@]} -gt 0 ] || { echo "no files to check" >&2; exit 1; }
log=$(mktemp)
commands=$(mktemp -d)
trap 'rm -rf "$log" "$commands"' EXIT
# Some files are compiled for the tests as well, with options that only gcc knows.
sed -E 's/ -(fno-gnu-unique|Wno-restrict|Wno-stringop-overflow)//g' build/compile_commands.json \
    >"$commands/compile_commands.json"
if ! printf '%s\0' "${files[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p "$commands" --quiet >"$log" 2>&1; then
    grep -vE '^[0-9]+ warnings? (generated|treated as errors?)' "$log" >&2
    echo "clang-tidy: see above" >&2
    exit 1
fi
echo "clang-tidy: ${#files[@]} files checked"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Every C++ file stands as clang-format would leave it.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/sources.sh
mapfile -t files < <(sources)
[ ${#files[@]} -gt 0 ] || { echo "no files to check" >&2; exit 1; }
clang-format --dry-run -Werror "${files[@]}"
echo "formatting: ${#files[@]} files checked"

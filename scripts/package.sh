#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Builds the Debian packages from a copy of the tree, so that nothing is written into it, and leaves them in a folder.
#
#   package.sh <folder for the packages>
set -euo pipefail
project=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$1"
target=$(cd "$1" && pwd)
# The same place for every build: what a compiler writes of it is then the same as well.
copy=$target/source/tessarin-settings
rm -rf "$target/source" "$target"/*.deb "$target"/*.buildinfo "$target"/*.changes
mkdir -p "$copy"
(cd "$project" && tar -c --exclude='./build' --exclude='./build-*' --exclude=./.git .) | tar -x -C "$copy"
(cd "$copy" && dpkg-buildpackage --build=binary --no-sign --unsigned-changes >"$target/log" 2>&1) || {
    tail -n 40 "$target/log" >&2
    exit 1
}
mv "$target"/source/*.deb "$target"/source/*.changes "$target"/source/*.buildinfo "$target/"
rm -rf "$target/source"
(cd "$target" && ls -- *.deb)

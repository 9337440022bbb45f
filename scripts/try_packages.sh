#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Tries the Debian packages in a fresh Debian 12 (scripts/trial.sh): they pass lintian, replace older ones, open the
# dialog with its panel, and removing them leaves no file.
#
#   try_packages.sh <folder of the packages>
set -euo pipefail
packages=$(cd "$1" && pwd)
scripts=$(cd "$(dirname "$0")" && pwd)
. "$scripts/systems.sh"
base=${TESSARIN_FRESH:-/var/cache/tessarin/fresh}
fail() {
    echo "packages: $*" >&2
    exit 1
}

# An older version of a package: the same with another number and a file that the new one does not have.
make_older() { # package's file
    local content=$packages/older/content name
    rm -rf "$content"
    dpkg-deb -R "$1" "$content"
    name=$(dpkg-deb -f "$1" Package)
    sed -Ei 's/^Version: .*/Version: 0.0.1~older/; s/^(Depends:.*tessarin-panel \(= )[^)]*/\10.0.1~older/' "$content/DEBIAN/control"
    rm "$content/DEBIAN/md5sums"
    mkdir -p "$content/usr/share/$name-older/folder"
    echo "of the older version" | tee "$content/usr/share/$name-older/folder/file" >"$content/usr/share/$name-older.conf"
    dpkg-deb --root-owner-group -Zgzip -b "$content" "$packages/older" >/dev/null
    rm -rf "$content"
}

lintian --fail-on error "$packages"/*.changes >"$packages/lintian" 2>&1 || fail "lintian: $(cat "$packages/lintian")"
rm -rf "$packages/older"
mkdir -p "$packages/older"
for package in tessarin-print tessarin-panel tessarin-panel-dev; do
    make_older "$(echo "$packages/${package}"_*.deb)"
done
cp "$scripts/trial.sh" "$packages/trial.sh"
system_make "$base" "$(dpkg --print-architecture)" || exit 1

# What follows runs within a copy, so that each trial begins with a fresh system.
fresh=$base.trial
system_remove "$fresh" || exit 1
"${as_root[@]}" cp -a "$base" "$fresh"
trap '"${as_root[@]}" rm -rf --one-file-system "$fresh" "$packages/trial.sh" "$packages/older"' EXIT
system_run "$fresh" "$packages" bash trial.sh

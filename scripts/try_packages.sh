#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Tries the Debian packages in a fresh Debian 12 (scripts/trial.sh): they pass lintian, replace older ones, open the
# dialog with its panel, and removing them leaves no file.
#
#   try_packages.sh <folder of the packages>
#
# Exit status: 0 all is well; 1 something is not; 3 there is no fresh system, and none can be made.
set -euo pipefail
packages=$(cd "$1" && pwd)
scripts=$(cd "$(dirname "$0")" && pwd)
. "$scripts/systems.sh"
base=${TESSARIN_FRESH:-/var/cache/tessarin/fresh}
fresh=$base.trial
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

# Two trials at once would share the fresh system and its copy. Root makes the lock's file, anybody may open it.
wait_for_others() {
    "${as_root[@]}" mkdir -p "$(dirname "$base")"
    "${as_root[@]}" touch "$base.lock"
    exec {lock}<"$base.lock"
    flock --nonblock "$lock" && return
    echo "packages: waiting for another trial to end" >&2
    flock "$lock"
}

# Of a trial that was killed there may be a copy left.
clean_up() {
    rm -rf "$packages/trial.sh" "$packages/older"
    system_remove "$fresh"
}

become_root "$base" || exit 3
wait_for_others
system_make "$base" "$(dpkg --print-architecture)" || exit 3
clean_up || exit 3
trap clean_up EXIT
# Whoever stops this waits for what runs in the copy: it may not lose the ground it stands on.
trap 'exit 1' INT TERM HUP
lintian --fail-on error "$packages"/*.changes >"$packages/lintian" 2>&1 || fail "lintian: $(cat "$packages/lintian")"
mkdir -p "$packages/older"
for package in tessarin-print tessarin-panel tessarin-panel-dev; do
    make_older "$(echo "$packages/${package}"_*.deb)"
done
cp "$scripts/trial.sh" "$packages/trial.sh"
# The trial runs within a copy, so that each begins with a fresh system.
system_copy "$base" "$fresh" || fail "the fresh system cannot be copied to $fresh"
system_run "$fresh" "$packages" bash trial.sh || exit 1

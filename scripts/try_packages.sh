#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Tries the Debian packages in a fresh Debian 12: they install, pass lintian, the dialog opens from there with its
# panel, in another language as well, a host compiles against the headers, and removing them leaves no file.
#
#   try_packages.sh <folder of the packages>
set -euo pipefail
packages=$(cd "$1" && pwd)
. "$(dirname "$0")/systems.sh"
base=${TESSARIN_FRESH:-/var/cache/tessarin/fresh}
fail() {
    echo "packages: $*" >&2
    exit 1
}
lintian --fail-on error "$packages"/*.changes >"$packages/lintian" 2>&1 || fail "lintian: $(cat "$packages/lintian")"
system_make "$base" "$(dpkg --print-architecture)" || exit 1

# What follows runs within a copy, so that each trial begins with a fresh system.
fresh=$base.trial
system_remove "$fresh" || exit 1
"${as_root[@]}" cp -a "$base" "$fresh"
trap '"${as_root[@]}" rm -rf --one-file-system "$fresh"' EXIT
# shellcheck disable=SC2016 # for the shell within
system_run "$fresh" "$packages" bash -c '
    set -euo pipefail
    fail() { echo "packages: $*" >&2; exit 1; }
    files() { find / -xdev \( -path /proc -o -path "$PWD" -o -path /var/lib/dpkg -o -path /var/lib/apt -o \
        -path /var/cache -o -path /var/log -o -path /tmp \) -prune -o -type f -print | sort; }
    export QT_QPA_PLATFORM=offscreen
    apt-get -qq update
    names=(tessarin-print tessarin-panel tessarin-panel-dev)
    # What they depend on comes first, so that only their own files are counted.
    apt-get -qq install -y --no-install-recommends ./tessarin-print_*.deb ./tessarin-panel_*.deb \
        ./tessarin-panel-dev_*.deb g++ libcups2-dev pkg-config fonts-dejavu-core >/tmp/apt 2>&1 || fail "$(tail /tmp/apt)"
    dpkg -r "${names[@]}" >/dev/null
    files >/tmp/before
    dpkg -i ./tessarin-print_*.deb ./tessarin-panel_*.deb ./tessarin-panel-dev_*.deb >/dev/null
    files | comm -13 /tmp/before - >/tmp/installed
    [ -s /tmp/installed ] || fail "nothing was installed"

    tessarin-print --sample --log none --pictures /tmp/pages >/tmp/options 2>/tmp/errors || fail "$(cat /tmp/errors)"
    [ "$(grep -c "^vorn" /tmp/options)" = 31 ] || fail "options: $(cat /tmp/options)"
    [ "$(find /tmp/pages -name "*.png" -size +12k | wc -l)" = 6 ] || fail "pictures: $(ls -l /tmp/pages)"
    tessarin-print --sample --log none --language de --summary | grep -q "^Medientyp: " || fail "no German"
    echo "{\"do\":\"panels\"}" | tessarin-replay --quiet-log --ppd /usr/share/tessarin/tessarin-sample.ppd |
        grep -q "\"value\":1" || fail "tessarin-replay"
    tessarin-inkdata --help >/dev/null || fail "tessarin-inkdata"
    ldd /usr/lib/*/tessarin/libtessarin-pdf.so | grep -q "not found" && fail "a library is missing"
    example=/usr/share/doc/tessarin-panel-dev/examples/minimal_host.cpp
    g++ -std=c++20 -w -fPIC -I/usr/include/tessarin -o /tmp/host "$example" $(pkg-config --cflags --libs Qt6Widgets) -lcups \
        2>/tmp/errors || fail "a host does not compile: $(cat /tmp/errors)"
    [ "$(/tmp/host /usr/lib/*/tessarin/TessarinPDE.bundle /usr/share/tessarin/tessarin-sample.ppd --save 2>/dev/null |
        grep -c "^vorn")" = 31 ] || fail "the host shows no panel"

    dpkg -i ./tessarin-print_*.deb ./tessarin-panel_*.deb >/dev/null || fail "installing over itself"
    dpkg -P "${names[@]}" >/dev/null
    files | comm -13 /tmp/before - >/tmp/left
    [ ! -s /tmp/left ] || fail "left behind: $(cat /tmp/left)"
    echo "packages: $(wc -l </tmp/installed) files installed, used and removed"'

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Builds the Debian packages from a copy of the tree, so that nothing is written into it, and leaves them in a folder.
# With --twice they are built once more, different in what must not matter: folder, home, time zone, locale (C in place of
# C.UTF-8), umask, the order in which the files were written and their times, the number of compilers. Both must then be
# the same byte for byte.
#
#   package.sh [--twice] <folder for the packages>
set -euo pipefail
project=$(cd "$(dirname "$0")/.." && pwd)
twice=no
if [ "$1" = --twice ]; then
    twice=yes
    shift
fi
mkdir -p "$1"
target=$(cd "$1" && pwd)
rm -rf "$target/source" "$target/other" "$target/again" "$target/differ"
rm -f "$target"/*.deb "$target"/*.buildinfo "$target"/*.changes
mkdir -p "$target/source/tessarin-settings" "$target/other/place/copy" "$target/again"
trap 'rm -rf "$target/source" "$target/other"' EXIT
jobs=$(nproc)

list_files() { # folder
    (cd "$1" && find . \( -path ./build -o -path './build-*' -o -path ./.git \) -prune -o ! -type d -print)
}

build_in() { # copy of the tree, variables...
    local copy=$1
    shift
    (cd "$copy" && env -u SOURCE_DATE_EPOCH "$@" dpkg-buildpackage --build=binary --no-sign --unsigned-changes) \
        >"$target/log" 2>&1 </dev/null || {
        tail -n 40 "$target/log" >&2
        exit 1
    }
}

first_build() {
    build_in "$target/source/tessarin-settings" DEB_BUILD_OPTIONS="parallel=$jobs" LC_ALL=C.UTF-8
    mv "$target"/source/*.deb "$target"/source/*.changes "$target"/source/*.buildinfo "$target/"
}

second_build() (
    umask 077
    build_in "$target/other/place/copy" DEB_BUILD_OPTIONS="parallel=$((jobs + 1))" TZ=Pacific/Kiritimati LC_ALL=C \
        HOME="$target/other"
    mv "$target"/other/place/*.deb "$target/again/"
)

differences() { # the package's file
    local side
    for side in "$target" "$target/again"; do
        mkdir -p "$target/differ/${side##*/}"
        dpkg-deb -R "$side/$1" "$target/differ/${side##*/}/$1"
    done
    diff -rq "$target/differ/${target##*/}/$1" "$target/differ/again/$1" >&2 || true
    rm -rf "$target/differ"
}

compare_builds() {
    local package status=0
    [ "$(cd "$target" && ls -- *.deb)" = "$(cd "$target/again" && ls -- *.deb)" ] || status=1
    for package in "$target"/*.deb; do
        package=${package##*/}
        cmp "$target/$package" "$target/again/$package" >&2 && continue
        status=1
        differences "$package"
    done
    return $status
}

# Both builds have the same tree, whatever happens to it meanwhile.
list_files "$project" | (cd "$project" && tar -c -T -) | tar -x -C "$target/source/tessarin-settings"
if [ $twice = yes ]; then
    list_files "$target/source/tessarin-settings" | sort -r |
        (cd "$target/source/tessarin-settings" && tar -c --mtime=2020-02-29 -T -) | tar -x -C "$target/other/place/copy"
fi
start=$SECONDS
first_build
(cd "$target" && ls -- *.deb)
echo "packages: built in $((SECONDS - start)) s"
[ $twice = yes ] || { rm -rf "$target/again" && exit 0; }
start=$SECONDS
second_build
compare_builds || {
    echo "packages: a second build is not the same; its packages are in $target/again" >&2
    exit 1
}
rm -rf "$target/again"
echo "packages: built again in $((SECONDS - start)) s, the same byte for byte"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What try_packages.sh runs within the fresh system, in the folder of the packages, with older ones in "older": the
# older ones are installed and upgraded, the programs used, a host compiled; then all is removed, and nothing is left.
set -euo pipefail
names=(tessarin-print tessarin-panel tessarin-panel-dev)
sample=/usr/share/tessarin/tessarin-sample.ppd
export HOME=/tmp/home XDG_RUNTIME_DIR=/tmp/home
mkdir -m 700 "$HOME"
fail() {
    echo "packages: $*" >&2
    exit 1
}

# Everything but what dpkg, apt and caches keep, and what this trial itself writes.
files() {
    find / -xdev \( -path /proc -o -path "$PWD" -o -path /var/lib/dpkg -o -path /var/lib/apt -o -path /var/cache -o \
        -path /var/log -o -path /tmp \) -prune -o -print | sort
}

newer_than() { # list of files
    files | comm -13 "$1" -
}

# What the packages depend on comes first and without them, so that just their own files and traces are counted.
prepare() {
    local package depends=
    apt-get -qq update
    for package in tessarin-print tessarin-panel tessarin-panel-dev; do
        depends+=", $(dpkg-deb -f ./"$package"_*.deb Depends)"
    done
    depends=$(sed -E 's/(, *tessarin-[^,]*)+//g; s/^, *//' <<<"$depends")
    apt-get -qq satisfy -y --no-install-recommends "$depends" >/tmp/apt 2>&1 || fail "$depends: $(tail /tmp/apt)"
    apt-get -qq install -y --no-install-recommends g++ libcups2-dev pkg-config fonts-dejavu-core man-db \
        desktop-file-utils shared-mime-info hicolor-icon-theme xvfb xdotool >/tmp/apt 2>&1 || fail "$(tail /tmp/apt)"
    files >/tmp/before
}

installed_versions() {
    # shellcheck disable=SC2016 # dpkg's own placeholders
    dpkg-query -W -f='${Version} ' "${names[@]}"
}

# apt has nobody to ask and no leave to answer by itself: a question ends it.
upgrade() {
    local version
    dpkg -i older/*.deb >/dev/null || fail "the older version cannot be installed"
    [ "$(installed_versions)" = "0.0.1~older 0.0.1~older 0.0.1~older " ] || fail "the older version: $(installed_versions)"
    [ "$(find /usr/share -path '*-older*' -type f | wc -l)" = 6 ] || fail "the older version has not its files"
    apt-get -q install -y --no-install-recommends ./tessarin-print_*.deb ./tessarin-panel_*.deb \
        ./tessarin-panel-dev_*.deb </dev/null >/tmp/apt 2>&1 ||
        fail "upgrading: $(tail /tmp/apt)"
    version=$(dpkg-deb -f ./tessarin-print_*.deb Version)
    [ "$(installed_versions)" = "$version $version $version " ] || fail "not upgraded: $(installed_versions)$(tail /tmp/apt)"
    [ -z "$(find / -xdev -path "$PWD" -prune -o -name '*-older*' -print)" ] || fail "files of the older version are left"
    [ -z "$(dpkg --audit; dpkg --verify "${names[@]}")" ] || fail "damaged: $(dpkg --verify "${names[@]}")"
    # shellcheck disable=SC2016
    [ -z "$(dpkg-query -W -f='${Conffiles}' "${names[@]}")" ] || fail "there are configuration files to ask about"
    newer_than /tmp/before >/tmp/installed
}

# What the desktop and the manual find: the programs' pages in other languages, the icon, and the dialog among the
# programs for PDF files.
look_around() {
    local program page icon
    for program in tessarin-print tessarin-replay tessarin-inkdata tessarin-settings; do
        page=$(man -L de -w "$program") || fail "no manual page $program"
        [[ $page == */man/de/* ]] || fail "the manual page in German is $page"
        man "$page" | grep -q BESCHREIBUNG || fail "$page is not in German"
    done
    icon=$(sed -n 's/^Icon=//p' /usr/share/applications/org.tessarin.Print.desktop)
    [ -s "/usr/share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "no icon $icon"
    grep -q '^application/pdf=.*org.tessarin.Print.desktop;' /usr/share/applications/mimeinfo.cache ||
        fail "no program for PDF files: $(cat /usr/share/applications/mimeinfo.cache)"
}

use_without_display() {
    local example=/usr/share/doc/tessarin-panel-dev/examples/minimal_host.cpp bundle
    export QT_QPA_PLATFORM=offscreen
    tessarin-print --sample --log none --pictures /tmp/pages >/tmp/options 2>/tmp/errors || fail "$(cat /tmp/errors)"
    [ "$(grep -c "^vorn" /tmp/options)" = 31 ] || fail "options: $(cat /tmp/options)"
    [ "$(find /tmp/pages -name "*.png" -size +12k | wc -l)" = 6 ] || fail "pictures: $(ls -l /tmp/pages)"
    tessarin-print --sample --log none --language de --summary | grep -q "^Medientyp: " || fail "no German"
    echo '{"do":"panels"}' | tessarin-replay --quiet-log --ppd $sample | grep -q '"value":1' || fail "tessarin-replay"
    tessarin-inkdata --help >/dev/null || fail "tessarin-inkdata"
    # shellcheck disable=SC2046 # several flags
    g++ -std=c++20 -w -fPIC -I/usr/include/tessarin -o /tmp/host "$example" \
        $(pkg-config --cflags --libs Qt6Widgets) -lcups 2>/tmp/errors || fail "a host does not compile: $(cat /tmp/errors)"
    bundle=$(echo /usr/lib/*/tessarin/TessarinPDE.bundle)
    [ "$(/tmp/host "$bundle" $sample --save 2>/dev/null | grep -c "^vorn")" = 31 ] || fail "the host shows no panel"
}

window() { # the dialog's, by its title in German
    xdotool search --onlyvisible --name '^Drucken' 2>/dev/null | tail -n 1
}

write_pdf() { # file: one empty page
    printf '%s\n' '%PDF-1.4' '1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj' \
        '2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj' \
        '3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 200]>>endobj' 'trailer<</Root 1 0 R>>' >"$1"
}

wait_until() { # what, command...
    local what=$1 i
    shift
    for ((i = 0; i < 600; i++)); do
        ! "$@" || return 0
        kill -0 "$dialog" 2>/dev/null || fail "the dialog ended: $(cat /tmp/errors)"
        sleep 0.2
    done
    fail "$what: $(cat /tmp/errors)"
}

has_window() {
    [ -n "$(window)" ]
}

# The reader of PDF files comes with the first of them, if all that it needs is there.
has_pdf_reader() {
    grep -q '/libtessarin-pdf\.so$' "/proc/$dialog/maps"
}

use_with_display() {
    local dialog number status=0 i
    mkfifo /tmp/display
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>/tmp/display >/tmp/xvfb 2>&1 &
    read -r -t 60 number </tmp/display || fail "the virtual display did not start: $(cat /tmp/xvfb)"
    export DISPLAY=:$number QT_QPA_PLATFORM=xcb
    write_pdf /tmp/page.pdf
    tessarin-print --sample --log none --language de /tmp/page.pdf >/tmp/options 2>/tmp/errors &
    dialog=$!
    wait_until "no window appears" has_window
    wait_until "no PDF file can be read" has_pdf_reader
    # It may take the key only once it is painted.
    for ((i = 0; i < 60; i++)); do
        xdotool windowfocus "$(window)" key Escape 2>/dev/null || true
        sleep 1
        kill -0 $dialog 2>/dev/null || break
    done
    wait $dialog || status=$?
    [ $status = 1 ] || fail "the dialog, cancelled, ended with status $status: $(cat /tmp/errors)"
}

clean_up() {
    local step
    dpkg -i ./tessarin-print_*.deb ./tessarin-panel_*.deb >/dev/null || fail "installing over itself"
    for step in --remove --purge; do
        dpkg $step "${names[@]}" >/tmp/removed 2>&1 || fail "dpkg $step: $(cat /tmp/removed)"
        newer_than /tmp/before >/tmp/left
        [ ! -s /tmp/left ] || fail "dpkg $step leaves: $(cat /tmp/left)"
    done
}

prepare
upgrade
look_around
use_without_display
use_with_display
clean_up
echo "packages: $(wc -l </tmp/installed) files upgraded, used and removed"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What desktops and software centres read, as it is installed: the desktop entry and the description are valid, in every
# language, and name each other, the icon, the program and its present version.
#
#   desktop_test.sh <cmake> <install script of packaging/> <version>
set -euo pipefail
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
export LC_ALL=C.UTF-8
status=0
problem() {
    echo "FAILED: $*"
    status=1
}
"$1" -DCMAKE_INSTALL_PREFIX="$prefix" -P "$2" >/dev/null
name=org.tessarin.Print
entry=$prefix/share/applications/$name.desktop
description=$prefix/share/metainfo/$name.metainfo.xml

value() { # key of the entry
    sed -n "s/^$1=//p" "$entry"
}

said=$(desktop-file-validate --no-hints "$entry" 2>&1) && [ -z "$said" ] || problem "$entry: $said"
said=$(appstreamcli validate --no-net --no-color --strict "$description" 2>&1) || problem "$description: $said"
[ "$(value Exec)" = "tessarin-print %F" ] || problem "Exec is $(value Exec)"
icon=$prefix/share/icons/hicolor/scalable/apps/$(value Icon).svg
[ -s "$icon" ] || problem "there is no icon $icon"
grep -qF "<launchable type=\"desktop-id\">$name.desktop<" "$description" || problem "the description starts something else"
grep -qF "<name>$(value Name)<" "$description" || problem "the description has another name than $(value Name)"
grep -qF "<release version=\"$3\"" "$description" || problem "the description does not know version $3"
for key in Name GenericName Comment Keywords; do
    for language in de es fr it ja nl pl pt_BR zh_CN; do
        [ -n "$(value "$key\[$language\]")" ] || problem "no $key in $language"
    done
done
[ $status = 0 ] && echo "passed"
exit $status

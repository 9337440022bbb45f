# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Which files the checks look at, to be sourced in the root of the tree. Works in an unpacked archive too, and in a
# checkout that belongs to somebody else, where git answers nothing.

# sources <find expression>...: the C++ files of all rooms, generated ones left out.
sources() {
    find . -mindepth 2 \( -path './build*' -o -path './.*' \) -prune -o \
        -type f \( -name '*.cpp' -o -name '*.h' \) "$@" -printf '%P\n' | sort
}

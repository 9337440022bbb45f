# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The Debian packages that the project needs, to be sourced: one list for building and running, one for testing, one
# for fuzzing.

build_packages=(
    cmake ninja-build g++
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev libgl-dev libvulkan-dev
    libqt6gui6 qt6-qpa-plugins fonts-dejavu-core
    libcups2-dev zlib1g-dev pkgconf libpoppler-qt6-dev
)
test_packages=(
    libgtest-dev libgmock-dev
    xvfb xdotool xauth
    cups cups-client
    clang-format clang-tidy clang-tools libclang-rt-14-dev
)
fuzz_packages=(clang)

# missing_packages <package>...: those that are not installed, one a line. Asks the local database only.
missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || echo "$package"
    done
}

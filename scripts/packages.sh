# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The Debian packages that the project needs, to be sourced: those for building and running, for the tests, for the
# checks of the sources, for Debian packages, and for fuzzing.

build_packages=(
    cmake ninja-build g++
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev libgl-dev libvulkan-dev
    libqt6gui6 qt6-qpa-plugins qt6-translations-l10n fonts-dejavu-core
    libcups2-dev zlib1g-dev pkgconf libpoppler-qt6-dev
)
test_packages=(
    libgtest-dev libgmock-dev libbenchmark-dev
    xvfb xdotool xauth fonts-droid-fallback weston qt6-wayland
    cups cups-client ghostscript man-db desktop-file-utils appstream
    at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
)
check_packages=(clang-format clang-tidy debootstrap valgrind)
package_packages=(debhelper debootstrap dpkg-dev fakeroot lintian)
fuzz_packages=(clang llvm libclang-rt-14-dev)

# missing_packages <package>...: those that are not installed, one a line. Asks the local database only.
missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || echo "$package"
    done
}

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The kinds of themes that desktops have.

#ifndef TESSARIN_TESTS_SCREENS_THEMES_H
#define TESSARIN_TESTS_SCREENS_THEMES_H

#include <QPalette>

#include <ostream>

namespace tessarin::test {

struct Theme {
    const char *name;
    QRgb window;
    QRgb base;
    QRgb text;
    QRgb highlight;
    QRgb highlightedText;
};

inline void PrintTo(const Theme &theme, std::ostream *out)
{
    *out << theme.name;
}

inline constexpr Theme kThemes[] = {
    {"Light", 0xFFEFEFEF, 0xFFFFFFFF, 0xFF000000, 0xFF1F6FA8, 0xFFFFFFFF},
    {"Dark", 0xFF323232, 0xFF232323, 0xFFF0F0F0, 0xFF2A82DA, 0xFF000000},
    {"HighContrast", 0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFF1AEBFF, 0xFF000000},
    {"HighContrastWhite", 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000, 0xFF37006E, 0xFFFFFFFF},
};

inline constexpr const Theme &kBlackTheme = kThemes[2];

/// As desktops do, this names the usual colours and leaves the rest (hints, links) to Qt.
QPalette paletteOf(const Theme &theme);

} // namespace tessarin::test

#endif

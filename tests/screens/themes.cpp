// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/screens/themes.h"

namespace tessarin::test {

QPalette paletteOf(const Theme &theme)
{
    QPalette palette;
    const QColor text = QColor::fromRgb(theme.text);
    const QColor window = QColor::fromRgb(theme.window);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    }
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::Base, QColor::fromRgb(theme.base));
    palette.setColor(QPalette::AlternateBase, QColor::fromRgb(theme.base));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(theme.highlight));
    palette.setColor(QPalette::HighlightedText, QColor::fromRgb(theme.highlightedText));
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128)); // what Qt 6.4 has where a theme says nothing
    return palette;
}

} // namespace tessarin::test

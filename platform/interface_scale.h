// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Fixed places for larger fonts: an interface file is drawn for one font, and a person may have chosen another.

#ifndef TESSARIN_PLATFORM_INTERFACE_SCALE_H
#define TESSARIN_PLATFORM_INTERFACE_SCALE_H

#include <QFont>
#include <QWidget>

namespace tessarin {

/// How much more room texts need than in the font that interface files are drawn for.
struct InterfaceScale {
    qreal across = 1; ///< of widths: 1 or more
    qreal down = 1;   ///< of heights: 1 or more

    bool isOne() const { return across <= 1 && down <= 1; }
};

/// The scale for a font: exactly 1 for the font of interface files (DejaVu Sans, 9 points at 96 dots per inch) and
/// for smaller ones, else the next sixteenth.
InterfaceScale interfaceScale(const QFont &font);

/// Scales places, sizes, and least and largest sizes of the views below `root`, and the size of `root` itself.
/// Where a layout gives places, it keeps giving them. Pictures keep their proportions. Does nothing for a scale
/// of 1.
void scaleInterface(QWidget *root, const InterfaceScale &scale);

} // namespace tessarin

#endif

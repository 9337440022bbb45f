// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Colours that stay legible in every theme: light, dark and of high contrast.

#ifndef TESSARIN_HOST_THEME_H
#define TESSARIN_HOST_THEME_H

#include <QColor>
#include <QObject>
#include <QPalette>

namespace tessarin::host {

inline constexpr double kTextContrast = 4.5;  ///< the least for texts, by WCAG 2
inline constexpr double kShapeContrast = 3.0; ///< the least for pictures that mean something, by WCAG 2

/// The contrast of two opaque colours by WCAG 2: 1 (the same) to 21 (black and white).
double contrast(const QColor &one, const QColor &other);

/// `wanted`, or `otherwise` when its contrast with the ground is below `least`. What is transparent counts as it
/// looks on the ground.
QColor legibleColor(const QColor &wanted, const QColor &ground, const QColor &otherwise, double least);

/// A colour for hints in empty lines of input: paler than the palette's text, yet legible on its base.
QColor placeholderColor(const QPalette &palette);

/// Mends what a theme leaves out, again after each change of the theme, as long as this object is there.
class ThemeKeeper : public QObject {
protected:
    ThemeKeeper();

    bool eventFilter(QObject *watched, QEvent *event) final;

    /// Called after a change of the application's colours.
    virtual void mend() = 0;
};

/// Gives the application's hints such a colour. Some themes name all colours but this one, and Qt's own is then
/// black, whatever the ground.
class PlaceholderKeeper final : public ThemeKeeper {
public:
    PlaceholderKeeper();

private:
    void mend() override;
};

} // namespace tessarin::host

#endif

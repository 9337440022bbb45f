// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Edges of controls for themes of high contrast, and marks of what has the focus of the keyboard.

#ifndef TESSARIN_HOST_EDGE_STYLE_H
#define TESSARIN_HOST_EDGE_STYLE_H

#include "host/theme.h"

#include <QPalette>
#include <QProxyStyle>

namespace tessarin::host {

/// The desktop's style with what it leaves out. In themes of high contrast edges have the colour of texts: Qt's own
/// style makes them a little darker than the window, and on black an empty check box is not to be seen. In every
/// theme a line within shows that a default button or a selected row has the focus of the keyboard.
class EdgeStyle final : public QProxyStyle {
public:
    /// True for themes in which edges would vanish.
    static bool isNeeded(const QPalette &palette);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

private:
    static void drawEdges(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget);
    void drawSlider(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
};

/// Sets this style in place of Qt's own at once, and of another as soon as the application's colours need it, at
/// the start or when the theme changes.
class EdgeKeeper final : public ThemeKeeper {
public:
    EdgeKeeper();

private:
    void mend() override;

    bool isSet_ = false;
};

} // namespace tessarin::host

#endif

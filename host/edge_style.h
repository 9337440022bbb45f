// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Edges of controls for themes of high contrast.

#ifndef TESSARIN_HOST_EDGE_STYLE_H
#define TESSARIN_HOST_EDGE_STYLE_H

#include <QPalette>
#include <QProxyStyle>

namespace tessarin::host {

/// The desktop's style, with edges drawn in the colour of texts. Qt's own style makes edges a little darker than
/// the window: on black there are none, and an empty check box is not to be seen.
class EdgeStyle final : public QProxyStyle {
public:
    /// True for themes in which edges would vanish.
    static bool isNeeded(const QPalette &palette);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

private:
    void drawSlider(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
};

} // namespace tessarin::host

#endif

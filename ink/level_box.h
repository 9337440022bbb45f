// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The bar of an ink row.

#ifndef TESSARIN_INK_LEVEL_BOX_H
#define TESSARIN_INK_LEVEL_BOX_H

#include "platform/level_view.h"

namespace tessarin {

/// The tag that every new bar has, until enumLevelBoxes() numbers the bars of a box.
inline constexpr qintptr kNewLevelBoxTag = 3011;

/// A bar in the ink's colour on a white ground with a bevelled frame. The ground is white in every theme, since it
/// stands for paper.
class LevelBox : public LevelView {
    Q_OBJECT

public:
    explicit LevelBox(QWidget *parent = nullptr);

    void setLevel(int level) override;
    int level() const override { return level_; }
    void setColor(const QColor &color) override;
    QColor color() const override { return color_; }
    qintptr tag() const override { return mytag_; }
    void setTag(qintptr tag) override { mytag_ = tag; }
    /// A bar paints all of its area.
    bool isOpaque() const { return true; }

protected:
    void paintEvent(QPaintEvent *event) override;
    /// The bar swallows the click.
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QColor color_;   ///< fill colour
    int level_ = 50; ///< percent of the inner width, not limited
    qintptr mytag_ = kNewLevelBoxTag;
};

} // namespace tessarin

#endif

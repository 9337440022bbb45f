// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/level_box.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace tessarin {

namespace {

constexpr float kTopGrey = 0.64F;
constexpr float kSideGrey = 0.85F;

QColor grey(float value)
{
    return QColor::fromRgbF(value, value, value);
}

} // namespace

LevelBox::LevelBox(QWidget *parent) : LevelView(parent), color_(QColor::fromRgbF(1.0F, 0.0F, 1.0F, 1.0F))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LevelBox::setLevel(int level)
{
    level_ = level;
    update();
    const bool isShown = level >= 0 && !isHidden(); // not so the rows without a channel
    if (isShown && QAccessible::isActive()) {       // else the toolkit would look for what nobody reads
        QAccessibleValueChangeEvent change(this, std::min(level, 100));
        QAccessible::updateAccessibility(&change);
    }
}

void LevelBox::setColor(const QColor &color)
{
    color_ = color;
    update();
}

void LevelBox::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setClipRect(event->rect());
    // One slice after the other is cut from what is left: both upper corners belong to the top.
    QRect inner = rect();
    painter.fillRect(QRect(inner.left(), inner.top(), inner.width(), 1), grey(kTopGrey));
    inner.adjust(0, 1, 0, 0);
    painter.fillRect(QRect(inner.right(), inner.top(), 1, inner.height()), grey(kSideGrey));
    inner.adjust(0, 0, -1, 0);
    painter.fillRect(QRect(inner.left(), inner.bottom(), inner.width(), 1), grey(kSideGrey));
    inner.adjust(0, 0, 0, -1);
    painter.fillRect(QRect(inner.left(), inner.top(), 1, inner.height()), grey(kSideGrey));
    inner.adjust(1, 0, 0, 0);

    painter.fillRect(inner, Qt::white);
    const float width = static_cast<float>(level_) * static_cast<float>(inner.width()) / 100.0F;
    if (width > 0.0F) {
        painter.fillRect(QRectF(inner.left(), inner.top(), static_cast<qreal>(width), inner.height()), color_);
    }
}

void LevelBox::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/turn_bar.h"

#include "printing/text.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace tessarin::host {

namespace {

constexpr int kIconSize = 16;
constexpr double kIconRatio = 2; // drawn for screens of twice the density too

/// A triangle that points to the way that a button turns; with a bar, to the end of it.
QPixmap arrow(const QColor &colour, bool hasBar, bool pointsLeft)
{
    QPixmap pixmap(QSize(kIconSize, kIconSize) * kIconRatio);
    pixmap.setDevicePixelRatio(kIconRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    if (pointsLeft) {
        painter.translate(kIconSize, 0);
        painter.scale(-1, 1);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF({QPointF(5, 3), QPointF(11, 8), QPointF(5, 13)}));
    if (hasBar) {
        painter.drawRect(QRectF(11, 3, 2, 10));
    }
    return pixmap;
}

} // namespace

TurnBar::TurnBar(QWidget *parent)
    : QWidget(parent), first_(addButton(Turn::First, "firstPage", TessarinPrint::tr("First page"))),
      previous_(addButton(Turn::Previous, "previousPage", TessarinPrint::tr("Previous page"))),
      position_(new QLabel(this)), next_(addButton(Turn::Next, "nextPage", TessarinPrint::tr("Next page"))),
      last_(addButton(Turn::Last, "lastPage", TessarinPrint::tr("Last page")))
{
    position_->setObjectName(QStringLiteral("previewPosition"));
    position_->setTextFormat(Qt::PlainText);
    position_->setAlignment(Qt::AlignCenter);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addStretch(1);
    row->addWidget(first_);
    row->addWidget(previous_);
    row->addWidget(position_);
    row->addWidget(next_);
    row->addWidget(last_);
    row->addStretch(1);
    drawIcons();
}

void TurnBar::setPosition(int sheet, int sheets, const QString &text)
{
    position_->setText(text);
    first_->setEnabled(sheet > 0);
    previous_->setEnabled(sheet > 0);
    next_->setEnabled(sheet + 1 < sheets);
    last_->setEnabled(sheet + 1 < sheets);
}

QToolButton *TurnBar::addButton(Turn turn, const char *name, const QString &text)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setAutoRepeat(turn == Turn::Previous || turn == Turn::Next);
    button->setIconSize(QSize(kIconSize, kIconSize));
    button->setToolTip(text);
    button->setAccessibleName(text);
    connect(button, &QToolButton::clicked, this, [this, turn] { emit turned(turn); });
    return button;
}

QIcon TurnBar::icon(Turn turn) const
{
    const bool hasBar = turn == Turn::First || turn == Turn::Last;
    const bool goesBack = turn == Turn::First || turn == Turn::Previous;
    const bool pointsLeft = goesBack != isRightToLeft();
    QIcon result;
    result.addPixmap(arrow(palette().color(QPalette::Active, QPalette::ButtonText), hasBar, pointsLeft));
    result.addPixmap(arrow(palette().color(QPalette::Disabled, QPalette::ButtonText), hasBar, pointsLeft),
                     QIcon::Disabled);
    return result;
}

void TurnBar::drawIcons()
{
    first_->setIcon(icon(Turn::First));
    previous_->setIcon(icon(Turn::Previous));
    next_->setIcon(icon(Turn::Next));
    last_->setIcon(icon(Turn::Last));
}

void TurnBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LayoutDirectionChange ||
        event->type() == QEvent::StyleChange) {
        drawIcons();
    }
    QWidget::changeEvent(event);
}

} // namespace tessarin::host

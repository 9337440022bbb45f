// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/printer_header.h"

#include "host/printer_icon.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace tessarin::host {

namespace {

constexpr int kPictureSize = 32;
constexpr int kLeastCharacters = 12; // of a line that is being cut

} // namespace

LineLabel::LineLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

QSize LineLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {qMin(whole.width(), fontMetrics().averageCharWidth() * kLeastCharacters), whole.height()};
}

void LineLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    setToolTip(shown == text() ? QString() : text().toHtmlEscaped());
    style()->drawItemText(&painter, rect(), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, palette(),
                          isEnabled(), shown, foregroundRole());
}

PrinterHeader::PrinterHeader(const QString &name, const QString &detail, QWidget *parent)
    : QWidget(parent), picture_(new QLabel(this))
{
    auto *title = new LineLabel(name, this);
    title->setObjectName(QStringLiteral("printerName"));
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    title->setFont(font);
    auto *second = new LineLabel(detail, this);
    second->setObjectName(QStringLiteral("printerDetail"));

    auto *lines = new QVBoxLayout;
    lines->setSpacing(0);
    lines->addStretch();
    lines->addWidget(title);
    lines->addWidget(second);
    lines->addStretch();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(picture_);
    row->addLayout(lines, 1);
    draw();
}

void PrinterHeader::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        draw();
    }
}

void PrinterHeader::draw()
{
    picture_->setPixmap(printerPicture(kPictureSize, devicePixelRatioF(), palette()));
}

} // namespace tessarin::host

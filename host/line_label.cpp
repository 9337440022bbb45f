// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/line_label.h"

#include "host/plain_text.h"

#include <QPainter>
#include <QStyle>

namespace tessarin::host {

namespace {

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
    setToolTip(shown == text() ? QString() : plainToolTip(text()));
    style()->drawItemText(&painter, rect(), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, palette(),
                          isEnabled(), shown, foregroundRole());
}

} // namespace tessarin::host

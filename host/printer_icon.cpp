// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/printer_icon.h"

#include <QPainter>
#include <QPen>

#include <cmath>

namespace tessarin::host {

namespace {

constexpr double kGrid = 24.0; // the drawing's own units from edge to edge

} // namespace

QPixmap printerPicture(int size, double ratio, const QPalette &palette)
{
    const int pixels = static_cast<int>(std::ceil(size * ratio));
    QPixmap picture(pixels, pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / kGrid, pixels / kGrid);

    const QColor line = palette.color(QPalette::WindowText);
    painter.setPen(QPen(line, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(palette.brush(QPalette::Base));
    painter.drawRoundedRect(QRectF(6.5, 2.5, 11, 9), 1, 1); // paper going in
    painter.setBrush(palette.brush(QPalette::Button));
    painter.drawRoundedRect(QRectF(2.5, 8.5, 19, 9), 2, 2); // body
    painter.setBrush(palette.brush(QPalette::Base));
    painter.drawRoundedRect(QRectF(6.5, 14, 11, 7.5), 1, 1); // paper coming out
    painter.drawLine(QPointF(9, 17), QPointF(15, 17));
    painter.drawLine(QPointF(9, 19.2), QPointF(13, 19.2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.brush(QPalette::Highlight));
    painter.drawEllipse(QPointF(18.3, 11.5), 1.1, 1.1); // ready light
    painter.end();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

} // namespace tessarin::host

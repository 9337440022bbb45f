// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_formats.h"
#include "preview/page_source.h"
#include "printing/text.h"

#include <QFileInfo>
#include <QRectF>

namespace tessarin::host {

OpenedPages cannotShow(const QString &path, const QString &why)
{
    return OpenedPages::failed(TessarinPrint::tr("%1: %2").arg(QFileInfo(path).fileName(), why));
}

QRectF fitted(const QSizeF &size, const QRectF &room)
{
    const QSizeF scaled = size.scaled(room.size(), Qt::KeepAspectRatio);
    return {room.center() - QPointF(scaled.width() / 2, scaled.height() / 2), scaled};
}

QSize fittedPixels(const QSizeF &size, const QSize &room)
{
    if (size.isEmpty() || room.isEmpty()) {
        return {};
    }
    return size.scaled(QSizeF(room), Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1)).boundedTo(room);
}

} // namespace tessarin::host

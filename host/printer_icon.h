// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The picture of a printer at the head of the dialog.

#ifndef TESSARIN_HOST_PRINTER_ICON_H
#define TESSARIN_HOST_PRINTER_ICON_H

#include <QPalette>
#include <QPixmap>

namespace tessarin::host {

/// A line drawing of a printer in the palette's text colour, so that it suits light and dark desktops and needs no
/// icon theme. `size` is its edge in device-independent pixels, `ratio` the device's pixels per such pixel.
QPixmap printerPicture(int size, double ratio, const QPalette &palette);

} // namespace tessarin::host

#endif

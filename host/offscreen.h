// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog without a screen: pictures of its pages in place of a window.

#ifndef TESSARIN_HOST_OFFSCREEN_H
#define TESSARIN_HOST_OFFSCREEN_H

#include "host/dialog.h"
#include "printing/outcome.h"

#include <QString>
#include <QStringList>

namespace tessarin::host {

/// True when nothing in the environment or among the arguments names a display or a platform to draw on. To be
/// asked before the application object is made.
bool displayIsMissing(int argc, const char *const *argv);

/// Makes Qt draw without a display. To be called before the application object is made.
void chooseOffscreenPlatform();

/// Where pictures go when the user names no folder.
QString defaultPicturesDirectory();

/// What came of taking pictures.
struct Pictures {
    QStringList files{}; ///< in the order of the pages
    QStringList notes{}; ///< pages that were passed over, and why
};

/// Saves a PNG picture of the dialog for each page of the panel's tab widget in `directory`, which is made when it
/// does not exist: "tessarin-page-1-General.png" and so on. Without tab widget it is one, "tessarin-dialog.png".
/// The dialog is laid out whole, whatever the screen, and not shown. The reason of a failure names the file or
/// folder.
Outcome<Pictures> savePictures(PrintDialog &dialog, const QString &directory);

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the programs find what was installed with them: relative to their own folder, so that a build tree, an
// installed prefix and a moved prefix all work.

#ifndef TESSARIN_HOST_INSTALLATION_H
#define TESSARIN_HOST_INSTALLATION_H

#include <QString>

namespace tessarin::host {

/// The PPD of the sample printer.
QString samplePpdPath();
/// The PPD of the PDF files that Print can write.
QString pdfPpdPath();

/// The folder of the dialog's translations.
QString translationsDirectory();
/// The folder of the panel's bundle: `asked` (the command line's) when not empty, else the environment variable
/// TESSARIN_BUNDLE when set to something, else the bundle that was installed with this program.
QString bundleDirectory(const QString &asked);

} // namespace tessarin::host

#endif

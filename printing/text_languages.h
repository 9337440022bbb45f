// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The languages in which the texts of others, such as a printer's, are wanted.

#ifndef TESSARIN_PRINTING_TEXT_LANGUAGES_H
#define TESSARIN_PRINTING_TEXT_LANGUAGES_H

#include <QString>
#include <QStringList>

namespace tessarin::host {

/// The languages as PPDs name them, best first: "de_AT" and then "de".
QStringList textLanguages();

/// Makes it this language, such as "de", in place of the environment's; an empty one takes that back. Not while
/// other threads open printers.
void setTextLanguage(const QString &code);

} // namespace tessarin::host

#endif

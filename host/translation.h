// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The language that the program speaks: its own texts, the toolkit's and the printer's.

#ifndef TESSARIN_HOST_TRANSLATION_H
#define TESSARIN_HOST_TRANSLATION_H

#include "platform/translation_file.h"

#include <QString>
#include <QTranslator>

namespace tessarin::host {

/// The value of --language among the arguments, whatever the others are; empty when it is not there.
QString askedLanguage(int argc, const char *const *argv);

/// Makes the program speak a language as long as this object is there.
class Translation {
public:
    /// `language`: a code such as "de" or "pt_BR"; empty for the first of the environment's languages that there
    /// is. English where there is no translation. To be made when there is an application, before any text is
    /// shown and any printer opened.
    explicit Translation(const QString &language);
    ~Translation();
    Translation(const Translation &) = delete;
    Translation &operator=(const Translation &) = delete;

private:
    TranslationFile english_{}; ///< its plural forms
    QTranslator toolkit_{};
    TranslationFile program_{};
};

} // namespace tessarin::host

#endif

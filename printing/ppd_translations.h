// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A PPD's texts in the user's languages. The PPD keeps them under the language and the keyword:
// "*de.MediaType Plain/Normalpapier: """.
//
// libcups takes in the lines of one language alone, that of the environment, whatever --language says, and leaves
// the others out of the open PPD. It could also put the translations in place of the open PPD's own texts; then the
// panel, which reads the same, would find other texts there than it knows.

#ifndef TESSARIN_PRINTING_PPD_TRANSLATIONS_H
#define TESSARIN_PRINTING_PPD_TRANSLATIONS_H

#include "cups/ppd_library.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace tessarin::host {

class PpdTranslations {
public:
    PpdTranslations() = default;
    /// Those of the PPD file at `path`, open as `ppd`, in textLanguages(). What cannot be read is left out.
    PpdTranslations(ppd_file_t &ppd, const QString &path);

    /// A text of the same PPD, for ppdText(); empty when there is none in the user's languages. `keyword`: an
    /// option's for its choices, "Translation" for options and groups.
    QByteArray text(ppd_file_t *ppd, const char *keyword, const char *name) const;

private:
    void read(const QString &path);
    void take(const QByteArray &line);

    QStringList languages_{};
    QHash<QByteArray, QByteArray> texts_{}; ///< by "de.MediaType Plain"
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The plug-in's bundle on disk.
//
// A bundle is a directory with "bundle.json" (its metadata), the plug-in library, the interface files and a folder
// "translations" of compiled translations, one per language, whose texts are looked up by their English text.

#ifndef TESSARIN_PLATFORM_BUNDLE_H
#define TESSARIN_PLATFORM_BUNDLE_H

#include "pde/print_dialog_extension.h"
#include "platform/translation_file.h"

#include <QString>

#include <memory>

namespace tessarin {

/// The context under which all texts of the bundle are translated.
inline constexpr char kTranslationContext[] = "TessarinPDE";

/// A bundle opened from its directory.
class DirectoryBundle : public pde::Bundle {
public:
    /// Opens the bundle in `directory`. `language`: a language code ("de", "pt_BR") that the bundle must have; "en"
    /// for the texts as written; empty for the best match of the environment's languages. On failure null, with
    /// file and reason in `reason`.
    static std::shared_ptr<DirectoryBundle> open(const QString &directory, const QString &language,
                                                 QString *reason);

    QString identifier() const override { return identifier_; }
    QString localizedString(const QString &key) const override;

    const QString &directory() const { return directory_; }
    /// The path of the interface file with the given name (without ending), whether or not it exists.
    QString interfacePath(const QString &name) const;

private:
    DirectoryBundle(QString directory, QString identifier);
    bool loadLanguage(const QString &language, QString *reason);
    bool loadTranslation(const QString &code);

    QString directory_;
    QString identifier_;
    TranslationFile translation_; ///< asked by key only, never installed: a host's own do not interfere
};

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which languages are asked for, and a compiled translation of an installation, checked before it is believed.
// Panel and dialog have their texts in such files, each its own.

#ifndef TESSARIN_PLATFORM_TRANSLATION_FILE_H
#define TESSARIN_PLATFORM_TRANSLATION_FILE_H

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace tessarin {

/// The codes of translations that suit a locale's languages, best first; none behind English, in which the texts
/// are written.
inline QStringList translationCodes(const QLocale &locale)
{
    QStringList codes;
    const QStringList wanted = locale.uiLanguages();
    for (const QString &tag : wanted) {
        // A tag may leave out its country ("pt" of Brazil): the translation for the country comes first.
        const QString full = QLocale(tag).name();
        const QString plain = full.section(QLatin1Char('_'), 0, 0);
        if (plain == QLatin1String("en") || plain == QLatin1String("C")) {
            break;
        }
        codes << full << plain;
    }
    codes.removeDuplicates();
    return codes;
}

/// A translation and the file's bytes, which the translator reads where they lie.
class TranslationFile {
public:
    /// Loads a file. False when there is none, or it is not what was installed: a translator follows the lengths in
    /// it wherever they lead, so that one wrong byte could end the program. The sum is in a file of the same name
    /// with ".sha256" behind it; a translation that somebody adds comes without one.
    bool load(const QString &path)
    {
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
            return false;
        }
        const QByteArray content = file.readAll();
        if (isDamaged(content, path + QStringLiteral(".sha256"))) {
            return false;
        }
        content_ = content;
        return translator_.load(reinterpret_cast<const uchar *>(content_.constData()),
                                static_cast<int>(content_.size()));
    }

    QTranslator &translator() { return translator_; }
    const QTranslator &translator() const { return translator_; }

private:
    static bool isDamaged(const QByteArray &content, const QString &sumPath)
    {
        constexpr qint64 kDigits = 64;
        QFile sum(sumPath);
        return QFileInfo(sumPath).isFile() && sum.open(QIODevice::ReadOnly) &&
               sum.read(kDigits) != QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    }

    QByteArray content_{};
    QTranslator translator_{};
};

} // namespace tessarin

#endif

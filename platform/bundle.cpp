// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/bundle.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <utility>

namespace tessarin {

namespace {

/// Whether a translation is not what was installed. The translator follows the lengths in it wherever they lead, so
/// that one wrong byte could end the host. One that somebody adds comes without a sum.
bool isDamaged(const QByteArray &content, const QString &sumPath)
{
    constexpr qint64 kDigits = 64;
    QFile sum(sumPath);
    return QFileInfo(sumPath).isFile() && sum.open(QIODevice::ReadOnly) &&
           sum.read(kDigits) != QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

} // namespace

DirectoryBundle::DirectoryBundle(QString directory, QString identifier)
    : directory_(std::move(directory)), identifier_(std::move(identifier))
{}

std::shared_ptr<DirectoryBundle> DirectoryBundle::open(const QString &directory, const QString &language,
                                                       QString *reason)
{
    const QString path = QDir(directory).filePath(QStringLiteral("bundle.json"));
    const QFileInfo info(path);
    QFile file(path);
    const bool special = info.exists() && !info.isFile();
    if (special || !file.open(QIODevice::ReadOnly)) {
        *reason =
            path + QStringLiteral(": ") + (special ? QStringLiteral("not a regular file") : file.errorString());
        return nullptr;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    const QString identifier = document.object().value(QStringLiteral("identifier")).toString();
    if (identifier.isEmpty()) {
        *reason = path + QStringLiteral(": ") +
                  (error.error != QJsonParseError::NoError ? error.errorString()
                                                           : QStringLiteral("no \"identifier\" in it"));
        return nullptr;
    }
    std::shared_ptr<DirectoryBundle> bundle(new DirectoryBundle(directory, identifier));
    return bundle->loadLanguage(language, reason) ? bundle : nullptr;
}

bool DirectoryBundle::loadTranslation(const QString &code)
{
    const QString path = QDir(directory_).filePath(QStringLiteral("translations/TessarinPDE_%1.qm").arg(code));
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray content = file.readAll();
    if (isDamaged(content, path + QStringLiteral(".sha256"))) {
        return false;
    }
    translation_ = content;
    return translator_.load(reinterpret_cast<const uchar *>(translation_.constData()),
                            static_cast<int>(translation_.size()));
}

bool DirectoryBundle::loadLanguage(const QString &language, QString *reason)
{
    const QString english = QStringLiteral("en");
    if (language == english) {
        return true;
    }
    if (!language.isEmpty()) {
        const bool plain = !language.contains(QLatin1Char('/')) && !language.contains(QLatin1Char('.'));
        if (plain && loadTranslation(language)) {
            return true;
        }
        *reason = QStringLiteral("%1: no translation into \"%2\"").arg(directory_, language);
        return false;
    }
    const QStringList wanted = QLocale().uiLanguages();
    for (const QString &tag : wanted) {
        // A tag may leave out its country ("pt" of Brazil): the translation for the country comes first.
        const QString full = QLocale(tag).name();
        const QString plain = full.section(QLatin1Char('_'), 0, 0);
        if (plain == english || plain == QLatin1String("C") || loadTranslation(full) || loadTranslation(plain)) {
            break;
        }
    }
    return true;
}

QString DirectoryBundle::localizedString(const QString &key) const
{
    const QString translated = translator_.translate(kTranslationContext, key.toUtf8().constData());
    return translated.isEmpty() ? key : translated;
}

QString DirectoryBundle::interfacePath(const QString &name) const
{
    return QDir(directory_).filePath(name + QStringLiteral(".ui"));
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/bundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace tessarin {

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
    return translation_.load(QDir(directory_).filePath(QStringLiteral("translations/TessarinPDE_%1.qm").arg(code)));
}

bool DirectoryBundle::loadLanguage(const QString &language, QString *reason)
{
    if (language == QLatin1String("en")) {
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
    const QStringList codes = translationCodes(QLocale());
    std::any_of(codes.begin(), codes.end(), [this](const QString &code) { return loadTranslation(code); });
    return true;
}

QString DirectoryBundle::localizedString(const QString &key) const
{
    const QString translated = translation_.translator().translate(kTranslationContext, key.toUtf8().constData());
    return translated.isEmpty() ? key : translated;
}

QString DirectoryBundle::interfacePath(const QString &name) const
{
    return QDir(directory_).filePath(name + QStringLiteral(".ui"));
}

} // namespace tessarin

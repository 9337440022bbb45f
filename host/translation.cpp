// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/translation.h"

#include "host/installation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include <string_view>

namespace tessarin::host {

QString askedLanguage(int argc, const char *const *argv)
{
    constexpr std::string_view kOption = "--language";
    QString language;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--") {
            break;
        }
        if (argument == kOption && i + 1 < argc) {
            language = QString::fromLocal8Bit(argv[i + 1]);
        } else if (argument.starts_with(kOption) && argument.substr(kOption.size()).starts_with('=')) {
            language = QString::fromLocal8Bit(argument.substr(kOption.size() + 1));
        }
    }
    return language;
}

Translation::Translation(const QString &language)
{
    const QLocale locale = language.isEmpty() ? QLocale() : QLocale(language);
    const QString name = QStringLiteral("tessarin-print");
    const QString separator = QStringLiteral("_");
    const auto install = [](QTranslator &translator, bool isLoaded) {
        if (isLoaded) {
            QCoreApplication::installTranslator(&translator);
        }
    };
    // The one that is installed last is asked first.
    install(english_, english_.load(name + QStringLiteral("_en"), translationsDirectory()));
    install(toolkit_, toolkit_.load(locale, QStringLiteral("qtbase"), separator,
                                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    install(program_, program_.load(locale, name, separator, translationsDirectory()));
}

Translation::~Translation()
{
    for (QTranslator *translator : {&program_, &toolkit_, &english_}) {
        QCoreApplication::removeTranslator(translator);
    }
}

} // namespace tessarin::host

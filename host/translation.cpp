// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/translation.h"

#include "host/installation.h"
#include "printing/text_languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>
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
    setTextLanguage(language);
    const QLocale locale = language.isEmpty() ? QLocale() : QLocale(language);
    const auto load = [](TranslationFile &file, const QString &code) {
        return file.load(translationsDirectory() + QStringLiteral("/tessarin-print_%1.qm").arg(code));
    };
    const QStringList codes = translationCodes(locale);
    const auto code =
        std::find_if(codes.begin(), codes.end(), [&](const QString &one) { return load(program_, one); });
    // The toolkit's buttons speak the program's language, not another one of the person's that only the toolkit
    // knows.
    const bool toolkit = code != codes.end() && toolkit_.load(QStringLiteral("qtbase_") + *code,
                                                              QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    const auto install = [](QTranslator &translator, bool isLoaded) {
        if (isLoaded) {
            QCoreApplication::installTranslator(&translator);
        }
    };
    // The one that is installed last is asked first.
    install(english_.translator(), load(english_, QStringLiteral("en")));
    install(toolkit_, toolkit);
    install(program_.translator(), code != codes.end());
}

Translation::~Translation()
{
    for (QTranslator *translator : {&program_.translator(), &toolkit_, &english_.translator()}) {
        QCoreApplication::removeTranslator(translator);
    }
    setTextLanguage(QString());
}

} // namespace tessarin::host

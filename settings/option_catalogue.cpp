// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/option_catalogue.h"

#include "printing/text.h"
#include "settings/page_ranges.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>

namespace tessarin::host {

namespace {

constexpr char kSeparatorText[] = "---separator---";
constexpr char kCustom[] = "Custom";

std::optional<QString> fromUtf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

QString textOf(const HostPrinter &printer, const char *keyword, const char *name, const char *text)
{
    if (const QByteArray translated = printer.translations().text(printer.ppd(), keyword, name);
        !translated.isEmpty()) {
        return ppdText(translated.constData());
    }
    QString own = ppdText(text);
    return own.isEmpty() ? QString::fromUtf8(name) : own;
}

QString textOf(const HostPrinter &printer, const ppd_option_t &option)
{
    return textOf(printer, "Translation", option.keyword, option.text);
}

QString textOf(const HostPrinter &printer, const ppd_option_t &option, const ppd_choice_t &choice)
{
    return textOf(printer, option.keyword, choice.choice, choice.text);
}

/// True for a choice that a page can offer as it is.
bool isComplete(ppd_file_t *ppd, const ppd_option_t &option, const ppd_choice_t &choice)
{
    const bool needsValue = qstrcmp(choice.choice, kCustom) == 0 && ppdFindCustomOption(ppd, option.keyword);
    return !needsValue && qstrcmp(choice.choice, kSeparatorText) != 0;
}

CatalogueOption catalogued(const HostPrinter &printer, const ppd_option_t &option)
{
    CatalogueOption result{.key = QString::fromUtf8(option.keyword), .text = textOf(printer, option)};
    for (int i = 0; i < option.num_choices; ++i) {
        const ppd_choice_t &choice = option.choices[i];
        if (isComplete(printer.ppd(), option, choice)) {
            result.choices << CatalogueChoice{.choice = QString::fromUtf8(choice.choice),
                                              .text = textOf(printer, option, choice)};
        }
    }
    const auto has = [&](const char *name) {
        return std::any_of(result.choices.begin(), result.choices.end(),
                           [&](const CatalogueChoice &choice) { return choice.choice == QLatin1String(name); });
    };
    if (option.ui == PPD_UI_BOOLEAN && result.choices.size() == 2 && has("True") && has("False")) {
        result.kind = OptionKind::Boolean;
    }
    return result;
}

struct AttributeText {
    const char *key;
    const char *value; ///< null: the text is the attribute's own
    const char *text;
};

/// Texts of the job attributes and their values.
constexpr std::array kAttributeTexts = {
    AttributeText{kCopies, nullptr, QT_TRANSLATE_NOOP("TessarinPrint", "Copies")},
    AttributeText{kCollate, nullptr, QT_TRANSLATE_NOOP("TessarinPrint", "Order of copies")},
    AttributeText{kCollate, kCollated, QT_TRANSLATE_NOOP("TessarinPrint", "collated (1, 2, 3, 1, 2, 3)")},
    AttributeText{kCollate, kUncollated, QT_TRANSLATE_NOOP("TessarinPrint", "page by page (1, 1, 2, 2, 3, 3)")},
    AttributeText{kPageRanges, nullptr, QT_TRANSLATE_NOOP("TessarinPrint", "Pages")},
    AttributeText{kPageRanges, "", QT_TRANSLATE_NOOP("TessarinPrint", "all")},
    AttributeText{kPageSet, nullptr, QT_TRANSLATE_NOOP("TessarinPrint", "Of these")},
    AttributeText{kPageSet, "all", QT_TRANSLATE_NOOP("TessarinPrint", "odd and even pages")},
    AttributeText{kPageSet, "odd", QT_TRANSLATE_NOOP("TessarinPrint", "odd pages")},
    AttributeText{kPageSet, "even", QT_TRANSLATE_NOOP("TessarinPrint", "even pages")},
    AttributeText{kOrientation, nullptr, QT_TRANSLATE_NOOP("TessarinPrint", "Orientation")},
    AttributeText{kOrientation, "", QT_TRANSLATE_NOOP("TessarinPrint", "automatic")},
    AttributeText{kOrientation, "3", QT_TRANSLATE_NOOP("TessarinPrint", "portrait")},
    AttributeText{kOrientation, "4", QT_TRANSLATE_NOOP("TessarinPrint", "landscape")},
    AttributeText{kOrientation, "5", QT_TRANSLATE_NOOP("TessarinPrint", "reverse landscape")},
    AttributeText{kOrientation, "6", QT_TRANSLATE_NOOP("TessarinPrint", "reverse portrait")},
    AttributeText{kNumberUp, nullptr, QT_TRANSLATE_NOOP("TessarinPrint", "Pages per sheet")},
};

QString attributeText(const QString &key, const QString *value)
{
    for (const AttributeText &row : kAttributeTexts) {
        const bool matches = value ? row.value && *value == QLatin1String(row.value) : !row.value;
        if (matches && key.compare(QLatin1String(row.key), Qt::CaseInsensitive) == 0) {
            return QCoreApplication::translate("TessarinPrint", row.text);
        }
    }
    return {};
}

} // namespace

QString ppdText(const char *text)
{
    if (!text) {
        return {};
    }
    const std::optional<QString> decoded = fromUtf8(text);
    if (!decoded) {
        return QString::fromLatin1(text);
    }
    const bool isLatin1 =
        std::all_of(decoded->begin(), decoded->end(), [](QChar c) { return c.unicode() < 0x100; });
    // What was plain Latin-1 is hardly ever valid UTF-8 by accident, unless it is ASCII, which stays the same.
    return isLatin1 ? fromUtf8(decoded->toLatin1()).value_or(*decoded) : *decoded;
}

CatalogueOption catalogueOption(const HostPrinter &printer, const QString &key)
{
    const ppd_option_t *option = ppdFindOption(printer.ppd(), key.toUtf8().constData());
    return option ? catalogued(printer, *option) : CatalogueOption{.key = key, .text = key};
}

QList<CatalogueGroup> optionCatalogue(const JobSettings &settings, const QStringList &hidden)
{
    QList<CatalogueGroup> groups;
    const HostPrinter &printer = settings.printer();
    const ppd_group_t *last = nullptr;
    for (const PpdOptionPlace &place : optionsOf(*printer.ppd())) {
        const QString key = QString::fromUtf8(place.option->keyword);
        if (!settings.optionKeys().contains(key) || hidden.contains(key, Qt::CaseInsensitive)) {
            continue;
        }
        CatalogueOption option = catalogued(printer, *place.option);
        if (option.choices.size() < 2) {
            continue;
        }
        if (place.group != last) {
            last = place.group;
            groups << CatalogueGroup{.text = textOf(printer, "Translation", last->name, last->text)};
        }
        groups.last().options << std::move(option);
    }
    return groups;
}

QString optionText(const HostPrinter &printer, const QString &key)
{
    const ppd_option_t *option = ppdFindOption(printer.ppd(), key.toUtf8().constData());
    return option ? textOf(printer, *option) : key;
}

QString choiceText(const HostPrinter &printer, const QString &key, const QString &choice)
{
    ppd_option_t *option = ppdFindOption(printer.ppd(), key.toUtf8().constData());
    const ppd_choice_t *found = option ? ppdFindChoice(option, choice.toUtf8().constData()) : nullptr;
    if (!found) {
        return choice;
    }
    QString text = textOf(printer, *option, *found);
    const QLatin1String custom("Custom.");
    if (qstrcmp(found->choice, kCustom) == 0 && choice.startsWith(custom, Qt::CaseInsensitive)) {
        //: %1 is "Custom" in the printer's words, %2 the custom value, such as a paper size
        return TessarinPrint::tr("%1 (%2)").arg(text, choice.mid(custom.size()));
    }
    return text;
}

QString settingText(const JobSettings &settings, const QString &key)
{
    if (settings.hasOption(key)) {
        return optionText(settings.printer(), key);
    }
    const QString text = attributeText(key, nullptr);
    return text.isEmpty() ? key : text;
}

QString settingValueText(const JobSettings &settings, const QString &key, const QString &value)
{
    if (settings.hasOption(key)) {
        return choiceText(settings.printer(), key, value);
    }
    const QString text = attributeText(key, &value);
    const bool isRanges = key.compare(QLatin1String(kPageRanges), Qt::CaseInsensitive) == 0;
    if (text.isEmpty() && isRanges) {
        return QString(value).remove(QString::number(kLastPage)).replace(u',', QStringLiteral(", "));
    }
    return text.isEmpty() ? value : text;
}

} // namespace tessarin::host

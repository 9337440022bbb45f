// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/option_catalogue.h"

#include "tests/host/pages_test_support.h"

#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

/// "General: PageSize Duplex", one line for each group.
QStringList outline(const QList<CatalogueGroup> &groups)
{
    QStringList lines;
    for (const CatalogueGroup &group : groups) {
        QStringList keys;
        for (const CatalogueOption &option : group.options) {
            keys << option.key;
        }
        lines << group.text + u": "_s + keys.join(u' ');
    }
    return lines;
}

/// "Plain=Plain Paper", one line for each choice.
QStringList choices(const CatalogueOption &option)
{
    QStringList lines;
    for (const CatalogueChoice &choice : option.choices) {
        lines << choice.choice + u'=' + choice.text;
    }
    return lines;
}

/// Another default locale for as long as it lives.
class Language {
public:
    explicit Language(const QString &name) { QLocale::setDefault(QLocale(name)); }
    ~Language() { QLocale::setDefault(before_); }
    Language(const Language &) = delete;
    Language &operator=(const Language &) = delete;

private:
    QLocale before_{};
};

TEST(OptionCatalogue, ListsGroupsWithoutHardwareRepetitionsAndHiddenKeys)
{
    const auto settings = test::settingsOf(test::fixture("pages.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(outline(optionCatalogue(*settings, {})),
              (QStringList{u"General: PageSize Duplex"_s, u"Paper & Quality: MediaType Quality"_s,
                           u"<i>Finishing</i>: Staple Seal Collate"_s}));
    EXPECT_EQ(outline(optionCatalogue(*settings, {u"pagesize"_s, u"Duplex"_s, u"Quality"_s})),
              (QStringList{u"Paper & Quality: MediaType"_s, u"<i>Finishing</i>: Staple Seal Collate"_s}));
}

TEST(OptionCatalogue, ReadsTextsInLatin1AsTheyAre)
{
    const auto settings = test::settingsOf(test::fixture("pages.ppd"));
    ASSERT_TRUE(settings);
    const HostPrinter &printer = settings->printer();
    EXPECT_EQ(
        choices(catalogueOption(printer, u"MediaType"_s)),
        (QStringList{u"Plain=Plain Paper"_s, u"Photo=Gl&änzend"_s, u"Canvas=<u>Canvas</u> & Büttenpapier"_s}));
    EXPECT_EQ(choiceText(printer, u"PageSize"_s, u"A4"_s), u"A4 (210 × 297 mm)"_s);
    EXPECT_EQ(optionText(printer, u"staple"_s), u"Staple & Fold"_s);
}

TEST(OptionCatalogue, ReadsTextsInUtf8)
{
    const auto settings = test::settingsOf(test::fixture("pages-utf8.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(choiceText(settings->printer(), u"MediaType"_s, u"Buetten"_s), u"Büttenpapier – rau"_s);
    EXPECT_EQ(choiceText(settings->printer(), u"PageSize"_s, u"A4"_s), u"A4 (210 × 297 mm)"_s);
}

TEST(OptionCatalogue, DoesNotBelieveAWrongEncoding)
{
    struct Row {
        const char *file;
        const char *encoding;
        const char *wrong;
        const char *choice;
        QString text;
    };
    for (const Row &row : {Row{"pages.ppd", "ISOLatin1", "UTF-8", "Photo", u"Gl&änzend"_s},
                           Row{"pages-utf8.ppd", "UTF-8", "ISOLatin1", "Buetten", u"Büttenpapier – rau"_s}}) {
        const QTemporaryDir folder;
        const QByteArray header("LanguageEncoding: ");
        QByteArray content = test::readFile(test::fixture(row.file));
        ASSERT_TRUE(content.contains(header + row.encoding));
        test::writeFile(folder.filePath(u"wrong.ppd"_s),
                        content.replace(header + row.encoding, header + row.wrong));
        const auto settings = test::settingsOf(folder.filePath(u"wrong.ppd"_s));
        ASSERT_TRUE(settings);
        EXPECT_EQ(choiceText(settings->printer(), u"MediaType"_s, QLatin1String(row.choice)), row.text) << row.file;
    }
}

TEST(OptionCatalogue, SpeaksTheLanguageThatThePpdHas)
{
    const Language german(u"de_AT"_s);
    const auto settings = test::settingsOf(test::fixture("pages-utf8.ppd"));
    ASSERT_TRUE(settings);
    const HostPrinter &printer = settings->printer();
    EXPECT_EQ(optionText(printer, u"MediaType"_s), u"Medientyp"_s);
    EXPECT_EQ(choices(catalogueOption(printer, u"MediaType"_s)),
              (QStringList{u"Plain=Normalpapier"_s, u"Buetten=Büttenpapier"_s}));
    EXPECT_EQ(optionText(printer, u"Glossy"_s), u"Glossy"_s);
}

TEST(OptionCatalogue, KnowsWhatIsOnOrOff)
{
    const auto settings = test::settingsOf(test::fixture("pages.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(catalogueOption(settings->printer(), u"Staple"_s).kind, OptionKind::Boolean);
    EXPECT_EQ(catalogueOption(settings->printer(), u"Seal"_s).kind, OptionKind::PickOne);
}

TEST(OptionCatalogue, OffersNoCustomSizeWithoutItsMeasures)
{
    const auto settings = test::settingsOf(test::fixture("pages-utf8.ppd"));
    ASSERT_TRUE(settings);
    ASSERT_TRUE(ppdFindChoice(ppdFindOption(settings->printer().ppd(), "PageSize"), "Custom"));
    EXPECT_EQ(choices(catalogueOption(settings->printer(), u"PageSize"_s)),
              (QStringList{u"A4=A4 (210 × 297 mm)"_s, u"Letter=US Letter"_s, u"EnvDL=Envelope DL"_s}));
    EXPECT_TRUE(choiceText(settings->printer(), u"PageSize"_s, u"Custom.10x15cm"_s).endsWith(u" (10x15cm)"_s));
}

TEST(OptionCatalogue, AnswersWhatItDoesNotKnowAsItIs)
{
    const auto settings = test::settingsOf(test::fixture("pages.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(optionText(settings->printer(), u"Nothing"_s), u"Nothing"_s);
    EXPECT_EQ(choiceText(settings->printer(), u"Seal"_s, u"37"_s), u"37"_s);
    EXPECT_EQ(choiceText(settings->printer(), u"Nothing"_s, u"37"_s), u"37"_s);
    EXPECT_TRUE(catalogueOption(settings->printer(), u"Nothing"_s).choices.isEmpty());
    EXPECT_EQ(ppdText(nullptr), QString());
}

TEST(SettingTexts, NameOptionsAndAttributes)
{
    const auto settings = test::settingsOf(test::fixture("pages.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settingText(*settings, u"Duplex"_s), u"Two-Sided"_s);
    EXPECT_EQ(settingValueText(*settings, u"Duplex"_s, u"DuplexTumble"_s), u"Short Edge"_s);
    EXPECT_EQ(settingText(*settings, u"number-up"_s), u"Pages per sheet"_s);
    EXPECT_EQ(settingValueText(*settings, u"number-up"_s, u"4"_s), u"4"_s);
    EXPECT_EQ(settingValueText(*settings, u"orientation-requested"_s, u""_s), u"automatic"_s);
    EXPECT_EQ(settingValueText(*settings, u"orientation-requested"_s, u"6"_s), u"reverse portrait"_s);
    EXPECT_EQ(settingValueText(*settings, u"page-ranges"_s, u"1-3,5,8-2147483647"_s), u"1-3, 5, 8-"_s);
    EXPECT_EQ(settingText(*settings, u"job-sheets"_s), u"job-sheets"_s);
    EXPECT_EQ(settingValueText(*settings, u"job-sheets"_s, u"a,b"_s), u"a,b"_s);
}

} // namespace
} // namespace tessarin::host

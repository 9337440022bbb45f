// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The printer's own texts follow the language that was asked for, whatever the environment's is.

#include "host/translation.h"
#include "settings/option_catalogue.h"
#include "tests/host/pages_test_support.h"

#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class PpdLanguages : public testing::Test {
protected:
    ~PpdLanguages() override { QLocale::setDefault(before_); }

    /// The texts of an option and its choices, for a program started with --language in an environment.
    QString texts(const QString &environment, const QString &asked, const QByteArray &ppd = {})
    {
        QLocale::setDefault(QLocale(environment));
        const Translation translation(asked);
        QString path = test::fixture("translated.ppd");
        if (!ppd.isEmpty()) {
            path = folder_.filePath(u"changed.ppd"_s);
            test::writeFile(path, ppd);
        }
        const auto settings = test::settingsOf(path);
        if (!settings) {
            return u"(no printer)"_s;
        }
        const CatalogueOption option = catalogueOption(settings->printer(), u"MediaType"_s);
        QStringList all{option.text};
        for (const CatalogueChoice &choice : option.choices) {
            all << choice.text;
        }
        return all.join(u" | "_s);
    }

    static QByteArray content() { return test::readFile(test::fixture("translated.ppd")); }

    const QString english_ = u"Media Type | Plain Paper | Canvas | Film"_s;
    const QString german_ = u"Medientyp | Normalpapier | Gewebe/Leinwand | Film"_s;
    const QString french_ = u"Type de support | Papier ordinaire | Toile à peindre | Film"_s;

private:
    QLocale before_{};
    QTemporaryDir folder_{};
};

TEST_F(PpdLanguages, AreAskedForOnTheCommandLine)
{
    for (const char *environment : {"en_US", "C", "de_DE", "fr_CA", "pl_PL"}) {
        const QString name = QLatin1String(environment);
        EXPECT_EQ(texts(name, u"de"_s), german_) << environment;
        EXPECT_EQ(texts(name, u"de_AT"_s), german_) << environment;
        EXPECT_EQ(texts(name, u"fr"_s), french_) << environment;
        EXPECT_EQ(texts(name, u"en"_s), english_) << environment;
        EXPECT_EQ(texts(name, u"nl"_s), english_) << environment;
    }
}

TEST_F(PpdLanguages, AreTheEnvironmentsWhereNoneIsAskedFor)
{
    EXPECT_EQ(texts(u"en_US"_s, QString()), english_);
    EXPECT_EQ(texts(u"de_AT"_s, QString()), german_);
    EXPECT_EQ(texts(u"fr_FR"_s, QString()), french_);
    EXPECT_EQ(texts(u"pl_PL"_s, QString()), english_);
}

TEST_F(PpdLanguages, MayNameTheirCountryInThePpd)
{
    EXPECT_EQ(texts(u"C"_s, u"pt_BR"_s), u"Tipo de mídia | Plain Paper | Canvas | Film"_s);
    EXPECT_EQ(texts(u"C"_s, u"pt_PT"_s), english_);
    EXPECT_EQ(texts(u"C"_s, u"ja"_s), u"用紙の種類 | Plain Paper | Canvas | Film"_s);
}

TEST_F(PpdLanguages, EndAtThePpdsOwn)
{
    // German before Polish would be wrong for whoever reads the Polish of the PPD itself.
    QByteArray ppd = content().replace("*LanguageVersion: English", "*LanguageVersion: Polish");
    EXPECT_EQ(texts(u"C"_s, u"pl"_s, ppd), english_);
    EXPECT_EQ(texts(u"C"_s, u"de"_s, ppd), german_);
}

TEST_F(PpdLanguages, AreReadWhateverEndsALine)
{
    EXPECT_EQ(texts(u"C"_s, u"de"_s, content().replace("\n", "\r\n")), german_);
    EXPECT_EQ(texts(u"C"_s, u"de"_s, content().replace("\n", "\r")), german_);
}

TEST_F(PpdLanguages, BearLinesThatAreNone)
{
    QByteArray odd("*OddLines: \"\n"); // within a value libcups lets all of them pass
    for (const char *line : {"*de.", "*de.MediaType", "*de.MediaType Plain", "*de.MediaType Plain/",
                             "*de. /:", "*de.MediaType Plain/<", "*de.MediaType Film/<zz>:", ".", "*."}) {
        odd += QByteArray(line) + '\n';
    }
    odd += "\"\n*End\n";
    QByteArray ppd = content();
    EXPECT_EQ(texts(u"C"_s, u"de"_s, ppd.insert(ppd.indexOf("*de.Translation"), odd)), german_);
}

TEST_F(PpdLanguages, AreOnThePages)
{
    QLocale::setDefault(QLocale(u"en_US"_s));
    const Translation german(u"de"_s);
    const auto settings = test::settingsOf(test::fixture("translated.ppd"));
    ASSERT_TRUE(settings);
    const QList<CatalogueGroup> groups = optionCatalogue(*settings, {u"PageSize"_s, u"PageRegion"_s});
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups.first().text, u"Medien"_s);
    EXPECT_EQ(settingValueText(*settings, u"MediaType"_s, u"Plain"_s), u"Normalpapier"_s);
    // The panel reads the open PPD's own texts: they stay.
    EXPECT_STREQ(ppdFindOption(settings->printer().ppd(), "MediaType")->text, "Media Type");
}

} // namespace
} // namespace tessarin::host

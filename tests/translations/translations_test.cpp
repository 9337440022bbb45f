// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Every text of the panel has a translation in every language that is shipped, and no translation is left over.

#include "controls/control_tables.h"
#include "controls/setting_texts.h"
#include "ink/channel_table.h"
#include "tests/support/panel_session.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

/// The texts that the interface file shows: those of "text" and "title", unless marked as not to be translated.
QSet<QString> interfaceTexts()
{
    QFile file(QStringLiteral(TESSARIN_SOURCE_DIR "/resources/TessarinPDE_C.ui"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QSet<QString> texts;
    QString property;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("property") || reader.name() == QLatin1String("attribute")) {
            property = reader.attributes().value(QStringLiteral("name")).toString();
        } else if (reader.name() == QLatin1String("string")) {
            const bool translated = reader.attributes().value(QStringLiteral("notr")) != QLatin1String("true");
            const QString text = reader.readElementText();
            if (translated && !text.trimmed().isEmpty() &&
                (property == QLatin1String("text") || property == QLatin1String("title"))) {
                texts.insert(text);
            }
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return texts;
}

QSet<QString> allKeys()
{
    QSet<QString> keys = interfaceTexts();
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        keys.insert(QString::fromUtf8(pops[row].label));
    }
    for (std::size_t row = 0; row < kSliderCount; ++row) {
        keys.insert(QString::fromUtf8(Scrolls[row].label));
    }
    for (std::size_t channel = 0; channel < kInkChannelCount; ++channel) {
        keys.insert(QString::fromUtf8(inklevels[channel].name));
    }
    for (const SettingText &row : settingTexts) {
        keys.insert(QString::fromUtf8(row.text));
    }
    for (const char *sentence : settingSentences) {
        keys.insert(QString::fromUtf8(sentence));
    }
    for (const char *text :
         {"Tessarin Settings", "Bright Cyan\nUsage:", "Bright Inks\nUsage:", "Bright Inks Usage:", "Bright Inks",
          "Attention:",
          "You have chosen an incomplete media profile without color data!\n"
          "This profile should only be used for printing color charts!",
          "Print Simulation", "ON - printing is disabled", "OFF - printing is enabled", "Postscript-Processor",
          "Ghostscript", "Mac OS", "Manual color correction", "enabled", "disabled"}) {
        keys.insert(QString::fromUtf8(text));
    }
    return keys;
}

struct Translation {
    QMap<QString, QString> texts; ///< by key
    QStringList doubled;          ///< keys that stand twice
    QStringList unfinished;       ///< keys marked as unfinished or obsolete
    QSet<QString> contexts;
};

Translation readTranslation(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    Translation result;
    QString key;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            result.contexts.insert(reader.readElementText());
        } else if (reader.name() == QLatin1String("source")) {
            key = reader.readElementText();
            if (result.texts.contains(key)) {
                result.doubled.append(key);
            }
        } else if (reader.name() == QLatin1String("translation")) {
            if (reader.attributes().hasAttribute(QStringLiteral("type"))) {
                result.unfinished.append(key);
            }
            result.texts.insert(key, reader.readElementText());
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return result;
}

std::vector<std::string> languages()
{
    std::vector<std::string> codes;
    const QDir folder(QStringLiteral(TESSARIN_SOURCE_DIR "/resources/translations"));
    for (const QString &file : folder.entryList({QStringLiteral("TessarinPDE_*.ts")})) {
        codes.push_back(file.mid(12).chopped(3).toStdString());
    }
    return codes;
}

class Translations : public testing::TestWithParam<std::string> {
protected:
    Translation translation() const
    {
        return readTranslation(QStringLiteral(TESSARIN_SOURCE_DIR "/resources/translations/TessarinPDE_%1.ts")
                                   .arg(QString::fromStdString(GetParam())));
    }
};

TEST_P(Translations, HaveEveryKeyOnceAndFinished)
{
    const Translation given = translation();
    for (const QString &key : allKeys()) {
        EXPECT_FALSE(given.texts.value(key).isEmpty()) << "no translation of: " << qPrintable(key);
    }
    EXPECT_EQ(given.doubled, QStringList());
    EXPECT_EQ(given.unfinished, QStringList());
    EXPECT_EQ(given.contexts, QSet<QString>{QString::fromLatin1(kTranslationContext)});
}

TEST_P(Translations, HaveNoKeyThatNothingUses)
{
    const QSet<QString> keys = allKeys();
    for (const QString &key : translation().texts.keys()) {
        EXPECT_TRUE(keys.contains(key)) << "nothing shows: " << qPrintable(key);
    }
}

TEST_P(Translations, AreNoOtherKey)
{
    // Texts are looked up again with every view: a translation that is itself a key would be translated twice.
    const Translation given = translation();
    for (auto entry = given.texts.begin(); entry != given.texts.end(); ++entry) {
        EXPECT_TRUE(entry.value() == entry.key() || !given.texts.contains(entry.value()))
            << qPrintable(entry.key());
    }
}

TEST_P(Translations, AreWhatTheBundleAnswers)
{
    const auto bundle = buildBundle(QString::fromStdString(GetParam()));
    const Translation given = translation();
    for (auto entry = given.texts.begin(); entry != given.texts.end(); ++entry) {
        EXPECT_EQ(bundle->localizedString(entry.key()), entry.value());
    }
    EXPECT_EQ(bundle->localizedString(QStringLiteral("no such text")), QStringLiteral("no such text"));
}

TEST_P(Translations, StayAfterASecondView)
{
    PanelSession session(samplePPD(), "sample", buildBundle(QString::fromStdString(GetParam())));
    session.open();
    QStringList first;
    for (const QLabel *label : session.panel->contentView()->findChildren<QLabel *>()) {
        first.append(label->text());
    }
    session.open();
    QStringList second;
    for (const QLabel *label : session.panel->contentView()->findChildren<QLabel *>()) {
        second.append(label->text());
    }
    EXPECT_EQ(first, second);
}

INSTANTIATE_TEST_SUITE_P(Languages, Translations, testing::ValuesIn(languages()));

TEST(Languages, IncludeGerman)
{
    const std::vector<std::string> codes = languages();
    EXPECT_NE(std::find(codes.begin(), codes.end(), "de"), codes.end());
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The table of what each control does: one row per control, in order, no text twice, in every language.

#include "controls/control_tables.h"
#include "controls/setting_texts.h"
#include "tests/support/panel_session.h"

#include <QDir>
#include <QSet>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

TEST(SettingTexts, HaveARowForEachControlInOrder)
{
    std::vector<Setting> expected;
    for (int row = 0; row < static_cast<int>(kPopUpCount); ++row) {
        expected.push_back({SettingKind::PopUp, row});
    }
    for (int number = 0; number < static_cast<int>(kSliderCount); ++number) {
        expected.push_back({SettingKind::Slider, number});
    }
    for (int row = 0; row < static_cast<int>(kCheckBoxCount); ++row) {
        expected.push_back({SettingKind::CheckBox, row});
    }
    for (const SettingKind kind : {SettingKind::LastInk, SettingKind::TotalInk, SettingKind::ReloadInk}) {
        expected.push_back({kind, 0});
    }
    ASSERT_EQ(settingTexts.size(), expected.size());
    for (std::size_t row = 0; row < expected.size(); ++row) {
        EXPECT_EQ(settingTexts[row].setting, expected[row]) << row;
    }
}

TEST(SettingTexts, AreSentencesAndNoneStandsTwice)
{
    QSet<QString> texts;
    for (const SettingText &row : settingTexts) {
        const QString text = QString::fromUtf8(row.text);
        EXPECT_TRUE(text.endsWith(QLatin1Char('.'))) << row.text;
        EXPECT_FALSE(texts.contains(text)) << row.text;
        texts.insert(text);
    }
    for (const char *sentence : settingSentences) {
        EXPECT_FALSE(texts.contains(QString::fromUtf8(sentence))) << sentence;
        texts.insert(QString::fromUtf8(sentence));
    }
}

TEST(SettingTexts, NameTheControlThatTheyAreAskedFor)
{
    EXPECT_STREQ(settingText({SettingKind::Slider, 13}), "The most cyan ink that may fall on one spot.");
    EXPECT_STREQ(settingText({SettingKind::CheckBox, 0}), "The job's ink is counted, but nothing is printed.");
    EXPECT_EQ(settingText({SettingKind::Slider, 20}), nullptr);
    EXPECT_EQ(settingText({SettingKind::PopUp, 8}), nullptr);
    EXPECT_EQ(settingText({SettingKind::LastInk, 1}), nullptr);
}

TEST(SettingTexts, AreTranslatedApartWithTheirPlacesKept)
{
    const QDir folder(QStringLiteral(TESSARIN_SOURCE_DIR "/resources/translations"));
    const QStringList files = folder.entryList({QStringLiteral("TessarinPDE_*.ts")});
    EXPECT_EQ(files.size(), 9);
    for (const QString &file : files) {
        const auto bundle = buildBundle(file.mid(12).chopped(3));
        QSet<QString> translations;
        std::vector<const char *> keys(settingSentences.begin(), settingSentences.end());
        for (const SettingText &row : settingTexts) {
            keys.push_back(row.text);
        }
        for (const char *key : keys) {
            const QString english = QString::fromUtf8(key);
            const QString text = bundle->localizedString(english);
            SCOPED_TRACE(qPrintable(file + QStringLiteral(": ") + english));
            EXPECT_NE(text, english);
            EXPECT_FALSE(translations.contains(text));
            translations.insert(text);
            for (int place = 1; place <= 4; ++place) {
                const QString mark = QLatin1Char('%') + QString::number(place);
                EXPECT_EQ(text.count(mark), english.count(mark)) << qPrintable(text);
            }
        }
    }
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Why a control is disabled and which choices are missing, as the panel puts it.

#include "controls/control_tables.h"
#include "controls/menu_items.h"
#include "controls/setting_help.h"
#include "tests/panel/setting_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

QString english(const char *text)
{
    return QString::fromUtf8(text);
}

/// A panel whose media types are all media modes: item n has the mode n - 1.
class SettingReason : public testing::Test {
protected:
    SettingReason() : session(ppdFixture("media-modes")) { session.open(); }

    QString reason(SettingKind kind, int number) { return unavailableReason(*session.context(), {kind, number}); }

    AlertRecorder alerts;
    PanelSession session;
};

TEST_F(SettingReason, IsGivenForEveryDisabledControlAndNoOther)
{
    for (int mode = 0; mode <= 9; ++mode) {
        choose(session.popup(kPopMediaType), mode + 1);
        const QString medium = QStringLiteral("Media Type: Media Mode %1").arg(mode);
        for (const SettingText &row : settingTexts) {
            const QWidget *control = settingControl(*session.context(), row.setting);
            if (control == nullptr || row.setting.kind == SettingKind::CheckBox) {
                continue;
            }
            SCOPED_TRACE(testing::Message() << row.text << " mode " << mode);
            const QString text = unavailableReason(*session.context(), row.setting);
            EXPECT_EQ(text.isEmpty(), isOn(control));
            const bool correction = row.setting.kind == SettingKind::Slider && row.setting.number >= 16;
            if (!isOn(control) && !correction) {
                EXPECT_TRUE(text.contains(medium)) << qPrintable(text);
                EXPECT_EQ(text.contains(QStringLiteral("without color data")), mode == 2);
            }
        }
    }
}

TEST_F(SettingReason, OfTheBrightInksNamesTheMedium)
{
    choose(session.popup(kPopMediaType), 5);
    EXPECT_EQ(reason(SettingKind::Slider, kSliderBrightCyan),
              QStringLiteral("Not available with Media Type: Media Mode 4."));
    choose(session.popup(kPopMediaType), 3);
    EXPECT_EQ(reason(SettingKind::Slider, kSliderBrightness),
              QStringLiteral("Not available with Media Type: Media Mode 2, a media profile without color data."));
}

TEST_F(SettingReason, OfTheCorrectionNamesItsCheckBox)
{
    EXPECT_EQ(reason(SettingKind::Slider, kSliderColorBlack),
              QStringLiteral("Available when \"Manual color correction\" is switched on."));
    session.checkBox(kColorGammaID)->setChecked(true);
    EXPECT_EQ(reason(SettingKind::Slider, kSliderColorBlack), QString());
}

TEST_F(SettingReason, OfGhostscriptIsThatItIsNotInstalled)
{
    const Interpreter none(false, false);
    session.open();
    EXPECT_EQ(reason(SettingKind::CheckBox, 2), english(kNoGhostscriptText));
    const Interpreter installed(true, false);
    PanelSession other(ppdFixture("media-modes"));
    other.open();
    EXPECT_EQ(unavailableReason(*other.context(), {SettingKind::CheckBox, 2}), QString());
}

TEST_F(SettingReason, IsNotTheMediumWhenThatHasChangedElsewhere)
{
    choose(session.popup(kPopMediaType), 3);
    session.host->mark("vornMediaType", "M6");
    session.panel->restoreValuesAndReturnError(nullptr); // which leaves the pop-ups as they are
    ASSERT_FALSE(isOn(session.popup(kPopDithering)));
    EXPECT_EQ(reason(SettingKind::PopUp, kPopDithering), english(kNotNowText));
}

TEST_F(SettingReason, IsTheHostsOwnWhenItDisablesThePanel)
{
    session.panel->contentView()->setEnabled(false);
    EXPECT_FALSE(session.slider(0)->isEnabled());
    EXPECT_EQ(reason(SettingKind::Slider, 0), QString());
}

TEST_F(SettingReason, AsksTheControlsWithoutChangingOrLoggingAnything)
{
    choose(session.popup(kPopMediaType), 3);
    const auto before = session.settings().popupSelections;
    const CapturedLog log;
    for (const QWidget *view : session.panel->contentView()->findChildren<QWidget *>()) {
        settingDescription(*session.context(), view);
    }
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(session.settings().popupSelections, before);
}

TEST_F(SettingReason, OfATabThatIsOffIsTheMedium)
{
    choose(session.popup(kPopMediaType), 3);
    for (int position = 0; position < 6; ++position) {
        EXPECT_EQ(tabReason(*session.context(), position).contains(QStringLiteral("Media Mode 2")), position >= 2);
    }
    choose(session.popup(kPopMediaType), 7);
    EXPECT_EQ(tabReason(*session.context(), 3), QString());
    EXPECT_EQ(tabReason(*session.context(), -1), QString());
    EXPECT_EQ(tabReason(*session.context(), 6), QString());
}

TEST_F(SettingReason, NamesTheChoicesThatTheMediumHides)
{
    choose(session.popup(kPopMediaType), 2);
    QStringList hidden;
    const QComboBox *intents = session.popup(kPopIntent);
    const std::vector<bool> flags = hiddenOf(*intents);
    for (int index = 0; index < intents->count(); ++index) {
        if (flags[static_cast<std::size_t>(index)]) {
            hidden.append(intents->itemText(index));
        }
    }
    ASSERT_FALSE(hidden.isEmpty());
    EXPECT_EQ(missingChoices(*session.context(), kPopIntent),
              QStringLiteral("Not offered with Media Type: Media Mode 1 (%1): %2")
                  .arg(QString::number(hidden.size()), hidden.join(QStringLiteral(", "))));
    choose(session.popup(kPopMediaType), 10);
    EXPECT_EQ(missingChoices(*session.context(), kPopIntent), QString());
}

TEST(MissingChoices, NameThePopUpWhoseSelectionExcludesThem)
{
    PanelSession session; // the sample printer
    AlertRecorder alerts;
    session.open();
    std::size_t seen = 0;
    for (int media = 1; media <= session.popup(kPopMediaType)->count(); ++media) {
        choose(session.popup(kPopMediaType), media);
        QStringList excluded;
        QComboBox *resolutions = session.popup(kPopResolution);
        const std::vector<bool> choosable = choosableOf(*resolutions);
        for (int index = 0; index < resolutions->count(); ++index) {
            if (!choosable[static_cast<std::size_t>(index)]) {
                excluded.append(resolutions->itemText(index));
            }
        }
        const QString text = missingChoices(*session.context(), kPopResolution);
        EXPECT_EQ(text.isEmpty(), excluded.isEmpty());
        if (excluded.isEmpty()) {
            continue;
        }
        ++seen;
        int named = 0;
        for (const QString &line : text.split(u'\n')) {
            EXPECT_TRUE(line.startsWith(QStringLiteral("Excluded by Media Type: ")) ||
                        line.startsWith(QStringLiteral("Excluded by Cartridge: ")))
                << qPrintable(line);
            for (const QString &name : excluded) {
                named += line.contains(name) ? 1 : 0;
            }
        }
        EXPECT_EQ(named, excluded.size()) << qPrintable(text);
    }
    EXPECT_GT(seen, 0U);
    EXPECT_EQ(missingChoices(*session.context(), kPopMediaType),
              QStringLiteral("Excluded by Cartridge: Photo Black (4): Fine Art Rag 308 g, Fine Art Textured 285 g, "
                             "Fine Art Watercolor 240 g, Fine Art Mulberry 70 g"));
}

TEST(MissingChoices, NameThoseThatCannotBeChosenAtAll)
{
    PanelSession session(ppdFixture("star-keys"));
    session.open();
    bool seen = false;
    for (int row = 0; row < static_cast<int>(kPopUpCount); ++row) {
        seen = seen || missingChoices(*session.context(), row).startsWith(QStringLiteral("Cannot be chosen ("));
    }
    EXPECT_TRUE(seen);
}

TEST(MissingChoices, SayWhenThereIsNothingToChoose)
{
    PanelSession session(ppdFixture("foreign")); // of another driver
    session.open();
    EXPECT_EQ(missingChoices(*session.context(), kPopMediaType), english(kNoChoicesText));
}

TEST(MissingChoices, AreCutWhenTheyAreMany)
{
    PanelSession session;
    session.open();
    QComboBox *popup = session.popup(kPopMediaType);
    for (int item = 2; item <= 12; ++item) {
        ChangeMenuItemAttributes(popup, item, kMenuItemDisabled, 0);
    }
    const QString text = missingChoices(*session.context(), kPopMediaType).section(u'\n', -1);
    EXPECT_TRUE(text.startsWith(QStringLiteral("Cannot be chosen (11): "))) << qPrintable(text);
    EXPECT_TRUE(text.endsWith(QStringLiteral(", …")));
    EXPECT_EQ(text.count(QStringLiteral(", ")), 6);
}

} // namespace
} // namespace tessarin::test

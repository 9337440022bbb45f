// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Tool tips, "What's this?" and descriptions of the panel's controls, in every language.

#include "controls/control_tables.h"
#include "controls/menu_items.h"
#include "controls/setting_help.h"
#include "plugin/diagnostics.h"
#include "tests/panel/setting_test_support.h"

#include <QAccessible>
#include <QDir>
#include <QVBoxLayout>
#include <QWhatsThis>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

namespace tessarin::test {
namespace {

constexpr int kEveryInkMedia = 9; // PhotoPearl07 of the sample printer
constexpr int kChartMedia = 3;    // ColorChart02
constexpr int kPlainMedia = 2;    // PlainHeavy01

std::vector<std::string> languages()
{
    std::vector<std::string> codes{"en"};
    const QDir folder(QStringLiteral(TESSARIN_TEST_BUNDLE "/translations"));
    for (const QString &file : folder.entryList({QStringLiteral("TessarinPDE_*.qm")})) {
        codes.push_back(file.mid(12).chopped(3).toStdString());
    }
    return codes;
}

class SettingTips : public testing::TestWithParam<std::string> {
protected:
    SettingTips() : bundle(buildBundle(QString::fromStdString(GetParam()))), session(samplePPD(), "sample", bundle)
    {
        (new QVBoxLayout(&window))->addWidget(session.open());
        window.show();
        Diagnostics person;
        person.choose(*session.panel, kMediaTypeID, kEveryInkMedia);
        person.setInkFilePath(*session.panel, QString::fromStdString(fixturePath("ink/all-codes.ink")));
        person.press(*session.panel, kReloadInkID);
    }
    ~SettingTips() override { session.panel->contentView()->setParent(nullptr); }

    QString translated(Setting setting) const
    {
        return bundle->localizedString(QString::fromUtf8(settingText(setting)));
    }

    /// The tip over a view whose page is brought to the front.
    QString tipOnPage(QWidget *view)
    {
        auto *tabs = qobject_cast<QTabWidget *>(session.context()->controls.tabView.data());
        tabs->setCurrentIndex(pageOf(session, view));
        return tipOver(view);
    }

    AlertRecorder alerts;
    std::shared_ptr<DirectoryBundle> bundle;
    PanelSession session;
    QWidget window;
};

TEST_P(SettingTips, TellWhatEachControlDoes)
{
    int shown = 0;
    for (const SettingText &row : settingTexts) {
        QWidget *control = settingControl(*session.context(), row.setting);
        if (control == nullptr || control->isHidden()) {
            continue; // the ink page has its own test, and of two colour spaces one is hidden
        }
        ++shown;
        SCOPED_TRACE(row.text);
        const QString expected = translated(row.setting);
        EXPECT_FALSE(expected.isEmpty());
        EXPECT_EQ(tipOnPage(control).section(u'\n', 0, 0), expected);
        EXPECT_EQ(settingDescription(*session.context(), control).section(u'\n', 0, 0), expected);
    }
    EXPECT_EQ(shown, 30);
    EXPECT_EQ(settingDescription(*session.context(), session.popup(kPopCMYKspace)),
              translated({SettingKind::PopUp, kPopCMYKspace}));
}

TEST_P(SettingTips, TellOfTheValueTextAndTheCaptionWhatTheyTellOfTheSlider)
{
    const QString expected = tipOnPage(session.slider(0));
    EXPECT_EQ(tipOver(session.sliderText(0)), expected);
    EXPECT_EQ(expected.count(u'\n'), 2) << qPrintable(expected);
    EXPECT_TRUE(expected.section(u'\n', 1, 1).contains(QStringLiteral("100%")));
    EXPECT_TRUE(expected.section(u'\n', 2, 2).contains(QStringLiteral("F2")));
    auto *caption = session.panel->contentView()->findChild<QLabel *>(QStringLiteral("mediaTypeCaption"));
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(tipOver(caption), tipOver(session.popup(kPopMediaType)));
}

TEST_P(SettingTips, TellWhatTheInkRowsAre)
{
    const ControlsStruct &controls = session.context()->controls;
    for (std::size_t row = 0; row < kInkRowCount; ++row) {
        EXPECT_EQ(tipOnPage(controls.lastInkBars[row]), translated({SettingKind::LastInk, 0}));
        EXPECT_EQ(tipOnPage(controls.totalInkBars[row]), translated({SettingKind::TotalInk, 0}));
    }
    EXPECT_EQ(tipOnPage(controls.lastInkNames[0]), translated({SettingKind::LastInk, 0}));
    EXPECT_EQ(tipOnPage(controls.totalInkValues[0]), translated({SettingKind::TotalInk, 0}));
    for (QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        if (tagOf(button) == kReloadInkID) {
            EXPECT_EQ(tipOnPage(button), translated({SettingKind::ReloadInk, 0}));
        }
    }
}

TEST_P(SettingTips, ComeFromTheDisabledControlWithItsReason)
{
    Diagnostics().choose(*session.panel, kMediaTypeID, kChartMedia);
    QWidget *resolution = session.popup(kPopResolution);
    ASSERT_FALSE(resolution->isEnabled());
    const QString reason = bundle->localizedString(QString::fromUtf8(kNoColorDataText))
                               .arg(bundle->localizedString(QStringLiteral("Media Type")),
                                    QStringLiteral("Color Chart Paper (no color data)"));
    EXPECT_EQ(tipOnPage(resolution).section(u'\n', 0, 1),
              translated({SettingKind::PopUp, kPopResolution}) + u'\n' + reason);
    auto *tabs = qobject_cast<QTabWidget *>(session.context()->controls.tabView.data());
    closeTip();
    const QPoint place = tabs->tabBar()->tabRect(4).center();
    QHelpEvent event(QEvent::ToolTip, place, tabs->tabBar()->mapToGlobal(place));
    QCoreApplication::sendEvent(tabs->tabBar(), &event);
    EXPECT_TRUE(QToolTip::isVisible() && QToolTip::text().contains(reason.toHtmlEscaped()))
        << qPrintable(QToolTip::text());
}

INSTANTIATE_TEST_SUITE_P(Languages, SettingTips, testing::ValuesIn(languages()),
                         [](const testing::TestParamInfo<std::string> &language) { return language.param; });

TEST(SettingDescription, IsThereForAllControlsWhenItIsAskedForByAssistiveTechnology)
{
    AlertRecorder alerts;
    ShownPanel panel(samplePPD());

    EXPECT_EQ(panel.slider(0)->accessibleDescription(), QString()) << "nothing is worked out before";
    QAccessible::setActive(true);
    for (const SettingText &row : settingTexts) {
        if (const QWidget *control = settingControl(*panel.context(), row.setting)) {
            EXPECT_TRUE(control->accessibleDescription().startsWith(QString::fromUtf8(row.text))) << row.text;
            EXPECT_EQ(control->accessibleDescription(), settingDescription(*panel.context(), control));
        }
    }
    choose(panel.popup(kPopMediaType), kChartMedia);
    EXPECT_TRUE(panel.popup(kPopDithering)->accessibleDescription().contains(QStringLiteral("Color Chart Paper")));
    EXPECT_TRUE(panel.slider(0)->accessibleDescription().contains(QStringLiteral("Color Chart Paper")));
    choose(panel.popup(kPopMediaType), kEveryInkMedia);
    EXPECT_EQ(panel.slider(0)->accessibleDescription(), QString::fromUtf8(settingText({SettingKind::Slider, 0})));
    choose(panel.popup(kPopMediaType), kPlainMedia);
    EXPECT_TRUE(panel.popup(kPopIntent)->accessibleDescription().contains(QStringLiteral("Not offered with")));
    panel.checkBox(kNoPrintID)->setAccessibleDescription({});
    panel.window.hide();
    panel.window.show();
    EXPECT_EQ(panel.checkBox(kNoPrintID)->accessibleDescription(),
              QString::fromUtf8(settingText({SettingKind::CheckBox, 0})));
    QAccessible::setActive(false);
}

TEST(SettingDescription, IsRenewedWhenTheHostChangesTheMedium)
{
    AlertRecorder alerts;
    ShownPanel panel(ppdFixture("media-modes"));
    QAccessible::setActive(true);
    const auto isUpToDate = [&panel](const char *before) {
        for (const SettingText &row : settingTexts) {
            if (const QWidget *control = settingControl(*panel.context(), row.setting)) {
                EXPECT_EQ(control->accessibleDescription(), settingDescription(*panel.context(), control));
                EXPECT_FALSE(control->accessibleDescription().contains(QString::fromUtf8(before)));
            }
        }
    };
    choose(panel.popup(kPopMediaType), 3);
    EXPECT_TRUE(panel.popup(kPopDithering)->accessibleDescription().contains(QStringLiteral("Media Mode 2")));
    panel.host->mark("vornMediaType", "M6");
    panel.panel->restoreValuesAndReturnError(nullptr);
    isUpToDate("Media Mode 2");
    choose(panel.popup(kPopMediaType), 2);
    EXPECT_TRUE(panel.popup(kPopIntent)->accessibleDescription().contains(QStringLiteral("Media Mode 1")));
    panel.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("M6"));
    isUpToDate("Media Mode 1");
    QAccessible::setActive(false);
}

TEST(SettingDescription, LeavesWhatTheHostSaysOfTheView)
{
    ShownPanel panel(samplePPD());
    QAccessible::setActive(true);
    panel.panel->contentView()->setAccessibleDescription(QStringLiteral("The host's own"));
    panel.panel->contentView()->setEnabled(false);
    panel.panel->contentView()->setEnabled(true);
    EXPECT_EQ(panel.panel->contentView()->accessibleDescription(), QStringLiteral("The host's own"));
    QAccessible::setActive(false);
}

TEST(SettingDescription, IsWhatsThisAsWell)
{
    ShownPanel panel(samplePPD());
    QHelpEvent question(QEvent::QueryWhatsThis, QPoint(5, 5), panel.slider(0)->mapToGlobal(QPoint(5, 5)));
    EXPECT_TRUE(QCoreApplication::sendEvent(panel.slider(0), &question));
    EXPECT_TRUE(question.isAccepted() && QCoreApplication::sendEvent(panel.slider(0), &question));
    const auto windows = QApplication::topLevelWidgets().size();
    QHelpEvent event(QEvent::WhatsThis, QPoint(5, 5), panel.slider(0)->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(panel.slider(0), &event);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows + 1);
    QWhatsThis::hideText();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(QApplication::topLevelWidgets().size(), windows);
    for (QWidget *control : std::initializer_list<QWidget *>{panel.slider(0), panel.popup(kPopMediaType)}) {
        QTest::keyClick(control, Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::topLevelWidgets().size(), windows + 1);
        QWhatsThis::hideText();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST(SettingDescription, ComesWhereTheMouseRestsOnADisabledControl)
{
    ShownPanel panel(samplePPD());
    AlertRecorder alerts;
    choose(panel.popup(kPopMediaType), kChartMedia);
    panel.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel.window));
    QWidget *slider = panel.slider(0);
    ASSERT_FALSE(slider->isEnabled());
    closeTip();
    const QPoint place = slider->mapTo(&panel.window, slider->rect().center());
    QTest::mouseMove(panel.window.windowHandle(), place - QPoint(1, 0));
    QTest::mouseMove(panel.window.windowHandle(), place);
    EXPECT_TRUE(
        QTest::qWaitFor([] { return QToolTip::text().contains(QStringLiteral("Color Chart Paper")); }, 60000));
}

TEST(SettingDescription, TakesNoMarkupFromAPrinter)
{
    ShownPanel panel(ppdFixture("odd-texts"));
    QComboBox *media = panel.popup(kPopMediaType);
    ChangeMenuItemAttributes(media, media->findText(QStringLiteral("<i>Open Tag")) + 1, kMenuItemDisabled, 0);
    EXPECT_TRUE(tipOver(media).contains(QStringLiteral("<i>Open Tag")));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;i&gt;Open Tag")));
}

/// A factory that goes after the toolkit's own statics, as it was there before.
[[noreturn]] void endWithAPanel()
{
    static std::unique_ptr<PanelSession> kept;
    kept = std::make_unique<PanelSession>();
    kept->open();
    std::exit(0);
}

TEST(PanelAtTheEnd, MayBeAmongTheLastThatGo)
{
    EXPECT_EXIT(endWithAPanel(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace tessarin::test

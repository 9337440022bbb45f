// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Embedding of the tab pages: which handles are stored, and the values that the controls start with.

#include "controls/embedding.h"

#include "controls/control_layer.h"
#include "controls/event_dispatch.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/view_setup.h"
#include "tests/controls/controls_test_support.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

TEST(Embedding, WithoutAContextOnlyLogs)
{
    CapturedLog log;
    QWidget page;
    auto *slider = addTagged<QSlider>(&page, 4101);
    EXPECT_EQ(MyEmbedCustomControls(1, nullptr, 0, &page), 0);
    const auto number = static_cast<std::int32_t>(reinterpret_cast<qintptr>(&page));
    EXPECT_EQ(log.lines(), logged({"\n!!!MyEmbedControls!!! - idx=1 - window=" + std::to_string(number) + "\n\n"}));
    EXPECT_EQ(tagOf(slider), 4101);
}

TEST(Embedding, AlwaysAnswersZeroAndReadsNoExtra)
{
    const Record record;
    QWidget page;
    for (const int mask : {0, 1, 2, 4, 8, 16, 32, 63, 64}) {
        EXPECT_EQ(MyEmbedCustomControls(mask, record, 99, &page), 0) << mask;
    }
}

TEST(Embedding, StoresThePageByTheBitsOfItsMask)
{
    const Record record;
    QWidget first;
    QWidget second;
    MyEmbedCustomControls(8, record, 0, &first);
    EXPECT_EQ(record->embedObject, &first);
    EXPECT_EQ(record->tabObjects[3], &first);
    MyEmbedCustomControls(1 | 32, record, 0, &second);
    EXPECT_EQ(record->embedObject, &second);
    EXPECT_EQ(record->tabObjects[0], &second);
    EXPECT_EQ(record->tabObjects[5], &second);
    EXPECT_EQ(record->tabObjects[3], &first);
    for (const std::size_t other : {1U, 2U, 4U}) {
        EXPECT_TRUE(record->tabObjects[other].isNull());
    }
    MyEmbedCustomControls(64, record, 0, &first);
    EXPECT_EQ(record->tabObjects[5], &second) << "there are six pages";
}

TEST(Embedding, CountsTwentySliderRowsOnEveryPage)
{
    QWidget page;
    for (const int mask : {0, 1, 2, 4, 8, 16, 32}) {
        const Record record;
        MyEmbedCustomControls(mask, record, 0, &page);
        EXPECT_EQ(record->controls.controlsInt, 20) << mask;
    }
}

TEST(Embedding, OfNoPageMatchesNoControl)
{
    PanelSession session(ppdFixture("minimal"));
    QWidget page;
    auto *slider = addTagged<QSlider>(&page, 4101);
    addTagged<PopUpButton>(&page, 4501);
    const StableAddresses stable;
    CapturedLog log;
    MyEmbedCustomControls(0, session.context(), 0, &page);
    EXPECT_EQ(log.lines(), logged({"\n!!!MyEmbedControls!!! - idx=0 - window=0\n\n",
                                   "Init popuplists - pageidx = 0\n", "---- INIT POPUP ----\n"}));
    EXPECT_EQ(tagOf(slider), 4101);
    EXPECT_EQ(session.popup(1), nullptr);
    EXPECT_EQ(session.context()->embedObject, &page);
}

class CountingTabs : public TabView {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        TabView::paintEvent(event);
    }
};

TEST(Embedding, RedrawsTheTabViewLast)
{
    const Record record;
    CountingTabs tabs;
    tabs.addTab(new QWidget, QStringLiteral("Page"));
    tabs.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tabs));
    record->controls.tabView = &tabs;
    const int before = tabs.paints;
    MyEmbedCustomControls(4, record, 0, tabs.widget(0));
    EXPECT_EQ(tabs.paints, before + 1);
}

TEST(Embedding, FindsEveryControlOfThePanel)
{
    PanelSession session;
    session.open();
    const ControlsStruct &controls = session.context()->controls;
    for (std::size_t row = 0; row < 12; ++row) {
        EXPECT_EQ(controls.popupControls[row] != nullptr, row < 8) << row;
    }
    for (std::size_t number = 0; number < 21; ++number) {
        EXPECT_EQ(controls.sliderControls[number] != nullptr, number < 20) << number;
        EXPECT_EQ(controls.sliderAuxControls[number] != nullptr, number < 20) << number;
    }
    for (const ControlHandle &handle :
         {controls.noPrintCheckBox, controls.psInterpreterCheckBox, controls.colorGammaCheckBox, controls.tabView,
          controls.photoControl, controls.brightCyanIcon, controls.cyanPane, controls.magentaPane,
          controls.brightUsageLabel}) {
        EXPECT_FALSE(handle.isNull());
    }
    const auto check = [](const ControlSlots &handles, std::initializer_list<int> ids) {
        for (std::size_t position = 0; position < 21; ++position) {
            const int id = position < ids.size() ? ids.begin()[position] : 0;
            EXPECT_EQ(handles[position] != nullptr, id != 0) << position;
            if (id != 0 && handles[position] != nullptr) {
                EXPECT_EQ(tagOf(handles[position]), id);
            }
        }
    };
    check(controls.lastInkBars, {3011, 3012, 3013, 3014, 3015, 3016, 3017, 3018, 3019, 3020, 3021, 3022});
    check(controls.totalInkBars, {2999, 3000, 3001, 3002, 3003, 3004, 3005, 3006, 3007, 3008, 3009, 3010});
    check(controls.lastInkValues, {3111, 3112, 3113, 3114, 3115, 3116, 3117, 3118, 3119, 3120, 3121, 3122, 3139});
    check(controls.totalInkValues, {3101, 3102, 3103, 3104, 3105, 3106, 3107, 3108, 3109, 3110, 3100, 3099, 3129});
    check(controls.lastInkNames, {3211, 3212, 3213, 3214, 3215, 3216, 3217, 3218, 3219, 3220, 3221, 3222});
    check(controls.totalInkNames, {3201, 3202, 3203, 3204, 3205, 3206, 3207, 3208, 3209, 3210, 3200, 3199});
}

TEST(Embedding, LeavesTheSparePlacesEmpty)
{
    PanelSession session;
    session.open();
    const ControlsStruct &controls = session.context()->controls;
    EXPECT_TRUE(controls.spareControl1.isNull());
    EXPECT_TRUE(controls.spareControl2.isNull());
    EXPECT_TRUE(controls.spareControl3.isNull());
    EXPECT_TRUE(controls.spareControl4.isNull());
    EXPECT_TRUE(controls.summaryControl.isNull()) << "no control has an owner";
    for (const ControlHandle &handle : controls.extraControls) {
        EXPECT_TRUE(handle.isNull());
    }
    EXPECT_TRUE(session.context()->availabilityObject.isNull());
}

TEST(Embedding, LeavesThePageOfTheLastTabAsTheEmbeddedOne)
{
    PanelSession session;
    session.open();
    auto *tabs = qobject_cast<TabView *>(session.context()->controls.tabView.data());
    EXPECT_EQ(session.context()->embedObject, tabs->widget(5));
    for (int position = 0; position < 6; ++position) {
        EXPECT_EQ(session.context()->tabObjects[static_cast<std::size_t>(position)], tabs->widget(position));
    }
}

TEST(EmbeddedPopUps, AreLoggedWhenTheyAreMissing)
{
    PanelSession session(ppdFixture("minimal"));
    QWidget page;
    addTagged<PopUpButton>(&page, 4502);
    CapturedLog log;
    MyEmbedCustomControls(1, session.context(), 0, &page);
    EXPECT_EQ(log.count("LOG NO STRINGS PRESENT!!!\n"), 3) << "cartridge, media type and dithering";
    EXPECT_EQ(log.countStarting("LOG --- found #"), 1);
    EXPECT_TRUE(log.contains("LOG --- found #2: controlid=4502\n"));
    EXPECT_EQ(session.popup(0), nullptr);
    EXPECT_EQ(session.popup(2)->count(), 2);
}

TEST(EmbeddedPopUps, AreFilledWithoutConstraintsBeforeTheConstraintsAreChecked)
{
    CapturedLog log;
    PanelSession session(ppdFixture("separator-after-disabled"));
    session.open();
    const Lines page =
        section(log, log.lines()[static_cast<std::size_t>(log.indexOf("LOG FillPopUp #1 - id = 4501\n"))],
                "LOG Init Tab #1");
    const auto first = std::find(page.begin(), page.end(), "LOG -- check contraints --\n");
    const auto forbidden = std::find(page.begin(), page.end(), "LOG --- INVISIBLE --- 'Gloss Paper'\n");
    EXPECT_LT(first, forbidden);
    EXPECT_NE(forbidden, page.end());
    EXPECT_EQ(std::count(page.begin(), page.end(), "LOG Adding to PopUpButton: 'Gloss Paper'\n"), 1);
    EXPECT_LT(std::find(page.begin(), page.end(), "LOG Adding to PopUpButton: 'Gloss Paper'\n"), first);
    EXPECT_EQ(log.count("LOG -- check contraints --\n"), 2);
    EXPECT_LT(std::find(page.begin(), page.end(), "LOG Checking menu for *vornMediaType\n"),
              std::find(page.begin(), page.end(), "LOG Checking menu for *vornResolution\n"));
}

TEST(EmbeddedPopUps, AreNotFilteredByTheMediaModeAtFirst)
{
    PanelSession session(ppdFixture("media-modes"));
    session.host->mark("vornMediaType", "M2");
    session.host->mark("vornColorModel", "CMYK");
    session.panel->restoreValuesAndReturnError(nullptr);
    session.open();
    EXPECT_EQ(hiddenOf(*session.popup(3)), std::vector<bool>(5, false));
    EXPECT_EQ(hiddenOf(*session.popup(4)), std::vector<bool>(6, false));
    EXPECT_EQ(session.settings().popupSelections[4], 5) << "CMYK, although the mode does not allow it";
    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(hiddenOf(*session.popup(4)), (std::vector<bool>{true, true, false, true, true, false}));
    EXPECT_EQ(hiddenOf(*session.popup(3)), (std::vector<bool>{false, false, true, true, false}));
    EXPECT_EQ(session.settings().popupSelections[4], 3);
}

TEST(EmbeddedPopUps, OfAHiddenCartridgeAreStillSent)
{
    PanelSession single(ppdFixture("one-cartridge"));
    single.open();
    single.panel->saveValuesAndReturnError(nullptr);
    EXPECT_NE(std::find(single.host->changes.begin(), single.host->changes.end(),
                        Change("vornCartridgeType", "PhotoBlack")),
              single.host->changes.end());

    PanelSession none(ppdFixture("no-cartridge"));
    none.open();
    CapturedLog log;
    none.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(log.count("LOG Value not present!\n"), 1);
}

TEST(EmbeddingOfMoreTabs, EndsWithTheEighth)
{
    const PanelSession session(ppdFixture("minimal"));
    TabView tabs;
    for (int i = 0; i < 9; ++i) {
        tabs.addTab(new QWidget, QStringLiteral("Page"));
    }
    const StableAddresses stable;
    CapturedLog log;
    EXPECT_EQ(CocoaEmbedControls(session.context(), nullptr, &tabs), 1);
    EXPECT_TRUE(log.contains("LOG CoCoaEmbedControls - 9 TABS - View=0xP\n"));
    const std::array<int, 8> masks{1, 2, 4, 8, 16, 32, 0, 0};
    for (std::size_t position = 0; position < masks.size(); ++position) {
        EXPECT_TRUE(log.contains("LOG Init Tab #" + std::to_string(position) + " (0xP) with idx #" +
                                 std::to_string(masks[position]) + "\n"))
            << position;
    }
    EXPECT_EQ(log.countStarting("LOG Init Tab #"), 8);
    EXPECT_EQ(log.count("LOG \n!!!MyEmbedControls!!! - idx=0 - window=0\n\n"), 2);
    EXPECT_EQ(session.context()->embedObject, tabs.widget(7));
    EXPECT_TRUE(tabs.identifier(8).isNull());
}

TEST(EmbeddingOfFewerTabs, LeavesOutWhatTheMissingPagesDo)
{
    PanelSession session(ppdFixture("media-modes"));
    session.host->mark("vornColorGamma", "1");
    session.host->mark("vornMediaType", "M3");
    session.panel->restoreValuesAndReturnError(nullptr);
    const auto raw = rawInterface();
    auto *tabs = raw->findChild<TabView *>();
    tabs->removeTab(5);
    tabs->removeTab(4);
    EXPECT_EQ(CocoaEmbedControls(session.context(), raw.get(), tabs), 1);
    EXPECT_FALSE(session.checkBox(4707)->isChecked()) << "the ink usage page would have set it";
    EXPECT_TRUE(isOn(session.slider(16)));
    EXPECT_EQ(session.slider(7), nullptr);
    EXPECT_TRUE(session.context()->controls.cyanPane.isNull());
    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_TRUE(session.checkBox(4707)->isChecked());
    AlertRecorder alerts;
    SetComboControlValue(session.popup(1), 3);
    EXPECT_EQ(processEvent(session.context(), 1, 4501), 0);
    EXPECT_FALSE(isOn(session.slider(0))) << "an event applies the media mode";
    EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", "Off", "Off"}));
}

TEST(EmbeddingOfFewerTabs, HasNoIntentsWithoutTheColorPage)
{
    PanelSession session(ppdFixture("media-modes"));
    const auto raw = rawInterface();
    auto *tabs = raw->findChild<TabView *>();
    while (tabs->count() > 1) {
        tabs->removeTab(1);
    }
    CocoaEmbedControls(session.context(), raw.get(), tabs);
    CapturedLog log;
    session.panel->restoreValuesAndReturnError(nullptr);
    for (const char *keyword : {"*vornIntent", "*vornColorModel", "*vornColorspace", "*vornCMYKspace"}) {
        EXPECT_TRUE(log.contains("LOG !!! Control not found for ppditem: " + std::string(keyword) + "\n"));
    }
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(session.host->marked("vornColorModel"), "RGB") << "the stored value is sent";
    EXPECT_EQ(session.host->changes.size(), 1U + 8U + 20U);
}

TEST(EmbeddedPopUps, TakeTheFirstMediaTypeWhenNoneIsSelected)
{
    PanelSession session(ppdFixture("foreign"));
    EXPECT_EQ(session.settings().popupSelections[1], 0);
    session.open();
    std::array<std::int32_t, 12> expected{};
    expected[1] = 1;
    EXPECT_EQ(session.settings().popupSelections, expected);
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(session.popup(row)->count(), 0) << row;
    }
}

} // namespace
} // namespace tessarin::test

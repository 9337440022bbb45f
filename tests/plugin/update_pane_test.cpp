// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Showing the settings in the controls: with controls made by hand, each case has just those that it is about.

#include "plugin/restore.h"

#include "controls/control_layer.h"
#include "controls/menu_items.h"
#include "platform/popup_button.h"
#include "platform/view_tags.h"
#include "tests/plugin/plugin_test_support.h"

#include <QCheckBox>
#include <QLabel>
#include <QSlider>

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace tessarin::test {
namespace {

constexpr std::array<const char *, 8> kKeywords{"*vornCartridgeType", "*vornMediaType",  "*vornResolution",
                                                "*vornIntent",        "*vornColorModel", "*vornDithering",
                                                "*vornColorspace",    "*vornCMYKspace"};

class UpdatePane : public testing::Test {
protected:
    PanelSettings &settings() const { return context_->settings; }

    /// Puts a pop-up with `count` items on the panel.
    PopUpButton &addPopUp(std::size_t row, int count)
    {
        popups_.at(row) = std::make_unique<PopUpButton>();
        for (int n = 1; n <= count; ++n) {
            AddMenuItem(popups_.at(row).get(), "item", n);
        }
        context_->controls.popupControls.at(row) = popups_.at(row).get();
        return *popups_.at(row);
    }

    /// Puts a slider with its value text on the panel, as the embedding links them.
    QSlider &addSlider(std::size_t number)
    {
        sliders_.at(number) = std::make_unique<QSlider>(Qt::Horizontal);
        texts_.at(number) = std::make_unique<QLabel>();
        QSlider &slider = *sliders_.at(number);
        slider.setRange(-10, 10);
        setTagOf(texts_.at(number).get(), static_cast<qintptr>(number));
        setTagOf(&slider, handleOf(texts_.at(number).get()));
        context_->controls.sliderControls.at(number) = &slider;
        return slider;
    }

    Lines update() const
    {
        const CapturedLog log;
        MyUpdatePaneFromSettings(context_);
        return log.lines();
    }

    static Lines startingWith(const Lines &lines, const std::string &start)
    {
        Lines found;
        for (const std::string &line : lines) {
            if (line.starts_with(start)) {
                found.push_back(line);
            }
        }
        return found;
    }

    TestContext context_;
    QCheckBox box_;
    std::array<std::unique_ptr<PopUpButton>, 12> popups_;
    std::array<std::unique_ptr<QSlider>, 21> sliders_;
    std::array<std::unique_ptr<QLabel>, 21> texts_;
};

TEST_F(UpdatePane, WithoutControlsOnlyTellsWhatIsMissing)
{
    Lines expected;
    for (const char *keyword : kKeywords) {
        expected.push_back(std::string("LOG !!! Control not found for ppditem: ") + keyword + "\n");
    }
    expected.insert(expected.end(), {"LOG colmode=0\n", "LOG colmodename=(null)\n", "LOG RGB-Mode - (null)\n"});
    EXPECT_EQ(update(), expected);
}

TEST_F(UpdatePane, TicksPrintSimulationByItsState)
{
    context_->controls.noPrintCheckBox = &box_;
    for (const int state : {1, 0, 2, 255}) {
        settings().checkBoxStates.at(0) = static_cast<std::uint8_t>(state);
        update();
        EXPECT_EQ(box_.isChecked(), state != 0) << state;
    }
}

TEST_F(UpdatePane, TicksTheInterpreterOnlyWhenItIsThereToo)
{
    context_->controls.psInterpreterCheckBox = &box_;
    struct Case {
        int state;
        int available;
        bool ticked;
    };
    constexpr Case cases[] = {{1, 1, true}, {1, 0, false}, {0, 1, false}, {0, 0, false}, {2, 5, true}};
    for (const Case &entry : cases) {
        settings().checkBoxStates.at(1) = static_cast<std::uint8_t>(entry.state);
        context_->optionFlagD = entry.available;
        box_.setChecked(!entry.ticked);
        update();
        EXPECT_EQ(box_.isChecked(), entry.ticked) << entry.state << " " << entry.available;
        EXPECT_EQ(settings().checkBoxStates.at(1), entry.state) << "the setting itself is kept";
    }
}

TEST_F(UpdatePane, TicksColourCorrectionAndFollowsItWithItsSliders)
{
    context_->controls.colorGammaCheckBox = &box_;
    settings().checkBoxStates.at(2) = 1;
    EXPECT_EQ(update().front(), "LOG colors enabled\n");
    EXPECT_TRUE(box_.isChecked());
    settings().checkBoxStates.at(2) = 0;
    EXPECT_EQ(update().front(), "LOG colors disabled\n");
    EXPECT_FALSE(box_.isChecked());
}

TEST_F(UpdatePane, LeavesTheColourSlidersAloneWithoutTheirCheckBox)
{
    settings().checkBoxStates.at(2) = 1;
    EXPECT_EQ(startingWith(update(), "LOG colors "), Lines{});
}

TEST_F(UpdatePane, TakesEachStateForItsOwnCheckBox)
{
    QCheckBox interpreter;
    QCheckBox gamma;
    context_->controls.noPrintCheckBox = &box_;
    context_->controls.psInterpreterCheckBox = &interpreter;
    context_->controls.colorGammaCheckBox = &gamma;
    context_->optionFlagD = 1;
    settings().checkBoxStates = {0, 1, 0, 0};
    update();
    EXPECT_EQ((std::array{box_.isChecked(), interpreter.isChecked(), gamma.isChecked()}),
              (std::array{false, true, false}));
    settings().checkBoxStates = {0, 0, 1, 1};
    update();
    EXPECT_EQ((std::array{box_.isChecked(), interpreter.isChecked(), gamma.isChecked()}),
              (std::array{false, false, true}));
}

TEST_F(UpdatePane, SetsEveryPopUpButMediaTypeAndResolution)
{
    for (std::size_t row = 0; row < 8; ++row) {
        if (row != 2) { // without it no constraints are checked
            addPopUp(row, 9);
        }
        settings().popupSelections.at(row) = static_cast<std::int32_t>(row) + 2;
    }
    const Lines lines = update();
    for (const std::size_t row : {0U, 3U, 4U, 5U, 6U, 7U}) {
        // A colour mode that is not in the list goes back to the first pair, but only afterwards.
        EXPECT_EQ(popups_.at(row)->currentIndex(), static_cast<int>(row) + 1) << row;
    }
    EXPECT_EQ(popups_.at(1)->currentIndex(), 0) << "as it was";
    EXPECT_EQ(
        startingWith(lines, "LOG Setting Combo "),
        (Lines{"LOG Setting Combo '*vornCartridgeType' to '2'\n", "LOG Setting Combo '*vornIntent' to '5'\n",
               "LOG Setting Combo '*vornColorModel' to '6'\n", "LOG Setting Combo '*vornDithering' to '7'\n",
               "LOG Setting Combo '*vornColorspace' to '8'\n", "LOG Setting Combo '*vornCMYKspace' to '9'\n"}));
    EXPECT_EQ(startingWith(lines, "LOG !!! "), Lines{"LOG !!! Control not found for ppditem: *vornResolution\n"});
}

TEST_F(UpdatePane, TellsOfTheLayersCallBeforeItsOwn)
{
    addPopUp(5, 4);
    settings().popupSelections.at(5) = 3;
    const Lines lines = update();
    EXPECT_EQ(lines.at(5), "LOG SetComboControlValue to #3 of 4\n");
    EXPECT_EQ(lines.at(6), "LOG Setting Combo '*vornDithering' to '3'\n");
}

TEST_F(UpdatePane, DeselectsAPopUpWithoutASelection)
{
    PopUpButton &popup = addPopUp(5, 3);
    popup.setCurrentIndex(1);
    update();
    EXPECT_EQ(popup.currentIndex(), -1);
}

TEST_F(UpdatePane, LeavesAPopUpWhoseSelectionIsBeyondItsItems)
{
    PopUpButton &popup = addPopUp(5, 3);
    popup.setCurrentIndex(1);
    settings().popupSelections.at(5) = 4;
    EXPECT_EQ(startingWith(update(), "LOG Setting Combo "), Lines{"LOG Setting Combo '*vornDithering' to '4'\n"});
    EXPECT_EQ(popup.currentIndex(), 1);
}

TEST_F(UpdatePane, LooksAtNoPopUpBeyondTheTable)
{
    PopUpButton &popup = addPopUp(8, 3);
    settings().popupSelections.at(8) = 2;
    update();
    EXPECT_EQ(popup.currentIndex(), 0);
}

TEST_F(UpdatePane, ChecksConstraintsOnlyWhenTheResolutionPopUpIsThere)
{
    addPopUp(1, 3);
    EXPECT_EQ(startingWith(update(), "LOG -- check contraints"), Lines{});
    addPopUp(2, 3);
    const Lines lines = update();
    Lines checks;
    for (const std::string &line : lines) {
        for (const char *start : {"LOG Checking menu", "LOG got MediaMode", "LOG Availabilitycheck"}) {
            if (line.starts_with(start)) {
                checks.push_back(line);
            }
        }
    }
    EXPECT_EQ(checks, (Lines{"LOG Checking menu for *vornMediaType\n", "LOG Checking menu for *vornResolution\n",
                             "LOG got MediaMode: 0 - (null)\n", "LOG got MediaMode: 0 - (null)\n"}))
        << "rows 3 and 4 have no menu";
    EXPECT_EQ(settings().popupSelections.at(1), 1) << "the availability check turns 0 into 1";
}

TEST_F(UpdatePane, SelectsMediaTypeAndResolutionThroughTheConstraints)
{
    fillRow(context_.table(), 0, {{"A", "A"}, {"B", "B"}});
    fillRow(context_.table(), 1, {{"Plain3", "Plain"}, {"Photo6", "Photo"}});
    fillRow(context_.table(), 2, {{"600", "600 dpi"}, {"1200", "1200 dpi"}});
    setGroups(context_.table(), {{0, 1, 1, 0}});
    addPopUp(1, 0);
    addPopUp(2, 0);
    settings().popupSelections = {2, 1, 2};
    update();
    EXPECT_EQ(popups_.at(1)->currentText(), QStringLiteral("Photo")) << "the first one is forbidden";
    EXPECT_EQ(settings().popupSelections.at(1), 2);
    EXPECT_EQ(popups_.at(2)->currentText(), QStringLiteral("1200 dpi"));
}

TEST_F(UpdatePane, ShowsTheSlidersThatAreThere)
{
    QSlider &brightness = addSlider(0);
    QSlider &grey = addSlider(5);
    brightness.setEnabled(false);
    settings().sliderValues.at(0) = -4;
    settings().sliderValues.at(5) = 7;
    const Lines lines = update();
    EXPECT_EQ(brightness.value(), -4);
    EXPECT_EQ(texts_.at(0)->text(), QStringLiteral("80%"));
    EXPECT_TRUE(brightness.isEnabled()) << "showing a value enables the slider";
    EXPECT_EQ(grey.value(), 7);
    EXPECT_EQ(texts_.at(5)->text(), QStringLiteral("+35"));
    EXPECT_EQ(startingWith(lines, "LOG currentValue = "),
              (Lines{"LOG currentValue = -4\n", "LOG currentValue = 7\n"}));
}

TEST_F(UpdatePane, EnablesTheColourSlidersAgainThatItsCheckBoxDisables)
{
    context_->controls.colorGammaCheckBox = &box_;
    for (const std::size_t number : {16U, 17U, 18U, 19U}) {
        addSlider(number);
    }
    settings().checkBoxStates.at(2) = 0;
    const Lines lines = update();
    EXPECT_EQ(lines.front(), "LOG colors disabled\n");
    for (const std::size_t number : {16U, 17U, 18U, 19U}) {
        EXPECT_TRUE(sliders_.at(number)->isEnabled()) << number;
    }
}

TEST_F(UpdatePane, FindsASlidersRowByItsNumber)
{
    std::swap(Scrolls.at(0), Scrolls.at(5));
    addSlider(0);
    addSlider(5);
    settings().sliderValues.at(0) = 3;
    settings().sliderValues.at(5) = -3;
    update();
    EXPECT_EQ(sliders_.at(0)->value(), 3);
    EXPECT_EQ(sliders_.at(5)->value(), -3);
}

TEST_F(UpdatePane, SkipsASliderWithoutARow)
{
    addSlider(1);
    addSlider(6);
    Scrolls.at(6).number = -1;
    settings().sliderValues.at(1) = 3;
    settings().sliderValues.at(6) = 3;
    update();
    EXPECT_EQ(sliders_.at(1)->value(), 3);
    EXPECT_EQ(sliders_.at(6)->value(), 0) << "the table ends before it";
}

TEST_F(UpdatePane, LeavesTheSpareSliderPlaceAlone)
{
    QSlider &spare = addSlider(20);
    settings().sliderValues.at(20) = 5;
    update();
    EXPECT_EQ(spare.value(), 0);
}

TEST_F(UpdatePane, ShowsTheColourModeLast)
{
    fillRow(context_.table(), 4, {{"RGB", "RGB"}, {"CMYKproof", "Proof"}});
    addPopUp(6, 1);
    addPopUp(7, 1);
    addSlider(19);
    settings().popupSelections.at(4) = 5;
    const Lines lines = update();
    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(
        Lines(lines.end() - 4, lines.end()),
        (Lines{"LOG mark3\n", "LOG colmode=2\n", "LOG colmodename=CMYKproof\n", "LOG CMYK-Mode - CMYKproof\n"}));
    EXPECT_EQ(settings().popupSelections.at(4), 2);
    EXPECT_TRUE(popups_.at(6)->isHidden());
    EXPECT_FALSE(popups_.at(7)->isHidden());
}

TEST_F(UpdatePane, RaisesNoEventsOfTheHost)
{
    RecordingHost host;
    context_->callbackObject = &host;
    for (std::size_t row = 0; row < 8; ++row) {
        addPopUp(row, 2);
        settings().popupSelections.at(row) = 2;
    }
    addSlider(0);
    settings().sliderValues.at(0) = 5;
    update();
    EXPECT_TRUE(host.changes.empty());
}

} // namespace
} // namespace tessarin::test

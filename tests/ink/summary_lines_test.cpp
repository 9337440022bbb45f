// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The lines of the summary, from a record filled by hand.

#include "ink/summary.h"
#include "tests/ink/ink_test_support.h"
#include "tests/support/captured_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class SummaryLines : public testing::Test {
protected:
    SummaryLines()
    {
        fillRow(context_.table(), 0, {{"PhotoBlack", "Photo Black Text"}, {"MatteBlack", "Matte Black Text"}});
        fillRow(context_.table(), 1, {{"Plain0", "Plain Paper"}, {"Photo6", "Photo Paper"}, {"Film5", "Film"}});
        fillRow(context_.table(), 2, {{"600dpi", "600 dpi"}});
        fillRow(context_.table(), 3, {{"Perceptual0", "Perceptual"}});
        fillRow(context_.table(), 4, {{"Gray", "Grayscale"}, {"RGB", "RGB Color"}});
        fillRow(context_.table(), 5, {{"Diffusion", "Error Diffusion"}});
        fillRow(context_.table(), 6, {{"1", "sRGB"}});
        fillRow(context_.table(), 7, {{"10", "Offset"}});
        context_->settings.popupSelections = {1, 2, 1, 1, 2, 1, 1, 1};
        context_->settings.sliderValues[2] = 3;
    }
    pde::Summary summary() { return MyGetSummaryText(context_).value_or(pde::Summary{.entries = {}}); }
    std::string value(const char *label)
    {
        const pde::Summary lines = summary();
        const auto found = lines.entries.find(QString::fromUtf8(label));
        return found != lines.entries.end() ? found->toStdString() : "(no line)";
    }
    Lines order()
    {
        Lines labels;
        for (const QString &label : summary().displayOrder.value_or(QStringList())) {
            labels.push_back(label.toStdString());
        }
        return labels;
    }

    TestContext context_;
};

const Lines kAllLabels{
    "Print Simulation",
    "Cartridge",
    "Media Type",
    "Print Resolution",
    "Rendering Intent",
    "Color Mode",
    "Dithering",
    "Color Space",
    "CMYK-Colorspace",
    "Postscript-Processor",
    "Manual color correction",
    "Brightness",
    "Contrast",
    "Reference Light",
    "Color Gamut",
    "Shadows",
    "Greytone A",
    "Greytone B",
    "Black Usage (UCR)",
    "Usage Bright Cyan",
    "Usage Bright Magenta",
    "Total Ink Maximum",
    "Ink-Intensity",
    "Ink-Limit Black",
    "Ink-Limit Cyan",
    "Ink-Limit Magenta",
    "Ink-Limit Yellow",
    "Black",
    "Cyan",
    "Magenta",
    "Yellow",
};

TEST_F(SummaryLines, ComeInTheirOrder)
{
    EXPECT_EQ(order(), kAllLabels);
    const pde::Summary lines = summary();
    EXPECT_EQ(lines.entries.size(), 31);
    EXPECT_FALSE(lines.entries.contains(QStringLiteral("Summary Display Order")));
    EXPECT_STREQ(pde::kSummaryDisplayOrderKey, "Summary Display Order");
}

TEST_F(SummaryLines, ShowTheCheckBoxStates)
{
    struct Case {
        std::uint8_t noPrint;
        std::uint8_t ghostscript;
        std::uint8_t correction;
        const char *simulation;
        const char *processor;
        const char *manual;
    };
    for (const Case &c : std::vector<Case>{
             {0, 0, 1, "OFF - printing is enabled", "Mac OS", "enabled"},
             {1, 0, 0, "ON - printing is disabled", "Mac OS", "disabled"},
             {0, 1, 0, "OFF - printing is enabled", "Ghostscript", "disabled"},
             {255, 7, 2, "ON - printing is disabled", "Ghostscript", "enabled"},
         }) {
        context_->settings.checkBoxStates = {c.noPrint, c.ghostscript, c.correction, 0};
        EXPECT_EQ(value("Print Simulation"), c.simulation);
        EXPECT_EQ(value("Postscript-Processor"), c.processor);
        EXPECT_EQ(value("Manual color correction"), c.manual);
    }
}

TEST_F(SummaryLines, ShowTheTextsOfTheSelectedChoices)
{
    EXPECT_EQ(value("Cartridge"), "Photo Black Text");
    EXPECT_EQ(value("Media Type"), "Photo Paper");
    EXPECT_EQ(value("Print Resolution"), "600 dpi");
    EXPECT_EQ(value("Rendering Intent"), "Perceptual");
    EXPECT_EQ(value("Color Mode"), "RGB Color");
    EXPECT_EQ(value("Dithering"), "Error Diffusion");
    EXPECT_EQ(value("Color Space"), "sRGB");
    EXPECT_EQ(value("CMYK-Colorspace"), "Offset");
}

TEST_F(SummaryLines, ShowTheFirstChoiceWhereNothingIsSelected)
{
    for (const int selection : {0, -1, -1000, 1}) {
        context_->settings.popupSelections[0] = selection;
        context_->settings.popupSelections[1] = selection;
        EXPECT_EQ(value("Cartridge"), "Photo Black Text") << selection;
        EXPECT_EQ(value("Media Type"), "Plain Paper") << selection;
    }
}

TEST_F(SummaryLines, LeaveAPopUpWithoutTextOut)
{
    context_->settings.popupSelections[0] = 3; // one beyond the list
    context_->settings.popupSelections[4] = 123;
    context_->settings.popupSelections[5] = 2'000'000'000;
    fillRow(context_.table(), 7, {});
    Lines expected = kAllLabels;
    for (const char *label : {"Cartridge", "Color Mode", "Dithering", "CMYK-Colorspace"}) {
        std::erase(expected, label);
        EXPECT_EQ(value(label), "(no line)");
    }
    EXPECT_EQ(order(), expected);
}

TEST_F(SummaryLines, ShowSliderValuesByTheirRows)
{
    auto &sliders = context_->settings.sliderValues;
    sliders = {-10, -1, 6, -5, 5, -1, 10, -5, -4, -3, 5, -8, -1, 2, 3, 4, -10, -1, 1, 10, 99};
    const std::vector<std::pair<const char *, const char *>> expected{
        {"Brightness", "50%"},
        {"Contrast", "95%"},
        {"Reference Light", "D80"},
        {"Color Gamut", "50%"},
        {"Shadows", "200%"},
        {"Greytone A", "-5"},
        {"Greytone B", "+50"},
        {"Black Usage (UCR)", "0%"},
        {"Usage Bright Cyan", "10%"},
        {"Usage Bright Magenta", "20%"},
        {"Total Ink Maximum", "400%"},
        {"Ink-Intensity", "80%"},
        {"Ink-Limit Black", "90%"},
        {"Ink-Limit Cyan", "140%"},
        {"Ink-Limit Magenta", "160%"},
        {"Ink-Limit Yellow", "180%"},
        {"Black", "-50%"},
        {"Cyan", "-5%"},
        {"Magenta", "5%"},
        {"Yellow", "50%"},
    };
    for (const auto &[label, text] : expected) {
        EXPECT_EQ(value(label), text) << label;
    }
}

TEST_F(SummaryLines, TakeTheValueOfTheRowsSliderNumber)
{
    Scrolls[0].number = 1;
    context_->settings.sliderValues[1] = 10;
    EXPECT_EQ(value("Brightness"), "200%");
}

TEST_F(SummaryLines, HaveOneBrightInkLineForAMediaKeyThatEndsIn5)
{
    context_->settings.popupSelections[1] = 3;
    context_->settings.sliderValues[8] = -2;
    context_->settings.sliderValues[9] = 4;
    Lines expected = kAllLabels;
    std::replace(expected.begin(), expected.end(), std::string("Usage Bright Cyan"),
                 std::string("Bright Inks Usage:"));
    std::erase(expected, "Usage Bright Magenta");
    EXPECT_EQ(order(), expected);
    EXPECT_EQ(value("Bright Inks Usage:"), "30%");
    EXPECT_EQ(value("Usage Bright Cyan"), "(no line)");
    EXPECT_EQ(value("Usage Bright Magenta"), "(no line)");
}

TEST_F(SummaryLines, GoByTheLastCharacterOfTheMediaKey)
{
    for (const auto &[key, one] : {std::pair{"Film5", true},
                                   {"Custom15", true},
                                   {"5", true},
                                   {"Film50", false},
                                   {"Film6", false},
                                   {"5Film", false},
                                   {"Film", false}}) {
        fillRow(context_.table(), 1, {{key, "Media"}});
        context_->settings.popupSelections[1] = 1;
        EXPECT_EQ(value("Bright Inks Usage:") != "(no line)", one) << key;
        EXPECT_EQ(value("Usage Bright Magenta") == "(no line)", one) << key;
    }
}

// The line shows the first choice, the rule looks at no choice at all.
TEST_F(SummaryLines, HaveTwoBrightInkLinesWhereNoMediaIsSelected)
{
    fillRow(context_.table(), 1, {{"Film5", "Film"}});
    for (const int selection : {0, -1, 2, 123}) {
        context_->settings.popupSelections[1] = selection;
        EXPECT_EQ(value("Usage Bright Cyan"), "50%") << selection;
        EXPECT_EQ(value("Usage Bright Magenta"), "50%") << selection;
        EXPECT_EQ(value("Bright Inks Usage:"), "(no line)") << selection;
        EXPECT_EQ(value("Media Type"), selection < 1 ? "Film" : "(no line)") << selection;
    }
}

TEST_F(SummaryLines, LeaveASliderWithoutTitleOut)
{
    Scrolls[4].label = "";
    Lines expected = kAllLabels;
    std::erase(expected, "Shadows");
    const CapturedLog log;
    EXPECT_EQ(order(), expected);
    EXPECT_EQ(log.count("LOG do Scroll.\n"), 20);
}

TEST_F(SummaryLines, LocaliseLabelsAndCheckBoxValuesOnly)
{
    const BracketBundle bundle;
    context_->settings.popupSelections[1] = 3;
    Lines expected = kAllLabels;
    std::replace(expected.begin(), expected.end(), std::string("Usage Bright Cyan"),
                 std::string("Bright Inks Usage:"));
    std::erase(expected, "Usage Bright Magenta");
    for (std::string &label : expected) {
        label = "<" + label + ">";
    }
    EXPECT_EQ(order(), expected);
    EXPECT_EQ(value("<Print Simulation>"), "<OFF - printing is enabled>");
    EXPECT_EQ(value("<Postscript-Processor>"), "<Mac OS>");
    EXPECT_EQ(value("<Manual color correction>"), "<disabled>");
    EXPECT_EQ(value("<Media Type>"), "Film");
    EXPECT_EQ(value("<Brightness>"), "100%");
    EXPECT_EQ(value("<Bright Inks Usage:>"), "50%");
}

TEST_F(SummaryLines, WithEqualLabelsShareTheLaterValue)
{
    const BracketBundle bundle({{"Brightness", "Same"}, {"Yellow", "Same"}, {"Media Type", "Same"}});
    context_->settings.sliderValues[19] = 10;
    EXPECT_EQ(value("Same"), "50%");
    EXPECT_EQ(summary().entries.size(), 29);
    const Lines labels = order();
    ASSERT_EQ(labels.size(), 31U);
    EXPECT_EQ(std::count(labels.begin(), labels.end(), "Same"), 3);
    EXPECT_EQ(labels[2], "Same");
    EXPECT_EQ(labels[11], "Same");
    EXPECT_EQ(labels[30], "Same");
}

TEST_F(SummaryLines, AreUTF8)
{
    fillRow(context_.table(), 0, {{"x", "B\xC3\xBCtten 100 %"}});
    EXPECT_EQ(value("Cartridge"), "B\xC3\xBCtten 100 %");
}

TEST_F(SummaryLines, AreLoggedInOrder)
{
    const CapturedLog log;
    context_->settings.checkBoxStates[2] = 1;
    MyGetSummaryText(context_);
    Lines expected{"Summary\n",
                   "Summary2\n",
                   "Adding to summary: Print Simulation=OFF - printing is enabled\n",
                   "Summarybeforepop\n",
                   "Adding to summary: Cartridge=Photo Black Text\n",
                   "Adding to summary: Media Type=Photo Paper\n",
                   "Adding to summary: Print Resolution=600 dpi\n",
                   "Adding to summary: Rendering Intent=Perceptual\n",
                   "Adding to summary: Color Mode=RGB Color\n",
                   "Adding to summary: Dithering=Error Diffusion\n",
                   "Adding to summary: Color Space=sRGB\n",
                   "Adding to summary: CMYK-Colorspace=Offset\n",
                   "Adding to summary: Postscript-Processor=Mac OS\n",
                   "Adding to summary: Manual color correction=enabled\n",
                   "###Check-ColorGamma = 1 / an\n",
                   "Summarybeforescroll\n"};
    const Lines values{"100%", "100%", "D65",  "100%", "100%", "+0",   "+0", "50%", "50%", "50%",
                       "300%", "0%",   "100%", "100%", "100%", "100%", "0%", "0%",  "0%",  "0%"};
    for (std::size_t row = 0; row < 20; ++row) {
        expected.emplace_back("do Scroll.\n");
        expected.push_back("Adding " + kAllLabels[11 + row] + "/" + values[row] + " to Dictionary\n");
    }
    EXPECT_EQ(log.lines(), logged(expected));
}

TEST_F(SummaryLines, LogADroppedRowAsWalked)
{
    const CapturedLog log;
    context_->settings.popupSelections[1] = 3;
    MyGetSummaryText(context_);
    EXPECT_EQ(log.count("LOG do Scroll.\n"), 20);
    EXPECT_EQ(log.count("LOG ###Check-ColorGamma = 0 / aus\n"), 1);
    const long at = log.indexOf("LOG Adding Bright Inks Usage:/50% to Dictionary\n");
    ASSERT_GE(at, 0);
    const auto after = static_cast<std::size_t>(at) + 1;
    EXPECT_EQ(log.lines()[after], "LOG do Scroll.\n");
    EXPECT_EQ(log.lines()[after + 1], "LOG do Scroll.\n");
    EXPECT_EQ(log.lines()[after + 2], "LOG Adding Total Ink Maximum/300% to Dictionary\n");
}

TEST_F(SummaryLines, NeedARecord)
{
    EXPECT_FALSE(MyGetSummaryText(nullptr).has_value());
}

TEST(SummaryEntries, AreAddedWithoutAnOrder)
{
    pde::Summary lines{.entries = {}};
    const CapturedLog log;
    mySummaryEntry(lines, makeString(std::string("Label")), makeString(std::string("Value")), false);
    myEnterArrayList(lines, QStringLiteral("Label"));
    EXPECT_EQ(lines.entries.value(QStringLiteral("Label")), QStringLiteral("Value"));
    EXPECT_FALSE(lines.displayOrder.has_value());
    EXPECT_EQ(log.lines(), logged({"Adding to summary: Label=Value\n"}));
}

TEST(SummaryEntries, ReplaceAnEarlierValue)
{
    const BracketBundle bundle;
    pde::Summary lines{.entries = {}, .displayOrder = QStringList()};
    mySummaryEntry(lines, makeString(std::string("Label")), makeString(std::string("One")), true);
    mySummaryEntry(lines, makeString(std::string("Label")), makeString(std::string("Two")), false);
    EXPECT_EQ(lines.entries.value(QStringLiteral("<Label>")), QStringLiteral("Two"));
    EXPECT_EQ(lines.displayOrder, QStringList({QStringLiteral("<Label>"), QStringLiteral("<Label>")}));
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The summary of a panel: whole, and how current it is.

#include "controls/embedding.h"
#include "tests/support/panel_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tessarin::test {
namespace {

using Texts = std::map<std::string, std::string>;

Texts textsOf(const pde::Summary &summary)
{
    Texts texts;
    for (auto entry = summary.entries.cbegin(); entry != summary.entries.cend(); ++entry) {
        texts[entry.key().toStdString()] = entry.value().toStdString();
    }
    return texts;
}

class PanelSummary : public testing::Test {
protected:
    PanelSummary() { ghostscriptPaths = {"/nonexistent/gs", "/nonexistent/bin/gs"}; }
    ~PanelSummary() override { ghostscriptPaths = paths_; }

    static pde::Summary summaryOf(const PanelSession &session)
    {
        return session.panel->summaryInfo().value_or(pde::Summary{.entries = {}});
    }
    static QStringList orderOf(const PanelSession &session)
    {
        return summaryOf(session).displayOrder.value_or(QStringList());
    }
    static std::string line(const PanelSession &session, const char *label)
    {
        return summaryOf(session).entries.value(QString::fromUtf8(label)).toStdString();
    }

private:
    decltype(ghostscriptPaths) paths_ = ghostscriptPaths;
};

TEST_F(PanelSummary, OfTheSampleIsWhole)
{
    const PanelSession session;
    ASSERT_TRUE(session.panel->summaryInfo().has_value());
    EXPECT_EQ(textsOf(summaryOf(session)), (Texts{
                                               {"Print Simulation", "OFF - printing is enabled"},
                                               {"Cartridge", "Photo Black"},
                                               {"Media Type", "Photo Pearl 290 g"},
                                               {"Print Resolution", "1200 dpi (Photo)"},
                                               {"Rendering Intent", "Perceptual"},
                                               {"Color Mode", "RGB Color"},
                                               {"Dithering", "Error Diffusion"},
                                               {"Color Space", "sRGB"},
                                               {"CMYK-Colorspace", "Offset, Coated Paper"},
                                               {"Postscript-Processor", "Ghostscript"},
                                               {"Manual color correction", "disabled"},
                                               {"Brightness", "100%"},
                                               {"Contrast", "100%"},
                                               {"Reference Light", "D65"},
                                               {"Color Gamut", "100%"},
                                               {"Shadows", "100%"},
                                               {"Greytone A", "+0"},
                                               {"Greytone B", "+0"},
                                               {"Black Usage (UCR)", "50%"},
                                               {"Usage Bright Cyan", "50%"},
                                               {"Usage Bright Magenta", "50%"},
                                               {"Total Ink Maximum", "300%"},
                                               {"Ink-Intensity", "0%"},
                                               {"Ink-Limit Black", "100%"},
                                               {"Ink-Limit Cyan", "100%"},
                                               {"Ink-Limit Magenta", "100%"},
                                               {"Ink-Limit Yellow", "100%"},
                                               {"Black", "0%"},
                                               {"Cyan", "0%"},
                                               {"Magenta", "0%"},
                                               {"Yellow", "0%"},
                                           }));
    const QStringList expected{"Print Simulation",
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
                               "Yellow"};
    EXPECT_EQ(orderOf(session), expected);
}

TEST_F(PanelSummary, IsTheSameWithAndWithoutAView)
{
    PanelSession session;
    const Texts before = textsOf(summaryOf(session));
    session.open();
    EXPECT_EQ(textsOf(summaryOf(session)), before);
    EXPECT_TRUE(session.host->changes.empty());
}

TEST_F(PanelSummary, HasOneBrightInkLineForSuchAMedia)
{
    PanelSession session;
    session.host->mark("vornMediaType", "Backlit05");
    session.panel->restoreValuesAndReturnError(nullptr);
    const QStringList order = orderOf(session);
    ASSERT_EQ(order.size(), 30);
    EXPECT_EQ(order.mid(18, 3), QStringList({"Black Usage (UCR)", "Bright Inks Usage:", "Total Ink Maximum"}));
    const Texts texts = textsOf(summaryOf(session));
    EXPECT_EQ(texts.at("Bright Inks Usage:"), "50%");
    EXPECT_FALSE(texts.contains("Usage Bright Cyan"));
    EXPECT_FALSE(texts.contains("Usage Bright Magenta"));
}

TEST_F(PanelSummary, ListsWhatIsHiddenOrDisabled)
{
    PanelSession session;
    session.host->mark("vornMediaType", "ColorChart02");
    session.panel->restoreValuesAndReturnError(nullptr);
    session.open();
    EXPECT_FALSE(session.popup(2)->isEnabled());
    EXPECT_TRUE(session.popup(7)->isHidden());
    EXPECT_EQ(orderOf(session).size(), 31);
    EXPECT_EQ(line(session, "Print Resolution"), "1200 dpi (Photo)");
    EXPECT_EQ(line(session, "Color Space"), "sRGB");
    EXPECT_EQ(line(session, "CMYK-Colorspace"), "Offset, Coated Paper");
}

TEST_F(PanelSummary, ShowsWhatWasLastSaved)
{
    PanelSession session;
    session.open();
    session.checkBox(4705)->click();
    session.slider(0)->setValue(5);
    session.popup(5)->setCurrentIndex(1);
    emit session.popup(5)->activated(1);
    EXPECT_EQ(line(session, "Print Simulation"), "OFF - printing is enabled");
    EXPECT_EQ(line(session, "Brightness"), "100%");
    EXPECT_EQ(line(session, "Dithering"), "Error Diffusion");

    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(line(session, "Print Simulation"), "ON - printing is disabled");
    EXPECT_EQ(line(session, "Brightness"), "150%");
    EXPECT_EQ(line(session, "Dithering"), "Stochastic Screening");
}

TEST_F(PanelSummary, ShowsAPickOfStoredPopUpsAtOnce)
{
    PanelSession session;
    session.open();
    session.popup(0)->setCurrentIndex(1);
    emit session.popup(0)->activated(1);
    EXPECT_EQ(line(session, "Cartridge"), "Matte Black");
}

TEST_F(PanelSummary, TakesSliderValuesFromTheRecord)
{
    PanelSession session;
    session.open();
    session.settings().sliderValues[2] = 0;
    EXPECT_EQ(line(session, "Reference Light"), "D50");
    EXPECT_EQ(session.sliderText(2)->text(), "D65");
}

// A set-up panel whose controls had an owner would be saved first.
TEST_F(PanelSummary, SavesFirstWhereTheControlsHaveAnOwner)
{
    PanelSession session;
    QWidget *view = session.open();
    EXPECT_TRUE(session.context()->controls.summaryControl.isNull());
    session.context()->controls.summaryControl = view;
    session.slider(0)->setValue(5);
    EXPECT_EQ(line(session, "Brightness"), "150%");
    const auto &changes = session.host->changes;
    EXPECT_NE(std::find(changes.begin(), changes.end(), Change("vornBrightness", "25")), changes.end());
}

TEST_F(PanelSummary, AsksTheHostForNothing)
{
    PanelSession session;
    session.open();
    session.slider(0)->setValue(5);
    session.panel->summaryInfo();
    EXPECT_TRUE(session.host->changes.empty());
}

// The box cannot be ticked without the interpreter, and saving reads the box.
TEST_F(PanelSummary, TurnsFromGhostscriptByAMereSave)
{
    PanelSession session;
    session.open();
    EXPECT_EQ(line(session, "Postscript-Processor"), "Ghostscript");
    EXPECT_FALSE(session.checkBox(4706)->isEnabled());
    EXPECT_FALSE(session.checkBox(4706)->isChecked());
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(line(session, "Postscript-Processor"), "Mac OS");
    EXPECT_EQ(session.host->marked("vornPSInterpreter"), "1");
}

TEST_F(PanelSummary, KeepsGhostscriptWhenSavedWithoutAView)
{
    const PanelSession session;
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(line(session, "Postscript-Processor"), "Ghostscript");
    EXPECT_EQ(session.host->marked("vornPSInterpreter"), "0");
}

TEST_F(PanelSummary, IsInThePanelsLanguage)
{
    const PanelSession session(samplePPD(), "sample", buildBundle(QStringLiteral("de")));
    const auto german = [&session](const char *text) {
        return session.bundle->localizedString(QString::fromUtf8(text));
    };
    ASSERT_NE(german("Media Type"), QStringLiteral("Media Type"));
    EXPECT_EQ(orderOf(session).value(2), german("Media Type"));
    const pde::Summary summary = summaryOf(session);
    EXPECT_EQ(summary.entries.value(german("Media Type")), QStringLiteral("Photo Pearl 290 g"));
    EXPECT_EQ(summary.entries.value(german("Manual color correction")), german("disabled"));
}

TEST_F(PanelSummary, OfAPrinterWithoutPPDHasTheOtherLines)
{
    const PanelSession session("/nonexistent.ppd");
    const QStringList order = orderOf(session);
    ASSERT_EQ(order.size(), 23);
    EXPECT_EQ(order.first(3), QStringList({"Print Simulation", "Postscript-Processor", "Manual color correction"}));
}

} // namespace
} // namespace tessarin::test

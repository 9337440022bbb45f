// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The PPD model at work in a real panel.

#include "controls/embedding.h"
#include "controls/menu_items.h"
#include "ppd/ticket.h"
#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"
#include "tests/support/panel_session.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using Changes = std::vector<Change>;

/// A Ghostscript that is there, for the length of a scope.
class WithGhostscript {
public:
    WithGhostscript() { ghostscriptPaths = {interpreter_.path().c_str(), interpreter_.path().c_str()}; }
    ~WithGhostscript() { ghostscriptPaths = before_; }
    WithGhostscript(const WithGhostscript &) = delete;
    WithGhostscript &operator=(const WithGhostscript &) = delete;

private:
    decltype(ghostscriptPaths) before_ = ghostscriptPaths;
    TextFile interpreter_{"gs"};
};

class PanelTicket : public testing::Test {
protected:
    static Changes sync(PanelSession &session)
    {
        session.host->changes.clear();
        MySyncTicketFromPane(session.context());
        return session.host->changes;
    }

    WithGhostscript ghostscript;
    SharedTables tables;
};

const Changes kSampleBoxes{{"vornNoPrint", "0"}, {"vornColorGamma", "0"}, {"vornPSInterpreter", "0"}};
const Changes kSampleOptions{{"vornCartridgeType", "PhotoBlack"},
                             {"vornMediaType", "PhotoPearl07"},
                             {"vornResolution", "1200dpi"},
                             {"vornIntent", "Perceptual0"},
                             {"vornColorModel", "RGB"},
                             {"vornDithering", "Diffusion"},
                             {"vornColorspace", "1"},
                             {"vornCMYKspace", "10"},
                             {"vornBrightness", "0"},
                             {"vornContrast", "0"},
                             {"vornRefLight", "65"},
                             {"vornGamut", "0"},
                             {"vornShadows", "0"},
                             {"vornGreyToneA", "0"},
                             {"vornGreyToneB", "0"},
                             {"vornUCR", "0"},
                             {"vornBrightC", "0"},
                             {"vornBrightM", "0"},
                             {"vornTAC", "0"},
                             {"vornIntensity", "0"},
                             {"vornInklimitK", "0"},
                             {"vornInklimitC", "0"},
                             {"vornInklimitM", "0"},
                             {"vornInklimitY", "0"},
                             {"vornColorK", "0"},
                             {"vornColorC", "0"},
                             {"vornColorM", "0"},
                             {"vornColorY", "0"}};

TEST_F(PanelTicket, OfTheOpenSampleHas31SettingsInOrder)
{
    PanelSession session;
    session.open();
    Changes expected = kSampleBoxes;
    expected.insert(expected.end(), kSampleOptions.begin(), kSampleOptions.end());
    ASSERT_EQ(expected.size(), 31U);
    EXPECT_EQ(sync(session), expected);
}

TEST_F(PanelTicket, BeforeAnyViewHas28SettingsAndNoCheckBox)
{
    PanelSession session;
    ASSERT_EQ(kSampleOptions.size(), 28U);
    EXPECT_EQ(sync(session), kSampleOptions);
}

TEST_F(PanelTicket, IsLoggedLineByLine)
{
    PanelSession session;
    session.open();
    const CapturedLog log;
    sync(session);
    Lines expected{"--- SYNC TICKET FROM PANE ---\n",
                   "Setting Object:vornNoPrint to Selection:0\n",
                   "Set Checkbox vornNoPrint to value 0\n",
                   "Setting Object:vornColorGamma to Selection:0\n",
                   "Set Checkbox vornColorGamma to value 0\n",
                   "Setting Object:vornPSInterpreter to Selection:0\n",
                   "Set Checkbox vornPSInterpreter to value 1\n"};
    // The pair numbers of the sample's defaults.
    const std::array<int, 8> selected{1, 9, 5, 1, 3, 1, 2, 2};
    for (std::size_t place = 0; place < kSampleOptions.size(); ++place) {
        if (place < selected.size()) {
            expected.push_back("+++ tag of selected item: " + std::to_string(selected[place]) + "\n");
        }
        const auto &[keyword, choice] = kSampleOptions[place];
        expected.push_back("Setting Object:" + keyword);
        expected.back() += " to Selection:" + choice + "\n";
    }
    expected.emplace_back("Sync - done\n");
    EXPECT_EQ(log.lines(), logged(expected));
}

TEST_F(PanelTicket, OfAMissingReferenceLightDependsOnItsSlider)
{
    PanelSession session(ppdFixture("missing-reflight"));
    ASSERT_EQ(session.settings().sliderValues[2], -10);
    ASSERT_TRUE(session.panel->summaryInfo().has_value());
    EXPECT_EQ(session.panel->summaryInfo()->entries.value(QStringLiteral("Reference Light")), QStringLiteral("D0"));
    EXPECT_EQ(sync(session)[10], (Change{"vornRefLight", "0"}));
    session.open();
    EXPECT_EQ(session.settings().sliderValues[2], -10);
    const Changes changes = sync(session);
    ASSERT_EQ(changes.size(), 31U);
    EXPECT_EQ(changes[13], (Change{"vornRefLight", "50"}));
    EXPECT_EQ(session.settings().sliderValues[2], 0);
}

TEST_F(PanelTicket, OfOddTextsSendsThemAsTheyAre)
{
    const CapturedLog log;
    PanelSession session(ppdFixture("odd-texts"));
    session.open();
    const Changes changes = sync(session);
    ASSERT_EQ(changes.size(), 31U);
    EXPECT_EQ(changes[3], (Change{"vornCartridgeType", "%s"}));
    EXPECT_EQ(changes[4], (Change{"vornMediaType", "A&B6"}));
    EXPECT_TRUE(log.contains("LOG Setting Object:vornCartridgeType to Selection:%s\n"));
    session.host->mark("vornMediaType", "%n%s");
    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(sync(session)[4], (Change{"vornMediaType", "%n%s"}));
}

TEST_F(PanelTicket, SurvivesChoicesThatLookLikeFormats)
{
    const std::vector<std::string> choices{"%n%s/%s%n%d", "CMYK%s/%@%@", "%99999999d/%*d", "&/<b>"};
    const TextFile file(ppdText({{"vornMediaType", "%n%s", choices}, {"vornColorModel", "%n%s", choices}}));
    PanelSession session(file.path());
    session.open();
    for (const char *choice : {"%n%s", "CMYK%s", "%99999999d", "&"}) {
        session.host->mark("vornMediaType", choice);
        session.host->mark("vornColorModel", choice);
        session.panel->restoreValuesAndReturnError(nullptr);
        const Changes changes = sync(session);
        ASSERT_EQ(changes.size(), 25U);
        EXPECT_EQ(changes[3], (Change{"vornMediaType", choice}));
        EXPECT_EQ(changes[4], (Change{"vornColorModel", choice}));
    }
}

TEST_F(PanelTicket, ChecksConstraintsOfMediaTypeAndResolutionOnly)
{
    PanelSession session;
    session.host->mark("vornCartridgeType", "MonoSet"); // forbids media types, a resolution, and color modes
    session.panel->restoreValuesAndReturnError(nullptr);
    session.open();
    EXPECT_LT(menuItemTag(session.popup(1), 0), 0) << "PlainPaper00";
    EXPECT_LT(menuItemTag(session.popup(2), 0), 0) << "300dpi";
    EXPECT_EQ(menuItemTag(session.popup(4), 3), 4) << "RGBphoto";
    EXPECT_EQ(menuItemTag(session.popup(4), 5), 6) << "CMYKproof";
}

TEST_F(PanelTicket, RestoreLeavesMediaTypeAndResolutionToTheConstraintCheck)
{
    PanelSession session;
    session.open();
    session.host->mark("vornMediaType", "Baryta08");
    session.host->mark("vornDithering", "Ordered");
    const CapturedLog log;
    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(log.countStarting("LOG Setting Combo '"), 6);
    EXPECT_EQ(log.countStarting("LOG Setting Combo '*vornMediaType'"), 0);
    EXPECT_EQ(log.countStarting("LOG Setting Combo '*vornResolution'"), 0);
    EXPECT_EQ(session.popup(1)->currentIndex(), 10);
    EXPECT_EQ(session.popup(5)->currentIndex(), 3);
}

TEST_F(PanelTicket, ReadsTheSharedTablesOnRestore)
{
    Scrolls[2].ppdDefault = 3;
    pops[1].defaultIndex = 42;
    checkboxes[2].value = 43;
    const PanelSession session;
    EXPECT_EQ(Scrolls[2].ppdDefault, 65);
    EXPECT_EQ(pops[1].defaultIndex, 42) << "only an old host's scan writes it";
    EXPECT_EQ(checkboxes[2].value, 0);
}

TEST_F(PanelTicket, WithoutAPPDPathHasListsButNoConstraints)
{
    const auto host = std::make_shared<RecordingHost>(samplePPD());
    host->path.reset();
    const CapturedLog log;
    TessarinPDEPlugIn plugIn;
    plugIn.initWithBundle(buildBundle());
    const auto panels = plugIn.PDEPanelsForType(QString::fromLatin1(pde::kPrinterModulePanelType), host);
    const auto *panel = dynamic_cast<PasswordPDE *>(panels->front().get());
    EXPECT_EQ(pairsOf(*panel->panelContext()->ppdOptions, 0).size(), 4U);
    EXPECT_EQ(groupsOf(*panel->panelContext()->ppdOptions), Groups{});
    EXPECT_TRUE(log.contains("LOG PPD-File not found - error = No such file or directory\n"));
}

TEST_F(PanelTicket, WithoutAPPDSendsSlidersAndCheckBoxesOnly)
{
    PanelSession session((std::string()));
    EXPECT_EQ(sync(session).size(), 20U);
    session.open();
    EXPECT_EQ(sync(session).size(), 23U);
}

} // namespace
} // namespace tessarin::test

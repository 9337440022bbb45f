// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The whole log of a panel's life, line by line: creation, view, restore, save and end. The lines of the ink
// counters are left out; they have tests of their own.

#include "tests/plugin/panel_log_lines.h"
#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

class PanelLog : public testing::Test {
protected:
    PanelLog() { bundle_ = buildBundle(); }

    static std::string begin(const std::string &message) { return "BEGIN self(<PasswordPDE: 0xP>) " + message; }
    static std::string end(const std::string &message) { return "END self(<PasswordPDE: 0xP>) " + message; }

    void create() { session_ = std::make_unique<PanelSession>(ppdFixture("minimal"), "sample", bundle_); }

    /// The log so far, without the lines of the ink page between the start of its embedding and its pop-ups.
    Lines linesWithoutInk() const
    {
        Lines lines = log_.lines();
        const auto start =
            std::find(lines.begin(), lines.end(), "LOG \n!!!MyEmbedControls!!! - idx=8 - window=0\n\n");
        const auto stop = std::find(start, lines.end(), "LOG Init popuplists - pageidx = 8\n");
        if (start != lines.end()) {
            lines.erase(start + 1, stop);
        }
        return lines;
    }

    static std::string pathLine()
    {
        return "LOG *****parse PPD-File: " + ppdFixture("minimal").substr(0, 200) + "\n";
    }

    SharedTables tables_;
    StableAddresses addresses_;
    Ghostscript ghostscript_{true};
    std::shared_ptr<pde::Bundle> bundle_;
    std::unique_ptr<PanelSession> session_;
    CapturedLog log_;
};

TEST_F(PanelLog, OfTheCreation)
{
    create();
    const std::string k105 = "LOG (64-bit) Mac OS X 10.5 or later";
    const std::string factory = " self(<TessarinPDEPlugIn: 0xP>) ";
    Lines expected{"BEGIN" + factory + "initWithBundle:(<Bundle: 0xP>, 0xP)",
                   "END" + factory + "initWithBundle:=BOOL(YES)",
                   "BEGIN" + factory +
                       "PDEPanelsForType:(BDB091F4-E57F-11D3-B5CC-0050E4603277) withHostInfo:(<HostCallback: 0xP>)",
                   begin("initWithCallback:(<HostCallback: 0xP>, 0xP) andBundle:(<Bundle: 0xP> 0xP)"),
                   begin("restoreValuesAndReturnError:(0x0)"),
                   pathLine(),
                   k105,
                   "LOG PRINTERNAME:    'sample'\n",
                   k105};
    Lines parsed{"ProcessPPD\n", "ParsePPD\n", "getPPDComboOptions\n"};
    for (const PopUp &popup : popUps()) {
        append(parsed, {"getComboPPDFeature for " + popup.keyword + "\n"});
    }
    for (const PopUp &popup : popUps()) {
        append(parsed, {"getComboPPDFeature for " + popup.keyword + "\n"});
        if (popup.row == 1 || popup.row == 6 || popup.row == 7) {
            append(parsed, {"--- SEPARATOR added ---\n"});
        }
    }
    append(parsed, {"Start PPD-Scan\n", "End PPD-Scan\n", "Restore Values on 105 or later\n"});
    append(parsed, selectionsRead());
    append(parsed, popUpsMissing());
    append(parsed, colourModeShown());
    append(expected, logged(parsed));
    append(expected, {end("restoreValuesAndReturnError:=BOOL(YES)"), end("initWithCallback:=id(self)"),
                      "LOG" + factory +
                          "Creating PDE of type kPrinterModuleTypeIDStr(BDB091F4-E57F-11D3-B5CC-0050E4603277) "
                          "PasswordPDE (0xP)",
                      k105, "END" + factory + "PDEPanelsForType:withHostInfo:=NSArray((<PasswordPDE: 0xP>))"});
    EXPECT_EQ(joined(log_.lines()), joined(expected));
}

TEST_F(PanelLog, OfTheFirstView)
{
    create();
    log_.clear();
    session_->open();
    const auto subviews = [this](const char *box) {
        const QWidget *view = session_->panel->contentView()->findChild<QWidget *>(QString::fromLatin1(box));
        return std::to_string(
            static_cast<int>(view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size()));
    };
    Lines expected{begin("panelView:")};
    append(expected, logged({"Enum Boxes - 0xP!!!\n", "$$$$$ Subviews:" + subviews("lastConsumptionBox") + "\n",
                             "$$$$$ Subviews:" + subviews("totalConsumptionBox") + "\n"}));
    append(expected, logged(controlsSetUp(true)));
    append(expected, {end("panelView:=NSView(<QWidget: 0xP>, 0xP)")});
    EXPECT_EQ(joined(linesWithoutInk()), joined(expected));
}

TEST_F(PanelLog, OfTheSecondView)
{
    create();
    session_->open();
    log_.clear();
    session_->open();
    Lines expected{begin("panelView:")};
    append(expected, logged(controlsSetUp(false)));
    append(expected, {end("panelView:=NSView(<QWidget: 0xP>, 0xP)")});
    EXPECT_EQ(joined(linesWithoutInk()), joined(expected));
}

TEST_F(PanelLog, OfALaterRestoreWithoutAView)
{
    create();
    log_.clear();
    session_->panel->restoreValuesAndReturnError(nullptr);
    Lines messages{"Restore Values on 105 or later\n"};
    append(messages, selectionsRead());
    append(messages, popUpsMissing());
    append(messages, colourModeShown());
    Lines expected{begin("restoreValuesAndReturnError:(0x0)"), pathLine()};
    append(expected, logged(messages));
    append(expected, {end("restoreValuesAndReturnError:=BOOL(YES)")});
    EXPECT_EQ(joined(log_.lines()), joined(expected));
}

TEST_F(PanelLog, OfALaterRestoreWithAView)
{
    create();
    session_->open();
    log_.clear();
    session_->panel->restoreValuesAndReturnError(nullptr);
    Lines messages{"Restore Values on 105 or later\n"};
    append(messages, selectionsRead());
    append(messages, {"colors disabled\n"});
    for (const PopUp &popup : popUps()) {
        if (popup.row != 1 && popup.row != 2) {
            append(messages,
                   {"SetComboControlValue to #" + std::to_string(popup.selection) + " of " +
                        std::to_string(popup.count()) + "\n",
                    "Setting Combo '*" + popup.keyword + "' to '" + std::to_string(popup.selection) + "'\n"});
        }
    }
    append(messages, constraintsChecked());
    append(messages, availabilityChecked(true));
    append(messages, slidersShown());
    append(messages, colourModeShown());
    Lines expected{begin("restoreValuesAndReturnError:(0x0)"), pathLine()};
    append(expected, logged(messages));
    append(expected, {end("restoreValuesAndReturnError:=BOOL(YES)")});
    EXPECT_EQ(joined(log_.lines()), joined(expected));
}

TEST_F(PanelLog, OfASave)
{
    create();
    session_->open();
    log_.clear();
    session_->panel->saveValuesAndReturnError(nullptr);
    Lines messages{"--- SYNC TICKET FROM PANE ---\n",
                   "Setting Object:vornNoPrint to Selection:0\n",
                   "Set Checkbox vornNoPrint to value 0\n",
                   "Setting Object:vornColorGamma to Selection:0\n",
                   "Set Checkbox vornColorGamma to value 0\n",
                   "Setting Object:vornPSInterpreter to Selection:0\n",
                   "Set Checkbox vornPSInterpreter to value 1\n"};
    for (const PopUp &popup : popUps()) {
        append(messages, {"+++ tag of selected item: " + std::to_string(popup.selection) + "\n",
                          "Setting Object:" + popup.keyword + " to Selection:" + popup.selectedKey() + "\n"});
    }
    append(messages, slidersSent());
    append(messages, {"Sync - done\n"});
    Lines expected{begin("saveValuesAndReturnError:(0x0)")};
    append(expected, logged(messages));
    append(expected, {end("saveValuesAndReturnError:=BOOL(YES)")});
    EXPECT_EQ(joined(log_.lines()), joined(expected));
}

TEST_F(PanelLog, OfASaveWithoutAView)
{
    create();
    log_.clear();
    session_->panel->saveValuesAndReturnError(nullptr);
    Lines messages{"--- SYNC TICKET FROM PANE ---\n"};
    for (const PopUp &popup : popUps()) {
        append(messages, {"Setting Object:" + popup.keyword + " to Selection:" + popup.selectedKey() + "\n"});
    }
    append(messages, slidersSent());
    append(messages, {"Sync - done\n"});
    Lines expected{begin("saveValuesAndReturnError:(0x0)")};
    append(expected, logged(messages));
    append(expected, {end("saveValuesAndReturnError:=BOOL(YES)")});
    EXPECT_EQ(joined(log_.lines()), joined(expected));
}

TEST_F(PanelLog, OfTheEnd)
{
    create();
    session_->open();
    log_.clear();
    session_.reset();
    Lines messages{"Dealloc is called\n"};
    for (const PopUp &popup : popUps()) {
        append(messages, {"Remove all Items - count=" + std::to_string(popup.count()) + "\n"});
    }
    EXPECT_EQ(joined(log_.lines()), joined(logged(messages)));
}

TEST_F(PanelLog, OfTheEndWithoutAView)
{
    create();
    log_.clear();
    session_.reset();
    EXPECT_EQ(log_.lines(), Lines{"LOG Dealloc is called\n"});
}

} // namespace
} // namespace tessarin::test

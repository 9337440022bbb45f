// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The methods through which the host drives the panel: what they answer, and what they tell the log.

#include "plugin/password_pde.h"

#include "platform/view_tags.h"
#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

#include <functional>

namespace tessarin::test {
namespace {

class PanelMethods : public testing::Test {
protected:
    std::string begin(const std::string &message) const { return panelLine("BEGIN", panel_.get(), message); }
    std::string end(const std::string &message) const { return panelLine("END", panel_.get(), message); }

    SharedTables tables_;
    std::shared_ptr<RecordingHost> host_ = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    std::shared_ptr<pde::Bundle> bundle_ = buildBundle();
    std::shared_ptr<PasswordPDE> panel_ = makePanel(host_, bundle_);
};

TEST_F(PanelMethods, OpenWithAPrologAndCloseWithAnEpilog)
{
    const Ghostscript ghostscript(true);
    QString error;
    const std::string slot = address(&error);
    struct Case {
        const char *name;
        std::function<void()> call;
        std::string prolog;
        std::function<std::string()> epilog; ///< made after the call
    };
    const auto text = [](const char *epilog) { return [epilog] { return std::string(epilog); }; };
    const auto view = [this] {
        return "panelView:=NSView(" + described("QWidget", panel_->contentView()) + ", " +
               address(panel_->contentView()) + ")";
    };
    const Case cases[] = {
        {"panelName", [&] { panel_->panelName(); }, "panelName:", text("panelName:=NSString(Tessarin Settings)")},
        {"panelKind", [&] { panel_->panelKind(); },
         "panelKind:", text("panelKind:=NSString(org.tessarin.settings.pde)")},
        {"willShow", [&] { panel_->willShow(); }, "willShow:", text("willShow:=void")},
        {"restore", [&] { panel_->restoreValuesAndReturnError(nullptr); }, "restoreValuesAndReturnError:(0x0)",
         text("restoreValuesAndReturnError:=BOOL(YES)")},
        {"restore with an error slot", [&] { panel_->restoreValuesAndReturnError(&error); },
         "restoreValuesAndReturnError:(" + slot + ")", text("restoreValuesAndReturnError:=BOOL(YES)")},
        {"save", [&] { panel_->saveValuesAndReturnError(nullptr); }, "saveValuesAndReturnError:(0x0)",
         text("saveValuesAndReturnError:=BOOL(YES)")},
        {"save with an error slot", [&] { panel_->saveValuesAndReturnError(&error); },
         "saveValuesAndReturnError:(" + slot + ")", text("saveValuesAndReturnError:=BOOL(YES)")},
        {"view", [&] { panel_->panelView(); }, "panelView:", view},
    };
    for (const Case &entry : cases) {
        const CapturedLog log;
        entry.call();
        ASSERT_GE(log.lines().size(), 2U) << entry.name;
        EXPECT_EQ(log.lines().front(), begin(entry.prolog)) << entry.name;
        EXPECT_EQ(log.lines().back(), end(entry.epilog())) << entry.name;
        EXPECT_EQ(log.countStarting("BEGIN "), 1) << entry.name;
        EXPECT_EQ(log.countStarting("END "), 1) << entry.name;
    }
}

TEST_F(PanelMethods, InitialiseWithTheCallbackAndTheBundle)
{
    const CapturedLog log;
    PasswordPDE panel;
    EXPECT_EQ(panel.initWithCallback(host_, bundle_), &panel);
    EXPECT_EQ(log.lines().front(),
              panelLine("BEGIN", &panel,
                        "initWithCallback:(" + described("HostCallback", host_.get()) + ", " +
                            address(host_.get()) + ") andBundle:(" + described("Bundle", bundle_.get()) + " " +
                            address(bundle_.get()) + ")"));
    EXPECT_EQ(log.lines().at(1), panelLine("BEGIN", &panel, "restoreValuesAndReturnError:(0x0)"));
    EXPECT_EQ(log.lines().back(), panelLine("END", &panel, "initWithCallback:=id(self)"));
}

TEST_F(PanelMethods, InitialiseWithoutCallbackAndBundle)
{
    const CapturedLog log;
    PasswordPDE panel;
    panel.initWithCallback(nullptr, nullptr);
    EXPECT_EQ(log.lines().front(),
              panelLine("BEGIN", &panel, "initWithCallback:((null), 0x0) andBundle:((null) 0x0)"));
    ASSERT_NE(panel.panelContext(), nullptr);
    EXPECT_EQ(panel.panelName(), QStringLiteral("Tessarin Settings"));
}

TEST_F(PanelMethods, RetainTheCallbackAndTheBundle)
{
    EXPECT_EQ(host_.use_count(), 2);
    EXPECT_GE(bundle_.use_count(), 2);
}

TEST_F(PanelMethods, ConstructWithoutAnythingElse)
{
    const CapturedLog log;
    const PasswordPDE panel;
    EXPECT_EQ(panel.panelContext(), nullptr);
    EXPECT_EQ(panel.contentView(), nullptr);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(PanelMethods, NameThePanelInTheBundlesLanguage)
{
    const auto german = makePanel(host_, buildBundle(QStringLiteral("de")));
    const CapturedLog log;
    EXPECT_EQ(german->panelName(), QStringLiteral("Tessarin-Einstellungen"));
    EXPECT_EQ(log.lines().back(), panelLine("END", german.get(), "panelName:=NSString(Tessarin-Einstellungen)"));
}

TEST_F(PanelMethods, LocaliseTheNameOnceButLogItEachTime)
{
    const auto texts = std::make_shared<TextBundle>(
        QHash<QString, QString>{{QStringLiteral("Tessarin Settings"), QStringLiteral("Panel 100%d")}});
    const auto panel = makePanel(host_, texts);
    texts->asked.clear();
    const CapturedLog log;
    EXPECT_EQ(panel->panelName(), QStringLiteral("Panel 100%d"));
    EXPECT_EQ(panel->panelName(), QStringLiteral("Panel 100%d"));
    EXPECT_EQ(texts->asked, std::vector<std::string>{"Tessarin Settings"});
    EXPECT_EQ(log.count(panelLine("BEGIN", panel.get(), "panelName:")), 2);
    EXPECT_EQ(log.count(panelLine("END", panel.get(), "panelName:=NSString(Panel 100%d)")), 2);
}

TEST_F(PanelMethods, GiveTheBundlesIdentifierAsTheKind)
{
    EXPECT_EQ(panel_->panelKind(), bundle_->identifier());
    EXPECT_FALSE(panel_->panelKind().isEmpty());
}

TEST_F(PanelMethods, MakeTheSupportedKeysOnce)
{
    const CapturedLog log;
    const auto first = panel_->supportedPPDOptionKeys();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(
        log.lines(),
        (Lines{begin("supportedPPDOptionKeys:"), "LOG Create suppOptKeys\n", "LOG Create suppOptKeys 1\n",
               "LOG Create suppOptKeys 2\n", "LOG Create suppOptKeys3\n", "LOG Create suppOptKeys 4\n",
               end("supportedPPDOptionKeys:=NSArray((" + first->join(QStringLiteral(", ")).toStdString() + "))")}));
}

TEST_F(PanelMethods, GiveTheSameSupportedKeysAgainWithoutAnEpilog)
{
    const auto first = panel_->supportedPPDOptionKeys();
    const CapturedLog log;
    EXPECT_EQ(panel_->supportedPPDOptionKeys(), first);
    EXPECT_EQ(panel_->supportedPPDOptionKeys(), first);
    EXPECT_EQ(log.lines(), (Lines{begin("supportedPPDOptionKeys:"), begin("supportedPPDOptionKeys:")}));
}

TEST_F(PanelMethods, OnlyLogThatThePanelIsAboutToBeShown)
{
    const Ghostscript ghostscript(true);
    panel_->panelView();
    host_->mark("vornMediaType", "Plain0");
    const PanelSettings before = panel_->panelContext()->settings;
    const CapturedLog log;
    panel_->willShow();
    EXPECT_EQ(log.lines(), (Lines{begin("willShow:"), end("willShow:=void")}));
    EXPECT_EQ(panel_->panelContext()->settings.popupSelections, before.popupSelections) << "nothing is refreshed";
    EXPECT_EQ(panel_->panelContext()->settings.sliderValues, before.sliderValues);
}

TEST_F(PanelMethods, AlwaysAllowHidingPrintingAndHelpWithoutALine)
{
    const PasswordPDE bare;
    const auto expectYes = [](const pde::Panel &panel) {
        EXPECT_TRUE(panel.shouldHide());
        EXPECT_TRUE(panel.shouldPrint());
        EXPECT_TRUE(panel.shouldShowHelp());
    };
    const CapturedLog log;
    expectYes(bare);
    expectYes(*panel_);
    EXPECT_EQ(log.lines(), Lines{});
    panel_->panelView();
    expectYes(*panel_);
    panel_->finalize();
    expectYes(*panel_);
}

TEST_F(PanelMethods, FollowTheHostsChangesWithoutPrologAndEpilog)
{
    const CapturedLog log;
    panel_->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("Plain0"));
    EXPECT_EQ(log.lines(), (Lines{"LOG PPDOptionKeyValueDidChange:(vornMediaType) ppdChoice:(Plain0)",
                                  "LOG ### System changed PPDitem 'vornMediaType' to selection 'Plain0'\n ###"}));
    EXPECT_EQ(panel_->panelContext()->settings.popupSelections.at(1), 1);
}

TEST_F(PanelMethods, TakeAbsentArgumentsOfAHostsChange)
{
    const PanelSettings before = panel_->panelContext()->settings;
    const CapturedLog log;
    panel_->PPDOptionKeyValueDidChange(QString(), QStringLiteral("Plain0"));
    panel_->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QString());
    EXPECT_EQ(log.lines(), (Lines{"LOG PPDOptionKeyValueDidChange:((null)) ppdChoice:(Plain0)",
                                  "LOG PPDOptionKeyValueDidChange:(vornMediaType) ppdChoice:((null))"}));
    EXPECT_EQ(panel_->panelContext()->settings.popupSelections, before.popupSelections);
}

TEST_F(PanelMethods, NeverWriteTheErrorSlot)
{
    QString error = QStringLiteral("untouched");
    EXPECT_TRUE(panel_->restoreValuesAndReturnError(&error));
    EXPECT_TRUE(panel_->saveValuesAndReturnError(&error));
    EXPECT_EQ(error, QStringLiteral("untouched"));
    host_->hasSession = false;
    host_->refusedKeys = {"vornMediaType", "vornBrightness"};
    EXPECT_TRUE(panel_->restoreValuesAndReturnError(&error));
    EXPECT_TRUE(panel_->saveValuesAndReturnError(&error)) << "yes, whatever the host answers";
    EXPECT_EQ(error, QStringLiteral("untouched"));
}

TEST_F(PanelMethods, GiveTheSummaryAsADictionary)
{
    const CapturedLog log;
    const std::optional<pde::Summary> summary = panel_->summaryInfo();
    ASSERT_TRUE(summary);
    EXPECT_FALSE(summary->entries.isEmpty());
    EXPECT_EQ(log.lines().front(), begin("summaryInfo:"));
    EXPECT_TRUE(log.lines().back().starts_with(end("summaryInfo:=NSDictionary({"))) << log.lines().back();
    EXPECT_NE(log.lines().back().find("}, 0x"), std::string::npos) << log.lines().back();
}

} // namespace
} // namespace tessarin::test

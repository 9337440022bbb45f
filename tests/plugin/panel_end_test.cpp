// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The end of a panel, and several panels beside each other.

#include "controls/sliders.h"
#include "plugin/password_pde.h"
#include "tests/plugin/plugin_test_support.h"

#include <QPointer>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class PanelEnd : public testing::Test {
protected:
    SharedTables tables_;
    Ghostscript ghostscript_{true};
    std::shared_ptr<pde::Bundle> bundle_ = buildBundle();
    std::shared_ptr<RecordingHost> host_ = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    std::shared_ptr<PasswordPDE> panel_ = makePanel(host_, bundle_);
};

TEST_F(PanelEnd, ReleasesTheCallbackAndTheSupportedKeys)
{
    const std::weak_ptr<const QStringList> keys = panel_->supportedPPDOptionKeys();
    EXPECT_FALSE(keys.expired());
    EXPECT_EQ(host_.use_count(), 2);
    panel_.reset();
    EXPECT_EQ(host_.use_count(), 1);
    EXPECT_TRUE(keys.expired());
}

TEST_F(PanelEnd, DoesNotReleaseTheBundle)
{
    const auto texts = std::make_shared<TextBundle>();
    panel_ = makePanel(host_, texts);
    panel_.reset();
    EXPECT_GT(texts.use_count(), 1);
}

TEST_F(PanelEnd, LeavesTheRecordAllocated)
{
    const PanelContext *context = panel_->panelContext();
    context->ppdOptions->constraints.at(0) = 7;
    panel_.reset();
    EXPECT_EQ(context->ppdOptions->constraints.at(0), 7);
    EXPECT_EQ(context->ppdPath.data(), ppdFixture("minimal"));
    EXPECT_EQ(context->ppdScanBuffer, nullptr);
    EXPECT_EQ(pairsOf(*context->ppdOptions, 1), Pairs{});
    EXPECT_EQ(Scrolls.at(0).formatString->releaseCount(), 0);
}

TEST_F(PanelEnd, EmptiesTheMenusOfAViewThatTheHostKeeps)
{
    QWidget window;
    panel_->panelView()->setParent(&window);
    const QPointer<QComboBox> popup =
        qobject_cast<QComboBox *>(panel_->panelContext()->controls.popupControls.at(1).data());
    ASSERT_EQ(popup->count(), 4);
    panel_.reset();
    ASSERT_FALSE(popup.isNull());
    EXPECT_EQ(popup->count(), 0);
}

TEST_F(PanelEnd, SurvivesAViewThatTheHostDeletedFirst)
{
    auto window = std::make_unique<QWidget>();
    panel_->panelView()->setParent(window.get());
    window.reset();
    EXPECT_EQ(panel_->contentView(), nullptr);
    EXPECT_EQ(panel_->panelContext()->controls.popupControls.at(1), nullptr);
    EXPECT_TRUE(panel_->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel_->saveValuesAndReturnError(nullptr));
    const CapturedLog log;
    panel_.reset();
    EXPECT_EQ(log.lines(), Lines{"LOG Dealloc is called\n"}) << "there are no menus any more";
}

TEST_F(PanelEnd, CutsOffTheControlsOfAViewThatTheHostKeeps)
{
    QWidget window;
    panel_->panelView()->setParent(&window);
    const QPointer<QSlider> slider =
        qobject_cast<QSlider *>(panel_->panelContext()->controls.sliderControls.at(0).data());
    panel_.reset();
    const CapturedLog log;
    slider->setValue(5);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(PanelEnd, ByFinalizeCleansUpAndReleasesNothing)
{
    panel_->panelView();
    const std::weak_ptr<const QStringList> keys = panel_->supportedPPDOptionKeys();
    const CapturedLog log;
    panel_->finalize();
    ASSERT_EQ(log.lines().size(), 9U);
    EXPECT_EQ(log.lines().at(0), "LOG Dealloc is called\n");
    EXPECT_EQ(log.lines().at(2), "LOG Remove all Items - count=4\n");
    EXPECT_EQ(host_.use_count(), 2);
    EXPECT_FALSE(keys.expired());
    EXPECT_NE(panel_->contentView(), nullptr);
    EXPECT_NE(panel_->panelContext(), nullptr);
    EXPECT_EQ(panel_->panelContext()->ppdScanBuffer, nullptr);
}

TEST_F(PanelEnd, AfterFinalizeFindsEverythingCleanedUp)
{
    panel_->panelView();
    panel_->finalize();
    const CapturedLog log;
    panel_.reset();
    Lines expected{"LOG Dealloc is called\n"};
    expected.insert(expected.end(), 8, "LOG Remove all Items - count=0\n");
    EXPECT_EQ(log.lines(), expected);
}

TEST_F(PanelEnd, LeavesEmptyChoiceListsToWhoeverStillAsks)
{
    panel_->panelView();
    panel_->finalize();
    host_->changes.clear();
    EXPECT_TRUE(panel_->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(host_->changes.size(), 23U) << "check boxes and sliders; no pop-up has a choice";
    const std::optional<pde::Summary> summary = panel_->summaryInfo();
    ASSERT_TRUE(summary);
    EXPECT_FALSE(summary->entries.contains(QStringLiteral("Media Type")));
    panel_->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("Plain0"));
    EXPECT_EQ(panel_->panelContext()->settings.popupSelections.at(1), 0);
    EXPECT_TRUE(panel_->restoreValuesAndReturnError(nullptr));
    const auto *popup = qobject_cast<QComboBox *>(panel_->panelContext()->controls.popupControls.at(1).data());
    EXPECT_EQ(popup->count(), 0);
    EXPECT_EQ(panel_->panelView(), panel_->contentView()) << "and setting the controls up again finds no lists";
    EXPECT_EQ(popup->count(), 0);
}

class TwoPanels : public testing::Test {
protected:
    SharedTables tables_;
    Ghostscript ghostscript_{true};
    PanelSession first_{ppdFixture("minimal"), "first"};
    PanelSession second_{ppdFixture("media-modes"), "second", buildBundle(QStringLiteral("de"))};
};

TEST_F(TwoPanels, ShareTheSourceOfTextsOfTheLaterOne)
{
    EXPECT_EQ(mybundle, second_.bundle.get());
    first_.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(mybundle, second_.bundle.get()) << "only the first restore sets it";
    first_.open();
    const auto *tabs = qobject_cast<QTabWidget *>(first_.panel->tabView());
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("Allgemein")) << "so the English panel becomes German";
    EXPECT_EQ(first_.panel->panelName(), QStringLiteral("Tessarin Settings")) << "its name is of its own bundle";
}

TEST_F(TwoPanels, ShareTheFormatStringsOfTheLaterOne)
{
    const StringRef seconds = Scrolls.at(0).formatString;
    first_.open();
    EXPECT_EQ(first_.sliderText(0)->text(), QStringLiteral("100%"));
    EXPECT_EQ(Scrolls.at(0).formatString, seconds);
}

TEST_F(TwoPanels, KeepTheirOwnSettings)
{
    first_.host->mark("vornBrightness", "-50");
    first_.host->mark("vornNoPrint", "1");
    first_.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(Scrolls.at(0).ppdDefault, -50);
    EXPECT_EQ(checkboxes.at(0).value, 1);
    second_.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(Scrolls.at(0).ppdDefault, 0) << "the tables show the latest restore";
    EXPECT_EQ(checkboxes.at(0).value, 0);
    EXPECT_EQ(first_.settings().sliderValues.at(0), -10);
    EXPECT_EQ(second_.settings().sliderValues.at(0), 0);
    EXPECT_EQ(first_.settings().checkBoxStates.at(0), 1);
    EXPECT_EQ(second_.settings().checkBoxStates.at(0), 0);
    EXPECT_STREQ(first_.settings().inkFilePath.data(), "/var/log/tessarin/first.ink");
    EXPECT_STREQ(second_.settings().inkFilePath.data(), "/var/log/tessarin/second.ink");
}

TEST_F(TwoPanels, KeepTheirOwnViews)
{
    first_.open();
    second_.open();
    EXPECT_NE(first_.panel->contentView(), second_.panel->contentView());
    EXPECT_EQ(first_.popup(1)->count(), 4);
    EXPECT_EQ(second_.popup(1)->count(), 11);
    first_.slider(0)->setValue(4);
    EXPECT_EQ(first_.sliderText(0)->text(), QStringLiteral("140%"));
    EXPECT_EQ(second_.sliderText(0)->text(), QStringLiteral("100%"));
    EXPECT_TRUE(first_.panel->contentView()->isAncestorOf(first_.slider(0)));
    EXPECT_TRUE(second_.panel->contentView()->isAncestorOf(second_.slider(0)));
}

TEST_F(TwoPanels, EndOneByOne)
{
    auto third = std::make_unique<PanelSession>(ppdFixture("minimal"), "third");
    third->open();
    first_.open();
    third.reset();
    EXPECT_TRUE(first_.panel->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(first_.popup(1)->count(), 4);
    first_.slider(5)->setValue(-2);
    EXPECT_EQ(first_.sliderText(5)->text(), QStringLiteral("-10"));
    EXPECT_EQ(mybundle != nullptr ? mybundle->localizedString(QStringLiteral("Black")) : QString(),
              QStringLiteral("Black"))
        << "the gone panel's bundle is still there";
}

} // namespace
} // namespace tessarin::test

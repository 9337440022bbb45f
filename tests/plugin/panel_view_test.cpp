// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Loading of the panel's view: from the real interface file, and from ones that lack something.

#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/password_pde.h"
#include "tests/plugin/plugin_test_support.h"

#include <QDir>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

QByteArray without(const QByteArray &text, const char *what, const char *instead)
{
    QByteArray changed = text;
    changed.replace(what, instead);
    if (changed == text) {
        ADD_FAILURE() << "the interface file has no " << what;
    }
    return changed;
}

QByteArray withoutTag(const QByteArray &text, int tag)
{
    return without(text, ("<number>" + std::to_string(tag) + "</number>").c_str(), "<number>99999</number>");
}

TEST(GhostscriptPaths, AreThoseOfTheDriverThenOfTheMachine)
{
    EXPECT_STREQ(ghostscriptPaths[0], "/Library/Printers/Tessarin/gs/bin/gs");
    EXPECT_STREQ(ghostscriptPaths[1], "/usr/local/bin/gs");
}

class PanelView : public testing::Test {
protected:
    /// A panel whose bundle holds this interface file; none without a text.
    PasswordPDE &panelWith(const QByteArray &interface)
    {
        if (!interface.isEmpty()) {
            temporary_.writeInterface(interface);
        }
        panel_ = makePanel(host_, temporary_.open());
        return *panel_;
    }

    QWidget *control(std::size_t row) const { return panel_->panelContext()->controls.popupControls.at(row); }
    QWidget *slider(std::size_t number) const { return panel_->panelContext()->controls.sliderControls.at(number); }

    SharedTables tables_;
    Ghostscript ghostscript_{true};
    TemporaryBundle temporary_;
    std::shared_ptr<RecordingHost> host_ = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    std::shared_ptr<PasswordPDE> panel_ = makePanel(host_);
};

TEST_F(PanelView, IsTheContentViewNotTheOutletThatDecidesAboutLoading)
{
    const QWidget *view = panel_->panelView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view, panel_->contentView());
    EXPECT_EQ(view->objectName(), QStringLiteral("TessarinPDEView"));
    ASSERT_NE(panel_->tabView(), nullptr);
    EXPECT_EQ(panel_->tabView()->objectName(), QStringLiteral("PDETabView"));
    EXPECT_TRUE(view->isAncestorOf(panel_->tabView()));
}

TEST_F(PanelView, IsLoadedOnceAndSetUpEachTime)
{
    const CapturedLog log;
    const QWidget *view = panel_->panelView();
    const QWidget *brightness = slider(0);
    EXPECT_EQ(panel_->panelView(), view);
    EXPECT_EQ(panel_->panelView(), view);
    EXPECT_EQ(log.countStarting("LOG Enum Boxes - "), 1);
    EXPECT_EQ(log.countStarting("LOG $$$$$ Subviews:"), 2);
    EXPECT_EQ(log.count("LOG Now init Controls\n"), 3);
    EXPECT_EQ(log.countStarting("LOG CoCoaEmbedControls - 6 TABS - View="), 3);
    EXPECT_EQ(log.countStarting("LOG Init Tab #"), 18);
    EXPECT_EQ(slider(0), brightness);
}

TEST_F(PanelView, TagsTheBarsOfBothBoxes)
{
    const CapturedLog log;
    QWidget *view = panel_->panelView();
    const auto *last = view->findChild<QWidget *>(QStringLiteral("lastConsumptionBox"));
    EXPECT_EQ(log.lines().at(1), "LOG Enum Boxes - " + address(last) + "!!!\n");
    for (std::size_t row = 0; row < 12; ++row) {
        const QWidget *lastBar = panel_->panelContext()->controls.lastInkBars.at(row);
        const QWidget *totalBar = panel_->panelContext()->controls.totalInkBars.at(row);
        ASSERT_NE(lastBar, nullptr) << row;
        ASSERT_NE(totalBar, nullptr) << row;
        EXPECT_EQ(tagOf(lastBar), 3011 + static_cast<qintptr>(row));
        EXPECT_EQ(tagOf(totalBar), 2999 + static_cast<qintptr>(row));
        EXPECT_EQ(lastBar->parentWidget()->objectName(), QStringLiteral("lastConsumptionBox")) << row;
        EXPECT_EQ(totalBar->parentWidget()->objectName(), QStringLiteral("totalConsumptionBox")) << row;
    }
}

TEST_F(PanelView, FindsEveryControlOfTheTables)
{
    panel_->panelView();
    const ControlsStruct &controls = panel_->panelContext()->controls;
    for (std::size_t row = 0; row < 8; ++row) {
        EXPECT_NE(controls.popupControls.at(row), nullptr) << row;
    }
    for (std::size_t number = 0; number < 20; ++number) {
        EXPECT_NE(controls.sliderControls.at(number), nullptr) << number;
        EXPECT_NE(controls.sliderAuxControls.at(number), nullptr) << number;
    }
    EXPECT_NE(controls.noPrintCheckBox, nullptr);
    EXPECT_NE(controls.psInterpreterCheckBox, nullptr);
    EXPECT_NE(controls.colorGammaCheckBox, nullptr);
    EXPECT_EQ(controls.tabView, panel_->tabView());
    EXPECT_EQ(controls.cyanPane, controls.sliderControls.at(8)->parentWidget());
    EXPECT_EQ(controls.magentaPane, controls.sliderControls.at(9)->parentWidget());
}

TEST_F(PanelView, LeavesSparePlacesEmpty)
{
    panel_->panelView();
    const PanelContext &context = *panel_->panelContext();
    for (const ControlHandle *handle :
         {&context.controls.spareControl1, &context.controls.spareControl2, &context.controls.spareControl3,
          &context.controls.spareControl4, &context.controls.summaryControl, &context.availabilityObject}) {
        EXPECT_TRUE(handle->isNull());
    }
    for (const ControlHandle &handle : context.controls.extraControls) {
        EXPECT_TRUE(handle.isNull());
    }
    for (std::size_t place = 8; place < 12; ++place) {
        EXPECT_TRUE(context.controls.popupControls.at(place).isNull()) << place;
    }
    EXPECT_TRUE(context.controls.sliderControls.at(20).isNull());
}

TEST_F(PanelView, KnowsItsPages)
{
    panel_->panelView();
    const auto *tabs = qobject_cast<const TabView *>(panel_->tabView());
    ASSERT_EQ(tabs->count(), 6);
    for (int position = 0; position < 6; ++position) {
        EXPECT_EQ(panel_->panelContext()->tabObjects.at(static_cast<std::size_t>(position)),
                  tabs->widget(position));
    }
    EXPECT_EQ(panel_->panelContext()->embedObject, tabs->widget(5)) << "the page last embedded";
}

TEST_F(PanelView, MarksTheLastTabAsEnabledEvenWithoutColourData)
{
    panel_ = makePanel(std::make_shared<RecordingHost>(ppdFixture("media-modes")));
    panel_->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("M2"));
    for (int call = 1; call <= 2; ++call) {
        panel_->panelView();
        const auto *tabs = qobject_cast<const TabView *>(panel_->tabView());
        const std::vector<std::string> expected{"On", "On", "Off", "Off", "Off", "On"};
        for (int position = 0; position < 6; ++position) {
            EXPECT_EQ(tabs->identifier(position).toStdString(), expected.at(static_cast<std::size_t>(position)))
                << position << ": the sixth is marked after the fifth page has switched it off";
        }
    }
}

TEST_F(PanelView, IsLocalisedAtEveryDepth)
{
    panel_ = makePanel(host_, buildBundle(QStringLiteral("de")));
    QWidget *view = panel_->panelView();
    const auto *tabs = qobject_cast<const TabView *>(panel_->tabView());
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("Allgemein"));
    const auto labels = view->findChildren<QLabel *>();
    const auto shows = [&labels](const QString &text) {
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel *label) { return label->text() == text; });
    };
    const auto german = buildBundle(QStringLiteral("de"));
    const QString caption = german->localizedString(QStringLiteral("Media Type:"));
    ASSERT_NE(caption, QStringLiteral("Media Type:"));
    EXPECT_TRUE(shows(caption));
    EXPECT_FALSE(shows(QStringLiteral("Media Type:")));
}

TEST_F(PanelView, StaysWithAHostThatTookIt)
{
    QWidget window;
    const QPointer<QWidget> view = panel_->panelView();
    view->setParent(&window);
    panel_.reset();
    EXPECT_FALSE(view.isNull());
}

TEST_F(PanelView, GoesWithThePanelWhenNobodyTookIt)
{
    const QPointer<QWidget> view = panel_->panelView();
    panel_.reset();
    EXPECT_TRUE(view.isNull());
}

TEST_F(PanelView, IsLoadedAgainWhenTheHostDeletedIt)
{
    auto window = std::make_unique<QWidget>();
    QWidget *view = panel_->panelView();
    QWidget *top = view;
    while (top->parentWidget() != nullptr) {
        top = top->parentWidget();
    }
    top->setParent(window.get());
    window.reset();
    const CapturedLog log;
    EXPECT_NE(panel_->panelView(), nullptr);
    EXPECT_EQ(log.countStarting("LOG Enum Boxes - "), 1);
    EXPECT_NE(slider(0), nullptr);
}

TEST_F(PanelView, WithoutTheDecidingOutletIsLoadedEachTime)
{
    PasswordPDE &panel = panelWith(without(interfaceText(), "name=\"pdeView\"", "name=\"otherView\""));
    const CapturedLog log;
    const QPointer<QWidget> first = panel.panelView();
    const QWidget *firstSlider = slider(0);
    const QPointer<QWidget> second = panel.panelView();
    ASSERT_FALSE(first.isNull());
    ASSERT_FALSE(second.isNull());
    EXPECT_NE(first, second);
    EXPECT_EQ(panel.contentView(), second);
    EXPECT_NE(slider(0), firstSlider) << "the record follows the latest view";
    EXPECT_EQ(log.countStarting("LOG Enum Boxes - "), 2);
    panel_.reset();
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(second.isNull());
}

TEST_F(PanelView, WithoutAnInterfaceFileIsNone)
{
    PasswordPDE &panel = panelWith({});
    const CapturedLog log;
    EXPECT_EQ(panel.panelView(), nullptr);
    EXPECT_EQ(log.lines(), (Lines{panelLine("BEGIN", &panel, "panelView:"),
                                  "LOG ERROR: cannot load the interface - " + temporary_.path("TessarinPDE_C.ui") +
                                      ": No such file or directory\n",
                                  "LOG Enum Boxes - 0x0!!!\n", "LOG $$$$$ Subviews:0\n", "LOG $$$$$ Subviews:0\n",
                                  "LOG Now init Controls\n", "LOG CoCoaEmbedControls - 0 TABS - View=0x0\n",
                                  panelLine("END", &panel, "panelView:=NSView((null), 0x0)")}));
    EXPECT_TRUE(panel.restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel.saveValuesAndReturnError(nullptr));
    EXPECT_EQ(host_->changes.size(), 28U) << "the settings are saved all the same";
}

TEST_F(PanelView, AppearsOnceThereIsAnInterfaceFile)
{
    PasswordPDE &panel = panelWith({});
    EXPECT_EQ(panel.panelView(), nullptr);
    temporary_.writeInterface(interfaceText());
    EXPECT_NE(panel.panelView(), nullptr);
}

TEST_F(PanelView, OfABrokenInterfaceFileNamesFileAndLine)
{
    PasswordPDE &panel =
        panelWith("<ui version=\"4.0\">\n<widget class=\"QWidget\" name=\"pdeView\">\n<widget class=>\n");
    const CapturedLog log;
    EXPECT_EQ(panel.panelView(), nullptr);
    const std::string &complaint = log.lines().at(1);
    EXPECT_TRUE(
        complaint.starts_with("LOG ERROR: cannot load the interface - " + temporary_.path("TessarinPDE_C.ui")))
        << complaint;
    EXPECT_NE(complaint.find("line 3"), std::string::npos) << complaint;
}

TEST_F(PanelView, OfADirectoryForAnInterfaceFileIsNone)
{
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(temporary_.path("TessarinPDE_C.ui"))));
    PasswordPDE &panel = panelWith({});
    const CapturedLog log;
    EXPECT_EQ(panel.panelView(), nullptr);
    EXPECT_TRUE(log.lines().at(1).ends_with("TessarinPDE_C.ui: not a regular file\n")) << log.lines().at(1);
}

TEST_F(PanelView, WithoutABundleIsNone)
{
    panel_ = makePanel(host_, nullptr);
    EXPECT_EQ(panel_->panelView(), nullptr);
    panel_ = makePanel(host_, std::make_shared<TextBundle>());
    EXPECT_EQ(panel_->panelView(), nullptr) << "a bundle that is no directory";
}

TEST_F(PanelView, WithoutATabViewHasNoControls)
{
    PasswordPDE &panel = panelWith(without(interfaceText(), "name=\"PDETabView\"", "name=\"otherTabs\""));
    const CapturedLog log;
    EXPECT_NE(panel.panelView(), nullptr);
    EXPECT_EQ(panel.tabView(), nullptr);
    EXPECT_EQ(log.count("LOG CoCoaEmbedControls - 0 TABS - View=0x0\n"), 1);
    EXPECT_EQ(slider(0), nullptr);
}

TEST_F(PanelView, WithoutAContentViewIsNoneButItsControlsAreSetUp)
{
    PasswordPDE &panel = panelWith(without(interfaceText(), "name=\"TessarinPDEView\"", "name=\"otherContent\""));
    EXPECT_EQ(panel.panelView(), nullptr);
    EXPECT_NE(slider(0), nullptr);
}

TEST_F(PanelView, WithoutAPopUpSkipsIt)
{
    PasswordPDE &panel = panelWith(withoutTag(interfaceText(), 4506));
    const CapturedLog log;
    ASSERT_NE(panel.panelView(), nullptr);
    EXPECT_EQ(control(5), nullptr);
    EXPECT_EQ(log.count("LOG NO STRINGS PRESENT!!!\n"), 1);
    panel.restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(log.count("LOG !!! Control not found for ppditem: *vornDithering\n"), 1);
    host_->changes.clear();
    panel.saveValuesAndReturnError(nullptr);
    EXPECT_EQ(host_->changes.size(), 31U);
    EXPECT_EQ(std::count(host_->changes.begin(), host_->changes.end(), Change("vornDithering", "Diffusion")), 1)
        << "the stored choice is saved";
}

TEST_F(PanelView, WithoutASliderSkipsIt)
{
    PasswordPDE &panel = panelWith(withoutTag(interfaceText(), 4101));
    const CapturedLog log;
    ASSERT_NE(panel.panelView(), nullptr);
    EXPECT_EQ(slider(0), nullptr);
    EXPECT_NE(slider(1), nullptr);
    EXPECT_EQ(log.count("LOG SCROLL-TEXT-Ref = 0\n"), 0);
    EXPECT_EQ(log.count("LOG SCROLL-TEXT-Ref = 1\n"), 1);
    EXPECT_EQ(panel.panelContext()->controls.controlsInt, 20) << "rows are counted, not sliders";
    host_->mark("vornBrightness", "50");
    panel.restoreValuesAndReturnError(nullptr);
    host_->changes.clear();
    panel.saveValuesAndReturnError(nullptr);
    EXPECT_EQ(std::count(host_->changes.begin(), host_->changes.end(), Change("vornBrightness", "50")), 1);
}

TEST_F(PanelView, WithoutAValueTextMovesItsSliderAllTheSame)
{
    PasswordPDE &panel = panelWith(withoutTag(interfaceText(), 4401));
    ASSERT_NE(panel.panelView(), nullptr);
    ASSERT_NE(slider(0), nullptr);
    EXPECT_EQ(panel.panelContext()->controls.sliderAuxControls.at(0), nullptr);
    host_->mark("vornBrightness", "50");
    panel.restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(qobject_cast<QSlider *>(slider(0))->value(), 10);
}

TEST_F(PanelView, WithoutACheckBoxSavesNothingForIt)
{
    PasswordPDE &panel = panelWith(withoutTag(interfaceText(), 4705));
    ASSERT_NE(panel.panelView(), nullptr);
    panel.restoreValuesAndReturnError(nullptr);
    host_->changes.clear();
    panel.saveValuesAndReturnError(nullptr);
    EXPECT_EQ(host_->changes.size(), 30U);
    EXPECT_EQ(host_->changes.front(), Change("vornColorGamma", "0"));
}

TEST_F(PanelView, WithoutTheBrightInkSlidersHasNoPanes)
{
    PasswordPDE &panel = panelWith(withoutTag(withoutTag(interfaceText(), 4109), 4110));
    ASSERT_NE(panel.panelView(), nullptr);
    EXPECT_EQ(panel.panelContext()->controls.cyanPane, nullptr);
    EXPECT_EQ(panel.panelContext()->controls.magentaPane, nullptr);
}

} // namespace
} // namespace tessarin::test

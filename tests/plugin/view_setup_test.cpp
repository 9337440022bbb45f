// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Setting up of tabs and texts, on views made by hand.

#include "plugin/view_setup.h"

#include "platform/popup_button.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "tests/plugin/plugin_test_support.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using Translations = QHash<QString, QString>;

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

class TabSetUp : public testing::Test {
protected:
    QWidget *addTab(const char *title)
    {
        auto *page = new QWidget;
        tabs_.addTab(page, text(title));
        return page;
    }

    void addTabs(int count)
    {
        for (int i = 0; i < count; ++i) {
            addTab("tab");
        }
    }

    /// A slider with the id in a pane of its own on the page.
    static QWidget *addPane(QWidget *page, int id)
    {
        auto *pane = new QWidget(page);
        setTagOf(new QSlider(pane), id);
        return pane;
    }

    int setUp()
    {
        log_.clear();
        return CocoaEmbedControls(context_, nullptr, &tabs_);
    }

    Lines tabLines() const
    {
        Lines lines;
        for (const std::string &line : log_.lines()) {
            if (line.starts_with("LOG Init Tab #") || line.starts_with("LOG CoCoaEmbedControls")) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    TextBundle bundle_;
    TextsFrom texts_{&bundle_};
    TestContext context_;
    TabView tabs_;
    CapturedLog log_;
};

TEST_F(TabSetUp, OfNoTabsTellsTheCountAndSucceeds)
{
    EXPECT_EQ(setUp(), 1);
    EXPECT_EQ(log_.lines(), Lines{"LOG CoCoaEmbedControls - 0 TABS - View=" + address(&tabs_) + "\n"});
    EXPECT_EQ(context_->controls.tabView, &tabs_);
    EXPECT_EQ(context_->embedObject, nullptr);
    EXPECT_EQ(context_->controls.controlsInt, 0);
}

TEST_F(TabSetUp, OfNoTabViewTellsTheCountAndSucceeds)
{
    context_->controls.tabView = &tabs_;
    EXPECT_EQ(CocoaEmbedControls(context_, &tabs_, nullptr), 1);
    EXPECT_EQ(log_.lines(), Lines{"LOG CoCoaEmbedControls - 0 TABS - View=0x0\n"});
    EXPECT_EQ(context_->controls.tabView, nullptr);
}

TEST_F(TabSetUp, WithoutARecordDoesNothing)
{
    addTabs(2);
    CocoaEmbedControls(nullptr, nullptr, &tabs_);
    EXPECT_EQ(log_.lines(), Lines{});
    EXPECT_TRUE(tabs_.identifier(0).isNull());
    EXPECT_TRUE(bundle_.asked.empty());
}

TEST_F(TabSetUp, HandsEachTabOverWithItsBit)
{
    addTabs(6);
    EXPECT_EQ(setUp(), 1);
    Lines expected{"LOG CoCoaEmbedControls - 6 TABS - View=" + address(&tabs_) + "\n"};
    constexpr int masks[] = {1, 2, 4, 8, 16, 32};
    for (int i = 0; i < 6; ++i) {
        expected.push_back("LOG Init Tab #" + std::to_string(i) + " (" + address(tabs_.widget(i)) + ") with idx #" +
                           std::to_string(masks[i]) + "\n");
        EXPECT_EQ(context_->tabObjects.at(static_cast<std::size_t>(i)), tabs_.widget(i)) << i;
    }
    EXPECT_EQ(tabLines(), expected);
    EXPECT_EQ(context_->embedObject, tabs_.widget(5)) << "the page last embedded";
}

TEST_F(TabSetUp, TellsOfATabBeforeItIsEmbedded)
{
    addTabs(1);
    setUp();
    const long told = log_.indexOf("LOG Init Tab #0 (" + address(tabs_.widget(0)) + ") with idx #1\n");
    ASSERT_GE(told, 0);
    EXPECT_TRUE(
        log_.lines().at(static_cast<std::size_t>(told) + 1).starts_with("LOG \n!!!MyEmbedControls!!! - idx=1 "));
}

TEST_F(TabSetUp, HandsTabsBeyondTheSixthOverWithoutABitAndNoneBeyondTheEighth)
{
    addTabs(9);
    EXPECT_EQ(setUp(), 1);
    const Lines lines = tabLines();
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_TRUE(lines.at(0).starts_with("LOG CoCoaEmbedControls - 9 TABS")) << lines.at(0);
    EXPECT_TRUE(lines.at(7).ends_with(" with idx #0\n")) << lines.at(7);
    EXPECT_TRUE(lines.at(8).starts_with("LOG Init Tab #7 ")) << lines.at(8);
    EXPECT_TRUE(lines.at(8).ends_with(" with idx #0\n")) << lines.at(8);
    EXPECT_EQ(tabs_.identifier(7), text("On"));
    EXPECT_TRUE(tabs_.identifier(8).isNull());
}

TEST_F(TabSetUp, MarksEveryTabAsEnabledEachTime)
{
    addTabs(3);
    tabs_.setIdentifier(1, text("Off"));
    setUp();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(tabs_.identifier(i), text("On")) << i;
    }
    tabs_.setIdentifier(2, text("Off"));
    setUp();
    EXPECT_EQ(tabs_.identifier(2), text("On"));
}

TEST_F(TabSetUp, LocalisesTheLabelsAndTheTextsOfEveryTab)
{
    TextBundle german(Translations{
        {text("General"), text("Allgemein")}, {text("Color"), text("Farbe")}, {text("Reload"), text("Neu laden")}});
    const TextsFrom texts(&german);
    addTab("General");
    auto *button = new QPushButton(text("Reload"), addTab("Color"));
    setUp();
    EXPECT_EQ(tabs_.tabText(0), text("Allgemein"));
    EXPECT_EQ(tabs_.tabText(1), text("Farbe"));
    EXPECT_EQ(button->text(), text("Neu laden"));
    EXPECT_EQ(german.asked, (std::vector<std::string>{"General", "Color", "Reload"}));
}

TEST_F(TabSetUp, LooksTextsUpAgainEachTime)
{
    TextBundle chain(Translations{{text("One"), text("Two")}, {text("Two"), text("Three")}});
    const TextsFrom texts(&chain);
    addTab("One");
    setUp();
    EXPECT_EQ(tabs_.tabText(0), text("Two"));
    setUp();
    EXPECT_EQ(tabs_.tabText(0), text("Three")) << "a translation that is a key is translated again";
    setUp();
    EXPECT_EQ(tabs_.tabText(0), text("Three"));
}

TEST_F(TabSetUp, TakesAnAmpersandInALabelForText)
{
    addTab("Black && White");
    setUp();
    setUp();
    EXPECT_EQ(bundle_.asked.front(), "Black & White");
    EXPECT_EQ(tabs_.tabText(0), text("Black && White"));
}

TEST_F(TabSetUp, RemembersThePanesOfTheFifthTab)
{
    addTabs(6);
    QWidget *magenta = addPane(tabs_.widget(4), 4110);
    QWidget *cyan = addPane(tabs_.widget(4), 4109);
    setUp();
    EXPECT_EQ(context_->controls.magentaPane, magenta);
    EXPECT_EQ(context_->controls.cyanPane, cyan);
}

TEST_F(TabSetUp, LooksForPanesOnNoOtherTab)
{
    addTabs(8);
    for (const int position : {0, 1, 2, 3, 5, 6, 7}) {
        addPane(tabs_.widget(position), 4109);
        addPane(tabs_.widget(position), 4110);
    }
    setUp();
    EXPECT_EQ(context_->controls.magentaPane, nullptr);
    EXPECT_EQ(context_->controls.cyanPane, nullptr);
}

TEST_F(TabSetUp, TakesTheViewThatHoldsTheSlider)
{
    addTabs(5);
    setTagOf(new QSlider(tabs_.widget(4)), 4109);
    setUp();
    EXPECT_EQ(context_->controls.cyanPane, tabs_.widget(4)) << "without a pane of its own: the page";
    EXPECT_EQ(context_->controls.magentaPane, nullptr);
}

TEST_F(TabSetUp, KeepsPanesThatAreNotFound)
{
    QWidget former;
    context_->controls.magentaPane = &former;
    context_->controls.cyanPane = &former;
    addTabs(5);
    QWidget *cyan = addPane(tabs_.widget(4), 4109);
    setUp();
    EXPECT_EQ(context_->controls.magentaPane, &former);
    EXPECT_EQ(context_->controls.cyanPane, cyan);
    setUp();
    EXPECT_EQ(context_->controls.cyanPane, cyan) << "its slider has no id any more";
}

TEST_F(TabSetUp, DoesNothingOfTheFifthTabWithoutIt)
{
    addTabs(4);
    QCheckBox *box = new QCheckBox(tabs_.widget(2));
    setTagOf(box, 4707);
    context_->settings.checkBoxStates.at(2) = 1;
    setUp();
    EXPECT_FALSE(box->isChecked());
    EXPECT_EQ(log_.countStarting("LOG iconid_brcyan="), 0);
    EXPECT_EQ(log_.countStarting("LOG colors "), 0);
}

class TranslatedSubviews : public testing::Test {
protected:
    TextBundle bundle_{Translations{{text("Key"), text("Text")}, {text("A & B"), text("C & D")}}};
    TextsFrom texts_{&bundle_};
    QWidget top_;
};

TEST_F(TranslatedSubviews, AreTextFieldsAndButtons)
{
    const QLabel label(text("Key"), &top_);
    const QLineEdit line(text("Key"), &top_);
    const QPushButton button(text("Key"), &top_);
    const QCheckBox check(text("Key"), &top_);
    const QRadioButton radio(text("Key"), &top_);
    translateSubviews(&top_);
    EXPECT_EQ(label.text(), text("Text"));
    EXPECT_EQ(line.text(), text("Text"));
    EXPECT_EQ(button.text(), text("Text"));
    EXPECT_EQ(check.text(), text("Text"));
    EXPECT_EQ(radio.text(), text("Text"));
}

TEST_F(TranslatedSubviews, AreNoOtherViews)
{
    PopUpButton popup(&top_);
    popup.addItem(text("Key"));
    QGroupBox group(text("Key"), &top_);
    TabView tabs(&top_);
    tabs.addTab(new QWidget, text("Key"));
    top_.setWindowTitle(text("Key"));
    translateSubviews(&top_);
    EXPECT_EQ(popup.itemText(0), text("Key"));
    EXPECT_EQ(group.title(), text("Key"));
    EXPECT_EQ(tabs.tabText(0), text("Key"));
    EXPECT_EQ(top_.windowTitle(), text("Key"));
}

TEST_F(TranslatedSubviews, LieAtEveryDepth)
{
    auto *box = new QGroupBox(&top_);
    auto *inner = new QWidget(box);
    const auto *button = new QPushButton(text("Key"), inner);
    translateSubviews(&top_);
    EXPECT_EQ(button->text(), text("Text"));
}

TEST_F(TranslatedSubviews, AreTakenDepthFirstInOrder)
{
    auto *first = new QPushButton(text("1"), &top_);
    auto *inner = new QLabel(text("2"), first);
    new QLabel(text("3"), inner);
    new QLabel(text("4"), first);
    new QLabel(text("5"), &top_);
    translateSubviews(&top_);
    EXPECT_EQ(bundle_.asked, (std::vector<std::string>{"1", "2", "3", "4", "5"}));
}

TEST_F(TranslatedSubviews, AreNotTheViewItself)
{
    QPushButton button(text("Key"));
    const QLabel label(text("Key"), &button);
    translateSubviews(&button);
    EXPECT_EQ(button.text(), text("Key"));
    EXPECT_EQ(label.text(), text("Text"));
}

TEST_F(TranslatedSubviews, MayBeMissing)
{
    translateSubviews(&top_);
    translateSubviews(nullptr);
    QObject noView(&top_);
    translateSubviews(&top_);
    EXPECT_TRUE(bundle_.asked.empty());
}

TEST_F(TranslatedSubviews, KeepTheirPictures)
{
    QLabel icon(&top_);
    icon.setPixmap(QPixmap(8, 8));
    translateSubviews(&top_);
    EXPECT_FALSE(icon.pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(TranslatedSubviews, ShowTheirTextsPlain)
{
    TextBundle odd(Translations{{text("Key"), text("<b>50% & more</b>")}});
    const TextsFrom texts(&odd);
    const QLabel label(text("Key"), &top_);
    translateSubviews(&top_);
    EXPECT_EQ(label.text(), text("<b>50% & more</b>"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(TranslatedSubviews, ShowAnAmpersandAsOne)
{
    const QLabel label(text("A & B"), &top_);
    const QPushButton button(text("A && B"), &top_);
    translateSubviews(&top_);
    EXPECT_EQ(label.text(), text("C & D"));
    EXPECT_EQ(button.text(), text("C && D")) << "a button writes it twice to show it once";
}

TEST_F(TranslatedSubviews, KeepTextsWithoutATranslation)
{
    const QLabel label(text("M\xC3\xBCnze %d"), &top_);
    const QLineEdit empty(&top_);
    const QPushButton button(text("100%"), &top_);
    translateSubviews(&top_);
    EXPECT_EQ(label.text(), text("M\xC3\xBCnze %d"));
    EXPECT_EQ(empty.text(), QString());
    EXPECT_EQ(button.text(), text("100%"));
}

} // namespace
} // namespace tessarin::test

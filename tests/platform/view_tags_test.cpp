// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/view_tags.h"

#include "platform/level_view.h"
#include "platform/popup_button.h"
#include "platform/tab_view.h"

#include <QCheckBox>
#include <QDial>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTextEdit>
#include <QToolButton>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <vector>

namespace tessarin {
namespace {

class Bar : public LevelView {
public:
    using LevelView::LevelView;
    void setLevel(int) override {}
    int level() const override { return 0; }
    void setColor(const QColor &) override {}
    QColor color() const override { return {}; }
    qintptr tag() const override { return tag_; }
    void setTag(qintptr tag) override { tag_ = tag; }

private:
    qintptr tag_ = 77;
};

TEST(ViewTags, TellControlsFromPlainViews)
{
    const std::unique_ptr<QWidget> controls[] = {
        std::make_unique<QComboBox>(),   std::make_unique<PopUpButton>(), std::make_unique<QSlider>(),
        std::make_unique<QDial>(),       std::make_unique<QPushButton>(), std::make_unique<QCheckBox>(),
        std::make_unique<QToolButton>(), std::make_unique<QLabel>(),      std::make_unique<QLineEdit>(),
    };
    for (const auto &view : controls) {
        EXPECT_TRUE(isControl(view.get())) << view->metaObject()->className();
        EXPECT_EQ(tagOf(view.get()), 0) << view->metaObject()->className();
    }
    const std::unique_ptr<QWidget> plain[] = {
        std::make_unique<QWidget>(), std::make_unique<QFrame>(),     std::make_unique<QGroupBox>(),
        std::make_unique<TabView>(), std::make_unique<QTabWidget>(), std::make_unique<QTextEdit>(),
    };
    for (const auto &view : plain) {
        EXPECT_FALSE(isControl(view.get())) << view->metaObject()->className();
        EXPECT_EQ(tagOf(view.get()), -1) << view->metaObject()->className();
    }
    const Bar bar;
    EXPECT_FALSE(isControl(&bar));
    EXPECT_FALSE(isControl(nullptr));
}

TEST(ViewTags, AreAsWideAsAPointer)
{
    QSlider slider;
    QWidget plain;
    for (const qintptr tag : {qintptr{4101}, qintptr{0}, qintptr{-5}, std::numeric_limits<qintptr>::max(),
                              std::numeric_limits<qintptr>::min()}) {
        setTagOf(&slider, tag);
        setTagOf(&plain, tag);
        EXPECT_EQ(tagOf(&slider), tag);
        EXPECT_EQ(tagOf(&plain), tag);
    }
}

TEST(ViewTags, AreReadFromThePropertyOfTheInterfaceFile)
{
    QSlider slider;
    slider.setProperty("tag", 4101);
    EXPECT_EQ(tagOf(&slider), 4101);
}

TEST(ViewTags, OfAViewThatHasGoneAreNotThoseOfOneInItsPlace)
{
    alignas(QSlider) std::array<std::byte, sizeof(QSlider)> place{};
    for (const int tag : {4101, 4102}) {
        auto *slider = new (place.data()) QSlider;
        slider->setProperty("tag", tag);
        EXPECT_EQ(tagOf(slider), tag);
        slider->~QSlider();
    }
    auto *plain = new (place.data()) QWidget;
    EXPECT_EQ(tagOf(plain), -1);
    plain->~QWidget();
}

TEST(ViewTags, AreReadAgainOfAViewThatWasAskedTooEarly)
{
    QWidget top;
    QSlider slider(&top);
    ASSERT_EQ(tagOf(&slider), 0);
    slider.setProperty("tag", 4104);
    readTagsAgain(&top);
    EXPECT_EQ(tagOf(&slider), 4104);
    EXPECT_EQ(tagOf(&top), -1);
}

TEST(ViewTags, AreKnownOfMoreViewsThanArePurgedAtOnce)
{
    std::vector<std::unique_ptr<QWidget>> kept;
    for (int tag = 0; tag < 2000; ++tag) {
        QSlider gone;
        setTagOf(&gone, -tag);
        kept.push_back(std::make_unique<QWidget>());
        setTagOf(kept.back().get(), tag);
    }
    for (int tag = 0; tag < 2000; ++tag) {
        EXPECT_EQ(tagOf(kept[static_cast<std::size_t>(tag)].get()), tag);
    }
}

TEST(ViewTags, OfALevelViewAreItsOwn)
{
    Bar bar;
    EXPECT_EQ(tagOf(&bar), 77);
    setTagOf(&bar, 3011);
    EXPECT_EQ(bar.tag(), 3011);
    EXPECT_EQ(tagOf(&bar), 3011);
}

TEST(ViewTags, OfNoViewAreZeroAndCannotBeSet)
{
    EXPECT_EQ(tagOf(nullptr), 0);
    setTagOf(nullptr, 5);
}

/// top (1) > box (2) > [first (5), inner (3) > second (6)], last (6).
struct Tree {
    QWidget top;
    QWidget *box = new QWidget(&top);
    QLabel *first = new QLabel(box);
    QWidget *inner = new QWidget(box);
    QSlider *second = new QSlider(inner);
    QLabel *last = new QLabel(&top);

    Tree()
    {
        setTagOf(&top, 1);
        setTagOf(box, 2);
        setTagOf(first, 5);
        setTagOf(inner, 3);
        setTagOf(second, 6);
        setTagOf(last, 6);
    }
};

TEST(ViewTags, AreLookedUpInTheViewItselfFirst)
{
    Tree tree;
    EXPECT_EQ(viewWithTag(&tree.top, 1), &tree.top);
    setTagOf(tree.last, 1);
    EXPECT_EQ(viewWithTag(&tree.top, 1), &tree.top);
}

TEST(ViewTags, AreLookedUpDepthFirstInTheOrderOfTheSubviews)
{
    Tree tree;
    EXPECT_EQ(viewWithTag(&tree.top, 5), tree.first);
    EXPECT_EQ(viewWithTag(&tree.top, 6), tree.second) << "the one deeper down comes before a later sibling";
    setTagOf(tree.second, 7);
    EXPECT_EQ(viewWithTag(&tree.top, 6), tree.last);
    setTagOf(tree.inner, 6);
    EXPECT_EQ(viewWithTag(&tree.top, 6), tree.inner);
}

TEST(ViewTags, AreNotLookedUpBesideOrAboveTheView)
{
    Tree tree;
    EXPECT_EQ(viewWithTag(tree.inner, 5), nullptr);
    EXPECT_EQ(viewWithTag(tree.inner, 1), nullptr);
    EXPECT_EQ(viewWithTag(&tree.top, 99), nullptr);
    EXPECT_EQ(viewWithTag(nullptr, 0), nullptr);
}

TEST(ViewTags, AreLookedUpPastChildrenThatAreNoViews)
{
    Tree tree;
    QObject other(&tree.top);
    other.setProperty("tag", 44);
    EXPECT_EQ(viewWithTag(&tree.top, 44), nullptr);
}

TEST(ViewTags, ReachTheHiddenPagesOfATabView)
{
    TabView tabs;
    auto *page = new QWidget;
    auto *slider = new QSlider(page);
    setTagOf(slider, 4101);
    tabs.addTab(new QWidget, QStringLiteral("A"));
    tabs.addTab(page, QStringLiteral("B"));
    EXPECT_EQ(viewWithTag(&tabs, 4101), slider);
}

TEST(ViewHandles, LeadBackToTheirView)
{
    QLabel first;
    QLabel second;
    const qintptr handle = handleOf(&first);
    EXPECT_NE(handle, 0);
    EXPECT_EQ(viewForHandle(handle), &first);
    EXPECT_EQ(handleOf(&first), handle) << "the same view, the same handle";
    EXPECT_NE(handleOf(&second), handle);
    EXPECT_EQ(viewForHandle(handleOf(&second)), &second);
    QSlider slider;
    setTagOf(&slider, handle);
    EXPECT_EQ(viewForHandle(tagOf(&slider)), &first) << "a handle fits into a tag";
}

TEST(ViewHandles, OfNoViewAreZero)
{
    EXPECT_EQ(handleOf(nullptr), 0);
    EXPECT_EQ(viewForHandle(0), nullptr);
}

TEST(ViewHandles, ThatWereNeverGivenAreNoAddresses)
{
    QLabel known;
    QLabel unknown;
    EXPECT_EQ(viewForHandle(4101), nullptr);
    EXPECT_EQ(viewForHandle(-1), nullptr);
    EXPECT_EQ(viewForHandle(handleOf(&known) + 1), nullptr);
    EXPECT_EQ(viewForHandle(reinterpret_cast<qintptr>(&unknown)), nullptr);
}

TEST(ViewHandles, OfDeadViewsLeadNowhere)
{
    auto view = std::make_unique<QLabel>();
    const qintptr handle = handleOf(view.get());
    view.reset();
    EXPECT_EQ(viewForHandle(handle), nullptr);
}

TEST(ViewHandles, LeadToTheViewThatNowHasTheAddress)
{
    alignas(QLabel) std::byte place[sizeof(QLabel)];
    auto *first = new (place) QLabel;
    const qintptr handle = handleOf(first);
    first->~QLabel();
    auto *second = new (place) QLabel;
    EXPECT_EQ(viewForHandle(handle), nullptr) << "not before the new view is given one";
    EXPECT_EQ(handleOf(second), handle);
    EXPECT_EQ(viewForHandle(handle), second);
    second->~QLabel();
}

TEST(ViewHandles, OfLivingViewsSurviveManyDeadOnes)
{
    QLabel living;
    const qintptr handle = handleOf(&living);
    for (int round = 0; round < 3; ++round) {
        std::vector<std::unique_ptr<QLabel>> passing;
        for (int i = 0; i < 200; ++i) {
            passing.push_back(std::make_unique<QLabel>());
            const qintptr own = handleOf(passing.back().get());
            EXPECT_EQ(viewForHandle(own), passing.back().get());
        }
        EXPECT_EQ(viewForHandle(handleOf(passing.front().get())), passing.front().get());
    }
    EXPECT_EQ(viewForHandle(handle), &living);
}

} // namespace
} // namespace tessarin

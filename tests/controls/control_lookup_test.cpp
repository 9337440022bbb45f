// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Finding controls by their id, and the one property that a control has.

#include "controls/control_layer.h"
#include "ink/level_box.h"
#include "platform/popup_button.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include <gtest/gtest.h>

namespace tessarin {
namespace {

constexpr std::uint32_t kAnyProperty = 0x41424344;

template <typename View>
View *tagged(QWidget *parent, qintptr tag)
{
    auto *view = new View(parent);
    setTagOf(view, tag);
    return view;
}

ControlHandle find(QWidget *parent, std::int32_t id)
{
    ControlHandle found;
    GetControlByID(parent, {.signature = kControlSignature, .id = id}, &found);
    return found;
}

TEST(ControlLookup, AnswersZeroAndTheControlWhenItIsFound)
{
    QWidget page;
    auto *slider = tagged<QSlider>(&page, 4101);
    ControlHandle found;
    EXPECT_EQ(GetControlByID(&page, {.signature = kControlSignature, .id = 4101}, &found), 0);
    EXPECT_EQ(found, slider);
}

TEST(ControlLookup, AnswersMinusOneAndNoControlWhenItIsNotFound)
{
    QWidget page;
    tagged<QSlider>(&page, 4101);
    QWidget former;
    ControlHandle found = &former;
    EXPECT_EQ(GetControlByID(&page, {.signature = kControlSignature, .id = 4102}, &found), -1);
    EXPECT_TRUE(found.isNull()) << "not what it was before";
    found = &former;
    EXPECT_EQ(GetControlByID(nullptr, {.signature = kControlSignature, .id = 4101}, &found), -1);
    EXPECT_TRUE(found.isNull());
}

TEST(ControlLookup, ReadsTheIdAlone)
{
    QWidget page;
    auto *slider = tagged<QSlider>(&page, 4101);
    ControlHandle found;
    EXPECT_EQ(GetControlByID(&page, {.signature = 0, .id = 4101}, &found), 0);
    EXPECT_EQ(found, slider);
}

TEST(ControlLookup, AsEmbeddingAnswersTrueWhenTheControlIsNotFound)
{
    QWidget page;
    auto *slider = tagged<QSlider>(&page, 4101);
    ControlHandle found;
    EXPECT_FALSE(MyEmbedControl(&page, nullptr, {.signature = kControlSignature, .id = 4101}, &found));
    EXPECT_EQ(found, slider);
    int unused = 0;
    EXPECT_TRUE(MyEmbedControl(&page, &unused, {.signature = kControlSignature, .id = 1}, &found));
    EXPECT_TRUE(found.isNull());
}

TEST(ControlLookup, CountsTheViewItself)
{
    QWidget page;
    setTagOf(&page, 77);
    EXPECT_EQ(find(&page, 77), &page);
    tagged<QLabel>(&page, 77);
    EXPECT_EQ(find(&page, 77), &page) << "before its subviews";
}

TEST(ControlLookup, GoesDepthFirstInTheOrderOfTheSubviews)
{
    QWidget page;
    auto *first = new QWidget(&page);
    auto *box = new QGroupBox(first);
    auto *deep = tagged<QLabel>(box, 5);
    auto *second = tagged<QLabel>(&page, 5);
    auto *third = tagged<QLabel>(&page, 6);
    tagged<QLabel>(&page, 6);
    EXPECT_EQ(find(&page, 5), deep) << "a nested view before its parent's neighbour";
    EXPECT_EQ(find(&page, 6), third) << "the first of two";
    EXPECT_NE(find(&page, 5), second);
}

TEST(ControlLookup, SeesOnlyTheTreeItIsGiven)
{
    QWidget page;
    auto *pane = new QWidget(&page);
    tagged<QLabel>(&page, 5);
    EXPECT_TRUE(find(pane, 5).isNull());
}

TEST(ControlLookup, FindsALevelBoxByItsOwnTag)
{
    QWidget page;
    auto *bar = new LevelBox(&page);
    EXPECT_EQ(find(&page, 3011), bar) << "the tag of every new one";
    setTagOf(bar, 2999);
    EXPECT_EQ(find(&page, 2999), bar);
    EXPECT_TRUE(find(&page, 3011).isNull());
}

TEST(ControlLookup, TakesControlsWithoutATagForZeroAndPlainViewsForMinusOne)
{
    QWidget page;
    auto *label = new QLabel(&page);
    EXPECT_EQ(find(&page, 0), label);
    EXPECT_EQ(find(&page, -1), &page);
}

TEST(ControlLookup, KnowsNoOwners)
{
    QWidget page;
    EXPECT_EQ(GetControlOwner(tagged<QLabel>(&page, 5)), nullptr);
    EXPECT_EQ(GetControlOwner(nullptr), nullptr);
}

TEST(ControlLookup, KeepsCallsOfOlderManagersWithoutEffect)
{
    QLabel label;
    setTagOf(&label, 5);
    InitOSSpecificItems();
    MySetControlIcon(&label, 128);
    SetControlReference(&label, 2009);
    EXPECT_EQ(GetControlReference(&label), 0);
    EXPECT_EQ(GetControlReference(nullptr), 0);
    EXPECT_EQ(tagOf(&label), 5);
    EXPECT_TRUE(label.pixmap().isNull());
}

TEST(ControlProperty, IsTheTagSoThatTheIdIsGone)
{
    QWidget page;
    auto *label = tagged<QLabel>(&page, 4401);
    const std::int32_t row = 7;
    EXPECT_EQ(SetControlProperty(label, kControlSignature, kAnyProperty, sizeof row, &row), 0);
    EXPECT_EQ(tagOf(label), 7);
    EXPECT_TRUE(find(&page, 4401).isNull());
    EXPECT_EQ(find(&page, 7), label);
}

TEST(ControlProperty, IsOneForAllNames)
{
    QLabel label;
    const std::int32_t row = 7;
    SetControlProperty(&label, kControlSignature, kAnyProperty, sizeof row, &row);
    qintptr value = 0;
    EXPECT_EQ(GetControlProperty(&label, 0, kAnyProperty + 1, sizeof value, &value), 0);
    EXPECT_EQ(value, 7);
}

TEST(ControlProperty, HoldsAWholeHandleAndANegativeNumber)
{
    QSlider slider;
    QLabel text;
    const qintptr handle = handleOf(&text);
    SetControlProperty(&slider, kControlSignature, kAnyProperty, sizeof handle, &handle);
    qintptr value = 0;
    GetControlProperty(&slider, kControlSignature, kAnyProperty, sizeof value, &value);
    EXPECT_EQ(value, handle);
    EXPECT_EQ(viewForHandle(value), &text);

    const std::int32_t negative = -5;
    SetControlProperty(&slider, kControlSignature, kAnyProperty, sizeof negative, &negative);
    GetControlProperty(&slider, kControlSignature, kAnyProperty, sizeof value, &value);
    EXPECT_EQ(value, -5);
}

TEST(ControlProperty, IsNeverTakenForAnAddress)
{
    EXPECT_EQ(viewForHandle(4101), nullptr) << "a slider that still has its id";
    EXPECT_EQ(viewForHandle(0), nullptr);
    qintptr handle = 0;
    {
        QLabel gone;
        handle = handleOf(&gone);
    }
    EXPECT_EQ(viewForHandle(handle), nullptr);
}

TEST(ControlProperty, BelongsToControlsOnly)
{
    QWidget plain;
    TabView tabs;
    LevelBox bar;
    QGroupBox group;
    const std::int32_t number = 9;
    for (QWidget *view : {&plain, static_cast<QWidget *>(&tabs), static_cast<QWidget *>(&bar),
                          static_cast<QWidget *>(&group), static_cast<QWidget *>(nullptr)}) {
        SetControlProperty(view, kControlSignature, kAnyProperty, sizeof number, &number);
        EXPECT_NE(tagOf(view), 9);
        qintptr value = 1234;
        GetControlProperty(view, kControlSignature, kAnyProperty, sizeof value, &value);
        EXPECT_EQ(value, 1234);
    }
}

TEST(ControlProperty, BelongsToEveryKindOfControl)
{
    PopUpButton popup;
    QSlider slider;
    QCheckBox box;
    QPushButton button;
    QLabel label;
    QLineEdit line;
    const std::int32_t number = 9;
    for (QWidget *view :
         {static_cast<QWidget *>(&popup), static_cast<QWidget *>(&slider), static_cast<QWidget *>(&box),
          static_cast<QWidget *>(&button), static_cast<QWidget *>(&label), static_cast<QWidget *>(&line)}) {
        SetControlProperty(view, kControlSignature, kAnyProperty, sizeof number, &number);
        EXPECT_EQ(tagOf(view), 9) << view->metaObject()->className();
    }
}

} // namespace
} // namespace tessarin

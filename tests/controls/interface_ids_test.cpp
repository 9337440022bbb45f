// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ids of the control tables: unique, and carried by the interface file, each by one view of the right kind on
// the right page.

#include "controls/control_tables.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <QPushButton>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tessarin::test {
namespace {

/// An id, the position of its tab (0: General .. 5: Ink Limits) and the kind of view.
struct Place {
    int id, page;
    const char *kind;
};

std::vector<Place> places()
{
    std::vector<Place> all{// pop-ups
                           {4507, 0, "tessarin::PopUpButton"},
                           {4501, 0, "tessarin::PopUpButton"},
                           {4502, 0, "tessarin::PopUpButton"},
                           {4506, 0, "tessarin::PopUpButton"},
                           {4504, 1, "tessarin::PopUpButton"},
                           {4505, 1, "tessarin::PopUpButton"},
                           {4503, 1, "tessarin::PopUpButton"},
                           {4508, 1, "tessarin::PopUpButton"},
                           // check boxes and the button
                           {4706, 0, "QCheckBox"},
                           {4707, 2, "QCheckBox"},
                           {4705, 3, "QCheckBox"},
                           {4003, 3, "QPushButton"},
                           // captions and icons
                           {3556, 0, "QLabel"},
                           {3577, 4, "QLabel"},
                           {1901, 4, "QLabel"},
                           {1935, 4, "QLabel"},
                           // sums
                           {3139, 3, "QLabel"},
                           {3129, 3, "QLabel"}};
    // sliders, each with its value text 300 above
    const std::map<int, std::vector<int>> sliders{{0, {4101, 4102}},
                                                  {1, {4104, 4105, 4117, 4106, 4107}},
                                                  {2, {4131, 4132, 4133, 4134}},
                                                  {4, {4108, 4109, 4110, 4111}},
                                                  {5, {4112, 4113, 4114, 4115, 4116}}};
    for (const auto &[page, ids] : sliders) {
        for (const int id : ids) {
            all.push_back({id, page, "QSlider"});
            all.push_back({id + 300, page, "QLabel"});
        }
    }
    // values and names of the twelve rows of both ink boxes
    for (const int id : {3111, 3112, 3113, 3114, 3115, 3116, 3117, 3118, 3119, 3120, 3121, 3122, //
                         3101, 3102, 3103, 3104, 3105, 3106, 3107, 3108, 3109, 3110, 3100, 3099, //
                         3211, 3212, 3213, 3214, 3215, 3216, 3217, 3218, 3219, 3220, 3221, 3222, //
                         3201, 3202, 3203, 3204, 3205, 3206, 3207, 3208, 3209, 3210, 3200, 3199}) {
        all.push_back({id, 3, "QLabel"});
    }
    return all;
}

class InterfaceIds : public testing::Test {
protected:
    InterfaceIds() : root(rawInterface()), tabs(root->findChild<TabView *>()) {}

    /// The views with a tag below a view.
    static std::vector<QWidget *> tagged(QWidget *view, qintptr tag)
    {
        std::vector<QWidget *> found;
        for (QWidget *child : view->findChildren<QWidget *>()) {
            if (tagOf(child) == tag) {
                found.push_back(child);
            }
        }
        return found;
    }

    std::unique_ptr<QWidget> root;
    TabView *tabs;
};

TEST_F(InterfaceIds, StandOnceEachOnTheirPageInAViewOfTheirKind)
{
    ASSERT_EQ(tabs->count(), 6);
    for (const Place &place : places()) {
        EXPECT_EQ(tagged(root.get(), place.id).size(), 1U) << place.id << " in the whole view";
        const std::vector<QWidget *> found = tagged(tabs->widget(place.page), place.id);
        ASSERT_EQ(found.size(), 1U) << place.id << " on page " << place.page;
        EXPECT_TRUE(found[0]->inherits(place.kind)) << place.id << " is a " << found[0]->metaObject()->className();
    }
}

TEST_F(InterfaceIds, AreAllThatTheTablesName)
{
    std::map<int, int> pageOf;
    for (const Place &place : places()) {
        EXPECT_TRUE(pageOf.emplace(place.id, place.page).second) << place.id << " twice";
    }
    const auto check = [&pageOf](int id, int page) {
        ASSERT_TRUE(pageOf.contains(id)) << id;
        EXPECT_EQ(pageOf[id], page) << id;
        pageOf.erase(id); // so that no table shares it with another
    };
    const std::map<int, int> position{{1, 0}, {2, 1}, {4, 2}, {8, 3}, {16, 4}, {32, 5}};
    for (std::size_t row = 0; row < 20; ++row) {
        check(Scrolls[row].sliderId, position.at(Scrolls[row].page));
        check(Scrolls[row].textId, position.at(Scrolls[row].page));
        EXPECT_EQ(Scrolls[row].textId, Scrolls[row].sliderId + 300);
    }
    for (std::size_t row = 0; row < 8; ++row) {
        check(pops[row].controlId, position.at(pops[row].page));
    }
    for (const InkIDs &ids : {LastInkValueID, TotalInkValueID, LastInkNameID, TotalInkNameID}) {
        for (const int id : ids) {
            if (id != 0) {
                check(id, 3);
            }
        }
    }
    std::set<int> others;
    for (const auto &[id, page] : pageOf) {
        others.insert(id);
    }
    EXPECT_EQ(others, (std::set<int>{1901, 1935, 3556, 3577, 4003, 4705, 4706, 4707}));
}

TEST_F(InterfaceIds, OfTheBarsAreGivenTopDown)
{
    PanelSession session;
    QWidget *view = session.open();
    QWidget *page = view->findChild<TabView *>()->widget(3);
    std::set<int> seen;
    for (const int first : {3011, 2999}) {
        int above = -1;
        for (int id = first; id < first + 12; ++id) {
            const std::vector<QWidget *> found = tagged(page, id);
            ASSERT_EQ(found.size(), 1U) << id;
            EXPECT_TRUE(found[0]->inherits("tessarin::LevelBox"));
            EXPECT_TRUE(seen.insert(id).second) << "last and total never share one";
            EXPECT_GT(found[0]->y(), above) << id;
            above = found[0]->y();
        }
    }
}

TEST_F(InterfaceIds, LeaveNoBarOver)
{
    const std::size_t bars = tagged(tabs->widget(3), 3011).size();
    EXPECT_EQ(bars, 24U);
    EXPECT_EQ(tagged(root.get(), 3011).size(), 24U);
}

TEST_F(InterfaceIds, OfThePanesLieInOneParentEachWithItsText)
{
    QWidget *cyan = tagged(root.get(), 4109)[0]->parentWidget();
    QWidget *magenta = tagged(root.get(), 4110)[0]->parentWidget();
    EXPECT_NE(cyan, magenta);
    EXPECT_NE(cyan, tabs->widget(4)) << "or the whole page would move";
    EXPECT_EQ(cyan->parentWidget(), magenta->parentWidget());
    EXPECT_EQ(tagged(root.get(), 4409)[0]->parentWidget(), cyan);
    EXPECT_EQ(tagged(root.get(), 4410)[0]->parentWidget(), magenta);
    EXPECT_EQ(cyan->parentWidget()->layout(), nullptr) << "a layout would undo the move";
}

TEST_F(InterfaceIds, OfTheColorSpacesLieAtOnePlace)
{
    const QWidget *rgb = tagged(root.get(), 4503)[0];
    const QWidget *cmyk = tagged(root.get(), 4508)[0];
    EXPECT_EQ(rgb->parentWidget(), cmyk->parentWidget());
    EXPECT_EQ(rgb->geometry(), cmyk->geometry());
}

TEST_F(InterfaceIds, OfCartridgeAndDitheringShareALineUnderTheMediaType)
{
    const QWidget *media = tagged(root.get(), 4501)[0];
    const QWidget *dithering = tagged(root.get(), 4506)[0];
    const QWidget *cartridge = tagged(root.get(), 4507)[0];
    EXPECT_EQ(media->parentWidget(), dithering->parentWidget());
    EXPECT_EQ(media->parentWidget(), cartridge->parentWidget());
    EXPECT_EQ(media->parentWidget(), tagged(root.get(), 3556)[0]->parentWidget());
    EXPECT_EQ(media->parentWidget()->layout(), nullptr) << "a layout would undo the widening";
    EXPECT_EQ(dithering->y(), cartridge->y());
    EXPECT_GT(cartridge->x(), dithering->geometry().right());
    EXPECT_GT(media->geometry().right(), dithering->geometry().right());
    EXPECT_GT(dithering->y(), media->geometry().bottom());
}

TEST(PageMasks, StandForThePositionsOfTheTabs)
{
    EXPECT_EQ(dlgidx, (std::array<std::int32_t, 8>{1, 2, 4, 8, 16, 32, 0, 0}));
}

TEST(TablesAtRunTime, ChangeOnlyInTheColumnsOfThePrinter)
{
    const auto scrolls = Scrolls;
    const auto popUps = pops;
    const auto boxes = checkboxes;
    PanelSession session(ppdFixture("odd-values"));
    session.open();
    session.panel->restoreValuesAndReturnError(nullptr);
    for (std::size_t row = 0; row < scrolls.size(); ++row) {
        const ScrollRow &was = scrolls[row];
        const ScrollRow &is = Scrolls[row];
        EXPECT_EQ(
            std::tie(is.page, is.number, is.sliderId, is.textId, is.halveNegative, is.minimum, is.maximum),
            std::tie(was.page, was.number, was.sliderId, was.textId, was.halveNegative, was.minimum, was.maximum));
        EXPECT_EQ(std::tie(is.ppdOffset, is.ppdStep, is.shownBase, is.shownFactor),
                  std::tie(was.ppdOffset, was.ppdStep, was.shownBase, was.shownFactor));
    }
    EXPECT_EQ(Scrolls[0].ppdDefault, 60);
    EXPECT_EQ(toQString(Scrolls[5].formatString), QStringLiteral("%+d"));
    for (std::size_t row = 0; row < 8; ++row) {
        EXPECT_EQ(pops[row].defaultIndex, 1);
        EXPECT_EQ(pops[row].controlId, popUps[row].controlId);
    }
    EXPECT_EQ(checkboxes[0].value, 256) << "vornNoPrint";
    EXPECT_EQ(checkboxes[1].value, -1) << "vornColorGamma";
    EXPECT_STREQ(checkboxes[2].keyword, boxes[2].keyword);
    Scrolls = scrolls; // the tables outlive this test
    checkboxes = boxes;
}

TEST(PopUpKeywords, LoseTheirStar)
{
    EXPECT_STREQ(keywordWithoutStar(pops[1]), "vornMediaType");
    const PopRow plain{.page = 1, .keyword = "vornX", .label = "", .controlId = 0, .defaultIndex = 1};
    EXPECT_STREQ(keywordWithoutStar(plain), "vornX");
}

} // namespace
} // namespace tessarin::test

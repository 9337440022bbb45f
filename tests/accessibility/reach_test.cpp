// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Assistive technology sets no control that a person cannot come to.

#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "platform/popup_button.h"
#include "platform/tab_view.h"
#include "tests/accessibility/accessible_support.h"
#include "tests/support/panel_session.h"

#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr int kInkLimitsPage = 5;
constexpr int kSliderLimitBlack = 12;

class Reach : public testing::Test {
protected:
    Reach() : view_(session_.open()), tabs_(view_->findChild<TabView *>())
    {
        view_->window()->show();
        tabs_->setCurrentIndex(0);
    }

    static QAccessibleInterface *read(QWidget *control) { return QAccessible::queryAccessibleInterface(control); }

    /// Whether a slider moves in the three ways that assistive technology has.
    static bool canBeMoved(QSlider *slider)
    {
        bool moved = false;
        const auto move = [slider, &moved](const auto &way) {
            slider->setValue(slider->minimum() + 1);
            way(read(slider));
            moved = moved || slider->value() != slider->minimum() + 1;
        };
        move([](QAccessibleInterface *of) {
            of->valueInterface()->setCurrentValue(of->valueInterface()->maximumValue());
        });
        move([](QAccessibleInterface *of) {
            of->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
        });
        move([](QAccessibleInterface *of) {
            of->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        });
        EXPECT_EQ(moved, !read(slider)->state().disabled);
        return moved;
    }
    /// Whether one of a pop-up's choices can be pressed, as it says and in fact.
    static bool canBeChosenFrom(QComboBox *popup)
    {
        QAccessibleInterface *list = read(popup)->child(0);
        const int before = popup->currentIndex();
        for (int i = 0; i < list->childCount(); ++i) {
            QAccessibleInterface *choice = list->child(i);
            if (choice->state().selected) {
                continue;
            }
            choice->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QTest::qWait(0);
            EXPECT_EQ(popup->currentIndex() != before, !choice->state().disabled);
            EXPECT_EQ(popup->currentIndex() != before, !read(popup)->state().disabled);
            return popup->currentIndex() != before;
        }
        ADD_FAILURE() << "nothing else to choose";
        return false;
    }
    static bool canBeOpened(QComboBox *popup)
    {
        read(popup)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        const bool opened = read(popup)->state().expanded;
        popup->hidePopup();
        return opened;
    }

    PanelSession session_;
    QWidget *view_;
    TabView *tabs_;
};

TEST_F(Reach, IsThePagesThatAreNotShownToo)
{
    QSlider *limit = session_.slider(kSliderLimitBlack);
    ASSERT_FALSE(limit->isVisible());
    EXPECT_TRUE(canBeMoved(limit));
    EXPECT_TRUE(canBeChosenFrom(session_.popup(kPopMediaType)));
    EXPECT_TRUE(canBeOpened(session_.popup(kPopMediaType)));
}

TEST_F(Reach, EndsAtTabsThatAreOff)
{
    QSlider *limit = session_.slider(kSliderLimitBlack);
    SetTabEnabled(tabs_, kInkLimitsPage + 1, false);
    EXPECT_FALSE(canBeMoved(limit));
    SetTabEnabled(tabs_, kInkLimitsPage + 1, true);
    EXPECT_TRUE(canBeMoved(limit));
    tabs_->setTabVisible(kInkLimitsPage, false);
    EXPECT_FALSE(canBeMoved(limit));
}

TEST_F(Reach, IsThePageThatIsShownEvenIfItsTabIsOffSince)
{
    tabs_->setCurrentIndex(kInkLimitsPage);
    SetTabEnabled(tabs_, kInkLimitsPage + 1, false);
    EXPECT_TRUE(canBeMoved(session_.slider(kSliderLimitBlack)));
}

TEST_F(Reach, EndsAtWhatIsHidden)
{
    QSlider *brightness = session_.slider(kSliderBrightness);
    QComboBox *media = session_.popup(kPopMediaType);
    for (QWidget *hidden : std::vector<QWidget *>{brightness, media}) {
        hidden->hide();
    }
    EXPECT_FALSE(canBeMoved(brightness));
    EXPECT_FALSE(canBeChosenFrom(media));
    EXPECT_FALSE(canBeOpened(media));
}

TEST_F(Reach, EndsAtWhatIsInsideOfWhatIsHidden)
{
    QSlider *magenta = session_.slider(kSliderBrightMagenta);
    magenta->setEnabled(true);
    ASSERT_TRUE(canBeMoved(magenta));
    session_.context()->controls.magentaPane->hide();
    ASSERT_FALSE(magenta->isHidden());
    EXPECT_FALSE(canBeMoved(magenta));
}

TEST_F(Reach, EndsWhileAQuestionIsOpen)
{
    QSlider *brightness = session_.slider(kSliderBrightness);
    brightness->setValue(0);
    QDialog question(view_->window());
    question.setModal(true);
    question.show();
    read(brightness)->valueInterface()->setCurrentValue(150);
    EXPECT_EQ(brightness->value(), 0);
    EXPECT_FALSE(canBeOpened(session_.popup(kPopMediaType)));
    question.hide();
    read(brightness)->valueInterface()->setCurrentValue(150);
    EXPECT_NE(brightness->value(), 0);
}

TEST_F(Reach, IsNotEndedByQuestionsOfOtherWindows)
{
    QWidget stranger;
    stranger.show();
    QDialog question(&stranger);
    question.setWindowModality(Qt::WindowModal);
    question.show();
    EXPECT_TRUE(canBeMoved(session_.slider(kSliderBrightness)));
}

} // namespace
} // namespace tessarin::test

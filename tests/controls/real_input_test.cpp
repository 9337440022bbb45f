// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Mouse, keyboard, wheel and type-ahead on the panel in a window: what they raise, and what they cannot reach.

#include "controls/control_layer.h"
#include "controls/menu_items.h"
#include "controls/popup_filling.h"
#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <set>

namespace tessarin::test {
namespace {

/// Turns the wheel over a view by notches; away from the person is positive.
void turnWheel(QWidget *view, int notches)
{
    const QPointF place = view->rect().center();
    QWheelEvent event(place, view->mapToGlobal(place), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view, &event);
}

/// Opens the pop-up's list, clicks the item with a 1-based number, and closes the list.
void clickItem(QComboBox *popup, int n)
{
    popup->showPopup();
    QAbstractItemView *list = popup->view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(list->window()));
    QTest::qWait(20);
    const QRect row = list->visualRect(popup->model()->index(n - 1, 0));
    const QPoint place = row.isValid() ? row.center() : QPoint(5, 5);
    QTest::mouseMove(list->viewport(), place);
    // The list takes no release within the double-click time of its opening.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::qWait(20);
    popup->hidePopup();
}

/// A pop-up of items 1 to 7: 1 enabled, 2 disabled, 3 hidden, 4 a separator, 5 enabled, 6 hidden, 7 disabled.
class UnreachableItems : public testing::Test {
protected:
    UnreachableItems()
    {
        popup.resize(200, 30);
        FillPopup(&popup,
                  Choices{{"A", "Alpha"},
                          {"B", "Beta"},
                          {"C", "Gamma"},
                          kSeparatorPair,
                          {"E", "Epsilon"},
                          {"F", "Zeta"},
                          {"G", "Eta"}},
                  std::vector<int>{1, 0, 1, 1, 1, 1, 0}, 1);
        ChangeMenuItemAttributes(&popup, 3, kMenuItemHidden, 0);
        ChangeMenuItemAttributes(&popup, 6, kMenuItemHidden, 0);
        popup.show();
        popup.setFocus();
        if (!QTest::qWaitForWindowExposed(&popup)) {
            ADD_FAILURE() << "not shown";
        }
    }

    int current() const { return popup.currentIndex() + 1; }

    PopUpButton popup;
    QSignalSpy activated{&popup, &QComboBox::activated};
};

TEST_F(UnreachableItems, ArePassedOverByTheKeys)
{
    for (const auto key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End}) {
        SetComboControlValue(&popup, 1);
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 5) << key;
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 5) << "nothing behind it may be chosen";
    }
    for (const auto key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home}) {
        SetComboControlValue(&popup, 5);
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 1) << key;
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 1);
    }
    EXPECT_EQ(activated.count(), 6) << "one for each choice that was made";
}

TEST_F(UnreachableItems, ArePassedOverByTheWheel)
{
    turnWheel(&popup, -1);
    EXPECT_EQ(current(), 5);
    turnWheel(&popup, -1);
    EXPECT_EQ(current(), 5);
    turnWheel(&popup, 1);
    EXPECT_EQ(current(), 1);
    turnWheel(&popup, 1);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(activated.count(), 2);
}

TEST_F(UnreachableItems, AreNotFoundByTyping)
{
    for (const char *letters : {"b", "g", "z", "et", "-"}) {
        SetComboControlValue(&popup, 1);
        QTest::qWait(QApplication::keyboardInputInterval() + 20); // what was typed before is forgotten
        QTest::keyClicks(&popup, QString::fromLatin1(letters));
        EXPECT_TRUE(current() == 1 || current() == 5) << letters << " chose " << current();
        EXPECT_NE(popup.currentText().toLower().left(1), QLatin1String(letters).left(1))
            << letters << (*letters == 'e' ? " finds what may be chosen" : "");
        if (*letters == 'e') {
            break;
        }
    }
}

TEST_F(UnreachableItems, LeaveOthersToBeFoundByTyping)
{
    QTest::keyClick(&popup, Qt::Key_E);
    EXPECT_EQ(current(), 5);
    EXPECT_EQ(activated.count(), 1);
}

TEST_F(UnreachableItems, AreNotChosenByTheMouse)
{
    clickItem(&popup, 2);
    EXPECT_EQ(current(), 1);
    clickItem(&popup, 4);
    EXPECT_EQ(current(), 1);
    clickItem(&popup, 7);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(activated.count(), 0);
    clickItem(&popup, 5);
    EXPECT_EQ(current(), 5);
    EXPECT_EQ(activated.count(), 1);
}

TEST_F(UnreachableItems, TakeNoRoomInTheListWhenTheyAreHidden)
{
    popup.showPopup();
    for (int n = 1; n <= 7; ++n) {
        const QRect row = popup.view()->visualRect(popup.model()->index(n - 1, 0));
        EXPECT_EQ(row.isEmpty(), n == 3 || n == 6) << n;
    }
    popup.hidePopup();
}

TEST_F(UnreachableItems, ArePassedOverInTheOpenList)
{
    popup.showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.view()->window()));
    QTest::keyClick(popup.view(), Qt::Key_Down);
    QTest::keyClick(popup.view(), Qt::Key_Return);
    EXPECT_EQ(current(), 5);
}

/// The panel in a window, with the media modes to choose from.
class RealInput : public testing::Test {
protected:
    RealInput() : panel(ppdFixture("media-modes"))
    {
        panel.host->changes.clear();
        log.clear();
    }

    QWidget *tagged(int id) { return viewWithTag(&panel.window, id); }

    CapturedLog log;
    AlertRecorder alerts;
    ShownPanel panel;
};

TEST_F(RealInput, OfTheMouseOnAPopUpIsOneEvent)
{
    clickItem(panel.popup(1), 5);
    EXPECT_EQ(panel.host->changes, (Changes{{"vornMediaType", "M4"}}));
    EXPECT_EQ(panel.settings().popupSelections[1], 5);
    EXPECT_EQ(log.count("LOG Handle event #4501\n"), 1);
}

TEST_F(RealInput, OfTheKeyboardOnAPopUpIsOneEventForEachStep)
{
    QTest::keyClick(panel.popup(1), Qt::Key_Down);
    QTest::keyClick(panel.popup(1), Qt::Key_End);
    QTest::keyClick(panel.popup(1), Qt::Key_Home);
    EXPECT_EQ(panel.host->changes,
              (Changes{{"vornMediaType", "M7"}, {"vornMediaType", "NoDigit"}, {"vornMediaType", "M0"}}));
}

TEST_F(RealInput, OfTypingOnAPopUpIsAnEvent)
{
    QTest::keyClicks(panel.popup(1), QStringLiteral("media w"));
    EXPECT_EQ(panel.settings().popupSelections[1], 11);
    EXPECT_FALSE(panel.host->changes.empty());
    EXPECT_EQ(panel.host->changes.back(), Change("vornMediaType", "NoDigit"));
}

TEST_F(RealInput, OfTheWheelOnAPopUpIsAnEvent)
{
    turnWheel(panel.popup(2), -1);
    EXPECT_EQ(panel.host->changes, (Changes{{"vornResolution", "1200dpi"}}));
}

TEST_F(RealInput, ThatTheHostRefusesIsPutBack)
{
    panel.host->refusedKeys = {"vornMediaType", "vornResolution"};
    clickItem(panel.popup(1), 3);
    EXPECT_EQ(panel.popup(1)->currentIndex(), 6);
    EXPECT_EQ(panel.popup(1)->currentText(), QStringLiteral("Media Mode 6"));
    QTest::keyClick(panel.popup(1), Qt::Key_Down);
    EXPECT_EQ(panel.popup(1)->currentIndex(), 6);
    turnWheel(panel.popup(2), -1);
    EXPECT_EQ(panel.popup(2)->currentIndex(), 0);
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(log.countStarting("LOG Handle event"), 3) << "putting back raises none";
}

TEST_F(RealInput, CannotReachModesThatAreHidden)
{
    panel.showPage(1);
    choose(panel.popup(1), 3); // leaves RGB (3) and CMYKproof (6)
    QComboBox *modes = panel.popup(4);
    std::set<int> reached;
    for (const auto key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_PageDown,
                           Qt::Key_PageUp, Qt::Key_G, Qt::Key_C, Qt::Key_R}) {
        QTest::keyClick(modes, key);
        reached.insert(modes->currentIndex() + 1);
    }
    for (int notch = 0; notch < 4; ++notch) {
        turnWheel(modes, notch < 2 ? -1 : 1);
        reached.insert(modes->currentIndex() + 1);
    }
    EXPECT_EQ(reached, (std::set<int>{3, 6}));
}

TEST_F(RealInput, CannotReachADisabledPopUpOrSlider)
{
    choose(panel.popup(1), 3);
    log.clear();
    QTest::keyClick(panel.popup(2), Qt::Key_Down);
    turnWheel(panel.popup(2), -1);
    QTest::mouseClick(panel.popup(2), Qt::LeftButton);
    QTest::keyClick(panel.slider(0), Qt::Key_Right);
    turnWheel(panel.slider(0), 1);
    QTest::mouseClick(panel.slider(0), Qt::LeftButton, Qt::NoModifier, QPoint(2, panel.slider(0)->height() / 2));
    EXPECT_EQ(panel.popup(2)->currentIndex(), 0);
    EXPECT_EQ(panel.slider(0)->value(), 0);
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0);
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
}

TEST_F(RealInput, OnASliderShowsItsValue)
{
    QTest::keyClick(panel.slider(0), Qt::Key_Right);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("110%"));
    QTest::keyClick(panel.slider(0), Qt::Key_Home);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("50%"));
    QTest::keyClick(panel.slider(0), Qt::Key_End);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("200%"));
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 3);
    turnWheel(panel.slider(0), -1);
    EXPECT_LT(panel.slider(0)->value(), 10);
    EXPECT_EQ(panel.sliderText(0)->text(), QString::number(100 + panel.slider(0)->value() * 10) + QLatin1Char('%'));
    EXPECT_TRUE(panel.host->changes.empty());
}

TEST_F(RealInput, OnASliderShowsItsValueWhileItIsDragged)
{
    QSlider *slider = panel.slider(1);
    slide(slider, 1); // so that it tells of every movement
    slide(slider, 0);
    log.clear();
    const QPoint centre = slider->rect().center();
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseMove(slider, centre + QPoint(slider->width() / 4, 0));
    QMouseEvent drag(QEvent::MouseMove, centre + QPoint(slider->width() / 4, 0),
                     slider->mapToGlobal(centre + QPoint(slider->width() / 4, 0)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &drag);
    EXPECT_GT(slider->value(), 0);
    EXPECT_NE(panel.sliderText(1)->text(), QStringLiteral("100%"));
    EXPECT_GE(log.countStarting("LOG scrollCallback"), 1);
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, centre + QPoint(slider->width() / 4, 0));
}

TEST_F(RealInput, OnAButtonIsOneEvent)
{
    panel.showPage(3);
    auto *reload = qobject_cast<QAbstractButton *>(tagged(4003));
    ASSERT_NE(reload, nullptr);
    QTest::mouseClick(reload, Qt::LeftButton);
    EXPECT_EQ(log.count("LOG buttonCallback: id=4003\n"), 1);
    QTest::keyClick(reload, Qt::Key_Space);
    EXPECT_EQ(log.count("LOG Handle event #4003\n"), 2);
}

TEST_F(RealInput, OnACheckBoxIsOneEvent)
{
    panel.showPage(2);
    QTest::keyClick(panel.checkBox(4707), Qt::Key_Space);
    EXPECT_TRUE(panel.checkBox(4707)->isChecked());
    EXPECT_EQ(log.count("LOG Handle event #4707\n"), 1);
    EXPECT_TRUE(isOn(panel.slider(16)));
    QTest::keyClick(panel.checkBox(4707), Qt::Key_Space);
    EXPECT_FALSE(isOn(panel.slider(19)));
}

TEST_F(RealInput, OfAssistiveTechnologyIsAnEventToo)
{
    panel.showPage(2);
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(panel.checkBox(4707));
    ASSERT_NE(box, nullptr);
    ASSERT_NE(box->actionInterface(), nullptr);
    box->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(panel.checkBox(4707)->isChecked());
    EXPECT_EQ(log.count("LOG Handle event #4707\n"), 1);

    QAccessibleInterface *slider = QAccessible::queryAccessibleInterface(panel.slider(0));
    ASSERT_NE(slider, nullptr);
    slider->valueInterface()->setCurrentValue(3);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("130%"));
}

TEST_F(RealInput, OnTheGroundOfThePanelIsLogged)
{
    QWidget *content = panel.panel->contentView();
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), content->mapToGlobal(QPointF(1, 1)),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(content, &release);
    EXPECT_EQ(log.lines(), logged({"MOUSE UP\n"}));
}

TEST_F(RealInput, CannotEnterATabThatIsOff)
{
    auto *tabs = qobject_cast<QTabWidget *>(panel.context()->controls.tabView.data());
    choose(panel.popup(1), 3);
    for (const int position : {2, 3, 4, 5}) {
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs->tabBar()->tabRect(position).center());
        EXPECT_EQ(tabs->currentIndex(), 0) << position;
    }
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, tabs->tabBar()->tabRect(1).center());
    EXPECT_EQ(tabs->currentIndex(), 1);
    QTest::keyClick(tabs->tabBar(), Qt::Key_Right);
    EXPECT_EQ(tabs->currentIndex(), 1);
    QTest::keyClick(tabs->tabBar(), Qt::Key_End);
    EXPECT_EQ(tabs->currentIndex(), 1);
    QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 0) << "round to the first";
    turnWheel(tabs->tabBar(), -3);
    EXPECT_EQ(tabs->currentIndex(), 1);
    tabs->setCurrentIndex(4);
    EXPECT_EQ(tabs->currentIndex(), 1);
    choose(panel.popup(1), 7);
    QTest::keyClick(tabs->tabBar(), Qt::Key_Right);
    EXPECT_EQ(tabs->currentIndex(), 2) << "allowed again";
}

TEST_F(RealInput, IsNotWhatThePanelItselfWrites)
{
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (int row = 0; row < 8; ++row) {
        spies.push_back(std::make_unique<QSignalSpy>(panel.popup(row), &QComboBox::activated));
        spies.push_back(std::make_unique<QSignalSpy>(panel.popup(row), &QComboBox::currentIndexChanged));
    }
    for (int number = 0; number < 20; ++number) {
        spies.push_back(std::make_unique<QSignalSpy>(panel.slider(number), &QSlider::valueChanged));
    }
    for (const int id : {4705, 4706, 4707}) {
        spies.push_back(std::make_unique<QSignalSpy>(panel.checkBox(id), &QCheckBox::toggled));
        spies.push_back(std::make_unique<QSignalSpy>(panel.checkBox(id), &QCheckBox::clicked));
    }
    panel.host->mark("vornMediaType", "M2");
    panel.host->mark("vornBrightness", "50");
    panel.host->mark("vornDithering", "Ordered");
    panel.host->mark("vornNoPrint", "1");
    panel.panel->restoreValuesAndReturnError(nullptr);
    panel.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornResolution"), QStringLiteral("1200dpi"));
    panel.open();
    panel.panel->saveValuesAndReturnError(nullptr);
    for (const auto &spy : spies) {
        EXPECT_EQ(spy->count(), 0) << spy->signal().toStdString();
    }
    EXPECT_EQ(panel.popup(2)->currentIndex(), 1);
    EXPECT_EQ(panel.slider(0)->value(), 10);
    EXPECT_TRUE(panel.checkBox(4705)->isChecked());
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0);
}

} // namespace
} // namespace tessarin::test

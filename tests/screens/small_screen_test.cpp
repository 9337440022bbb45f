// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog as a window on a screen of 1024 x 600, which small_screen_test.sh brings: window and buttons are on
// the screen in every language, at the usual font and at a larger one.

#include "tests/screens/dialog_fixture.h"
#include "tests/screens/variants.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>

#include <gtest/gtest.h>

#include <tuple>

namespace tessarin::test {
namespace {

constexpr QSize kSmallScreen(1024, 600);

bool waitUntilDrawn(const QWidget &window)
{
    QElapsedTimer timer;
    timer.start();
    while (!(window.windowHandle() && window.windowHandle()->isExposed()) && timer.elapsed() < 60000) {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return window.windowHandle() && window.windowHandle()->isExposed();
}

bool isInScrollArea(const QWidget *view)
{
    for (const QWidget *parent = view->parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QScrollArea *>(parent)) {
            return true;
        }
    }
    return false;
}

std::string shown(const QRect &place)
{
    return std::to_string(place.x()) + "," + std::to_string(place.y()) + " to " +
           std::to_string(place.x() + place.width()) + "," + std::to_string(place.y() + place.height());
}

class SmallScreen : public testing::TestWithParam<std::tuple<std::string, int>> {};

TEST_P(SmallScreen, HasRoomForTheWindow)
{
    const FontScale font(std::get<1>(GetParam()));
    WholeDialog whole(std::get<0>(GetParam()));
    ASSERT_TRUE(whole.problem.isEmpty()) << whole.problem.toStdString();
    whole.dialog->show();
    ASSERT_TRUE(waitUntilDrawn(*whole.dialog));
    const QRect screen = whole.dialog->screen()->geometry();
    ASSERT_EQ(screen.size(), kSmallScreen);
    whole.eachPage([&](const std::string &page) {
        SCOPED_TRACE(page);
        const QRect window = whole.dialog->frameGeometry();
        EXPECT_TRUE(screen.contains(window)) << shown(window);
        int buttons = 0;
        for (const QAbstractButton *button : whole.dialog->findChildren<QAbstractButton *>()) {
            if (button->isVisible() && !isInScrollArea(button)) {
                ++buttons;
                const QRect place(button->mapToGlobal(QPoint()), button->size());
                EXPECT_TRUE(window.contains(place)) << button->text().toStdString() << ": " << shown(place);
                EXPECT_EQ(button->visibleRegion(), QRegion(button->rect())) << button->text().toStdString();
            }
        }
        EXPECT_GE(buttons, 4);
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, SmallScreen, languagesAndFonts(), variantName);

} // namespace
} // namespace tessarin::test

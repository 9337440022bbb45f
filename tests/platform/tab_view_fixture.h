// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A tab view on the screen, some of whose tabs are refused, and a person's ways with it.

#ifndef TESSARIN_TESTS_PLATFORM_TAB_VIEW_FIXTURE_H
#define TESSARIN_TESTS_PLATFORM_TAB_VIEW_FIXTURE_H

#include "platform/tab_view.h"

#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace tessarin::test {

class TabViewFixture : public testing::Test {
protected:
    TabViewFixture()
    {
        for (const char *title : {"Alpha", "Beta", "Gamma", "Delta", "Epsilon"}) {
            tabs.addTab(new QWidget, QString::fromLatin1(title));
        }
        tabs.resize(700, 200);
        tabs.show();
        if (!QTest::qWaitForWindowExposed(&tabs)) {
            ADD_FAILURE() << "the tab view is not shown";
        }
        tabs.setShouldSelect([this](int position) {
            asked.push_back(position);
            return !refused.contains(position);
        });
        tabs.setCurrentIndex(0);
        asked.clear();
    }

    QTabBar *bar() const { return tabs.findChild<QTabBar *>(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(bar(), key, modifiers);
    }

    void pressInView(Qt::Key key, Qt::KeyboardModifiers modifiers) { QTest::keyClick(&tabs, key, modifiers); }

    void click(int position)
    {
        QTest::mouseClick(bar(), Qt::LeftButton, Qt::NoModifier, bar()->tabRect(position).center());
    }

    /// Turns the wheel over the bar, in eighths of a degree; away from the person is positive.
    void turnWheel(QPoint angle)
    {
        const QPointF place = bar()->tabRect(0).center();
        QWheelEvent event(place, bar()->mapToGlobal(place), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(bar(), &event);
        EXPECT_TRUE(event.isAccepted()) << "a page below must not scroll";
    }

    int current() const { return tabs.currentIndex(); }

    TabView tabs;
    std::set<int> refused;  ///< positions that may not be selected
    std::vector<int> asked; ///< every question, in order
};

} // namespace tessarin::test

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a host sees that asks for the view more than once: places are measured again, from where things have moved
// to.

#include "controls/control_tables.h"
#include "plugin/diagnostics.h"
#include "tests/support/panel_session.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr int kSingleInkMedia = 19; // Backlit05 of the sample printer
constexpr int kEveryInkMedia = 9;   // PhotoPearl07

TEST(SecondView, LetsTheSinglePaneDriftToTheRight)
{
    PanelSession session;
    Diagnostics person;
    session.open();
    QWidget *cyan = session.context()->controls.cyanPane;
    QWidget *magenta = session.context()->controls.magentaPane;
    cyan->move(20, cyan->y());
    magenta->move(220, magenta->y());
    session.open();
    EXPECT_EQ(session.context()->availabilityInt1, 20);
    EXPECT_EQ(session.context()->availabilityInt2, 100);

    const int top = cyan->y();
    person.choose(*session.panel, kMediaTypeID, kSingleInkMedia);
    EXPECT_EQ(cyan->pos(), QPoint(120, top));
    for (const int left : {170, 195, 207}) {
        session.open();
        EXPECT_EQ(cyan->pos(), QPoint(left, top));
    }
    person.choose(*session.panel, kMediaTypeID, kEveryInkMedia);
    EXPECT_EQ(cyan->pos(), QPoint(195, top)); // where it was measured last, not where it began
}

TEST(SecondView, KeepsTheSlidersAlthoughTheirIdsAreGone)
{
    PanelSession session;
    session.open();
    const QSlider *brightness = session.slider(0);
    session.slider(0)->setValue(4);
    session.open();
    EXPECT_EQ(session.slider(0), brightness);
    EXPECT_EQ(brightness->value(), 4);
    EXPECT_EQ(session.sliderText(0)->text(), QStringLiteral("140%"));
    EXPECT_EQ(session.context()->controls.controlsInt, 20);
}

TEST(SynchronousHost, ThatReportsInsideItsAnswerStoresTheSameSelection)
{
    PanelSession session;
    Diagnostics person;
    session.open();
    session.host->onChange = [&](const Change &change) {
        session.panel->PPDOptionKeyValueDidChange(QString::fromStdString(change.first),
                                                  QString::fromStdString(change.second));
    };
    person.choose(*session.panel, kMediaTypeID, 10);
    EXPECT_EQ(session.host->changes, (std::vector<Change>{{"vornMediaType", "PhotoSatin06"}}));
    EXPECT_EQ(session.settings().popupSelections[kPopMediaType], 10);
    EXPECT_EQ(session.popup(kPopMediaType)->currentIndex(), 9);
}

} // namespace
} // namespace tessarin::test

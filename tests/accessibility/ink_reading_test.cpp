// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink bars as assistive technology reads them: channel, level and number.

#include "ink/level_display.h"
#include "platform/level_view.h"
#include "tests/accessibility/accessible_support.h"
#include "tests/support/panel_session.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace tessarin::test {
namespace {

using testing::ElementsAre;

class InkReading : public testing::Test {
protected:
    InkReading()
    {
        view_ = session_.open();
        PanelSettings &settings = session_.settings();
        settings.inkSeen.fill(0);
        settings.inkLast.fill(0);
        settings.inkTotal.fill(0);
        setCounters(0, 1200, 500000);
        setCounters(1, 300, 40000);
        SetInkValues(session_.context());
    }

    void setCounters(std::size_t channel, std::int32_t last, std::int32_t total)
    {
        session_.settings().inkSeen[channel] = 1;
        session_.settings().inkLast[channel] = last;
        session_.settings().inkTotal[channel] = total;
    }

    /// What is read of the bars that are shown in a box.
    std::vector<std::string> readBars(const char *box) const
    {
        std::vector<std::string> read;
        for (QObject *child : boxNamed(box)->children()) {
            auto *bar = dynamic_cast<LevelView *>(child);
            if (bar != nullptr && !bar->isHidden()) {
                EXPECT_EQ(QAccessible::queryAccessibleInterface(bar)->role(), QAccessible::ProgressBar);
                read.push_back(nameOf(bar) + ": " + readText(bar, QAccessible::Value) + ", " +
                               readText(bar, QAccessible::Description));
            }
        }
        return read;
    }
    QWidget *boxNamed(const char *box) const { return view_->findChild<QWidget *>(QLatin1String(box)); }

    PanelSession session_;
    QWidget *view_ = nullptr;
};

TEST_F(InkReading, TellsChannelLevelAndNumber)
{
    EXPECT_THAT(readBars("lastConsumptionBox"), ElementsAre("Black: 100%, 12 (100%)", "Photo Black: 25%, 3 (25%)"));
    EXPECT_THAT(readBars("totalConsumptionBox"), ElementsAre("Black: 50%, 500 (50%)", "Photo Black: 4%, 40 (4%)"));
}

TEST_F(InkReading, TellsTheBoxes)
{
    for (const auto &[box, name] :
         {std::pair("lastConsumptionBox", "Last Job"), {"totalConsumptionBox", "All Jobs"}}) {
        EXPECT_EQ(nameOf(boxNamed(box)), name);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(boxNamed(box))->role(), QAccessible::Grouping);
    }
}

TEST_F(InkReading, KeepsLevelsWithinTheirBounds)
{
    setCounters(0, 1200, 1'500'000);
    SetInkValues(session_.context());
    auto *bar = dynamic_cast<LevelView *>(session_.context()->controls.totalInkBars[0].data());
    ASSERT_NE(bar, nullptr);
    QAccessibleInterface *read = QAccessible::queryAccessibleInterface(bar);
    EXPECT_EQ(read->valueInterface()->currentValue().toInt(), 100);
    EXPECT_EQ(read->text(QAccessible::Value), QStringLiteral("150%"));
    EXPECT_EQ(read->text(QAccessible::Description), QStringLiteral("1500 (150%)"));
    bar->setLevel(-1);
    EXPECT_EQ(read->valueInterface()->currentValue().toInt(), 0);
}

TEST_F(InkReading, CannotBeSetFromOutside)
{
    for (QObject *child : boxNamed("lastConsumptionBox")->children()) {
        if (auto *bar = dynamic_cast<LevelView *>(child)) {
            const int level = bar->level();
            QAccessibleInterface *read = QAccessible::queryAccessibleInterface(bar);
            EXPECT_TRUE(read->state().readOnly);
            EXPECT_EQ(read->valueInterface()->currentValue().toInt(), std::clamp(level, 0, 100));
            read->valueInterface()->setCurrentValue(level + 1);
            EXPECT_EQ(bar->level(), level);
        }
    }
}

} // namespace
} // namespace tessarin::test

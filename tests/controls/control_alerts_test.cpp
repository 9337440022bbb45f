// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel's alerts, word for word.

#include "controls/availability.h"
#include "controls/control_layer.h"
#include "plugin/string_helpers.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

StringRef text(const char *utf8)
{
    return makeString(std::string(utf8));
}

class PanelAlerts : public testing::Test {
protected:
    PanelAlerts() { mybundle = nullptr; } // no language but the texts' own

    AlertRecorder alerts;
};

TEST_F(PanelAlerts, AreCriticalWithOneButton)
{
    EXPECT_EQ(MyAlertPanel("Gr\xc3\xbc\xc3\x9f"
                           "e %d %n"),
              1);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].title, QStringLiteral("Tessarin ToolBox"));
    EXPECT_EQ(alerts.shown[0].text, QStringLiteral("Gr\u00fc\u00dfe %d %n"));
    EXPECT_EQ(alerts.shown[0].buttons, QStringList{QStringLiteral("OK")});
    EXPECT_TRUE(alerts.shown[0].critical);
}

TEST_F(PanelAlerts, HaveTheirOwnTitleAndCarryTheGivenOneInTheText)
{
    QWidget parent;
    std::int16_t item = 0;
    EXPECT_EQ(MyStdAlert(&parent, false, text("A %@ title"), text("and %d message"), &item), 0);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].title, QStringLiteral("Tessarin ToolBox"));
    EXPECT_EQ(alerts.shown[0].text, QStringLiteral("A %@ title\n\nand %d message"));
    EXPECT_EQ(alerts.shown[0].buttons, QStringList{QStringLiteral("OK")});
    EXPECT_FALSE(alerts.shown[0].critical);
    EXPECT_EQ(alerts.shown[0].parent, &parent);
    EXPECT_EQ(item, 1);
}

TEST_F(PanelAlerts, OfferCancelWhenAskedTo)
{
    std::int16_t item = 0;
    EXPECT_EQ(MyStdAlert(nullptr, true, text("t"), text("m"), &item), 0);
    EXPECT_EQ(alerts.shown[0].buttons, (QStringList{QStringLiteral("OK"), QStringLiteral("Cancel")}));
    EXPECT_EQ(alerts.shown[0].parent, nullptr);
    EXPECT_EQ(item, 1);
    alerts.answer = 1;
    EXPECT_EQ(MyStdAlert(nullptr, true, text("t"), text("m"), &item), 0);
    EXPECT_EQ(item, 2);
    EXPECT_EQ(MyStdAlert(nullptr, true, text("t"), text("m"), nullptr), 0) << "nobody wants to know";
}

TEST_F(PanelAlerts, AnswerMinusOneWhenTheyCannotBeShown)
{
    alerts.answer = std::nullopt;
    std::int16_t item = 7;
    EXPECT_EQ(MyStdAlert(nullptr, true, text("t"), text("m"), &item), -1);
    EXPECT_EQ(item, 7);
    EXPECT_EQ(MyShowAlert(nullptr), -1);
}

TEST_F(PanelAlerts, WarnOfAnIncompleteProfile)
{
    EXPECT_EQ(MyShowAlert(nullptr), 0);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].title, QStringLiteral("Tessarin ToolBox"));
    EXPECT_EQ(alerts.shown[0].text,
              QStringLiteral("Attention:\n\nYou have chosen an incomplete media profile without color data!\n"
                             "This profile should only be used for printing color charts!"));
    EXPECT_EQ(alerts.shown[0].buttons, QStringList{QStringLiteral("OK")});
    EXPECT_FALSE(alerts.shown[0].critical);
    EXPECT_EQ(alerts.shown[0].parent, nullptr);
}

TEST_F(PanelAlerts, WarnWithoutAParentInEveryPanel)
{
    PanelSession session(ppdFixture("media-modes"));
    session.open();
    EXPECT_TRUE(session.context()->availabilityObject.isNull());
}

TEST_F(PanelAlerts, WarnInTheLanguageOfTheBundle)
{
    const PanelSession session(ppdFixture("minimal"), "sample", buildBundle(QStringLiteral("de")));
    EXPECT_EQ(MyShowAlert(nullptr), 0);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_TRUE(alerts.shown[0].text.contains(QStringLiteral("\n\n")));
    EXPECT_FALSE(alerts.shown[0].text.contains(QStringLiteral("incomplete media profile")));
    EXPECT_EQ(alerts.shown[0].title, QStringLiteral("Tessarin ToolBox"));
}

TEST(PanelAlertsWithoutADisplay, CannotBeShown)
{
    setAlertHandler({});
    EXPECT_EQ(MyShowAlert(nullptr), -1);
    EXPECT_EQ(MyAlertPanel("message"), 0);
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/alerts.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessarin {
namespace {

class Alerts : public testing::Test {
protected:
    ~Alerts() override { setAlertHandler({}); }

    const Alert alert_{.title = QStringLiteral("Title"),
                       .text = QStringLiteral("<b>Text</b> & more"),
                       .buttons = {QStringLiteral("OK"), QStringLiteral("Cancel")}};
};

TEST_F(Alerts, AreHandedToTheHandlerAsTheyAre)
{
    std::vector<Alert> seen;
    setAlertHandler([&seen](const Alert &alert) {
        seen.push_back(alert);
        return 1;
    });
    EXPECT_EQ(runAlert(alert_), 1);
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].title, QStringLiteral("Title"));
    EXPECT_EQ(seen[0].text, QStringLiteral("<b>Text</b> & more"));
    EXPECT_EQ(seen[0].buttons, (QStringList{QStringLiteral("OK"), QStringLiteral("Cancel")}));
    EXPECT_FALSE(seen[0].critical);
    EXPECT_EQ(seen[0].parent, nullptr);
}

TEST_F(Alerts, ThatCannotBeShownHaveNoAnswer)
{
    setAlertHandler([](const Alert &) -> std::optional<int> { return std::nullopt; });
    EXPECT_EQ(runAlert(alert_), std::nullopt);
}

TEST_F(Alerts, CannotBeShownWithoutAUsableDisplay)
{
    setAlertHandler([](const Alert &) { return 0; });
    setAlertHandler({});
    EXPECT_EQ(runAlert(alert_), std::nullopt) << "and nobody is waited for";
}

} // namespace
} // namespace tessarin

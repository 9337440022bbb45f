// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Embedding of the sliders: their link with the value text, and the position they start at.

#include "controls/control_tables.h"
#include "controls/embedding.h"
#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

TEST(EmbeddedSliders, AreLinkedWithTheirTextsThroughTheTags)
{
    PanelSession session;
    session.open();
    for (int number = 0; number < 20; ++number) {
        EXPECT_EQ(tagOf(session.sliderText(number)), number);
        EXPECT_EQ(viewForHandle(tagOf(session.slider(number))), session.sliderText(number));
    }
}

TEST(EmbeddedSliders, HaveTheRowCounterInTheirTextNotTheirNumber)
{
    const auto before = Scrolls;
    const PanelSession session(ppdFixture("minimal"));
    std::swap(Scrolls[0], Scrolls[1]);
    QWidget page;
    addTagged<QSlider>(&page, 4101);
    addTagged<QSlider>(&page, 4102);
    auto *brightness = addTagged<QLabel>(&page, 4401);
    auto *contrast = addTagged<QLabel>(&page, 4402);
    MyEmbedCustomControls(1, session.context(), 0, &page);
    EXPECT_EQ(session.sliderText(0), brightness);
    EXPECT_EQ(tagOf(brightness), 1) << "its row is the second now";
    EXPECT_EQ(tagOf(contrast), 0);
    Scrolls = before;
}

TEST(EmbeddedSliders, AreFoundOnTheirOwnPageOnly)
{
    const PanelSession session(ppdFixture("minimal"));
    QWidget page;
    auto *slider = addTagged<QSlider>(&page, 4101);
    for (const int mask : {2, 4, 8, 16, 32}) {
        MyEmbedCustomControls(mask, session.context(), 0, &page);
        EXPECT_EQ(session.slider(0), nullptr) << mask;
    }
    MyEmbedCustomControls(1, session.context(), 0, &page);
    EXPECT_EQ(session.slider(0), slider);
}

TEST(EmbeddedSliders, WithoutATextFieldGetTagZero)
{
    const PanelSession session(ppdFixture("minimal"));
    session.settings().sliderValues[1] = 4;
    QWidget page;
    auto *slider = addTagged<QSlider>(&page, 4102);
    slider->setEnabled(false);
    CapturedLog log;
    MyEmbedCustomControls(1, session.context(), 0, &page);
    EXPECT_EQ(tagOf(slider), 0);
    EXPECT_EQ(session.sliderText(1), nullptr);
    EXPECT_EQ(slider->value(), 4);
    EXPECT_EQ(slider->maximum(), 10);
    EXPECT_TRUE(slider->isEnabled());
    EXPECT_TRUE(log.contains("LOG SCROLL-TEXT-Ref = 1\n"));
    EXPECT_TRUE(log.contains("LOG SetScrollValue - CtrlProperty = 0\n"));
    EXPECT_TRUE(log.contains("LOG SetScrollValue - CtrlRef = 0\n"));
}

TEST(EmbeddedSliders, StartAtTheirPrintersValuesKeptInRange)
{
    const auto tables = Scrolls;
    PanelSession session(ppdFixture("odd-values"));
    session.open();
    EXPECT_EQ(session.settings().sliderValues[0], 12) << "60 in the PPD";
    EXPECT_EQ(session.slider(0)->value(), 10);
    EXPECT_EQ(session.sliderText(0)->text(), QStringLiteral("200%"));
    EXPECT_EQ(session.settings().sliderValues[2], 0) << "49: a fifth of a step below D50";
    EXPECT_EQ(session.slider(11)->value(), 0) << "above the range of the ink intensity";
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(session.host->marked("vornBrightness"), "50");
    Scrolls = tables;
}

TEST(EmbeddedSliders, AllowALightBelowTheRange)
{
    const auto tables = Scrolls;
    PanelSession session(ppdFixture("missing-reflight"));
    session.open();
    EXPECT_EQ(session.settings().sliderValues[2], -10);
    EXPECT_EQ(session.slider(2)->value(), 0);
    EXPECT_EQ(session.sliderText(2)->text(), QStringLiteral("D50"));
    const auto sent = [&session] {
        session.host->changes.clear();
        session.panel->saveValuesAndReturnError(nullptr);
        const auto light = std::find_if(session.host->changes.begin(), session.host->changes.end(),
                                        [](const Change &change) { return change.first == "vornRefLight"; });
        return light != session.host->changes.end() ? light->second : "(not sent)";
    };
    EXPECT_EQ(sent(), "50") << "what the slider can show";
    session.panel->restoreValuesAndReturnError(nullptr);
    session.context()->controls.sliderControls[2] = nullptr;
    EXPECT_EQ(sent(), "0") << "what the settings hold";
    Scrolls = tables;
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel as assistive technology reads it: role, name and value of every control, on every page.

#include "controls/control_tables.h"
#include "platform/level_view.h"
#include "platform/popup_button.h"
#include "tests/accessibility/accessible_support.h"
#include "tests/support/panel_session.h"

#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <utility>

namespace tessarin::test {
namespace {

class PanelReading : public testing::TestWithParam<const char *> {
protected:
    PanelReading()
        : session(samplePPD(), "sample", buildBundle(QString::fromLatin1(GetParam()))), view(session.open())
    {
        view->window()->show();
    }

    QTabWidget *tabs() const { return view->findChild<QTabWidget *>(); }

    PanelSession session;
    QWidget *view;
};

class EnglishPanelReading : public PanelReading {};

TEST_P(PanelReading, NamesEveryControl)
{
    for (int page = 0; page < tabs()->count(); ++page) {
        tabs()->setCurrentIndex(page);
        std::set<std::string> names;
        for (QWidget *control : tabStops(tabs()->findChild<QTabBar *>())) {
            if (!tabs()->currentWidget()->isAncestorOf(control)) {
                continue;
            }
            const QAccessibleInterface *read = QAccessible::queryAccessibleInterface(control);
            ASSERT_NE(read, nullptr) << describe(control);
            EXPECT_NE(read->role(), QAccessible::NoRole) << describe(control);
            EXPECT_NE(read->role(), QAccessible::Client) << describe(control);
            const QString name = read->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << describe(control);
            EXPECT_FALSE(name.endsWith(u':') || name.contains(u'\n')) << name.toStdString();
            EXPECT_TRUE(names.insert(name.toStdString()).second) << name.toStdString() << " on page " << page;
        }
        EXPECT_FALSE(names.empty()) << "page " << page;
    }
}

TEST_P(EnglishPanelReading, TellsTheKeysOfCaptions)
{
    const std::array<std::pair<const QWidget *, const char *>, 3> rows{{
        {session.popup(kPopMediaType), "Alt+M"},
        {session.slider(kSliderBrightness), "Alt+B"},
        {session.slider(kSliderColorYellow), ""}, // on a page that was not shown yet
    }};
    for (const auto &[control, keys] : rows) {
        QAccessibleInterface *read = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(control));
        ASSERT_NE(read, nullptr) << keys;
        EXPECT_EQ(read->text(QAccessible::Accelerator), QString::fromLatin1(keys));
        QAccessibleActionInterface *actions = read->actionInterface();
        ASSERT_NE(actions, nullptr) << keys;
        const QStringList bound = actions->keyBindingsForAction(QAccessibleActionInterface::setFocusAction());
        EXPECT_EQ(bound.join(u'|'), QString::fromLatin1(keys));
        EXPECT_TRUE(actions->keyBindingsForAction(QAccessibleActionInterface::pressAction()).isEmpty());
    }
}

TEST_P(PanelReading, TranslatesTheNamesOfWhatHasNoCaption)
{
    const auto translated = [this](const char *text) {
        return session.bundle->localizedString(QString::fromLatin1(text)).toStdString();
    };
    EXPECT_EQ(nameOf(session.popup(kPopCMYKspace)), translated("CMYK-Colorspace"));
    EXPECT_EQ(nameOf(session.slider(kSliderBrightMagenta)), translated("Usage Bright Magenta"));
}

TEST_P(PanelReading, GivesSlidersTheValuesThatAreShown)
{
    for (int number = 0; number < static_cast<int>(kSliderCount); ++number) {
        QSlider *slider = session.slider(number);
        for (const int position : {slider->maximum(), slider->minimum(), slider->minimum() + 1}) {
            slider->setValue(position);
            const std::string shown = session.sliderText(number)->text().toStdString();
            EXPECT_EQ(readText(slider, QAccessible::Value), shown);
            EXPECT_EQ(readText(slider, QAccessible::Description).substr(0, shown.size()), shown);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, PanelReading,
                         testing::Values("en", "de", "es", "fr", "it", "ja", "nl", "pl", "pt_BR", "zh_CN"),
                         [](const auto &language) { return std::string(language.param); });

TEST_P(EnglishPanelReading, CallsControlsByTheirCaptions)
{
    EXPECT_EQ(nameOf(session.slider(kSliderBrightness)), "Brightness");
    EXPECT_EQ(nameOf(session.popup(kPopMediaType)), "Media Type");
    EXPECT_EQ(nameOf(session.popup(kPopCMYKspace)), "CMYK-Colorspace");
    EXPECT_EQ(nameOf(session.slider(kSliderBrightCyan)), "Bright Cyan Usage");
    EXPECT_EQ(nameOf(session.slider(kSliderBrightMagenta)), "Usage Bright Magenta");
    EXPECT_EQ(nameOf(session.checkBox(kColorGammaID)), "Manual color correction");
}

TEST_P(EnglishPanelReading, CountsInTheNumbersThatAreShown)
{
    QSlider *slider = session.slider(kSliderBrightness);
    slider->setValue(-1);
    QAccessibleInterface *read = QAccessible::queryAccessibleInterface(slider);
    ASSERT_NE(read->valueInterface(), nullptr);
    EXPECT_EQ(readText(slider, QAccessible::Description), "95%");
    EXPECT_EQ(read->valueInterface()->currentValue().toInt(), 95);
    EXPECT_EQ(read->valueInterface()->minimumValue().toInt(), 50);
    EXPECT_EQ(read->valueInterface()->maximumValue().toInt(), 200);
    EXPECT_EQ(read->valueInterface()->minimumStepSize().toInt(), 5);

    read->valueInterface()->setCurrentValue(111);
    EXPECT_EQ(slider->value(), 1);
    EXPECT_EQ(session.sliderText(kSliderBrightness)->text(), QStringLiteral("110%"));
    read->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(session.sliderText(kSliderBrightness)->text(), QStringLiteral("120%"));
    slider->setAccessibleDescription(QStringLiteral("How light"));
    EXPECT_EQ(readText(slider, QAccessible::Description), "120%; How light");
}

TEST_P(EnglishPanelReading, LeavesDisabledSlidersAlone)
{
    QSlider *slider = session.slider(kSliderBrightness);
    slider->setEnabled(false);
    QAccessibleInterface *read = QAccessible::queryAccessibleInterface(slider);
    EXPECT_TRUE(read->state().disabled);
    read->valueInterface()->setCurrentValue(150);
    read->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(slider->value(), 0);
}

TEST_P(EnglishPanelReading, LeavesViewsOfOthersToTheToolkit)
{
    QSlider stranger(Qt::Horizontal, nullptr);
    stranger.setRange(-10, 10);
    stranger.setProperty("tag", 4101);
    stranger.setValue(-1);
    QAccessibleInterface *read = QAccessible::queryAccessibleInterface(&stranger);
    EXPECT_EQ(read->valueInterface()->currentValue().toInt(), -1);
    EXPECT_EQ(readText(&stranger, QAccessible::Description), "");
    PopUpButton other;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&other)->textInterface(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(English, EnglishPanelReading, testing::Values("en"));

TEST_P(PanelReading, GoesThroughThePagesAsTheyAreRead)
{
    for (int page = 0; page < tabs()->count(); ++page) {
        tabs()->setCurrentIndex(page);
        const std::vector<QWidget *> stops = tabStops(tabs()->findChild<QTabBar *>());
        ASSERT_GE(stops.size(), 2U);
        for (std::size_t i = 1; i < stops.size(); ++i) {
            EXPECT_TRUE(isReadBefore(stops[i - 1], stops[i]))
                << describe(stops[i - 1]) << " comes before " << describe(stops[i]);
        }
    }
}

} // namespace
} // namespace tessarin::test

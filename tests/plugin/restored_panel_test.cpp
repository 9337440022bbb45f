// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Restoring and saving of a whole panel, again and again.

#include "controls/control_layer.h"
#include "platform/alerts.h"
#include "platform/tab_view.h"
#include "plugin/password_pde.h"
#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

#include <array>

namespace tessarin::test {
namespace {

using Selections = std::array<int, 8>;

class RestoredPanel : public testing::Test {
protected:
    explicit RestoredPanel(const std::string &ppd = ppdFixture("minimal")) : session_(ppd) {}
    ~RestoredPanel() override { setAlertHandler({}); }

    void restore() { EXPECT_TRUE(session_.panel->restoreValuesAndReturnError(nullptr)); }

    Selections selections() const
    {
        Selections found{};
        for (std::size_t row = 0; row < found.size(); ++row) {
            found.at(row) = session_.settings().popupSelections.at(row);
        }
        return found;
    }

    SharedTables tables_;
    Ghostscript ghostscript_{true};
    PanelSession session_;
};

TEST_F(RestoredPanel, HasTheMarkedChoices)
{
    EXPECT_EQ(selections(), (Selections{1, 2, 1, 1, 2, 1, 1, 1}));
    session_.host->mark("vornCartridgeType", "MatteBlack");
    session_.host->mark("vornMediaType", "Custom10");
    session_.host->mark("vornColorspace", "1001");
    session_.host->mark("vornContrast", "-50");
    session_.host->mark("vornNoPrint", "1");
    session_.host->mark("vornColorGamma", "1");
    session_.host->mark("vornPSInterpreter", "1");
    restore();
    EXPECT_EQ(selections(), (Selections{2, 4, 1, 1, 2, 1, 3, 1})) << "a separator is a pair";
    EXPECT_EQ(session_.settings().sliderValues.at(1), -10);
    EXPECT_EQ(session_.settings().checkBoxStates, (std::array<std::uint8_t, 4>{1, 0, 1, 0}));
}

TEST_F(RestoredPanel, KeepsItsRecordItsPathsAndItsPPD)
{
    const PanelContext *context = session_.context();
    const ppd_file_s *ppd = context->ppdFile;
    const PPDOptionTable *table = context->ppdOptions.get();
    const char *strings = context->ppdScanBuffer.get();
    session_.host->path = QString::fromStdString(ppdFixture("foreign"));
    session_.host->printerIdentifier = QStringLiteral("other");
    const CapturedLog log;
    restore();
    EXPECT_EQ(session_.context(), context);
    EXPECT_EQ(context->ppdPath.data(), ppdFixture("minimal"));
    EXPECT_STREQ(context->settings.inkFilePath.data(), "/var/log/tessarin/sample.ink");
    EXPECT_EQ(context->ppdFile, ppd);
    EXPECT_EQ(context->ppdOptions.get(), table);
    EXPECT_EQ(context->ppdScanBuffer.get(), strings);
    EXPECT_EQ(log.countStarting("LOG PRINTERNAME:"), 0);
    EXPECT_EQ(log.countStarting("LOG ProcessPPD"), 0);
    EXPECT_EQ(log.countStarting("LOG (64-bit)"), 0);
}

TEST_F(RestoredPanel, LooksUpAndTellsThePPDPathEachTime)
{
    const std::size_t asked = session_.host->askedTypes.size();
    session_.host->path = QStringLiteral("/another/printer.ppd");
    const CapturedLog log;
    restore();
    session_.host->hasCurrentPrinter = false;
    restore();
    EXPECT_EQ(log.count("LOG *****parse PPD-File: /another/printer.ppd\n"), 1);
    EXPECT_EQ(log.countStarting("LOG *****parse PPD-File: "), 1);
    EXPECT_EQ(session_.host->askedTypes.size(), asked + 1);
}

TEST_F(RestoredPanel, LosesChangesThatWereNotSaved)
{
    session_.open();
    session_.popup(5)->setCurrentIndex(1);
    session_.slider(0)->setValue(5);
    session_.checkBox(4705)->setChecked(true);
    restore();
    EXPECT_EQ(session_.popup(5)->currentIndex(), 0);
    EXPECT_EQ(session_.slider(0)->value(), 0);
    EXPECT_EQ(session_.sliderText(0)->text(), QStringLiteral("100%"));
    EXPECT_FALSE(session_.checkBox(4705)->isChecked());
}

TEST_F(RestoredPanel, FindsAgainWhatWasSaved)
{
    session_.open();
    session_.popup(5)->setCurrentIndex(1);
    session_.slider(0)->setValue(10);
    session_.checkBox(4705)->setChecked(true);
    EXPECT_TRUE(session_.panel->saveValuesAndReturnError(nullptr));
    restore();
    EXPECT_EQ(session_.popup(5)->currentIndex(), 1);
    EXPECT_EQ(session_.slider(0)->value(), 10);
    EXPECT_TRUE(session_.checkBox(4705)->isChecked());
}

TEST_F(RestoredPanel, ShowsMediaTypeAndResolutionThroughTheConstraints)
{
    session_.open();
    session_.host->mark("vornMediaType", "Plain0");
    restore();
    EXPECT_EQ(session_.popup(1)->currentIndex(), 0);
    EXPECT_EQ(session_.settings().popupSelections.at(1), 1);
}

TEST_F(RestoredPanel, EnablesEverySlider)
{
    session_.open();
    for (int number = 0; number < 20; ++number) {
        session_.slider(number)->setEnabled(false);
    }
    restore();
    for (int number = 0; number < 20; ++number) {
        EXPECT_TRUE(session_.slider(number)->isEnabled()) << number;
    }
}

TEST_F(RestoredPanel, SavesEverySettingWhateverTheHostAnswers)
{
    session_.open();
    session_.host->changes.clear();
    session_.host->refusedKeys = {"vornNoPrint", "vornMediaType", "vornColorY"};
    EXPECT_TRUE(session_.panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(session_.host->changes.size(), 31U);
}

TEST_F(RestoredPanel, SavesStoredSettingsBeforeThereIsAView)
{
    session_.host->changes.clear();
    EXPECT_TRUE(session_.panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(session_.host->changes.size(), 28U) << "no check box, so nothing of those";
    EXPECT_EQ(session_.host->changes.front(), Change("vornCartridgeType", "PhotoBlack"));
    EXPECT_EQ(session_.host->changes.at(10), Change("vornRefLight", "65"));
}

/// A panel whose media type can be one without colour data.
class RestoredMediaMode : public RestoredPanel {
protected:
    RestoredMediaMode() : RestoredPanel(ppdFixture("media-modes"))
    {
        setAlertHandler([this](const Alert &) {
            ++alerts_;
            return 0;
        });
        session_.open();
    }

    int alerts_ = 0;
};

TEST_F(RestoredMediaMode, ChangesNeitherTabsNorPanesNorEnabledPopUps)
{
    const auto *tabs = qobject_cast<const TabView *>(session_.panel->tabView());
    ASSERT_NE(tabs, nullptr);
    const QPoint pane = session_.context()->controls.cyanPane->pos();
    const QString usage = qobject_cast<QLabel *>(session_.context()->controls.brightUsageLabel)->text();
    session_.host->mark("vornMediaType", "M2");
    ASSERT_EQ(session_.host->marked("vornMediaType"), "M2");
    restore();
    ASSERT_EQ(session_.popup(1)->currentText(), QStringLiteral("Media Mode 2"));
    for (int position = 0; position < 6; ++position) {
        EXPECT_EQ(tabs->identifier(position), QStringLiteral("On")) << position;
    }
    for (int row = 0; row < 8; ++row) {
        EXPECT_TRUE(session_.popup(row)->isEnabled()) << row;
    }
    EXPECT_TRUE(session_.slider(0)->isEnabled());
    EXPECT_EQ(session_.context()->controls.cyanPane->pos(), pane);
    EXPECT_EQ(qobject_cast<QLabel *>(session_.context()->controls.brightUsageLabel)->text(), usage);
    EXPECT_EQ(alerts_, 0);
}

TEST_F(RestoredMediaMode, KeepsTabsAndPopUpsOffThatAnEventSwitchedOff)
{
    session_.host->mark("vornMediaType", "M2");
    restore();
    session_.panel->popupChanged(session_.popup(1));
    ASSERT_FALSE(session_.popup(5)->isEnabled());
    session_.host->mark("vornMediaType", "M6");
    restore();
    const auto *tabs = qobject_cast<const TabView *>(session_.panel->tabView());
    for (const int position : {2, 3, 4, 5}) {
        EXPECT_EQ(tabs->identifier(position), QStringLiteral("Off")) << position;
    }
    EXPECT_FALSE(session_.popup(5)->isEnabled());
    EXPECT_TRUE(session_.slider(0)->isEnabled()) << "but showing its value has enabled the slider";
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Sessions that nobody wrote: random PPDs, random actions of person and host. After every step what must always
// hold is checked, and the same seed must give the same session.

#include "controls/control_tables.h"
#include "controls/menu_items.h"
#include "controls/sliders.h"
#include "platform/formatter.h"
#include "platform/log_sink.h"
#include "plugin/diagnostics.h"
#include "ppd/option_table.h"
#include "tests/random/random_ppd.h"
#include "tests/support/panel_session.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr int kSessionsPerShard = 50;
constexpr int kShards = 20;
constexpr int kSteps = 14;

constexpr std::array<int, 8> kPopUpIDs{4507, 4501, 4502, 4504, 4505, 4506, 4503, 4508};

/// One session: everything it does and says goes into its record.
class RandomSession {
public:
    RandomSession(std::uint32_t seed, const std::string &ppdPath)
        : dice_(seed), record_("seed " + std::to_string(seed) + "\n")
    {
        setStableAddresses(true);
        setLogSink([this](std::string_view line) { record_ += line; });
        diagnostics_.setAlertObserver(
            [this](const pde::DiagnosticAlert &alert) { record_ += alert.text.toStdString(); });
        session_ = std::make_unique<PanelSession>(ppdPath);
        session_->host->onChange = [this](const Change &change) { note(change); };
    }
    ~RandomSession()
    {
        session_.reset();
        setLogSink([](std::string_view) {});
        setStableAddresses(false);
    }
    RandomSession(const RandomSession &) = delete;
    RandomSession &operator=(const RandomSession &) = delete;

    std::string run()
    {
        for (int step = 0; step < kSteps; ++step) {
            const std::string action = act();
            record_ += action + "\n";
            checkAlwaysTrue(action);
            if (testing::Test::HasFailure()) {
                break;
            }
        }
        return record_;
    }

private:
    void note(const Change &change)
    {
        record_ += change.first + "=" + change.second + "\n";
        const auto keys = session_->panel->supportedPPDOptionKeys();
        const QString key = QString::fromStdString(change.first);
        EXPECT_TRUE(keys->contains(key) || key == QLatin1String("ColorModel")) << change.first;
    }

    int anyPopUp() { return kPopUpIDs[static_cast<std::size_t>(dice_.roll(8))]; }

    std::string anyKey()
    {
        const ScrollRow &slider = Scrolls[static_cast<std::size_t>(dice_.roll(20))];
        return dice_.oneIn(4) ? slider.keyword : keywordWithoutStar(pops[static_cast<std::size_t>(dice_.roll(8))]);
    }

    std::string anyChoice(const std::string &key)
    {
        for (int row = 0; row < 8; ++row) {
            const ChoiceList list = choiceList(*session_->context()->ppdOptions, row);
            if (key == keywordWithoutStar(pops[static_cast<std::size_t>(row)]) && pairCount(list) > 0) {
                return pairKey(list, 1 + dice_.roll(pairCount(list)));
            }
        }
        return std::to_string(dice_.roll(30) * 5 - 60);
    }

    std::string act()
    {
        PasswordPDE &panel = *session_->panel;
        const int kind = dice_.roll(14);
        if (kind == 0 || (!opened_ && kind < 8)) {
            opened_ = true;
            panel.panelView();
            return "panelView";
        }
        if (kind == 1) {
            panel.restoreValuesAndReturnError(nullptr);
            return "restore";
        }
        if (kind == 2) {
            return save();
        }
        if (kind == 3) {
            const std::string key = anyKey();
            const std::string choice = anyChoice(key);
            session_->host->mark(key, choice);
            panel.PPDOptionKeyValueDidChange(QString::fromStdString(key), QString::fromStdString(choice));
            return "hostChange " + key + " " + choice;
        }
        if (kind == 4) {
            session_->host->refusedKeys =
                dice_.oneIn(2) ? std::set<std::string>{anyKey()} : std::set<std::string>{};
            return "refuse";
        }
        if (kind == 5) {
            const int position = dice_.roll(8) - 1;
            const bool selected = diagnostics_.selectTab(panel, position);
            return "tab " + std::to_string(position) + (selected ? " yes" : " no");
        }
        if (kind == 6) {
            constexpr std::array<int, 3> ids{4705, 4706, 4707};
            diagnostics_.check(panel, ids[static_cast<std::size_t>(dice_.roll(3))], dice_.oneIn(2));
            return "check";
        }
        if (kind == 7) {
            diagnostics_.slide(panel, Scrolls[static_cast<std::size_t>(dice_.roll(20))].sliderId,
                               dice_.roll(30) - 15);
            return "slide";
        }
        if (kind == 8) {
            panel.summaryInfo();
            return "summary";
        }
        if (kind == 9) {
            diagnostics_.press(panel, 4003);
            return "reload";
        }
        const int id = anyPopUp();
        const int item = 1 + dice_.roll(12);
        diagnostics_.choose(panel, id, item);
        return "choose " + std::to_string(id) + " " + std::to_string(item);
    }

    std::string save()
    {
        session_->panel->saveValuesAndReturnError(nullptr);
        const PanelSettings &settings = session_->settings();
        for (std::size_t row = 0; row < kPopUpCount; ++row) {
            const auto *popup = qobject_cast<QComboBox *>(session_->context()->controls.popupControls[row].data());
            if (popup != nullptr) {
                const int value =
                    popup->currentIndex() < 0 ? 0 : std::abs(menuItemTag(popup, popup->currentIndex()));
                EXPECT_EQ(settings.popupSelections[row], value) << "row " << row;
            }
        }
        for (int number = 0; number < 20; ++number) {
            if (const QSlider *slider = session_->slider(number)) {
                EXPECT_EQ(settings.sliderValues[static_cast<std::size_t>(number)], slider->value());
            }
        }
        return "save";
    }

    void checkAlwaysTrue(const std::string &action)
    {
        SCOPED_TRACE(action);
        for (int row = 0; row < 8; ++row) {
            checkPopUp(row);
        }
        for (int number = 0; number < 20; ++number) {
            const QSlider *slider = session_->slider(number);
            if (slider != nullptr) {
                EXPECT_EQ(session_->sliderText(number)->text(),
                          toQString(CreateScrollValueCFString(number, slider->value())))
                    << "slider " << number;
            }
        }
    }

    void checkPopUp(int row)
    {
        const ChoiceList list = choiceList(*session_->context()->ppdOptions, row);
        const int count = pairCount(list);
        const int selection = session_->settings().popupSelections[static_cast<std::size_t>(row)];
        // Within the list, none, one beyond it (nothing was available), or the tag of a separator. Media selection
        // 1 is stored even where the list is empty, and a default that an empty list does not have is 1 as well.
        EXPECT_TRUE((selection >= 0 && selection <= count + 1) || selection == kSeparatorTag)
            << "row " << row << ": " << selection << " of " << count;
        const QComboBox *popup = session_->popup(row);
        if (popup == nullptr) {
            return;
        }
        ASSERT_EQ(popup->count(), count) << "row " << row;
        for (int n = 1; n <= count; ++n) {
            if (menuItemIsSeparator(popup, n - 1)) {
                EXPECT_STREQ(pairKey(list, n), kSeparatorText);
            } else {
                EXPECT_EQ(popup->itemText(n - 1), QString::fromUtf8(pairText(list, n)));
                EXPECT_EQ(std::abs(menuItemTag(popup, n - 1)), n);
            }
        }
    }

    Dice dice_;
    std::string record_;
    Diagnostics diagnostics_;
    std::unique_ptr<PanelSession> session_;
    bool opened_ = false;
};

class RandomSessions : public testing::TestWithParam<int> {};

TEST_P(RandomSessions, KeepWhatMustHoldAndRepeatThemselves)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("random.ppd")).toStdString();
    for (int i = 0; i < kSessionsPerShard; ++i) {
        const auto seed = static_cast<std::uint32_t>(GetParam() * kSessionsPerShard + i);
        SCOPED_TRACE("seed " + std::to_string(seed));
        Dice dice(seed ^ 0x9E3779B9U);
        QFile file(QString::fromStdString(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(randomPPD(dice).c_str());
        file.close();
        const std::string first = RandomSession(seed, path).run();
        ASSERT_FALSE(HasFailure()) << first.substr(first.size() > 3000 ? first.size() - 3000 : 0);
        const std::string second = RandomSession(seed, path).run();
        ASSERT_EQ(first, second);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSessions, testing::Range(0, kShards));

TEST(RandomPPDs, AreMostlyReadable)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("random.ppd"));
    int readable = 0;
    for (std::uint32_t seed = 0; seed < 50; ++seed) {
        Dice dice(seed);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(randomPPD(dice).c_str());
        file.close();
        const RecordingHost host(path.toStdString());
        readable += const_cast<RecordingHost &>(host).ppdFile() != nullptr ? 1 : 0;
    }
    EXPECT_GT(readable, 40); // sessions without a PPD prove little
}

} // namespace
} // namespace tessarin::test

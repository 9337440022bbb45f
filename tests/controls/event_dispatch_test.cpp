// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Every event by its number: result, log and effect.

#include "controls/event_dispatch.h"

#include "controls/control_layer.h"
#include "platform/bounded_copy.h"
#include "tests/controls/controls_test_support.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

const std::vector<std::string> kMedia{"Plain Paper *", "Photo Paper", "---separator---", "Custom Paper 10 *"};
const std::vector<std::string> kResolutions{"600 dpi", "1200 dpi"};

class EventDispatch : public testing::Test {
protected:
    EventDispatch() : session(ppdFixture("minimal"), "nobody-has-this-printer")
    {
        session.open();
        session.host->changes.clear();
        log.clear();
    }

    std::int32_t process(std::int32_t eventId, int kind = 1)
    {
        return processEvent(session.context(), kind, eventId);
    }

    const Changes &changes() const { return session.host->changes; }

    CapturedLog log;
    AlertRecorder alerts;
    PanelSession session;
};

TEST_F(EventDispatch, LeavesUnknownEventsAndThoseOfPlainValuesAlone)
{
    for (const int id :
         {4503, 4504, 4506, 4508, 4705, 4706, 0, -1, 1, 4002, 4004, 4101, 4500, 4509, 4708, 4899, 4901}) {
        for (int row = 3; row < 8; ++row) {
            session.popup(row)->setCurrentIndex(1); // a choice that is not stored yet
        }
        SetCheckButtonValue(session.checkBox(4705), 1);
        log.clear();
        const PanelSettings before = session.settings();
        EXPECT_EQ(process(id), -111) << id;
        EXPECT_EQ(log.lines(), logged({"Handle event #" + std::to_string(id) + "\n"}));
        EXPECT_EQ(session.settings().popupSelections, before.popupSelections);
        EXPECT_EQ(session.settings().checkBoxStates, before.checkBoxStates);
        EXPECT_TRUE(changes().empty());
    }
}

TEST_F(EventDispatch, HandlesTheIdleEventByDoingNothing)
{
    EXPECT_EQ(process(4900), 0);
    EXPECT_EQ(log.lines(), logged({"Handle event #4900\n"}));
    EXPECT_TRUE(changes().empty());
}

TEST_F(EventDispatch, ReadsNoKind)
{
    for (const int kind : {0, 1, 2, -5}) {
        EXPECT_EQ(process(4900, kind), 0);
        EXPECT_EQ(process(4705, kind), -111);
    }
}

TEST_F(EventDispatch, NeedsAContext)
{
    for (const int id : {4003, 4501, 4505, 4707, 4900, 1}) {
        EXPECT_EQ(processEvent(nullptr, 1, id), -111);
    }
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(EventDispatch, EnablesTheColorSlidersWithoutStoringTheBox)
{
    auto *box = session.checkBox(4707);
    for (const bool on : {true, false}) {
        log.clear();
        SetCheckButtonValue(box, on ? 1 : 0);
        EXPECT_EQ(process(4707), 0);
        for (const int number : {16, 17, 18, 19}) {
            EXPECT_EQ(isOn(session.slider(number)), on) << number;
        }
        EXPECT_EQ(session.settings().checkBoxStates[2], 0) << "stored when the settings are saved";
        EXPECT_EQ(log.lines(), logged({"Handle event #4707\n", on ? "colors enabled\n" : "colors disabled\n"}));
    }
    EXPECT_TRUE(changes().empty());
}

TEST_F(EventDispatch, StoresTheColorModeAndTellsThePreviewAlone)
{
    struct Case {
        int item;
        const char *key, *hint;
        bool isCMYK;
    };
    for (const Case &c :
         std::vector<Case>{{1, "Gray", "Gray", false}, {3, "CMYK", "RGB", true}, {2, "RGB", "Gray", false}}) {
        log.clear();
        session.host->changes.clear();
        SetComboControlValue(session.popup(4), c.item);
        log.clear();
        EXPECT_EQ(process(4505), 0);
        EXPECT_EQ(session.settings().popupSelections[4], c.item);
        EXPECT_EQ(changes(), (Changes{{"ColorModel", c.hint}})) << "by its number, whatever it is called";
        EXPECT_EQ(isShown(session.popup(7)), c.isCMYK);
        EXPECT_EQ(isShown(session.popup(6)), !c.isCMYK);
        const std::string item = std::to_string(c.item);
        EXPECT_EQ(log.lines(), logged({"Handle event #4505\n", "+++ tag of selected item: " + item + "\n",
                                       "colmode=" + item + "\n", std::string("colmodename=") + c.key + "\n",
                                       std::string(c.isCMYK ? "CMYK" : "RGB") + "-Mode - " + c.key + "\n"}));
    }
}

TEST_F(EventDispatch, TakesAPreviewThatIsRefusedForGiven)
{
    session.host->refusedKeys = {"ColorModel"};
    SetComboControlValue(session.popup(4), 3);
    EXPECT_EQ(process(4505), 0);
    EXPECT_EQ(session.settings().popupSelections[4], 3);
    EXPECT_TRUE(isShown(session.popup(7)));
}

TEST_F(EventDispatch, StoresNoColorModeWhenNoneIsSelected)
{
    SetComboControlValue(session.popup(4), 0);
    EXPECT_EQ(process(4505), 0);
    EXPECT_EQ(session.settings().popupSelections[4], 0);
    EXPECT_EQ(changes(), (Changes{{"ColorModel", "Gray"}}));
}

TEST_F(EventDispatch, ReadsTheInkCountersAgain)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printer.ink"));
    copyBounded(session.settings().inkFilePath, path.toStdString());
    const auto write = [&path](const char *text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    auto *sum = qobject_cast<QLabel *>(session.context()->controls.lastInkValues[12]);
    write("LastInk_Y=700\n");
    EXPECT_EQ(process(4003), 0);
    EXPECT_EQ(sum->text(), QStringLiteral("7"));
    EXPECT_EQ(session.settings().inkLast[4], 700);
    write("LastInk_M=900\nTotalInk_M=5000\n");
    log.clear();
    EXPECT_EQ(process(4003), 0);
    EXPECT_EQ(sum->text(), QStringLiteral("9")) << "only what the file now holds";
    EXPECT_EQ(session.settings().inkLast[4], 0);
    EXPECT_EQ(session.settings().inkChannelCount, 1);
    ASSERT_GE(log.lines().size(), 9U);
    EXPECT_EQ(Lines(log.lines().begin(), log.lines().begin() + 9),
              logged({"Handle event #4003\n", "Using direct inkfile-data\n", "Start ink-data-Scan\n",
                      "Got Line:LastInk_M=900\n\n", "Last Value for 'M' = 900\n", "Got Line:TotalInk_M=5000\n\n",
                      "Total Value for 'M' = 5000\n", "HAVE 1 inkchannels\n", "Setting inkChannels\n"}));
    EXPECT_TRUE(changes().empty());
}

TEST_F(EventDispatch, KeepsTheMeasuresOfTheInkRows)
{
    const std::array<int, 3> before{session.context()->inkFirstLine, session.context()->inkLastLine,
                                    session.context()->inkRowHeight};
    const int top = session.context()->controls.lastInkNames[0]->y();
    process(4003);
    process(4003);
    EXPECT_EQ((std::array<int, 3>{session.context()->inkFirstLine, session.context()->inkLastLine,
                                  session.context()->inkRowHeight}),
              before);
    EXPECT_EQ(session.context()->controls.lastInkNames[0]->y(), top);
}

Lines fill(const std::vector<std::string> &texts, int active)
{
    return fillMessages(static_cast<int>(texts.size()), texts, active);
}

TEST_F(EventDispatch, LogsAChangeOfTheMediaTypeStepByStep)
{
    SetComboControlValue(session.popup(3), 2); // Proof6, which plain paper does not allow
    SetComboControlValue(session.popup(1), 1);
    log.clear();
    EXPECT_EQ(process(4501), 0);
    const Lines media{"checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=1\n",
                      "got MediaMode: 0 - Plain0\n"};
    EXPECT_EQ(log.lines(), logged(joined({{"Handle event #4501\n", "+++ tag of selected item: 1\n",
                                           "SetOption 'vornMediaType'='Plain0' result = 1\n",
                                           "##### setting vornMediaType to Plain0 : result = TRUE\n",
                                           // stored: resolution, cartridge, media type
                                           "+++ tag of selected item: 1\n", "+++ tag of selected item: 1\n",
                                           "+++ tag of selected item: 1\n", "-- check contraints --\n",
                                           "Checking menu for *vornMediaType\n"},
                                          fill(kMedia, 1),
                                          {"-- check contraints --\n", "Checking menu for *vornResolution\n"},
                                          fill(kResolutions, 1),
                                          media,
                                          {"+++ tag of selected item: 2\n", "Availabilitycheck - Mediamode = 0\n",
                                           "SetComboControlValue to #1 of 2\n"},
                                          media,
                                          {"+++ tag of selected item: 2\n", "Availabilitycheck - Mediamode = 0\n",
                                           "SetComboControlValue to #2 of 3\n"}})));
    EXPECT_EQ(changes(), (Changes{{"vornMediaType", "Plain0"}})) << "the moved intent is not sent";
    EXPECT_EQ(session.settings().popupSelections[3], 1);
}

TEST_F(EventDispatch, LogsARefusedChangeStepByStep)
{
    session.host->refusedKeys = {"vornResolution"};
    SetComboControlValue(session.popup(2), 2);
    log.clear();
    EXPECT_EQ(process(4502), -111);
    EXPECT_EQ(log.lines(), logged({"Handle event #4502\n", "+++ tag of selected item: 2\n",
                                   "SetOption 'vornResolution'='1200dpi' result = 0\n",
                                   "##### setting vornResolution to 1200dpi : result = FALSE\n",
                                   "SetComboControlValue to #1 of 2\n"}));
    EXPECT_EQ(session.popup(2)->currentIndex(), 0);
}

TEST_F(EventDispatch, LogsAChoiceThatNamesNoPair)
{
    SetComboControlValue(session.popup(1), 3); // the separator
    log.clear();
    EXPECT_EQ(process(4501), -111);
    EXPECT_EQ(log.lines(), logged({"Handle event #4501\n", "+++ tag of selected item: 123\n",
                                   "No PPD Options for feature available\n", "SetComboControlValue to #2 of 4\n"}));
    EXPECT_TRUE(changes().empty());
    EXPECT_EQ(session.popup(1)->currentIndex(), 1);
}

TEST_F(EventDispatch, ReadsTheThreePopUpsInTheirOrder)
{
    SetComboControlValue(session.popup(0), 2);
    SetComboControlValue(session.popup(1), 4);
    SetComboControlValue(session.popup(2), 1);
    log.clear();
    EXPECT_EQ(process(4507), 0);
    EXPECT_EQ(Lines(log.lines().begin(), log.lines().begin() + 7),
              logged({"Handle event #4507\n", "+++ tag of selected item: 2\n",
                      "SetOption 'vornCartridgeType'='MatteBlack' result = 1\n",
                      "##### setting vornCartridgeType to MatteBlack : result = TRUE\n",
                      "+++ tag of selected item: 1\n",    // resolution
                      "+++ tag of selected item: 2\n",    // cartridge
                      "+++ tag of selected item: 4\n"})); // media type
    EXPECT_EQ(changes(), (Changes{{"vornCartridgeType", "MatteBlack"}}));
}

} // namespace
} // namespace tessarin::test

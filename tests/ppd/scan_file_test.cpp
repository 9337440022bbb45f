// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The scan of a whole PPD file: its steps and log, and files that cannot be read.

#include "ppd/keyword_scanner.h"

#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::test {
namespace {

/// Gives up the rights of the superuser, if there are any, for the length of a scope.
class WithoutRights {
public:
    WithoutRights()
    {
        if (geteuid() == 0) {
            dropped_ = seteuid(65534) == 0;
        }
    }
    ~WithoutRights()
    {
        if (dropped_ && seteuid(0) != 0) {
            std::abort();
        }
    }
    WithoutRights(const WithoutRights &) = delete;
    WithoutRights &operator=(const WithoutRights &) = delete;

private:
    bool dropped_ = false;
};

std::string notFound(int error)
{
    return std::string("PPD-File not found - error = ") + std::strerror(error) + "\n";
}

TEST(ScanFile, LogsItsStepsInOrder)
{
    const TextFile ppd(ppdText({{"vornMediaType", "Plain0", {"Plain0/Plain", "Custom1/One"}}}));
    RecordingHost host(ppd.path());
    const TestContext context(host);
    const CapturedLog log;
    ParsePPDFile(ppd.path().c_str(), context);
    const Lines rows{"getComboPPDFeature for vornCartridgeType\n", "getComboPPDFeature for vornMediaType\n",
                     "getComboPPDFeature for vornResolution\n",    "getComboPPDFeature for vornIntent\n",
                     "getComboPPDFeature for vornColorModel\n",    "getComboPPDFeature for vornDithering\n",
                     "getComboPPDFeature for vornColorspace\n",    "getComboPPDFeature for vornCMYKspace\n"};
    Lines expected{"ParsePPD\n", "getPPDComboOptions\n"};
    expected.insert(expected.end(), rows.begin(), rows.end());
    expected.insert(expected.end(), rows.begin(), rows.begin() + 2);
    expected.emplace_back("--- SEPARATOR added ---\n");
    expected.insert(expected.end(), rows.begin() + 2, rows.end());
    expected.emplace_back("Start PPD-Scan\n");
    expected.emplace_back("End PPD-Scan\n");
    EXPECT_EQ(log.lines(), logged(expected));
}

TEST(ScanFile, OnAnOldHostLogsNoListBuilding)
{
    const TestContext context;
    context->onTiger = 1;
    const CapturedLog log;
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    EXPECT_EQ(log.lines(), logged({"ParsePPD\n", "Start PPD-Scan\n", "End PPD-Scan\n"}));
}

TEST(ScanFile, OfAnEmptyFileEndsTheConstraintsInTheirFirstSlot)
{
    const TestContext context;
    context.table().constraints.fill(7);
    const CapturedLog log;
    ParsePPDFile(ppdFixture("empty").c_str(), context);
    EXPECT_EQ(context.table().constraints[0], -1);
    EXPECT_EQ(context.table().constraints[1], 7);
    EXPECT_TRUE(log.contains("LOG Start PPD-Scan\n"));
    EXPECT_EQ(log.lines().back(), "LOG End PPD-Scan\n");
}

TEST(ScanFile, ThatIsMissingLeavesListsOfThePPDAndNoConstraints)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    const QTemporaryDir folder;
    const CapturedLog log;
    ParsePPDFile(folder.filePath(QStringLiteral("missing.ppd")).toStdString().c_str(), context);
    EXPECT_EQ(log.lines().back(), "LOG " + notFound(ENOENT));
    EXPECT_FALSE(log.contains("LOG Start PPD-Scan\n"));
    EXPECT_EQ(pairsOf(context.table(), 1).size(), 4U);
    EXPECT_EQ(groupsOf(context.table()), Groups{});
    EXPECT_EQ(context.table().constraints[0], -1);
    EXPECT_TRUE(std::all_of(context.table().constraints.begin() + 1, context.table().constraints.end(),
                            [](int slot) { return slot == 0; }));
}

TEST(ScanFile, ThatIsMissingOnAnOldHostLeavesNothing)
{
    const TestContext context;
    context->onTiger = 1;
    fillRow(context.table(), 1, {{"stale", "stale"}});
    const CapturedLog log;
    ParsePPDFile("/nowhere/at/all.ppd", context);
    EXPECT_EQ(log.lines(), logged({"ParsePPD\n", notFound(ENOENT)}));
    EXPECT_EQ(pairsOf(context.table(), 1), Pairs{});
    EXPECT_EQ(groupsOf(context.table()), Groups{});
}

TEST(ScanFile, WithoutAPathIsNotFound)
{
    const TestContext context;
    const CapturedLog log;
    ParsePPDFile("", context);
    EXPECT_EQ(log.lines().back(), "LOG " + notFound(ENOENT));
    EXPECT_EQ(groupsOf(context.table()), Groups{});
}

TEST(ScanFile, ThatIsADirectoryHoldsNoLines)
{
    const TestContext context;
    context.table().constraints.fill(7);
    const QTemporaryDir folder;
    const CapturedLog log;
    ParsePPDFile(folder.path().toStdString().c_str(), context);
    EXPECT_EQ(groupsOf(context.table()), Groups{});
    EXPECT_EQ(log.lines().back(), "LOG End PPD-Scan\n");
}

TEST(ScanFile, ThatIsAPipeIsRefusedAtOnce)
{
    const TestContext context;
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("pipe.ppd")).toStdString();
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    for (const std::uint8_t onTiger : std::array<std::uint8_t, 2>{0, 1}) {
        context->onTiger = onTiger;
        const CapturedLog log;
        ParsePPDFile(path.c_str(), context);
        EXPECT_EQ(log.lines().back().rfind("LOG PPD-File not found - error = ", 0), 0U);
        EXPECT_EQ(groupsOf(context.table()), Groups{});
    }
    EXPECT_EQ(openPPD(path.c_str()), nullptr);
}

TEST(ScanFile, ThatMayNotBeReadIsNotFound)
{
    const TestContext context;
    const TextFile file("*UIConstraints: *vornCartridgeType A *vornMediaType M1\n");
    ASSERT_EQ(chmod(file.path().c_str(), 0), 0);
    {
        const WithoutRights rights;
        if (access(file.path().c_str(), R_OK) == 0 && geteuid() == 0) {
            GTEST_SKIP() << "the superuser's rights cannot be given up here";
        }
        const CapturedLog log;
        ParsePPDFile(file.path().c_str(), context);
        EXPECT_EQ(log.lines().back(), "LOG " + notFound(EACCES));
        EXPECT_EQ(openPPD(file.path().c_str()), nullptr);
    }
    EXPECT_EQ(groupsOf(context.table()), Groups{});
}

TEST(ScanFile, CutShortWithinAnOptionKeepsWhatWasRead)
{
    const TestContext context;
    context->onTiger = 1;
    ParsePPDFile(ppdFixture("truncated").c_str(), context);
    EXPECT_EQ(pairsOf(context.table(), 0), (Pairs{{"PhotoBlack", "Photo Black"}, {"MatteBlack", "Matte Black"}}));
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"Plain0", "Plain Paper *"}})) << "half a choice is none";
    EXPECT_EQ(pops[1].defaultIndex, 1);
    EXPECT_EQ(groupsOf(context.table()), Groups{});
    ParsePPDFile(ppdFixture("truncated-block").c_str(), context);
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"Plain0", "Plain Paper *"}, {"Photo6", "Photo Paper"}}));
    EXPECT_EQ(pops[1].defaultIndex, 2);
    EXPECT_EQ(pairsOf(context.table(), 2), Pairs{});
}

TEST(ScanFile, CutShortDoesNoHarmWhateverThePrintLibraryMakesOfIt)
{
    for (const char *name : {"truncated", "truncated-block", "empty", "long-line", "line-255"}) {
        RecordingHost host(ppdFixture(name));
        const TestContext context(host);
        const CapturedLog log;
        ParsePPDFile(ppdFixture(name).c_str(), context);
        EXPECT_EQ(groupsOf(context.table()), Groups{}) << name;
        EXPECT_EQ(log.lines().back(), "LOG End PPD-Scan\n") << name;
    }
}

TEST(ScanFile, KeepsTheFirstFiftyConstraintsOfALargePPD)
{
    RecordingHost host(ppdFixture("constraints-51"));
    const TestContext context(host);
    ParsePPDFile(ppdFixture("constraints-51").c_str(), context);
    const Groups groups = groupsOf(context.table());
    ASSERT_EQ(groups.size(), 50U);
    EXPECT_EQ(groups.front(), (Group{0, 1, 1, 0}));
    EXPECT_EQ(groups[49], (Group{0, 0, 1, 12})) << "cartridge A forbids Media33";
    EXPECT_EQ(context.table().constraints[200], -1);
}

TEST(ScanFile, TestsLinesInsideOpenUIBlocksForConstraintsExceptOnAnOldHost)
{
    const Groups outside{{0, 1, 1, 0}, {0, 3, 1, 0}, {0, 1, 1, 6}, {0, 3, 1, 2}, {0, 2, 1, 2}, {0, 2, 1, 0},
                         {0, 1, 1, 2}, {0, 2, 1, 1}, {0, 2, 1, 2}, {0, 1, 1, 5}, {0, 2, 1, 4}, {1, 0, 6, 2}};
    Groups all{{1, 3, 5, 1}, {1, 3, 2, 1}}; // in the blocks of the dithering and of a slider
    all.insert(all.end(), outside.begin(), outside.end());
    const std::string path = ppdFixture("constraint-oddities");
    RecordingHost host(path);
    const TestContext context(host);
    ParsePPDFile(path.c_str(), context);
    EXPECT_EQ(groupsOf(context.table()), all);
    context->onTiger = 1;
    ParsePPDFile(path.c_str(), context);
    EXPECT_EQ(groupsOf(context.table()), outside);
}

TEST(ScanFile, OfSplitLinesFindsWhatAPieceHolds)
{
    RecordingHost host(ppdFixture("minimal")); // the same lists; the library takes no line of that length
    const TestContext context(host);
    ParsePPDFile(ppdFixture("long-line-split").c_str(), context);
    EXPECT_EQ(groupsOf(context.table()), (Groups{{0, 1, 1, 4}, {0, 0, 1, 3}, {0, 1, 1, 1}}));
}

TEST(ScanFile, TakesTheLibrarysOwnCustomNamesForUnknownChoices)
{
    RecordingHost host(ppdFixture("custom-names")); // "Custom" is "_Custom" in the list
    const TestContext context(host);
    const TextFile file("*UIConstraints: *vornCartridgeType PhotoBlack *vornMediaType Custom\n"
                        "*UIConstraints: *vornCartridgeType PhotoBlack *vornMediaType Custom.7\n"
                        "*UIConstraints: *vornCartridgeType PhotoBlack *vornMediaType Custom16\n");
    ParsePPDFile(file.path().c_str(), context);
    EXPECT_EQ(groupsOf(context.table()), (Groups{{0, 0, 1, 7}, {0, 0, 1, 7}, {0, 0, 1, 6}}));
}

TEST(ScanFile, EmptiesAllListsFirst)
{
    const TestContext context;
    for (int row = 0; row < 15; ++row) {
        fillRow(context.table(), row, {{"stale", "stale"}, {"more", "more"}});
    }
    ParsePPDFile(ppdFixture("empty").c_str(), context);
    for (const ChoiceRow &row : context.table().choiceLists) {
        EXPECT_TRUE(std::all_of(row.begin(), row.end(), [](const char *slot) { return slot == nullptr; }));
    }
}

TEST(ScanFile, ReplacesWhatAnEarlierScanFound)
{
    RecordingHost first(ppdFixture("constraint-oddities"));
    const TestContext context(first);
    ParsePPDFile(ppdFixture("constraint-oddities").c_str(), context);
    ASSERT_EQ(pairsOf(context.table(), 0).size(), 3U);
    RecordingHost second(ppdFixture("minimal"));
    context->ppdFile = second.ppdFile();
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    EXPECT_EQ(pairsOf(context.table(), 0).size(), 2U);
    EXPECT_EQ(groupsOf(context.table()), Groups{});
}

TEST(ScanFile, LeavesTheSharedTablesAloneExceptOnAnOldHost)
{
    const SharedTables tables;
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    pops[1].defaultIndex = 42;
    Scrolls[2].ppdDefault = 43;
    checkboxes[2].value = 44;
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    EXPECT_EQ(pops[1].defaultIndex, 42);
    EXPECT_EQ(Scrolls[2].ppdDefault, 43);
    EXPECT_EQ(checkboxes[2].value, 44);
    context->onTiger = 1;
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    EXPECT_EQ(pops[1].defaultIndex, 2);
    EXPECT_EQ(Scrolls[2].ppdDefault, 65);
    EXPECT_EQ(checkboxes[2].value, 0);
}

TEST(ScanFile, LeavesTheSettingsAlone)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    context->settings.popupSelections.fill(5);
    context->settings.sliderValues.fill(6);
    context->settings.checkBoxStates.fill(7);
    for (const std::uint8_t onTiger : std::array<std::uint8_t, 2>{0, 1}) {
        context->onTiger = onTiger;
        ParsePPDFile(ppdFixture("minimal").c_str(), context);
        EXPECT_EQ(context->settings.popupSelections[1], 5);
        EXPECT_EQ(context->settings.sliderValues[2], 6);
        EXPECT_EQ(context->settings.checkBoxStates[1], 7);
    }
}

TEST(PPDHandle, IsNullForWhatIsNoPPD)
{
    const QTemporaryDir folder;
    EXPECT_EQ(openPPD(""), nullptr);
    EXPECT_EQ(openPPD("/nowhere/at/all.ppd"), nullptr);
    EXPECT_EQ(openPPD(folder.path().toStdString().c_str()), nullptr);
    EXPECT_EQ(openPPD("/dev/null"), nullptr);
    EXPECT_EQ(openPPD(ppdFixture("empty").c_str()), nullptr);
    EXPECT_EQ(openPPD(ppdFixture("long-line").c_str()), nullptr) << "a line of 256 characters";
    EXPECT_NE(openPPD(ppdFixture("line-255").c_str()), nullptr);
    EXPECT_NE(openPPD(ppdFixture("minimal").c_str()), nullptr);
}

} // namespace
} // namespace tessarin::test

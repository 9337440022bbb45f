// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Setting a record up for a printer, and the small functions around it.

#include "plugin/restore.h"

#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace tessarin::test {
namespace {

/// A host that hands out another parsed PPD at each question.
class AlternatingHost : public pde::HostCallback {
public:
    explicit AlternatingHost(std::vector<ppd_file_s *> ppds) : ppds_(std::move(ppds)) {}

    pde::PrintSession *printSession() override { return nullptr; }
    pde::Printer *PMPrinter() override { return nullptr; }
    ppd_file_s *ppdFile() override
    {
        ppd_file_s *answer = ppds_.at(std::min(asked, ppds_.size() - 1));
        ++asked;
        return answer;
    }
    bool willChangePPDOptionKeyValue(const QString &, const QString &) override { return true; }

    std::size_t asked = 0;

private:
    std::vector<ppd_file_s *> ppds_;
};

std::string path(const PanelContext *context)
{
    return context->ppdPath.data();
}

TEST(PPDPathOfTheRecord, HoldsAtMost255Characters)
{
    const TestContext context;
    for (const std::size_t length : {0U, 1U, 254U, 255U}) {
        const std::string text(length, 'p');
        enterPPDPathIntoContext(context, text.c_str());
        EXPECT_EQ(path(context), text) << length;
    }
    for (const std::size_t length : {256U, 257U, 300U, 5000U}) {
        enterPPDPathIntoContext(context, std::string(length, 'q').c_str());
        EXPECT_EQ(path(context), std::string(255, 'q')) << length;
    }
}

TEST(PPDPathOfTheRecord, IsAlwaysTerminated)
{
    const TestContext context;
    context->ppdPath.fill('#');
    enterPPDPathIntoContext(context, std::string(255, 'p').c_str());
    EXPECT_EQ(context->ppdPath.at(255), '\0');
    context->ppdPath.fill('#');
    enterPPDPathIntoContext(context, std::string(300, 'p').c_str());
    EXPECT_EQ(context->ppdPath.at(255), '\0');
    context->ppdPath.fill('#');
    enterPPDPathIntoContext(context, "/short.ppd");
    EXPECT_EQ(path(context), "/short.ppd");
    EXPECT_EQ(context->ppdPath.at(255), '\0') << "its last character is zero whatever the path";
}

TEST(PPDPathOfTheRecord, IsReplacedByAShorterOne)
{
    const TestContext context;
    enterPPDPathIntoContext(context, "/a/long/path.ppd");
    enterPPDPathIntoContext(context, "/b");
    EXPECT_EQ(path(context), "/b");
}

class ProcessPPD : public testing::Test {
protected:
    ~ProcessPPD() override { mybundle = former_; }

    /// Sets the record up with a printer's name and answers the ink path.
    std::string inkPath(const std::string &name) const
    {
        processPPDFile(context_, nullptr, "", name.c_str(), nullptr, nullptr, 0);
        return context_->settings.inkFilePath.data();
    }

    pde::Bundle *former_ = mybundle;
    RecordingHost host_{ppdFixture("minimal")};
    TestContext context_;
};

TEST_F(ProcessPPD, BuildsTheInkPathFromThePrintersName)
{
    EXPECT_EQ(inkPath("sample"), "/var/log/tessarin/sample.ink");
    EXPECT_EQ(inkPath(""), "/var/log/tessarin/.ink");
    EXPECT_EQ(inkPath("50%d%s"), "/var/log/tessarin/50%d%s.ink");
    const std::string name(127, 'i');
    EXPECT_EQ(inkPath(name), "/var/log/tessarin/" + name + ".ink");
}

TEST_F(ProcessPPD, CutsTheInkPathTo149Characters)
{
    const std::string expected = "/var/log/tessarin/" + std::string(128, 'i') + ".in";
    ASSERT_EQ(expected.size(), 149U);
    for (const std::size_t length : {128U, 129U, 300U}) {
        context_->settings.inkFilePath.fill('#');
        EXPECT_EQ(inkPath(std::string(length, 'i')), expected) << length;
        EXPECT_EQ(context_->settings.inkFilePath.at(149), '\0');
    }
}

TEST_F(ProcessPPD, StoresTheReferencesThatItIsGiven)
{
    TextBundle bundle;
    processPPDFile(context_, nullptr, "", "sample", &host_, &bundle, 0);
    EXPECT_EQ(context_->callbackObject, &host_);
    EXPECT_EQ(mybundle, &bundle);
    EXPECT_EQ(context_->onTiger, 0);
    processPPDFile(context_, nullptr, "", "sample", nullptr, nullptr, 1);
    EXPECT_EQ(context_->callbackObject, nullptr);
    EXPECT_EQ(mybundle, nullptr);
    EXPECT_EQ(context_->onTiger, 1);
}

TEST_F(ProcessPPD, LeavesThePathAndTheSettingsToItsCaller)
{
    enterPPDPathIntoContext(context_, "/another/path.ppd");
    context_->settings.sliderValues.at(3) = 4;
    processPPDFile(context_, nullptr, ppdFixture("minimal").c_str(), "sample", &host_, nullptr, 0);
    EXPECT_EQ(path(context_), "/another/path.ppd");
    EXPECT_EQ(context_->settings.sliderValues.at(3), 4);
    EXPECT_EQ(context_->settings.popupSelections.at(1), 0);
}

TEST_F(ProcessPPD, ReplacesThePPDItIsGivenByTheCallbacks)
{
    RecordingHost other(ppdFixture("foreign"));
    processPPDFile(context_, other.ppdFile(), "", "sample", &host_, nullptr, 0);
    EXPECT_EQ(context_->ppdFile, host_.ppdFile());
    EXPECT_EQ(pairsOf(context_.table(), 0).size(), 2U) << "the lists are of the callback's PPD";
}

TEST_F(ProcessPPD, ReplacesThePPDItIsGivenByNoneWhenThereIsNoCallback)
{
    processPPDFile(context_, host_.ppdFile(), "", "sample", nullptr, nullptr, 0);
    EXPECT_EQ(context_->ppdFile, nullptr);
    EXPECT_EQ(pairsOf(context_.table(), 0), Pairs{});
}

TEST_F(ProcessPPD, TellsOfItselfFirst)
{
    const CapturedLog log;
    processPPDFile(context_, nullptr, "/nonexistent", "sample", &host_, nullptr, 0);
    ASSERT_GE(log.lines().size(), 4U);
    EXPECT_EQ(log.lines().at(0), "LOG ProcessPPD\n");
    EXPECT_EQ(log.lines().at(1), "LOG ParsePPD\n");
    EXPECT_EQ(log.lines().at(2), "LOG getPPDComboOptions\n");
    EXPECT_EQ(log.lines().back(), "LOG PPD-File not found - error = No such file or directory\n");
}

TEST_F(ProcessPPD, FreesTheFormerScanBuffer)
{
    context_->ppdScanBuffer.reset(new char[8]{"former"});
    processPPDFile(context_, nullptr, "", "sample", &host_, nullptr, 0);
    ASSERT_NE(context_->ppdScanBuffer, nullptr);
    EXPECT_STREQ(context_->ppdScanBuffer.get(), "PhotoBlack") << "the first key of the new lists";
}

TEST_F(ProcessPPD, ReadsTheNextPPDOverTheFormerOne)
{
    processPPDFile(context_, nullptr, ppdFixture("minimal").c_str(), "sample", &host_, nullptr, 0);
    ASSERT_EQ(pairsOf(context_.table(), 1).size(), 4U);
    RecordingHost foreign(ppdFixture("foreign"));
    processPPDFile(context_, nullptr, ppdFixture("foreign").c_str(), "sample", &foreign, nullptr, 0);
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(pairsOf(context_.table(), row), Pairs{}) << row;
    }
}

TEST(FirstRestore, AsksForThePPDTwiceAndKeepsTheSecondAnswer)
{
    const SharedTables tables;
    RecordingHost first(ppdFixture("foreign"));
    RecordingHost second(ppdFixture("minimal"));
    RecordingHost later(ppdFixture("odd-texts"));
    const auto host = std::make_shared<AlternatingHost>(
        std::vector<ppd_file_s *>{first.ppdFile(), second.ppdFile(), later.ppdFile()});
    const auto panel = makePanel(host);
    EXPECT_EQ(host->asked, 2U);
    EXPECT_EQ(panel->panelContext()->ppdFile, second.ppdFile());
    EXPECT_EQ(pairsOf(*panel->panelContext()->ppdOptions, 0).size(), 2U);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(host->asked, 2U) << "a later restore keeps it";
    EXPECT_EQ(panel->panelContext()->ppdFile, second.ppdFile());
}

TEST(HostVersion, IsAlwaysNewEnough)
{
    const CapturedLog log;
    EXPECT_TRUE(RunningOn105OrLater());
    EXPECT_TRUE(RunningOn105OrLater());
    EXPECT_EQ(log.lines(), Lines(2, "LOG (64-bit) Mac OS X 10.5 or later")) << "without a line end";
}

TEST(HostVersion, HasNoOptionDictionary)
{
    const CapturedLog log;
    EXPECT_EQ(myGetPPDDict(), nullptr);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(OldHost, IsRestoredFromNothing)
{
    const TestContext context;
    context->onTiger = 1;
    context->settings.sliderValues.at(0) = 7;
    context->settings.popupSelections.at(4) = 9;
    const CapturedLog log;
    MyRestoreValues(context);
    EXPECT_EQ(log.lines(), Lines{"LOG Restore Values on Tiger\n"});
    EXPECT_EQ(context->settings.sliderValues.at(0), 7);
    EXPECT_EQ(context->settings.popupSelections.at(4), 9);
    EXPECT_EQ(MySyncPaneFromTigerTicket(context), 0);
    EXPECT_EQ(log.lines().size(), 1U);
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What happens when there is no memory. The program replaces the operator that the record, its option table and the
// array of supported keys are allocated with, so it holds no other tests.

#include "controls/event_dispatch.h"
#include "plugin/context_lifecycle.h"
#include "plugin/supported_options.h"
#include "tests/plugin/plugin_test_support.h"

#include <QLabel>

#include <gtest/gtest.h>

#include <array>
#include <new>

namespace {

int allocationsUntilFailure = 0; ///< 1: the next one fails; 0: none does

} // namespace

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    if (allocationsUntilFailure > 0 && --allocationsUntilFailure == 0) {
        return nullptr;
    }
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

namespace tessarin::test {
namespace {

constexpr int kRecord = 1;
constexpr int kOptionTable = 2;

/// The n-th allocation of a scope fails.
class FailingAllocation {
public:
    explicit FailingAllocation(int number) { allocationsUntilFailure = number; }
    ~FailingAllocation() { allocationsUntilFailure = 0; }
    FailingAllocation(const FailingAllocation &) = delete;
    FailingAllocation &operator=(const FailingAllocation &) = delete;

    static bool happened() { return allocationsUntilFailure == 0; }
};

std::array<StringRef, 20> formatStrings()
{
    std::array<StringRef, 20> strings;
    for (std::size_t row = 0; row < strings.size(); ++row) {
        strings.at(row) = Scrolls.at(row).formatString;
    }
    return strings;
}

TEST(RecordWithoutMemory, IsNullWhenItCannotBeAllocatedItself)
{
    const SharedTables tables;
    const TestContext former;
    const std::array<StringRef, 20> before = formatStrings();
    const FailingAllocation failure(kRecord);
    EXPECT_EQ(MyCreateCustomContext(), nullptr);
    EXPECT_TRUE(FailingAllocation::happened());
    EXPECT_EQ(formatStrings(), before) << "the format strings come after it";
}

TEST(RecordWithoutMemory, IsNullWhenItsOptionTableCannotBeAllocated)
{
    const SharedTables tables;
    const TestContext former;
    const std::array<StringRef, 20> before = formatStrings();
    const FailingAllocation failure(kOptionTable);
    EXPECT_EQ(MyCreateCustomContext(), nullptr);
    EXPECT_TRUE(FailingAllocation::happened());
    for (std::size_t row = 0; row < before.size(); ++row) {
        const StringRef &left = Scrolls.at(row).formatString;
        ASSERT_NE(left, nullptr) << row;
        EXPECT_NE(left, before.at(row)) << row << ": the new format strings stay";
        EXPECT_EQ(left->releaseCount(), 0) << row;
        EXPECT_EQ(before.at(row)->releaseCount(), 0) << row;
    }
}

TEST(RecordWithoutMemory, CanBeMadeWhenThereIsMemoryAgain)
{
    const SharedTables tables;
    for (const int number : {kRecord, kOptionTable}) {
        const FailingAllocation failure(number);
        EXPECT_EQ(MyCreateCustomContext(), nullptr);
        PanelContext *context = MyCreateCustomContext();
        ASSERT_NE(context, nullptr);
        MyReleaseCustomContext(context);
    }
}

/// A panel whose record could not be made.
class PanelWithoutRecord : public testing::TestWithParam<int> {
protected:
    PanelWithoutRecord()
    {
        const FailingAllocation failure(GetParam());
        panel_ = makePanel(host_, bundle_);
        EXPECT_TRUE(FailingAllocation::happened());
    }

    std::string line(const std::string &tag, const std::string &message) const
    {
        return panelLine(tag, panel_.get(), message);
    }
    std::string pathLine() const { return "LOG *****parse PPD-File: " + host_->path->toStdString() + "\n"; }

    SharedTables tables_;
    std::shared_ptr<RecordingHost> host_ = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    std::shared_ptr<pde::Bundle> bundle_ = buildBundle();
    std::shared_ptr<PasswordPDE> panel_;
};

INSTANTIATE_TEST_SUITE_P(OfEitherAllocation, PanelWithoutRecord, testing::Values(kRecord, kOptionTable));

TEST_P(PanelWithoutRecord, IsThereAllTheSame)
{
    ASSERT_NE(panel_, nullptr);
    EXPECT_EQ(panel_->panelContext(), nullptr);
    EXPECT_EQ(panel_->panelName(), QStringLiteral("Tessarin Settings"));
    EXPECT_TRUE(panel_->shouldHide());
    EXPECT_TRUE(panel_->shouldPrint());
    EXPECT_TRUE(panel_->shouldShowHelp());
    EXPECT_EQ(panel_->supportedPPDOptionKeys()->size(), 31);
}

TEST_P(PanelWithoutRecord, AnswersNoToARestoreWithoutAnEpilog)
{
    const CapturedLog log;
    const FailingAllocation failure(GetParam());
    EXPECT_FALSE(panel_->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(log.lines(), (Lines{line("BEGIN", "restoreValuesAndReturnError:(0x0)"), pathLine()}));
    EXPECT_EQ(panel_->panelContext(), nullptr);
}

TEST_P(PanelWithoutRecord, TriesAgainWithTheNextRestore)
{
    {
        const FailingAllocation failure(GetParam());
        EXPECT_FALSE(panel_->restoreValuesAndReturnError(nullptr));
    }
    const CapturedLog log;
    EXPECT_TRUE(panel_->restoreValuesAndReturnError(nullptr));
    ASSERT_NE(panel_->panelContext(), nullptr);
    EXPECT_STREQ(panel_->panelContext()->ppdPath.data(), host_->path->toStdString().c_str());
    EXPECT_EQ(panel_->panelContext()->settings.popupSelections.at(1), 2);
    EXPECT_EQ(log.count("LOG PRINTERNAME:    'sample'\n"), 1);
    EXPECT_EQ(log.lines().back(), line("END", "restoreValuesAndReturnError:=BOOL(YES)"));
}

TEST_P(PanelWithoutRecord, SavesNothingAndAnswersYes)
{
    const CapturedLog log;
    EXPECT_TRUE(panel_->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(log.lines(), (Lines{line("BEGIN", "saveValuesAndReturnError:(0x0)"),
                                  line("END", "saveValuesAndReturnError:=BOOL(YES)")}));
    EXPECT_TRUE(host_->changes.empty());
}

TEST_P(PanelWithoutRecord, HasNoSummary)
{
    const CapturedLog log;
    EXPECT_EQ(panel_->summaryInfo(), std::nullopt);
    EXPECT_EQ(log.lines(),
              (Lines{line("BEGIN", "summaryInfo:"), line("END", "summaryInfo:=NSDictionary((null), 0x0)")}));
}

TEST_P(PanelWithoutRecord, IgnoresChangesOfTheHost)
{
    panel_->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("Plain0"));
    EXPECT_EQ(panel_->panelContext(), nullptr);
}

TEST_P(PanelWithoutRecord, HandlesNoEvents)
{
    QLabel sender;
    sender.setProperty("tag", 4501);
    EXPECT_EQ(panel_->popupChanged(&sender), -111);
    EXPECT_EQ(panel_->buttonCallback(&sender), -111);
    EXPECT_EQ(processEvent(nullptr, 1, 4003), -111);
}

TEST_P(PanelWithoutRecord, HasAViewWhoseControlsAreSetUpOnceThereIsARecord)
{
    const Ghostscript ghostscript(true);
    const CapturedLog log;
    const QWidget *view = panel_->panelView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(log.lines().back(),
              line("END", "panelView:=NSView(" + described("QWidget", view) + ", " + address(view) + ")"));
    EXPECT_EQ(log.countStarting("LOG Init Tab #"), 0);
    ASSERT_TRUE(panel_->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(panel_->panelContext()->controls.popupControls.at(1), nullptr) << "the record knows no controls yet";
    EXPECT_EQ(panel_->panelView(), view);
    EXPECT_NE(panel_->panelContext()->controls.popupControls.at(1), nullptr);
    EXPECT_EQ(log.countStarting("LOG Enum Boxes - "), 1) << "the interface was loaded once";
}

TEST_P(PanelWithoutRecord, GoesWithoutCleaningUp)
{
    const CapturedLog log;
    panel_->finalize();
    panel_.reset();
    EXPECT_EQ(log.lines(), Lines(2, "LOG Dealloc is called\n"));
}

TEST(FactoryWithoutMemory, OffersThePanelThatHasNoRecord)
{
    const SharedTables tables;
    const auto host = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    const std::shared_ptr<pde::Bundle> bundle = buildBundle();
    TessarinPDEPlugIn factory;
    factory.initWithBundle(bundle);
    const CapturedLog log;
    const FailingAllocation failure(kRecord);
    const auto panels = factory.PDEPanelsForType(QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277"), host);
    ASSERT_NE(panels, nullptr);
    ASSERT_EQ(panels->size(), 1U);
    const auto *panel = dynamic_cast<const PasswordPDE *>(panels->front().get());
    EXPECT_EQ(panel->panelContext(), nullptr);
    EXPECT_EQ(log.count(panelLine("END", panel, "initWithCallback:=id(self)")), 1);
    EXPECT_EQ(log.count(panelLine("END", panel, "restoreValuesAndReturnError:=BOOL(YES)")), 0);
}

TEST(SupportedKeysWithoutMemory, AreNull)
{
    const CapturedLog log;
    const FailingAllocation failure(1);
    EXPECT_EQ(MyGetSupportedOptions(), nullptr);
    EXPECT_EQ(log.lines(), Lines{"LOG ERROR: cannot create Array\n"});
}

TEST(SupportedKeysWithoutMemory, AreAskedForAgainTheNextTime)
{
    const SharedTables tables;
    const auto panel = makePanel(std::make_shared<RecordingHost>(ppdFixture("minimal")));
    const CapturedLog log;
    {
        const FailingAllocation failure(1);
        EXPECT_EQ(panel->supportedPPDOptionKeys(), nullptr);
    }
    EXPECT_EQ(log.lines(), (Lines{panelLine("BEGIN", panel.get(), "supportedPPDOptionKeys:"),
                                  "LOG Create suppOptKeys\n", "LOG ERROR: cannot create Array\n",
                                  panelLine("END", panel.get(), "supportedPPDOptionKeys:=NSArray((null))")}));
    const auto keys = panel->supportedPPDOptionKeys();
    ASSERT_NE(keys, nullptr);
    EXPECT_EQ(keys->size(), 31);
    EXPECT_EQ(log.count("LOG Create suppOptKeys\n"), 2);
}

} // namespace
} // namespace tessarin::test

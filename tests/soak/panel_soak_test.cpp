// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel opened, changed, saved, summed up and closed again and again in one process. What stays behind each
// time is the context record, by design, and nothing else: no memory, descriptor, file or widget.

#include "controls/control_tables.h"
#include "platform/alerts.h"
#include "plugin/diagnostics.h"
#include "tests/soak/counted_heap.h"
#include "tests/soak/process_holdings.h"
#include "tests/soak/record_size.h"
#include "tests/support/panel_session.h"

#include <QApplication>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <set>
#include <string>
#include <vector>

namespace tessarin::test {
namespace {

constexpr int kPeriod = 30;           // after so many cycles the same choices come again
constexpr int kWarmUp = 5 * kPeriod;  // for what toolkit and libraries make once and keep
constexpr int kUsualCycles = 900;     // of an ordinary run
constexpr int kSanitizedCycles = 450; // the same under the address sanitizer
// Bytes by which the lists and tables that toolkit and libraries keep may differ. The least block that could be
// lost in each cycle takes 24.
constexpr long kNoise = 4096;
constexpr long kNoisePerCycle = 1;

int numberOfCycles()
{
    bool given = false;
    const int number = qEnvironmentVariableIntValue("TESSARIN_SOAK_CYCLES", &given);
    return given ? number : heapIsSanitized() ? kSanitizedCycles : kUsualCycles;
}

/// The offscreen platform says for every window that it has no size hints; other messages pass.
void withoutSizeHints(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (!text.contains(QLatin1String("propagateSizeHints"))) {
        std::cerr << text.toStdString() << std::endl;
    }
    if (type == QtFatalMsg) {
        std::abort();
    }
}

class PanelSoak : public testing::Test {
protected:
    PanelSoak()
    {
        qInstallMessageHandler(withoutSizeHints);
        qputenv("TMPDIR", folder_.path().toLocal8Bit());
        diagnostics_.setAlertObserver([](const pde::DiagnosticAlert &) {});
    }
    ~PanelSoak() override
    {
        setAlertHandler({});
        qInstallMessageHandler(nullptr);
    }

    void runCycles(int first, int last)
    {
        for (int cycle = first; cycle <= last && !HasFailure(); ++cycle) {
            SCOPED_TRACE("cycle " + std::to_string(cycle));
            openAndClose(cycle);
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QApplication::processEvents();
        }
    }

    void openAndClose(int cycle)
    {
        PanelSession session(samplePPD(), "sample", bundle_);
        records_.push_back(session.context());
        auto window = std::make_unique<QWidget>();
        QWidget *view = session.open();
        QWidget *formerParent = view->parentWidget();
        (new QVBoxLayout(window.get()))->addWidget(view);
        window->show();
        QApplication::processEvents();
        change(*session.panel, cycle);
        QApplication::processEvents();
        session.panel->saveValuesAndReturnError(nullptr);
        noteSummary(session, cycle);
        // A host gives the view back before its window goes, or the view goes along with the window.
        if (cycle % 2 == 0) {
            view->setParent(formerParent);
        }
    }

    void change(PasswordPDE &panel, int cycle)
    {
        for (std::size_t row = 0; row < kPopUpCount; ++row) {
            diagnostics_.choose(panel, pops[row].controlId, 1 + (cycle + static_cast<int>(row)) % 5);
        }
        for (const int box : {kNoPrintID, kPSInterpreterID, kColorGammaID}) {
            diagnostics_.check(panel, box, (cycle + box) % 3 == 0);
        }
        for (std::size_t number = 0; number < kSliderCount; ++number) {
            diagnostics_.slide(panel, Scrolls[number].sliderId, (cycle + static_cast<int>(number)) % 10 - 5);
        }
        diagnostics_.selectTab(panel, cycle % 6);
        diagnostics_.press(panel, kReloadInkID);
    }

    /// Each cycle of a period sums up differently; the same cycle of the next period sums up the same.
    void noteSummary(const PanelSession &session, int cycle)
    {
        const std::optional<pde::Summary> summary = session.panel->summaryInfo();
        ASSERT_TRUE(summary);
        std::string text;
        for (const auto &[name, value] : summary->entries.asKeyValueRange()) {
            text += (name + QLatin1Char('=') + value + QLatin1Char('\n')).toStdString();
        }
        std::string &known = summaries_[static_cast<std::size_t>(cycle % kPeriod)];
        if (known.empty()) {
            known = text;
        }
        EXPECT_EQ(text, known);
    }

    /// Without the pictures that the toolkit keeps for a while.
    static long heap()
    {
        QPixmapCache::clear();
        return static_cast<long>(heapInUse());
    }

    const QTemporaryDir folder_;
    Diagnostics diagnostics_;
    std::shared_ptr<pde::Bundle> bundle_ = buildBundle();
    std::vector<const PanelContext *> records_;
    std::array<std::string, kPeriod> summaries_;
};

TEST_F(PanelSoak, LeavesTheRecordAloneBehind)
{
    const int cycles = numberOfCycles();
    ASSERT_GE(cycles, 2 * kWarmUp) << "TESSARIN_SOAK_CYCLES";
    records_.reserve(static_cast<std::size_t>(cycles));
    runCycles(1, kWarmUp);
    EXPECT_EQ(std::set<std::string>(summaries_.begin(), summaries_.end()).size(), kPeriod);
    const Names descriptors = openDescriptors();
    const Names widgets = widgetsAlive();
    const long before = heap();

    runCycles(kWarmUp + 1, cycles);
    ASSERT_FALSE(HasFailure());
    const long grown = heap() - before;
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_EQ(widgetsAlive(), widgets);
    EXPECT_EQ(filesIn(folder_.path()), Names());

    const long measured = cycles - kWarmUp;
    long explained = static_cast<long>(registryBytes(records_.size()) - registryBytes(kWarmUp));
    for (std::size_t n = kWarmUp; n < records_.size(); ++n) {
        explained += static_cast<long>(recordBytes(*records_[n]));
    }
    EXPECT_LE(std::abs(grown - explained), kNoise + kNoisePerCycle * measured);
    const auto tell = [measured](const char *name, long bytes) {
        RecordProperty(name, std::to_string(bytes));
        std::cout << name << ": " << bytes << " in " << measured << " cycles, "
                  << static_cast<double>(bytes) / static_cast<double>(measured) << " a cycle\n";
    };
    tell("heapGrown", grown);
    tell("records", explained);
}

} // namespace
} // namespace tessarin::test

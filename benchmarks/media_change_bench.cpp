// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A person's change of the medium, with all that follows from it, against the bare work on the pop-ups: the items
// of those that depend on the medium taken out and put in again.

#include "benchmarks/bench_support.h"
#include "controls/menu_items.h"
#include "tests/support/panel_session.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

#include <array>
#include <set>
#include <vector>

using namespace tessarin;

namespace {

constexpr int kMediaRow = 1;
constexpr int kRows = 8;

/// The panel's view in a window, as in a dialog.
class ShownView {
public:
    explicit ShownView(test::PanelSession &session) : view_(session.open())
    {
        (new QVBoxLayout(&window_))->addWidget(view_);
        bench::showUntilPainted(window_);
    }
    ~ShownView() { view_->setParent(nullptr); }
    ShownView(const ShownView &) = delete;
    ShownView &operator=(const ShownView &) = delete;

private:
    QWidget window_;
    QWidget *view_; ///< the panel's
};

/// What a person's choice in the list of media does.
void chooseMedium(test::PanelSession &session, int index)
{
    QComboBox *media = session.popup(kMediaRow);
    media->setCurrentIndex(index);
    emit media->activated(index);
}

/// Whether a round ends with the change done, or once what it changed is on the screen.
enum class Until { done, drawn };

void finish(Until until)
{
    if (until == Until::drawn) {
        QCoreApplication::processEvents();
    }
}

void mediaChange(benchmark::State &state, Until until)
{
    test::PanelSession session;
    const ShownView shown(session);
    int index = 0;
    for ([[maybe_unused]] auto round : state) {
        index = index == 0 ? 1 : 0;
        chooseMedium(session, index);
        finish(until);
    }
}

struct Refill {
    QComboBox *popup = nullptr; ///< the panel's
    QStringList texts{};
    std::vector<int> tags{};
    int current = 0;
};

/// What the choice of the medium at `index` fills anew.
std::vector<Refill> refillsOf(test::PanelSession &session, int index)
{
    std::set<int> rows;
    std::vector<QMetaObject::Connection> connections;
    connections.reserve(static_cast<std::size_t>(kRows));
    for (int row = 0; row < kRows; ++row) {
        connections.push_back(QObject::connect(session.popup(row)->model(), &QAbstractItemModel::rowsRemoved,
                                               [&rows, row] { rows.insert(row); }));
    }
    chooseMedium(session, index);
    for (const QMetaObject::Connection &connection : connections) {
        QObject::disconnect(connection);
    }
    std::vector<Refill> refills;
    for (const int row : rows) {
        Refill refill{.popup = session.popup(row), .current = session.popup(row)->currentIndex()};
        for (int item = 0; item < refill.popup->count(); ++item) {
            refill.texts += refill.popup->itemText(item);
            refill.tags.push_back(menuItemTag(refill.popup, item));
        }
        refills.push_back(refill);
    }
    return refills;
}

void fill(const Refill &refill)
{
    const QSignalBlocker blocker(refill.popup);
    refill.popup->clear();
    const auto *model = qobject_cast<QStandardItemModel *>(refill.popup->model());
    for (int item = 0; item < static_cast<int>(refill.tags.size()); ++item) {
        const int tag = refill.tags[static_cast<std::size_t>(item)];
        refill.popup->addItem(refill.texts[item], tag);
        if (tag < 0) {
            model->item(item)->setFlags(Qt::NoItemFlags);
        }
    }
    refill.popup->setCurrentIndex(refill.current);
}

void mediaRefills(benchmark::State &state, Until until)
{
    test::PanelSession session;
    const ShownView shown(session);
    const std::array<std::vector<Refill>, 2> refills{refillsOf(session, 1), refillsOf(session, 0)};
    std::size_t which = 0;
    for ([[maybe_unused]] auto round : state) {
        for (const Refill &refill : refills[which]) {
            fill(refill);
        }
        finish(until);
        which = 1 - which;
    }
    state.counters["pop-ups"] = static_cast<double>(refills[0].size() + refills[1].size()) / 2;
}

} // namespace

BENCHMARK_CAPTURE(mediaChange, done, Until::done)->Name("media_change")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(mediaRefills, done, Until::done)->Name("media_refills")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(mediaChange, drawn, Until::drawn)->Name("media_change_drawn")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(mediaRefills, drawn, Until::drawn)->Name("media_refills_drawn")->Unit(benchmark::kMicrosecond);

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A person's change of the medium, with all that follows from it, against the bare work on the pop-ups: the items
// of those that depend on the medium taken out and put in again.

#include "platform/popup_button.h"
#include "plugin/diagnostics.h"
#include "tests/support/panel_session.h"

#include <QSignalBlocker>

#include <benchmark/benchmark.h>

#include <array>

using namespace tessarin;

namespace {

constexpr int kMediaPopUp = 4501;

/// The medium's own pop-up and those whose choices depend on it.
constexpr std::array<std::size_t, 8> kRefilledRows{0, 1, 2, 3, 4, 5, 6, 7};

void mediaChange(benchmark::State &state)
{
    test::PanelSession session;
    QWidget *view = session.open();
    view->show();
    Diagnostics diagnostics;
    int item = 1;
    for ([[maybe_unused]] auto round : state) {
        item = item == 1 ? 2 : 1;
        diagnostics.choose(*session.panel, kMediaPopUp, item);
    }
}

void mediaRefills(benchmark::State &state)
{
    test::PanelSession session;
    session.open()->show();
    std::array<QStringList, kRefilledRows.size()> texts;
    for (const std::size_t row : kRefilledRows) {
        const QComboBox *popup = session.popup(static_cast<int>(row));
        for (int item = 0; item < popup->count(); ++item) {
            texts[row] += popup->itemText(item);
        }
    }
    for ([[maybe_unused]] auto round : state) {
        for (const std::size_t row : kRefilledRows) {
            QComboBox *popup = session.popup(static_cast<int>(row));
            const QSignalBlocker blocker(popup);
            popup->clear();
            popup->addItems(texts[row]);
            popup->setCurrentIndex(0);
        }
    }
}

} // namespace

BENCHMARK(mediaChange)->Name("media_change")->Unit(benchmark::kMicrosecond);
BENCHMARK(mediaRefills)->Name("media_refills")->Unit(benchmark::kMicrosecond);

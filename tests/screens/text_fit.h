// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether the texts that a view shows have the room that they need.

#ifndef TESSARIN_TESTS_SCREENS_TEXT_FIT_H
#define TESSARIN_TESTS_SCREENS_TEXT_FIT_H

#include <QStringList>
#include <QWidget>

namespace tessarin::test {

/// What the visible part of a view shows.
struct TextFit {
    int texts = 0;        ///< texts that were compared with their places
    QStringList faults{}; ///< texts that are cut, and views that lie over others or stick out of theirs
    QStringList aside{};  ///< whole texts of rows that are in sight only after scrolling sideways
};

/// Compares what each visible text below `view` needs with the room it has: of labels, buttons, pop-ups with all
/// their choices, tabs, group boxes, lines of input, lists, rows of tables and headings of columns.
TextFit textFit(QWidget *view);

} // namespace tessarin::test

#endif

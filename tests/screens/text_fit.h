// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether the texts that a view shows have the room that they need.

#ifndef TESSARIN_TESTS_SCREENS_TEXT_FIT_H
#define TESSARIN_TESTS_SCREENS_TEXT_FIT_H

#include <QApplication>
#include <QFont>
#include <QStringList>
#include <QWidget>

#include <string>
#include <vector>

namespace tessarin::test {

/// "en" and every language that the panel is translated into.
std::vector<std::string> shippedLanguages();

/// What the visible part of a view shows.
struct TextFit {
    int texts = 0;        ///< texts that were compared with their places
    QStringList faults{}; ///< texts that are cut, and views that lie over others or stick out of theirs
    QStringList aside{};  ///< whole texts of rows that are in sight only after scrolling sideways
};

/// Compares what each visible text below `view` needs with the room it has: of labels, buttons, pop-ups with all
/// their choices, tabs, group boxes, lines of input, lists, rows of tables and headings of columns.
TextFit textFit(QWidget *view);

/// A larger font for all views as long as this object is there.
class FontScale {
public:
    explicit FontScale(int percent);
    ~FontScale();
    FontScale(const FontScale &) = delete;
    FontScale &operator=(const FontScale &) = delete;

private:
    QFont before_ = QApplication::font();
};

} // namespace tessarin::test

#endif

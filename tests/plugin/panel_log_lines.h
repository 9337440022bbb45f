// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The messages of a panel on the small PPD, as the log gets them, step by step. Their order within a step is the
// order in which the panel works; addresses stand still.

#ifndef TESSARIN_TESTS_PLUGIN_PANEL_LOG_LINES_H
#define TESSARIN_TESTS_PLUGIN_PANEL_LOG_LINES_H

#include "tests/ppd/ppd_test_support.h"

#include <string>
#include <vector>

namespace tessarin::test {

/// A pop-up with the choices of the small PPD.
struct PopUp {
    int row;
    int id;
    std::string keyword; ///< without "*"
    Pairs pairs;
    int selection; ///< pair number

    int count() const { return static_cast<int>(pairs.size()); }
    const std::string &selectedKey() const { return pairs.at(static_cast<std::size_t>(selection) - 1).first; }
    const std::string &selectedText() const { return pairs.at(static_cast<std::size_t>(selection) - 1).second; }
};

const std::vector<PopUp> &popUps();

/// Appends.
void append(Lines &lines, const Lines &more);

/// The lines as one text, so that a difference is shown line by line.
std::string joined(const Lines &lines);

/// Reading of the current choices from the PPD.
Lines selectionsRead();
/// Refilling of media type and resolution after the constraint checks.
Lines constraintsChecked();
/// The availability checks of intent and colour mode, whose pop-ups may not be there yet.
Lines availabilityChecked(bool popUpsThere);
/// The values of all sliders.
Lines slidersShown();
Lines colourModeShown();
/// Every pop-up is missing.
Lines popUpsMissing();
/// The six tabs, for the first time or again.
Lines controlsSetUp(bool first);
/// The sliders' values in the job.
Lines slidersSent();

} // namespace tessarin::test

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Access to PPD options and choices: the panel's tables, the parsed PPD, a job's option dictionary, and the host.
//
// Every value that leaves the panel goes through the host's willChangePPDOptionKeyValue(); nothing writes the PPD.

#ifndef TESSARIN_PPD_OPTION_ACCESS_H
#define TESSARIN_PPD_OPTION_ACCESS_H

#include "plugin/panel_context.h"
#include "ppd/option_table.h"

#include <QVariantMap>

#include <cstddef>
#include <cstdint>

namespace tessarin {

/// A job's PPD option dictionary: option key to choice key.
using OptionDictionary = QVariantMap;

/// The `pops` row with exactly this keyword ("*" included); -1 when there is none.
int findppdkey(const char *keyword);

/// The 0-based pair index of the first pair with this key. For a key that a non-empty list of n pairs does not have
/// the result is n, for an empty list -1.
int findppditem(const PPDOptionTable &choiceLists, int row, const char *choiceKey);

/// The 0-based pair index of the key in a list; 0 as well when the key is absent or null.
unsigned myFindPPDSelection(ChoiceList list, const char *choiceKey);

/// Reads the marked (else the default) choice of an option. With a text buffer its name is copied there, cut to
/// `textSize` - 1 bytes; else it is read as an integer into `intOut`. 0; -1 without option or choice (nothing is
/// written) and for a choice that is no number (`intOut` is 0).
int getPPDOptionSelectionValue(PanelContext *context, const char *keyword, std::int32_t *intOut, char *textOut,
                               std::size_t textSize);

/// An option's value in a job's dictionary (null: none): with a choice list the 1-based number of its pair, without
/// one the integer that it reads as. `defaultValue` when it is absent, no text, over 126 bytes, or names nothing.
int GetPPDValue(const OptionDictionary *dictionary, const char *keyword, ChoiceList list, int defaultValue);

/// Asks the host for a choice; true when it accepts. False without a host.
bool MySetPPDOption(PanelContext *context, const char *keyword, const char *choiceKey);

/// Sends a choice to the host, whose answer is ignored. A null keyword or choice is not sent. `reserved` is not
/// read.
void setPPDValue(PanelContext *context, int reserved, const char *keyword, const char *choiceKey);

/// Sets one entry of a dictionary when both texts are present.
void mySetPPDDictValue(OptionDictionary *dictionary, const char *key, const char *value);

/// A keyword without one leading "*"; null for null.
const char *withoutStar(const char *keyword);

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Page ranges as a person writes them: "1-3, 5, 8-".

#ifndef TESSARIN_SETTINGS_PAGE_RANGES_H
#define TESSARIN_SETTINGS_PAGE_RANGES_H

#include "printing/outcome.h"

#include <QString>

#include <vector>

namespace tessarin::host {

/// Pages first to last, counted from 1.
struct PageRange {
    int first = 1;
    int last = 1; ///< kLastPage: to the end of the document
};
inline constexpr int kLastPage = 2147483647; // the highest number that an IPP range can hold

/// Reads ranges in rising order, separated by commas, blanks allowed. An empty text is no ranges: all pages. The
/// reason of a failure names what cannot be read.
Outcome<std::vector<PageRange>> parsePageRanges(const QString &text);

/// Ranges as the print server reads them: "1-3,5,8-2147483647". Neighbours are joined.
QString normalPageRanges(const std::vector<PageRange> &ranges);

/// True when the page is in one of the ranges, or there are none.
bool containsPage(const std::vector<PageRange> &ranges, int page);

} // namespace tessarin::host

#endif

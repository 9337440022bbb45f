// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/page_ranges.h"

#include "printing/text.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace tessarin::host {

namespace {

/// A page number; 0 for what is none.
int pageNumber(const QString &digits)
{
    bool ok = false;
    const int number = digits.toInt(&ok);
    return ok && number > 0 ? number : 0;
}

} // namespace

Outcome<std::vector<PageRange>> parsePageRanges(const QString &text)
{
    using Result = Outcome<std::vector<PageRange>>;
    static const QRegularExpression form(QStringLiteral("^\\s*([0-9]+)?\\s*(-)?\\s*([0-9]+)?\\s*$"),
                                         QRegularExpression::UseUnicodePropertiesOption); // blanks of any kind
    std::vector<PageRange> ranges;
    if (text.trimmed().isEmpty()) {
        return ranges;
    }
    for (const QString &part : text.split(u',')) {
        const QRegularExpressionMatch match = form.match(part);
        const bool open = match.hasMatch() && !match.captured(2).isEmpty();
        const QString from = match.captured(1);
        const QString to = match.captured(3);
        if (!match.hasMatch() || (from.isEmpty() && to.isEmpty()) || (!open && (from.isEmpty() || !to.isEmpty()))) {
            return Result::failed(
                TessarinPrint::tr("page ranges: \"%1\" is not a page or a range such as 2-5").arg(part.trimmed()));
        }
        const PageRange range{.first = from.isEmpty() ? 1 : pageNumber(from),
                              .last = open ? (to.isEmpty() ? kLastPage : pageNumber(to)) : pageNumber(from)};
        if (range.first == 0 || range.last == 0) {
            return Result::failed(
                TessarinPrint::tr("page ranges: \"%1\" names a page that cannot be").arg(part.trimmed()));
        }
        if (range.last < range.first) {
            return Result::failed(
                TessarinPrint::tr("page ranges: \"%1\" ends before it begins").arg(part.trimmed()));
        }
        if (!ranges.empty() && range.first <= ranges.back().last) {
            return Result::failed(
                TessarinPrint::tr("page ranges: \"%1\" does not follow the pages before it: a job prints its "
                                  "pages in their order, each once")
                    .arg(part.trimmed()));
        }
        ranges.push_back(range);
    }
    return ranges;
}

QString normalPageRanges(const std::vector<PageRange> &ranges)
{
    std::vector<PageRange> joined;
    for (const PageRange &range : ranges) {
        if (!joined.empty() && joined.back().last != kLastPage && range.first == joined.back().last + 1) {
            joined.back().last = range.last;
        } else {
            joined.push_back(range);
        }
    }
    QStringList parts;
    for (const PageRange &range : joined) {
        parts << (range.first == range.last ? QString::number(range.first)
                                            : QStringLiteral("%1-%2").arg(range.first).arg(range.last));
    }
    return parts.join(u',');
}

bool containsPage(const std::vector<PageRange> &ranges, int page)
{
    return ranges.empty() || std::any_of(ranges.begin(), ranges.end(), [page](const PageRange &range) {
               return range.first <= page && page <= range.last;
           });
}

} // namespace tessarin::host

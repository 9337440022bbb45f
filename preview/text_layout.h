// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Plain text on pages, as a print server lays it out: ten characters to the inch, six lines to the inch.

#ifndef TESSARIN_PREVIEW_TEXT_LAYOUT_H
#define TESSARIN_PREVIEW_TEXT_LAYOUT_H

#include <QByteArray>
#include <QList>
#include <QMarginsF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

namespace tessarin::host {

inline constexpr double kTextColumn = 7.2; // points: ten characters to the inch
inline constexpr double kTextLine = 12;    // points: six lines to the inch

/// The columns and lines of a page.
struct TextGrid {
    int columns = 1;
    int lines = 1;
};

/// What of the paper (points) lies within margins of at least half an inch, in columns and lines; at least 1 each.
TextGrid textGrid(const QSizeF &paper, const QMarginsF &margins);
/// The margins (points) that text keeps: half an inch where the printer needs less.
QMarginsF textMargins(const QSizeF &paper, const QMarginsF &margins);

/// Bytes as text, UTF-8 or else Latin-1, without a byte order mark. Nothing when they are no text: a zero byte, or
/// other control characters than those that move on. A character that is cut off at the end is left out.
std::optional<QString> decodedText(const QByteArray &bytes);

/// Lines broken at the last column, tabs filled up to each eighth one, and divided into pages; a form feed begins a
/// new page. At least one page, at most `mostPages`.
QList<QStringList> textPages(const QString &text, const TextGrid &grid, int mostPages);

} // namespace tessarin::host

#endif

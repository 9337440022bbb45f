// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Documents written as one PDF file.

#ifndef TESSARIN_PREVIEW_PDF_WRITER_H
#define TESSARIN_PREVIEW_PDF_WRITER_H

#include "preview/page_painter.h"
#include "printing/outcome.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

namespace tessarin::host {

/// What goes into a PDF file, and where.
struct PdfRequest {
    QString target{};                           ///< the file; one that is there is replaced when all went well
    PageLayout layout{};                        ///< without paper, the pages keep their own sizes
    std::function<bool(int page)> isSelected{}; ///< of pages from 1 within each document; null: all
    QString title{};
};

/// Writes the selected pages of the documents, texts with all their pages. Pages stay vectors, but sheets in grey
/// are pictures of 300 dots to the inch. A single PDF document that nothing is to be changed of is copied as it is.
/// `progress` hears, on the calling thread, of the sheets that are done and in all; it may be null. Answers the
/// number of sheets written. When it fails, or `cancelled` becomes true, the target is as it was; the reason names
/// the file at fault.
Outcome<int> writePdf(const QStringList &documents, const PdfRequest &request, const std::atomic<bool> &cancelled,
                      const std::function<void(int done, int total)> &progress);

} // namespace tessarin::host

#endif

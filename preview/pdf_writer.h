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

struct PdfRequest {
    QString target{}; ///< the file; one that is there is replaced when all went well
    PageLayout layout{};
    std::function<bool(int page)> isSelected{}; ///< of pages from 1, through all documents; empty: all
    QString title{};
};

/// Writes the selected pages, as vectors where the documents have them. `progress` hears of pages done and in all.
/// Answers the number of sheets written. When it fails, or `cancelled` becomes true, the target is as it was; the
/// reason names the file at fault.
Outcome<int> writePdf(const QStringList &documents, const PdfRequest &request, const std::atomic<bool> &cancelled,
                      const std::function<void(int done, int total)> &progress);

} // namespace tessarin::host

#endif

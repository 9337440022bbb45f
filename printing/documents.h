// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The documents to print.

#ifndef TESSARIN_PRINTING_DOCUMENTS_H
#define TESSARIN_PRINTING_DOCUMENTS_H

#include "printing/outcome.h"

#include <QString>
#include <QStringList>
#include <QTemporaryFile>

#include <memory>
#include <vector>

namespace tessarin::host {

/// One document of a job.
struct JobDocument {
    QString path{}; ///< a readable regular file when it was checked
    QString name{}; ///< as shown and as the job's title: the file's name without folders
};

/// The checked documents of a dialog.
struct Documents {
    std::vector<JobDocument> list{};
    std::unique_ptr<QTemporaryFile> spool{}; ///< holds what came from standard input; null: nothing did
};

/// Checks that each file can be printed (a readable, regular, non-empty file) and reads standard input, named "-",
/// to its end into a temporary file, so that a failed submission does not lose it. The reason of a failure names
/// the file.
Outcome<Documents> prepareDocuments(const QStringList &names);

} // namespace tessarin::host

#endif

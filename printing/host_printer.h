// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The printer that the dialog prints on: a print queue, a PPD file that stands for a printer, or the sample
// printer.

#ifndef TESSARIN_PRINTING_HOST_PRINTER_H
#define TESSARIN_PRINTING_HOST_PRINTER_H

#include "printing/cups_queue.h"
#include "printing/outcome.h"
#include "printing/ppd_file.h"
#include "printing/ppd_translations.h"

#include "pde/print_dialog_extension.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessarin::host {

/// What kind of printer it is, which decides what Print does.
enum class PrinterKind {
    Queue,   ///< a queue of the print server: Print submits the document
    PpdFile, ///< a file named by the user: Print writes the ticket
    Pdf,     ///< no printer: Print writes the pages into a PDF file
    Sample,  ///< the sample printer that comes along: Print writes the ticket
};

/// A printer with its PPD open and its choices marked: the PPD's defaults, over them a queue's saved options.
class HostPrinter final : public pde::Printer {
public:
    /// The printer of a PPD file; its identifier is the file's base name without extension.
    static Outcome<std::shared_ptr<HostPrinter>> fromPpdFile(const QString &path);
    /// The sample printer, whose PPD lies at `path`; its identifier is "sample".
    static Outcome<std::shared_ptr<HostPrinter>> sample(const QString &path);
    /// A PDF file in place of a printer; the PPD at `path` offers the paper sizes. Its identifier is "pdf".
    static Outcome<std::shared_ptr<HostPrinter>> saveAsPdf(const QString &path);
    /// A queue of the print server; its identifier is the queue's name.
    static Outcome<std::shared_ptr<HostPrinter>> fromQueue(const QueueName &name);

    /// The same printer with its PPD open anew, nothing marked but its defaults; whole numbers among `numbers` can
    /// be marked in it even where the PPD does not list them.
    Outcome<std::shared_ptr<HostPrinter>> again(const CupsOptions &numbers) const;

    std::optional<QString> descriptionPath(const QString &descriptionType) const override;
    std::optional<QString> identifier() const override;

    PrinterKind kind() const { return kind_; }
    /// The name to show: the PPD's, or the identifier when the PPD gives none.
    QString displayName() const;
    /// The queue's name; empty for the other kinds.
    const QueueName &queueName() const { return queue_.name; }
    /// The queue's and the user's defaults; empty for the other kinds.
    const CupsOptions &savedOptions() const { return queue_.savedOptions; }
    /// The open PPD. Owned by this printer, never null.
    ppd_file_t *ppd() const { return ppd_.get(); }
    /// The PPD's texts in the languages that were asked for when it was opened.
    const PpdTranslations &translations() const { return translations_; }

private:
    struct Parts {
        PrinterKind kind = PrinterKind::PpdFile;
        QString path{};
        QString identifier{};
        QueueDescription queue{};
    };

    HostPrinter(Parts parts, PpdHandle ppd);
    static Outcome<std::shared_ptr<HostPrinter>> open(Parts parts, const CupsOptions &numbers = CupsOptions());

    PrinterKind kind_;
    QString path_;
    QString identifier_;
    QueueDescription queue_;
    PpdHandle ppd_;
    PpdTranslations translations_;
};

} // namespace tessarin::host

#endif

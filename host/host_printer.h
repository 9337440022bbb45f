// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The printer that the dialog prints on: a print queue, a PPD file that stands for a printer, or the sample
// printer.

#ifndef TESSARIN_HOST_HOST_PRINTER_H
#define TESSARIN_HOST_HOST_PRINTER_H

#include "host/cups_queue.h"
#include "host/outcome.h"
#include "host/ppd_file.h"

#include "pde/print_dialog_extension.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessarin::host {

/// What kind of printer it is, which decides what Print does.
enum class PrinterKind {
    Queue,   ///< a queue of the print server: Print submits the document
    PpdFile, ///< a file named by the user: Print writes the ticket
    Sample,  ///< the sample printer that comes along: Print writes the ticket
};

/// A printer with its PPD open and its choices marked: the PPD's defaults, over them a queue's saved options.
class HostPrinter final : public pde::Printer {
public:
    /// The printer of a PPD file; its identifier is the file's base name without extension.
    static Outcome<std::shared_ptr<HostPrinter>> fromPpdFile(const QString &path);
    /// The sample printer, whose PPD lies at `path`; its identifier is "sample".
    static Outcome<std::shared_ptr<HostPrinter>> sample(const QString &path);
    /// A queue of the print server; its identifier is the queue's name.
    static Outcome<std::shared_ptr<HostPrinter>> fromQueue(const QueueName &name);

    std::optional<QString> descriptionPath(const QString &descriptionType) const override;
    std::optional<QString> identifier() const override;

    PrinterKind kind() const { return kind_; }
    /// The name to show: the PPD's, or the identifier when the PPD gives none.
    QString displayName() const;
    /// The queue's name; empty for the other kinds.
    const QueueName &queueName() const { return queue_.name; }
    /// The open PPD. Owned by this printer, never null.
    ppd_file_t *ppd() const { return ppd_.get(); }

private:
    struct Parts {
        PrinterKind kind = PrinterKind::PpdFile;
        QString path{};
        QString identifier{};
        QueueDescription queue{};
    };

    HostPrinter(Parts parts, PpdHandle ppd);
    static Outcome<std::shared_ptr<HostPrinter>> open(Parts parts);

    PrinterKind kind_;
    QString path_;
    QString identifier_;
    QueueDescription queue_;
    PpdHandle ppd_;
};

} // namespace tessarin::host

#endif

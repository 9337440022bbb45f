// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The job ticket: the options that a print job takes along, and their text form.
//
// The text form has one option per line, "key=value", in UTF-8, each line ended by a newline. So that a line stays
// a line, a backslash, newline or carriage return in a key or value is written as \\, \n or \r, and a "=" in a key
// as \=. Reading accepts a last line without newline, passes over empty lines, and takes one carriage return before
// a newline for part of the line end.

#ifndef TESSARIN_PRINTING_TICKET_H
#define TESSARIN_PRINTING_TICKET_H

#include "printing/cups_options.h"
#include "printing/outcome.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace tessarin::host {

/// One option of a job.
struct TicketEntry {
    QString key{};   ///< a PPD main keyword without "*"
    QString value{}; ///< a choice of it, or a number
};

/// The options of one job in the order in which they were first set. Keys are compared without regard to case, as
/// in a PPD and in libcups' option lists, so that no two entries can fall into one on the way to the printer.
class JobTicket {
public:
    /// Sets an option; a later value replaces the earlier one at its place.
    void set(const QString &key, const QString &value);
    /// The value of an option; nothing when it is not in the ticket.
    std::optional<QString> value(const QString &key) const;
    const std::vector<TicketEntry> &entries() const { return entries_; }
    /// Takes out the options without a value: they say nothing to a printer.
    void removeEmpty();

    /// Keeps a hint: something the panel tells the dialog for its own use, which is no option of the job and so
    /// neither written nor sent.
    void setHint(const QString &key, const QString &value);
    std::optional<QString> hint(const QString &key) const;

    /// The text form. Empty for an empty ticket.
    QByteArray toLines() const;
    /// The ticket of a text form. Fails, naming the line, at a line without "=", an empty key, an unknown escape, a
    /// zero byte or text that is not UTF-8.
    static Outcome<JobTicket> fromLines(const QByteArray &text);

    /// The options as libcups takes them, without the hints.
    CupsOptions toCupsOptions() const;

private:
    std::vector<TicketEntry> entries_{};
    std::vector<TicketEntry> hints_{};
};

} // namespace tessarin::host

#endif

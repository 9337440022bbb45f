// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where a written ticket goes: a file or standard output.

#ifndef TESSARIN_PRINTING_TICKET_OUTPUT_H
#define TESSARIN_PRINTING_TICKET_OUTPUT_H

#include "printing/ticket.h"

#include <QString>

namespace tessarin::host {

/// Writes the ticket's text form to a file, whole or not at all; "-" or an empty name is standard output. Answers
/// why it could not be written, naming the file; an empty text when it was.
QString writeTicket(const JobTicket &ticket, const QString &fileName);

} // namespace tessarin::host

#endif

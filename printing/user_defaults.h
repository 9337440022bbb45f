// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The user's own default options of a queue, which every application's print dialog starts from.

#ifndef TESSARIN_PRINTING_USER_DEFAULTS_H
#define TESSARIN_PRINTING_USER_DEFAULTS_H

#include "printing/cups_options.h"
#include "printing/cups_queue.h"
#include "printing/outcome.h"

#include <QString>

namespace tessarin::host {

/// The file in which libcups keeps the user's options: "lpoptions" in the folder ".cups" of the user's home.
QString userOptionsFile();

/// Makes `options` the user's defaults for a queue or an instance of it, over those that are there. What other
/// queues and instances have, which queue is the default, and the queue's other options stay, also for queues that
/// the server does not list at the moment. "copies" is never kept; an option without value is one that the user has
/// no default of any more. An option whose value libcups' file cannot hold is refused before anything is written.
///
/// libcups writes the whole file, so that the old one is first copied to the same name with ".backup" behind it.
/// What was written is read back; where it is not what was asked for, or another queue's options changed, the old
/// file is put back. Some versions of libcups write the administrator's options into the file of all users
/// (/etc/cups/lpoptions), which is then treated alike.
///
/// Asks the print server, on the calling thread. Answers the file that was written, with a remark when it is that
/// of all users; the reason of a failure names the server, the option or the file.
Outcome<QString> makeUserDefaults(const QueueName &queue, const CupsOptions &options);

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The text of the file in which libcups keeps the user's options: a line for each queue or instance, such as
// "Dest office PageSize=A4" or, for the queue that is the user's default, "Default office/draft Duplex=None".

#ifndef TESSARIN_PRINTING_OPTIONS_FILE_H
#define TESSARIN_PRINTING_OPTIONS_FILE_H

#include "printing/cups_queue.h"

#include <QByteArray>
#include <QString>

namespace tessarin::host {

/// Whether an option comes back from the file as it went in. libcups writes values with blanks, quotes or
/// backslashes in quotes, but neither "#", which begins a comment, nor control characters, nor a brace without its
/// partner; and a value without text comes back as "true".
bool survivesOptionsFile(const QString &name, const QString &value);

/// The file as it shall be after libcups wrote it for one queue. libcups leaves out the queues that the server does
/// not list at the moment, makes the server's default queue the user's, and copies in what the administrator's file
/// says; here the lines of the queue and of its instances, which take after it, are libcups', and all others stay.
///
/// `before`: the file before; empty: there was none. `written`: the file as libcups wrote it. `ours`: the queue it
/// was written for.
QByteArray mergedOptionsFile(const QByteArray &before, const QByteArray &written, const QueueName &ours);

} // namespace tessarin::host

#endif

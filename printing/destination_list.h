// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The list of destinations that libcups makes, with an owner.

#ifndef TESSARIN_PRINTING_DESTINATION_LIST_H
#define TESSARIN_PRINTING_DESTINATION_LIST_H

#include "printing/cups_queue.h"

#include <cups/cups.h>

namespace tessarin::host {

/// All destinations of a print server with the user's instances of them, and the options that are saved for each.
/// Asks once, with the deadlines of the connection; a server without queues and one that does not answer both give
/// an empty list.
class DestinationList {
public:
    /// `http`: borrowed for the call.
    explicit DestinationList(http_t *http) : count_(cupsGetDests2(http, &list_)) {}
    ~DestinationList() { cupsFreeDests(count_, list_); }
    DestinationList(const DestinationList &) = delete;
    DestinationList &operator=(const DestinationList &) = delete;

    int count() const { return count_; }
    cups_dest_t *begin() const { return list_; }
    cups_dest_t *end() const { return list_ + count_; }
    /// A destination of the list, owned by it; null: there is none of this name.
    cups_dest_t *find(const QueueName &queue) const
    {
        const QByteArray instance = queue.instance.toUtf8();
        return cupsGetDest(queue.queue.toUtf8().constData(),
                           queue.instance.isEmpty() ? nullptr : instance.constData(), count_, list_);
    }

private:
    cups_dest_t *list_ = nullptr; ///< owned
    int count_ = 0;
};

} // namespace tessarin::host

#endif

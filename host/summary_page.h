// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog's page that lists what Print will send.

#ifndef TESSARIN_HOST_SUMMARY_PAGE_H
#define TESSARIN_HOST_SUMMARY_PAGE_H

#include "host/summary_lines.h"

#include <QTreeWidget>

namespace tessarin::host {

/// Two columns, setting and value, to read and to copy from.
class SummaryPage final : public QTreeWidget {
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent = nullptr);

    void showLines(const QList<SummaryLine> &lines);
};

} // namespace tessarin::host

#endif

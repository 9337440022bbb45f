// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/summary_page.h"

#include "printing/text.h"

#include <QHeaderView>

namespace tessarin::host {

SummaryPage::SummaryPage(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("summary"));
    setAccessibleName(TessarinPrint::tr("Summary"));
    setHeaderLabels({TessarinPrint::tr("Setting"), TessarinPrint::tr("Value")});
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header()->setStretchLastSection(true);
}

void SummaryPage::showLines(const QList<SummaryLine> &lines)
{
    clear();
    for (const SummaryLine &line : lines) {
        addTopLevelItem(new QTreeWidgetItem({line.label, line.value})); // owned by the tree
    }
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A program of one's own with the printer's panel in its print dialog: lists the options that the job would take.

#include "hosting/panel_tab.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextStream>
#include <QTimer>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QPrinter printer;
    QPrintDialog dialog(&printer);
    const auto tab = tessarin::PanelTab::addTo(dialog, {.ppdFile = QApplication::arguments().value(1)});
    if (QApplication::arguments().contains(QStringLiteral("--accept"))) {
        QTimer::singleShot(0, &dialog, &QDialog::accept);
    }
    if (!tab->isOpen() || dialog.exec() != QDialog::Accepted) {
        QTextStream(stderr) << tab->problem() << '\n';
        return 1;
    }
    for (const auto &[key, value] : tab->options()) {
        QTextStream(stdout) << key << '=' << value << '\n';
    }
    return 0;
}

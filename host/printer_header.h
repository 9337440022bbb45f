// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The head of the dialog: which printer, and what is to be printed.

#ifndef TESSARIN_HOST_PRINTER_HEADER_H
#define TESSARIN_HOST_PRINTER_HEADER_H

#include <QLabel>
#include <QString>
#include <QWidget>

namespace tessarin::host {

/// A line of plain text that is cut with an ellipsis where it does not fit; the whole text is its tool tip then.
class LineLabel final : public QLabel {
    Q_OBJECT

public:
    explicit LineLabel(const QString &text, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// A picture of a printer, its name in bold, and a line of detail under it.
class PrinterHeader final : public QWidget {
    Q_OBJECT

public:
    PrinterHeader(const QString &name, const QString &detail, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void draw();

    QLabel *picture_; ///< owned by this widget
};

} // namespace tessarin::host

#endif

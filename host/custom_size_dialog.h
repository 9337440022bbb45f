// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Asks for the width and height of a paper that the printer's list of sizes does not have.

#ifndef TESSARIN_HOST_CUSTOM_SIZE_DIALOG_H
#define TESSARIN_HOST_CUSTOM_SIZE_DIALOG_H

#include "printing/host_printer.h"

#include <QDialog>
#include <QDoubleSpinBox>
#include <QSizeF>
#include <QString>

namespace tessarin::host {

/// True for a printer that takes papers of any size within its limits.
bool takesCustomSizes(const HostPrinter &printer);

/// Two numbers within the limits of the printer's PPD, in millimetres, or in inches where the user's locale
/// measures in them.
class CustomSizeDialog final : public QDialog {
    Q_OBJECT

public:
    /// `size`: what is shown first, in points (1/72 inch); an empty one: the smallest.
    CustomSizeDialog(const HostPrinter &printer, const QSizeF &size, QWidget *parent = nullptr);

    /// The size as PPD options name it, such as "Custom.300x450mm".
    QString choice() const;

private:
    QDoubleSpinBox *makeLength(double smallest, double largest, double value, const QString &name);

    bool inInches_;
    QDoubleSpinBox *width_; ///< owned by this widget, as the following
    QDoubleSpinBox *height_;
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The head of the dialog: which printer, how it is, and what is to be printed.

#ifndef TESSARIN_HOST_PRINTER_PICKER_H
#define TESSARIN_HOST_PRINTER_PICKER_H

#include "printing/host_printer.h"

#include <QComboBox>
#include <QLabel>
#include <QList>
#include <QString>
#include <QToolButton>
#include <QWidget>

namespace tessarin::host {

/// A printer that can be chosen, not yet open.
struct PrinterChoice {
    PrinterKind kind = PrinterKind::Sample;
    QueueName queue{}; ///< of a queue
    QString path{};    ///< of a PPD file
    QString name{};    ///< as shown in the list
    QString detail{};  ///< place and state, as shown under the list

    bool isSame(const PrinterChoice &other) const
    {
        return kind == other.kind && queue.text() == other.queue.text() && path == other.path;
    }
    /// Under which the printer's presets are kept, and by which it is remembered: "queue NAME", "ppd PATH",
    /// "sample" or "pdf".
    QString identity() const;
};

/// A picture of a printer, the list of printers, a button that looks for them again, and a line of detail.
class PrinterPicker final : public QWidget {
    Q_OBJECT

public:
    explicit PrinterPicker(QWidget *parent = nullptr);

    /// Puts these into the list. The current one stays, even when it is not among them.
    void setChoices(const QList<PrinterChoice> &choices);
    const QList<PrinterChoice> &choices() const { return choices_; }
    /// Shows a choice as the current one, adding it where it is missing; picks nothing.
    void setCurrent(const PrinterChoice &choice);
    const PrinterChoice &current() const { return current_; }
    /// Text behind the current printer's own detail, such as the documents' names.
    void setRemark(const QString &remark);
    void setSearching(bool searching);

signals:
    void picked(const tessarin::host::PrinterChoice &choice);
    void refreshRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void fill();
    void draw();
    void showDetail();

    QList<PrinterChoice> choices_{};
    PrinterChoice current_{};
    QString remark_{};
    bool searching_ = false;
    QLabel *picture_; ///< owned by this widget, as the following
    QComboBox *list_;
    QToolButton *refresh_;
    QLabel *detail_;
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The print dialog.

#ifndef TESSARIN_HOST_DIALOG_H
#define TESSARIN_HOST_DIALOG_H

#include "printing/delivery.h"
#include "settings/host_callback.h"
#include "host/panel_area.h"
#include "host/panel_session.h"
#include "host/summary_page.h"

#include "pde/print_dialog_extension.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace tessarin::host {

/// What a dialog is made of. Plug-in and delivery are borrowed and outlive the dialog.
struct DialogParts {
    std::shared_ptr<HostPrinter> printer{};
    std::shared_ptr<DialogCallback> callback{}; ///< made for the same printer
    pde::PlugIn *plugIn = nullptr;
    Delivery *delivery = nullptr;
    QStringList documentNames{}; ///< as shown; may be empty
};

/// A printer's name, its panel of settings, Print and Cancel.
///
/// Print hands the panel's settings to the ticket and delivers it, once however often it is pressed. The dialog is
/// accepted when that went well, and else says what went wrong and stays as it is. While a delivery runs, Cancel
/// stops it and leaves the dialog open.
class PrintDialog final : public QDialog {
    Q_OBJECT

public:
    explicit PrintDialog(const DialogParts &parts, QWidget *parent = nullptr);
    /// Gives the panel's view back to the panel, which may outlive the dialog.
    ~PrintDialog() override;

    /// Makes the panel put its settings into the ticket.
    void saveSettings();
    /// The summary of the settings as they stand now: the panel is saved first. Nothing when there is no panel or
    /// it gives none.
    std::optional<QList<SummaryLine>> currentSummary();
    /// The view of the panel; null when there is none.
    QWidget *panelView() const { return session_.view; }
    const PanelSession &panelSession() const { return session_; }
    /// What is wrong with the panel, for the user; empty when nothing is.
    const QString &panelProblem() const { return session_.problem; }

    QSize sizeHint() const override;

public slots:
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeBody();
    QWidget *makeFooter();
    void print();
    void finish(const QString &failure);
    void setDelivering(bool delivering);
    void showSummary(bool shown);

    DialogParts parts_;
    PanelSession session_;
    bool delivering_ = false;
    bool stopping_ = false;            ///< the user asked to stop the running delivery
    QWidget *body_ = nullptr;          ///< owned by the dialog, as the following
    PanelArea *area_ = nullptr;        ///< null when there is no view
    QStackedWidget *pages_ = nullptr;  ///< panel and summary; null when there is no view
    SummaryPage *summary_ = nullptr;   ///< null when there is no view
    QPushButton *toSummary_ = nullptr; ///< null when there is no view
    QLabel *status_ = nullptr;
    QPushButton *print_ = nullptr;
    QPushButton *cancel_ = nullptr;
};

} // namespace tessarin::host

#endif

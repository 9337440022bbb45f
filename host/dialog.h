// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The print dialog.

#ifndef TESSARIN_HOST_DIALOG_H
#define TESSARIN_HOST_DIALOG_H

#include "host/job_run.h"
#include "host/notice_bar.h"
#include "host/open_printer.h"
#include "host/pages_area.h"
#include "host/preset_menu.h"
#include "host/printer_picker.h"
#include "host/summary_lines.h"

#include "pde/print_dialog_extension.h"
#include "preview/preview_pane.h"
#include "preview/preview_renderer.h"
#include "printing/delivery.h"
#include "printing/destinations.h"
#include "printing/documents.h"
#include "printing/printer_loader.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QVBoxLayout>

#include <functional>
#include <memory>
#include <optional>

namespace tessarin::host {

/// Makes what Print uses for a printer. `separateJobs`: each document is to be a job of its own.
using DeliveryFactory = std::function<std::unique_ptr<Delivery>(const HostPrinter &printer, bool separateJobs)>;

/// What a dialog is made of. Plug-in and documents are borrowed and outlive the dialog.
struct DialogParts {
    pde::PlugIn *plugIn = nullptr;          ///< null: see panelProblem
    QString panelProblem{};                 ///< why there is no plug-in
    std::shared_ptr<HostPrinter> printer{}; ///< shown from the start; null: `wanted` is opened
    PrinterChoice wanted{};                 ///< of `printer`, or the one to open; without name: the user's default
    QList<PrinterChoice> offered{};         ///< besides the queues: the sample printer, a PPD file, a PDF file
    bool discover = false;                  ///< look for the queues of the print server
    KeyValues values{};                     ///< set over the first printer's defaults
    QString preset{};                       ///< applied to the first printer; empty: none
    QStringList documentPaths{};
    QStringList documentNames{}; ///< as shown; may be empty
    bool separateJobs = false;   ///< what the person is offered at first, where there are several documents
    DeliveryFactory makeDelivery{};
};

/// Printers, their pages, presets, Print and Cancel.
///
/// Print hands all settings to the ticket and delivers it, once however often it is pressed. The dialog is accepted
/// when the job is done, and else says what went wrong and stays as it is, document and settings kept. While a
/// delivery runs, Cancel stops it and leaves the dialog open. Nothing here waits for the network or a document.
class PrintDialog final : public QDialog {
    Q_OBJECT

public:
    explicit PrintDialog(DialogParts parts, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// The printer that is open; null while there is none.
    OpenPrinter *openPrinter() const { return open_.get(); }
    PagesArea *pages() const { return pages_; }
    NoticeBar *notice() const { return notice_; }
    /// The view of the panel; null when there is none.
    QWidget *panelView() const { return open_ ? open_->panel().view.data() : nullptr; }
    /// What is wrong with the panel, for the user; empty when nothing is.
    QString panelProblem() const { return open_ ? open_->panel().problem : QString(); }

    /// Makes the panel put its settings into the ticket.
    void saveSettings();
    /// The summary of the panel's settings as they stand now: the panel is saved first. Nothing when there is no
    /// panel or it gives none.
    std::optional<QList<SummaryLine>> currentSummary();
    /// All that Print would send.
    JobTicket completeTicket();

    /// What a person chose on a page: comes about at once, or after consent to what else must change, or not.
    void choose(const QString &key, const QString &value);
    /// Sets values, opening the printer anew where the panel does not follow. Answers what was wrong; an empty text
    /// when nothing was.
    QString applyValues(const KeyValues &values);
    void applyPreset(const QString &name);

    QSize sizeHint() const override;

public slots:
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeHeader(QVBoxLayout *column);
    void makeFooter(QVBoxLayout *column);
    // Printers
    void start();
    void pick(const PrinterChoice &choice);
    void openChoice(const PrinterChoice &choice);
    void cancelOpening();
    void adopt(std::shared_ptr<HostPrinter> printer, PrinterChoice choice);
    void printerFailed(const QString &reason);
    void destinationsFound(const QList<Destination> &destinations);
    void showPrinter(std::shared_ptr<OpenPrinter> printer);
    void showPlaceholder(const QString &text, const QList<NoticeAction> &actions = {});
    void updatePreview();
    // Settings
    void offerResolution(const KeyValue &wanted, const QString &reason, const KeyValues &changes);
    void offerUndo(const QString &text, std::function<void()> undo);
    KeyValues allSet();
    bool showAgain(const Outcome<std::shared_ptr<OpenPrinter>> &again);
    void resetKeys(const QStringList &keys);
    void resetAll();
    std::function<void()> undoOf(const KeyValues &before);
    QString differences(const QString &what, const KeyValues &wanted) const;
    void panelChose(const KeyValue &choice);
    // Printing
    void print();
    bool findsConflicts();
    bool isHandedOver() const;
    std::unique_ptr<JobRun> deliver(std::unique_ptr<Delivery> delivery, const QueueName &queue);
    void saveAsPdf();
    void deliverPdf(const QString &path);
    void jobFailed(const QString &reason);
    void jobEnded();
    void setDelivering(bool delivering);
    void updateEnabled();

    DialogParts parts_;
    std::shared_ptr<OpenPrinter> open_{};
    std::unique_ptr<PrinterLoader> loader_;
    std::unique_ptr<DestinationFinder> finder_;
    std::unique_ptr<PreviewRenderer> renderer_;
    std::unique_ptr<JobRun> run_;    ///< of the queue; kept after a failure, for what is still to be sent
    std::unique_ptr<JobRun> pdfRun_; ///< into a file
    QString pdfPath_{};              ///< where the last run writes or wrote a PDF file; empty: it was no such run
    PrinterChoice runChoice_{};      ///< where `run_` prints
    bool runSeparate_ = false;       ///< each document of `run_` is a job of its own
    PrinterChoice opening_{};        ///< without name: nothing is being opened
    bool started_ = false;
    bool delivering_ = false;
    bool stopping_ = false;           ///< the user asked to stop the running delivery
    PrinterPicker *picker_ = nullptr; ///< owned by the dialog, as the following
    NoticeBar *notice_ = nullptr;
    QWidget *body_ = nullptr;
    QVBoxLayout *bodyColumn_ = nullptr;
    QLabel *placeholder_ = nullptr;
    PagesArea *pages_ = nullptr; ///< null while no printer is open
    PreviewPane *preview_ = nullptr;
    PresetMenu *presets_ = nullptr;
    QCheckBox *separate_ = nullptr;
    QLabel *status_ = nullptr;
    QProgressBar *progress_ = nullptr;
    QPushButton *print_ = nullptr;
    QPushButton *cancel_ = nullptr;
};

} // namespace tessarin::host

#endif

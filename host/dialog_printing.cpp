// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog's part in printing: the check before it, the job's way, and what happens when it fails.

#include "host/dialog.h"

#include "host/memory.h"
#include "host/pdf_delivery.h"
#include "host/printer_choices.h"
#include "printing/text.h"
#include "settings/conflicts.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

#include <utility>

namespace tessarin::host {

namespace {

constexpr int kProgressSteps = 1000;

/// Where a PDF of these documents would be looked for.
QString suggestedPdf(const QStringList &names)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString base = names.isEmpty() ? QString() : QFileInfo(names.front()).completeBaseName();
    return QDir(folder).filePath((base.isEmpty() ? TessarinPrint::tr("print") : base) + QStringLiteral(".pdf"));
}

} // namespace

void PrintDialog::print()
{
    // What was chosen a moment ago comes first, and what it asks about.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    if (isHandedOver()) {
        accept(); // the job is the server's now, and goes on
        return;
    }
    if (delivering_ || !open_ || !opening_.name.isEmpty()) {
        return;
    }
    if (const QWidget *asking = QApplication::activeModalWidget(); asking && asking != this) {
        return;
    }
    if (const QString problem = pages_->problem(); !problem.isEmpty()) {
        pages_->showPage(Page::General);
        notice_->tell(problem);
        return;
    }
    if (open_->printer().kind() == PrinterKind::Pdf) {
        saveAsPdf();
        return;
    }
    const JobTicket ticket = completeTicket();
    if (findsConflicts()) {
        return;
    }
    pdfPath_.clear();
    const bool isSameWay = runSeparate_ == separate_->isChecked() || (run_ && run_->hasSentSome());
    if (run_ && run_->canStartAgain() && runChoice_.isSame(picker_->current()) && isSameWay) {
        setDelivering(true);
        run_->start(ticket); // of several jobs those that are still missing
        return;
    }
    runChoice_ = picker_->current();
    runSeparate_ = separate_->isChecked();
    run_ = deliver(parts_.makeDelivery(open_->printer(), runSeparate_), open_->printer().queueName());
    run_->start(ticket);
}

bool PrintDialog::isHandedOver() const
{
    return delivering_ && pdfPath_.isEmpty() && run_ && run_->isHandedOver();
}

bool PrintDialog::findsConflicts()
{
    const QList<OptionChoice> conflicts = presentConflicts(open_->printer());
    if (conflicts.isEmpty()) {
        return false;
    }
    QStringList names;
    for (const OptionChoice &one : conflicts) {
        names << TessarinPrint::tr("%1: %2").arg(one.keyText, one.choiceText);
    }
    const KeyValue kept{.key = conflicts.front().key, .value = conflicts.front().choice};
    const KeyValues changes = resolvingChanges(open_->printer(), kept.key, kept.value);
    if (!changes.isEmpty()) {
        offerResolution(kept, conflictReason(open_->printer(), kept.key, kept.value), changes);
        return true;
    }
    auto *box = new QMessageBox(
        QMessageBox::Warning, TessarinPrint::tr("Settings that exclude each other"),
        TessarinPrint::tr("The printer cannot do all of this at once: %1.").arg(names.join(QStringLiteral(", "))),
        QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(TessarinPrint::tr("Nothing was printed. Change one of these settings."));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return true;
}

std::unique_ptr<JobRun> PrintDialog::deliver(std::unique_ptr<Delivery> delivery, const QueueName &queue)
{
    setDelivering(true);
    auto run = std::make_unique<JobRun>(std::move(delivery), queue);
    connect(run.get(), &JobRun::progressed, this, [this](qint64 done, qint64 total) {
        progress_->setRange(0, total > 0 ? kProgressSteps : 0);
        progress_->setValue(total > 0 ? static_cast<int>(done * kProgressSteps / total) : 0);
    });
    connect(run.get(), &JobRun::told, status_, &QLabel::setText);
    connect(run.get(), &JobRun::handedOver, this, [this] {
        progress_->setRange(0, 0);
        rememberPrinter(picker_->current().identity());
        presets_->rememberLastUsed();
        cancel_->setText(TessarinPrint::tr("Cancel Job"));
        print_->setText(TessarinPrint::tr("Close"));
        print_->setToolTip(TessarinPrint::tr("Close the dialog and let the job go on"));
        updateEnabled();
    });
    connect(run.get(), &JobRun::ended, this, &PrintDialog::jobEnded);
    connect(run.get(), &JobRun::failed, this, &PrintDialog::jobFailed);
    connect(run.get(), &JobRun::cancelled, this, [this](const QString &reason) {
        setDelivering(false);
        status_->setText(TessarinPrint::tr("Not printed: %1").arg(reason));
    });
    return run;
}

void PrintDialog::jobEnded()
{
    if (open_->printer().kind() != PrinterKind::Queue) {
        rememberPrinter(picker_->current().identity());
        presets_->rememberLastUsed();
    }
    accept();
}

void PrintDialog::jobFailed(const QString &reason)
{
    const bool wanted = stopping_;
    setDelivering(false);
    if (wanted) {
        status_->setText(TessarinPrint::tr("Not printed: %1").arg(reason));
        return;
    }
    auto *box =
        new QMessageBox(QMessageBox::Critical, TessarinPrint::tr("Not printed"), reason, QMessageBox::Close, this);
    box->setObjectName(QStringLiteral("failure"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(TessarinPrint::tr("Your document and settings are kept: you can try again."));
    QPushButton *retry = box->addButton(TessarinPrint::tr("&Retry"), QMessageBox::AcceptRole);
    box->setDefaultButton(retry);
    if (pdfPath_.isEmpty()) {
        connect(retry, &QPushButton::clicked, this, &PrintDialog::print, Qt::QueuedConnection);
    } else {
        connect(
            retry, &QPushButton::clicked, this, [this, path = pdfPath_] { deliverPdf(path); },
            Qt::QueuedConnection);
    }
    if (!parts_.documentPaths.isEmpty()) {
        QPushButton *save = box->addButton(TessarinPrint::tr("&Save as PDF…"), QMessageBox::ActionRole);
        connect(save, &QPushButton::clicked, this, &PrintDialog::saveAsPdf, Qt::QueuedConnection);
    }
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void PrintDialog::saveAsPdf()
{
    if (parts_.documentPaths.isEmpty()) {
        notice_->tell(TessarinPrint::tr("There is no document to save as PDF."));
        return;
    }
    auto *files = new QFileDialog(this, TessarinPrint::tr("Save as PDF"), suggestedPdf(parts_.documentNames),
                                  TessarinPrint::tr("PDF files (*.pdf)"));
    files->setAcceptMode(QFileDialog::AcceptSave);
    files->setDefaultSuffix(QStringLiteral("pdf"));
    files->setAttribute(Qt::WA_DeleteOnClose);
    connect(files, &QFileDialog::fileSelected, this, &PrintDialog::deliverPdf);
    files->open();
}

void PrintDialog::deliverPdf(const QString &path)
{
    const JobTicket ticket = completeTicket();
    PdfRequest request{.target = path,
                       .layout = layoutOf(open_->settings()),
                       .isSelected = selectedPages(open_->settings()),
                       .title = parts_.documentNames.value(0)};
    pdfPath_ = path;
    pdfRun_ = deliver(std::make_unique<PdfDelivery>(std::move(request), parts_.documentPaths), {});
    pdfRun_->start(ticket);
}

void PrintDialog::setDelivering(bool delivering)
{
    delivering_ = delivering;
    stopping_ = false;
    if (delivering) {
        setFocus(); // disabling Print would move the focus to Cancel, and a second Enter would stop the printing
    }
    print_->setText(TessarinPrint::tr("&Print"));
    print_->setToolTip(QString());
    cancel_->setText(TessarinPrint::tr("Cancel"));
    updateEnabled();
    progress_->setVisible(delivering);
    progress_->setRange(0, 0);
    if (!delivering) {
        print_->setFocus();
    }
    status_->setText(delivering ? TessarinPrint::tr("Printing…") : QString());
}

void PrintDialog::reject()
{
    if (!delivering_ && open_ && !opening_.name.isEmpty()) {
        cancelOpening();
        return;
    }
    if (!delivering_) {
        loader_->cancel();
        QDialog::reject();
        return;
    }
    stopping_ = true;
    status_->setText(TessarinPrint::tr("Stopping…"));
    (pdfPath_.isEmpty() ? run_ : pdfRun_)->cancel();
}

void PrintDialog::closeEvent(QCloseEvent *event)
{
    if (isHandedOver()) {
        accept(); // who closes the window does not ask for the job's end
        return;
    }
    QDialog::closeEvent(event);
}

} // namespace tessarin::host

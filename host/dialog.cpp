// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/dialog.h"

#include "host/printer_header.h"
#include "printing/text.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

namespace tessarin::host {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 8;

/// What a line under the printer's name tells of printer and documents.
QString detailOf(const HostPrinter &printer, const QStringList &documents)
{
    QString where;
    switch (printer.kind()) {
    case PrinterKind::Queue:
        where = TessarinPrint::tr("Queue %1").arg(printer.queueName().text());
        break;
    case PrinterKind::PpdFile:
        where = TessarinPrint::tr("PPD file %1")
                    .arg(printer.descriptionPath(QLatin1String(pde::kPPDDescriptionType)).value_or(QString()));
        break;
    case PrinterKind::Sample:
        where = TessarinPrint::tr("Sample printer: Print lists the job's options");
        break;
    }
    if (documents.isEmpty()) {
        return where;
    }
    //: %1 says where the printer is, %2 names the documents
    return TessarinPrint::tr("%1  ·  %2").arg(where, documents.join(QStringLiteral(", ")));
}

QFrame *makeLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

QLabel *makeNote(const QString &text, QWidget *parent)
{
    auto *note = new QLabel(text, parent);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setObjectName(QStringLiteral("panelProblem"));
    return note;
}

} // namespace

PrintDialog::PrintDialog(const DialogParts &parts, QWidget *parent)
    : QDialog(parent), parts_(parts), session_(openPanel(*parts.plugIn, parts.callback))
{
    const QString name = parts_.printer->displayName();
    setWindowTitle(TessarinPrint::tr("Print – %1").arg(name));
    auto *header = new PrinterHeader(name, detailOf(*parts_.printer, parts_.documentNames), this);
    header->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    body_ = makeBody();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header);
    column->addWidget(makeLine(this));
    column->addWidget(body_, 1);
    column->addWidget(makeLine(this));
    column->addWidget(makeFooter());
}

PrintDialog::~PrintDialog()
{
    // The panel still knows its controls: were they to go with the dialog, the panel's own clean-up, which comes
    // with its factory, would find them gone.
    if (area_) {
        area_->releaseView();
    }
}

QWidget *PrintDialog::makeBody()
{
    auto *body = new QWidget(this);
    auto *column = new QVBoxLayout(body);
    column->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    column->setSpacing(kSpacing);
    if (!session_.name.isEmpty()) {
        auto *heading = new LineLabel(session_.name, body);
        heading->setObjectName(QStringLiteral("panelName"));
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        column->addWidget(heading);
    }
    if (!session_.problem.isEmpty()) {
        column->addWidget(makeNote(session_.problem, body));
    }
    if (session_.view) {
        area_ = new PanelArea(body);
        area_->showView(session_.view);
        summary_ = new SummaryPage(body);
        pages_ = new QStackedWidget(body);
        pages_->addWidget(area_);
        pages_->addWidget(summary_);
        column->addWidget(pages_, 1);
    } else {
        column->addWidget(
            makeNote(TessarinPrint::tr("You can print all the same, with the printer's own settings."), body));
        column->addStretch(1);
    }
    return body;
}

QWidget *PrintDialog::makeFooter()
{
    auto *footer = new QWidget(this);
    status_ = new LineLabel(QString(), footer);
    status_->setObjectName(QStringLiteral("status"));
    auto *buttons = new QDialogButtonBox(footer);
    print_ = buttons->addButton(TessarinPrint::tr("&Print"), QDialogButtonBox::AcceptRole);
    print_->setObjectName(QStringLiteral("print"));
    print_->setDefault(true);
    cancel_ = buttons->addButton(TessarinPrint::tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel_->setObjectName(QStringLiteral("cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PrintDialog::print);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrintDialog::reject);

    auto *row = new QHBoxLayout(footer);
    row->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    if (pages_) {
        toSummary_ = new QPushButton(TessarinPrint::tr("&Summary"), footer);
        toSummary_->setObjectName(QStringLiteral("toSummary"));
        toSummary_->setCheckable(true);
        toSummary_->setAutoDefault(false);
        toSummary_->setToolTip(TessarinPrint::tr("List all settings as Print will send them"));
        connect(toSummary_, &QPushButton::toggled, this, &PrintDialog::showSummary);
        row->addWidget(toSummary_);
    }
    row->addWidget(status_, 1);
    row->addWidget(buttons);
    return footer;
}

QSize PrintDialog::sizeHint() const
{
    constexpr QSize least(480, 240);
    return QDialog::sizeHint().expandedTo(least);
}

void PrintDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous() && !testAttribute(Qt::WA_DontShowOnScreen)) {
        // Room for the frame that the window manager adds.
        constexpr QSize frame(16, 40);
        resize(sizeHint().boundedTo(screen()->availableSize() - frame));
        print_->setFocus();
    }
    QDialog::showEvent(event);
}

void PrintDialog::saveSettings()
{
    if (session_.panel) {
        session_.panel->saveValuesAndReturnError(nullptr);
    }
}

std::optional<QList<SummaryLine>> PrintDialog::currentSummary()
{
    if (!session_.panel) {
        return std::nullopt;
    }
    saveSettings(); // the panel's summary shows what was last stored
    const std::optional<pde::Summary> summary = session_.panel->summaryInfo();
    return summary ? std::optional(summaryLines(*summary)) : std::nullopt;
}

void PrintDialog::showSummary(bool shown)
{
    if (shown) {
        summary_->showLines(currentSummary().value_or(QList<SummaryLine>()));
    }
    pages_->setCurrentWidget(shown ? static_cast<QWidget *>(summary_) : area_);
}

void PrintDialog::print()
{
    if (delivering_) {
        return;
    }
    setDelivering(true);
    saveSettings();
    parts_.delivery->start(parts_.callback->ticket(), [this](const QString &failure) { finish(failure); });
}

void PrintDialog::finish(const QString &failure)
{
    if (failure.isEmpty()) {
        accept();
        return;
    }
    const bool wanted = stopping_;
    setDelivering(false);
    if (wanted) {
        status_->setText(TessarinPrint::tr("Not printed: %1").arg(failure));
        return;
    }
    auto *box =
        new QMessageBox(QMessageBox::Critical, TessarinPrint::tr("Not printed"), failure, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(TessarinPrint::tr("Your settings are kept: you can try again."));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void PrintDialog::setDelivering(bool delivering)
{
    delivering_ = delivering;
    stopping_ = false;
    if (delivering) {
        setFocus(); // disabling Print would move the focus to Cancel, and a second Enter would stop the printing
    }
    print_->setEnabled(!delivering);
    body_->setEnabled(!delivering);
    if (!delivering) {
        print_->setFocus();
    }
    status_->setText(delivering ? TessarinPrint::tr("Printing…") : QString());
}

void PrintDialog::reject()
{
    if (!delivering_) {
        QDialog::reject();
        return;
    }
    stopping_ = true;
    status_->setText(TessarinPrint::tr("Stopping…"));
    parts_.delivery->cancel();
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/dialog.h"

#include "host/line_label.h"
#include "printing/text.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QShowEvent>

#include <utility>

namespace tessarin::host {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 8;

QFrame *makeLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

PrintDialog::PrintDialog(DialogParts parts, QWidget *parent)
    : QDialog(parent), parts_(std::move(parts)), loader_(std::make_unique<PrinterLoader>()),
      finder_(std::make_unique<DestinationFinder>()), renderer_(std::make_unique<PreviewRenderer>())
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    makeHeader(column);

    body_ = new QWidget(this);
    bodyColumn_ = new QVBoxLayout(body_);
    bodyColumn_->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    placeholder_ = new QLabel(body_);
    placeholder_->setObjectName(QStringLiteral("placeholder"));
    placeholder_->setTextFormat(Qt::PlainText);
    placeholder_->setWordWrap(true);
    placeholder_->setAlignment(Qt::AlignCenter);
    bodyColumn_->addWidget(placeholder_, 1);
    column->addWidget(body_, 1);
    makeFooter(column);

    preview_ = new PreviewPane(this);
    preview_->setRenderer(renderer_.get());
    preview_->hide();
    if (!parts_.documentPaths.isEmpty()) {
        renderer_->setDocuments(parts_.documentPaths);
    }

    connect(loader_.get(), &PrinterLoader::loaded, this,
            [this](const std::shared_ptr<HostPrinter> &printer) { adopt(printer, opening_); });
    connect(loader_.get(), &PrinterLoader::failed, this, &PrintDialog::printerFailed);
    connect(finder_.get(), &DestinationFinder::found, this, &PrintDialog::destinationsFound);
    connect(finder_.get(), &DestinationFinder::failed, this, [this](const QString &reason) {
        picker_->setSearching(false);
        if (!open_ && opening_.name.isEmpty()) {
            showPlaceholder(reason, {{TessarinPrint::tr("Tr&y Again"), [this] { start(); }}});
        } else if (notice_->isHidden()) {
            notice_->tell(reason);
        } // else what it says is nearer to the person's heart: an undo, or why their printer does not open
    });

    setWindowTitle(TessarinPrint::tr("Print"));
    picker_->setChoices(parts_.offered);
    if (parts_.printer) {
        adopt(parts_.printer, parts_.wanted);
    } else {
        showPlaceholder(TessarinPrint::tr("Looking for printers…"));
    }
    updateEnabled();
}

PrintDialog::~PrintDialog()
{
    // The panel still knows its controls: were they to go with the dialog, the panel's own clean-up, which comes
    // with its factory, would find them gone.
    if (pages_) {
        pages_->takePreview(this);
        delete pages_;
    }
    preview_->setRenderer(nullptr);
}

void PrintDialog::makeHeader(QVBoxLayout *column)
{
    picker_ = new PrinterPicker(this);
    picker_->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    picker_->setRemark(parts_.documentNames.join(QStringLiteral(", ")));
    connect(picker_, &PrinterPicker::picked, this, &PrintDialog::pick);
    connect(picker_, &PrinterPicker::refreshRequested, this, [this] {
        picker_->setSearching(true);
        finder_->start();
    });
    notice_ = new NoticeBar(this);
    separate_ = new QCheckBox(TessarinPrint::tr("Print each document as a &job of its own"), this);
    separate_->setObjectName(QStringLiteral("separateJobs"));
    separate_->setChecked(parts_.separateJobs);
    separate_->setVisible(parts_.documentPaths.size() > 1);
    auto *margin = new QHBoxLayout;
    margin->setContentsMargins(kMargin, kSpacing, kMargin, 0);
    margin->addWidget(notice_);
    column->addWidget(picker_);
    column->addWidget(makeLine(this));
    column->addLayout(margin);
}

void PrintDialog::makeFooter(QVBoxLayout *column)
{
    presets_ = new PresetMenu(this);
    connect(presets_, &PresetMenu::applyRequested, this, &PrintDialog::applyPreset);
    connect(presets_, &PresetMenu::resetRequested, this, &PrintDialog::resetAll);
    connect(presets_, &PresetMenu::told, notice_, [this](const QString &text) { notice_->tell(text); });
    connect(presets_, &PresetMenu::undoOffered, this, &PrintDialog::offerUndo);
    presets_->setValuesSource([this] {
        saveSettings();
        return open_;
    });
    status_ = new LineLabel(QString(), this);
    status_->setObjectName(QStringLiteral("status"));
    progress_ = new QProgressBar(this);
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setAccessibleName(TessarinPrint::tr("Progress"));
    progress_->setTextVisible(false);
    progress_->setMaximumWidth(160);
    progress_->hide();
    auto *buttons = new QDialogButtonBox(this);
    print_ = buttons->addButton(TessarinPrint::tr("&Print"), QDialogButtonBox::AcceptRole);
    print_->setObjectName(QStringLiteral("print"));
    print_->setDefault(true);
    cancel_ = buttons->addButton(TessarinPrint::tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel_->setObjectName(QStringLiteral("cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PrintDialog::print);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrintDialog::reject);

    auto *row = new QHBoxLayout;
    row->addWidget(presets_);
    row->addSpacing(kSpacing);
    row->addWidget(status_, 1);
    row->addWidget(progress_);
    row->addWidget(buttons);
    auto *lines = new QVBoxLayout; // two of them: in some languages one would be wider than a small screen
    lines->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    lines->addWidget(separate_);
    lines->addLayout(row);
    column->addWidget(makeLine(this));
    column->addLayout(lines);
}

QSize PrintDialog::sizeHint() const
{
    constexpr QSize least(640, 420);
    return QDialog::sizeHint().expandedTo(least);
}

void PrintDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous() && !testAttribute(Qt::WA_DontShowOnScreen)) {
        // Room for the frame that the window manager adds, and on Wayland for the desktop's panels, of which
        // programs there are told nothing.
        const bool isWayland = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
        const QSize frame(16, isWayland ? 80 : 40);
        resize(sizeHint().boundedTo(screen()->availableSize() - frame));
        print_->setFocus();
    }
    QDialog::showEvent(event);
    if (!started_) {
        started_ = true;
        start();
    }
}

} // namespace tessarin::host

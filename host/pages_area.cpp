// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/pages_area.h"

#include "host/line_label.h"
#include "host/summary_rows.h"
#include "printing/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace tessarin::host {

namespace {

constexpr int kSpacing = 12;

QLabel *makeNote(const QString &text, QWidget *parent)
{
    auto *note = new QLabel(text, parent);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    return note;
}

} // namespace

PagesArea::PagesArea(OpenPrinter &printer, QWidget *preview, QWidget *parent)
    : QWidget(parent), printer_(printer), preview_(preview), list_(new QListWidget(this)),
      stack_(new QStackedWidget(this))
{
    list_->setObjectName(QStringLiteral("pages"));
    list_->setAccessibleName(TessarinPrint::tr("Pages"));
    list_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    general_ = new GeneralPage(printer_.settings(), stack_);
    general_->setPreview(preview_);
    preview_->show();
    auto *general = new PanelArea(stack_); // on a small screen the page is scrolled
    general->showView(general_);
    features_ = new FeaturesPage(printer_.settings(), printer_.panelKeys(), stack_);
    summary_ = new SummaryPage(stack_);
    const QString panelName = printer_.panel().name;
    addPage(TessarinPrint::tr("General"), QStringLiteral("generalPage"), general);
    addPage(panelName.isEmpty() ? TessarinPrint::tr("Printer Settings") : panelName, QStringLiteral("panelPage"),
            makePanelPage());
    addPage(TessarinPrint::tr("Printer Features"), QStringLiteral("featuresPage"), features_);
    addPage(TessarinPrint::tr("Summary"), QStringLiteral("summaryPage"), summary_);
    list_->setFixedWidth(list_->sizeHintForColumn(0) + 2 * list_->frameWidth());

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    row->addWidget(list_);
    row->addWidget(stack_, 1);

    connect(general_, &GeneralPage::chosen, this, &PagesArea::chosen);
    connect(features_, &FeaturesPage::chosen, this, &PagesArea::chosen);
    connect(summary_, &SummaryPage::resetRequested, this, &PagesArea::resetRequested);
    connect(summary_, &SummaryPage::resetAllRequested, this, &PagesArea::resetAllRequested);
    connect(list_, &QListWidget::currentRowChanged, this, [this](int index) {
        stack_->setCurrentIndex(index);
        emit pageShown(page());
    });
    for (int i = 0; i < list_->count(); ++i) {
        auto *shortcut = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i)), this);
        connect(shortcut, &QShortcut::activated, this, [this, i] { list_->setCurrentRow(i); });
        list_->item(i)->setToolTip(shortcut->key().toString(QKeySequence::NativeText));
    }
    list_->setCurrentRow(0);
}

PagesArea::~PagesArea()
{
    if (area_) {
        area_->releaseView();
    }
}

QWidget *PagesArea::makePanelPage()
{
    const PanelSession &panel = printer_.panel();
    auto *page = new QWidget(stack_);
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    if (!panel.name.isEmpty()) {
        auto *heading = new LineLabel(panel.name, page);
        heading->setObjectName(QStringLiteral("panelName"));
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        column->addWidget(heading);
    }
    if (!panel.problem.isEmpty()) {
        QLabel *note = makeNote(panel.problem, page);
        note->setObjectName(QStringLiteral("panelProblem"));
        column->addWidget(note);
    }
    if (panel.view) {
        area_ = new PanelArea(page);
        area_->showView(panel.view);
        column->addWidget(area_, 1);
    } else {
        column->addWidget(
            makeNote(TessarinPrint::tr("You can print all the same, with the settings of the other pages."), page));
        column->addStretch(1);
    }
    return page;
}

void PagesArea::addPage(const QString &title, const QString &name, QWidget *page)
{
    page->setObjectName(name);
    stack_->addWidget(page);
    auto *item = new QListWidgetItem(title, list_); // owned by the list
    const QFontMetrics metrics = list_->fontMetrics();
    item->setSizeHint(QSize(metrics.horizontalAdvance(title) + 2 * kSpacing, metrics.height() + kSpacing));
}

Page PagesArea::page() const
{
    return static_cast<Page>(stack_->currentIndex());
}

void PagesArea::showPage(Page page)
{
    list_->setCurrentRow(static_cast<int>(page));
}

void PagesArea::refresh()
{
    general_->refresh();
    features_->refresh();
    summary_->showSections(summarySections(printer_.settings(), printer_.panelKeys(), printer_.panel().name));
}

void PagesArea::takePreview(QWidget *newParent)
{
    preview_->hide();
    preview_->setParent(newParent);
}

} // namespace tessarin::host

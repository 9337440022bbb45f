// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/summary_page.h"

#include "host/theme.h"
#include "printing/text.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tessarin::host {

namespace {

constexpr int kKeyRole = Qt::UserRole;         // the setting's key
constexpr int kDiffersRole = Qt::UserRole + 1; // true for a row that can be reset
enum Column : int { kLabel, kValue, kNote };

QString note(const SummaryRow &row)
{
    if (row.key.isEmpty()) {
        return TessarinPrint::tr("set for this job");
    }
    return row.defaultValue.isEmpty() ? TessarinPrint::tr("changed (default: none)")
                                      : TessarinPrint::tr("changed (default: %1)").arg(row.defaultValue);
}

} // namespace

SummaryPage::SummaryPage(QWidget *parent)
    : QWidget(parent), tree_(new QTreeWidget(this)),
      reset_(new QPushButton(TessarinPrint::tr("Reset to &Default"), this)),
      resetAll_(new QPushButton(TessarinPrint::tr("Reset A&ll to Defaults"), this)),
      resetAction_(new QAction(TessarinPrint::tr("Reset to &Default"), this))
{
    makeTree();
    reset_->setObjectName(QStringLiteral("reset"));
    reset_->setToolTip(TessarinPrint::tr("Reset the selected settings (Delete)"));
    resetAll_->setObjectName(QStringLiteral("resetAll"));
    for (QPushButton *button : {reset_, resetAll_}) {
        button->setAutoDefault(false);
        button->setEnabled(false);
    }
    makeActions();
    connect(reset_, &QPushButton::clicked, this, &SummaryPage::resetSelected);
    connect(resetAll_, &QPushButton::clicked, this, &SummaryPage::resetAllRequested);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(reset_);
    buttons->addWidget(resetAll_);
    buttons->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tree_, 1);
    column->addLayout(buttons);
}

void SummaryPage::makeTree()
{
    tree_->setObjectName(QStringLiteral("summary"));
    tree_->setAccessibleName(TessarinPrint::tr("Summary"));
    tree_->setHeaderLabels({TessarinPrint::tr("Setting"), TessarinPrint::tr("Value"), TessarinPrint::tr("Note")});
    tree_->setRootIsDecorated(false);
    tree_->setItemsExpandable(false);
    tree_->setAlternatingRowColors(true);
    tree_->setUniformRowHeights(true);
    tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree_->header()->setSectionResizeMode(kNote, QHeaderView::Fixed);
    tree_->header()->setStretchLastSection(false);
    tree_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(tree_->header(), &QHeaderView::sectionResized, this, [this](int section) {
        if (section != kNote) {
            fitNotes();
        }
    });
    tree_->installEventFilter(this);
    tree_->viewport()->installEventFilter(this);
    connect(tree_, &QTreeWidget::itemSelectionChanged, this, [this] {
        const bool any = !resettableKeys().isEmpty();
        reset_->setEnabled(any);
        resetAction_->setEnabled(any);
    });
}

// The toolkit would cut the last column where there is no room; here it can be scrolled to.
void SummaryPage::fitNotes()
{
    QHeaderView *header = tree_->header();
    tree_->resizeColumnToContents(kNote);
    const int free = tree_->viewport()->width() - header->length();
    if (free > 0) {
        header->resizeSection(kNote, header->sectionSize(kNote) + free);
    }
}

void SummaryPage::makeActions()
{
    resetAction_->setEnabled(false);
    connect(resetAction_, &QAction::triggered, this, &SummaryPage::resetSelected);
    auto *copy = new QAction(TessarinPrint::tr("&Copy"), this);
    connect(copy, &QAction::triggered, this, &SummaryPage::copySelected);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    // The menu waits for nobody: what it resets may replace this page.
    connect(tree_, &QTreeWidget::customContextMenuRequested, this, [this, copy](const QPoint &place) {
        auto *menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addActions({resetAction_, copy});
        menu->popup(tree_->viewport()->mapToGlobal(place));
    });
}

QIcon SummaryPage::changedMark() const
{
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    QPixmap picture(QSize(size, size) * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(legibleColor(palette().color(QPalette::Link), palette().color(QPalette::Base),
                                  palette().color(QPalette::Text), kShapeContrast));
    painter.drawEllipse(QRectF(0, 0, size, size).center(), size / 4.0, size / 4.0);
    return QIcon(picture);
}

void SummaryPage::showSections(const QList<SummarySection> &sections)
{
    QStringList selected;
    for (const QTreeWidgetItem *item : tree_->selectedItems()) {
        selected << item->data(kLabel, kKeyRole).toString();
    }
    const QTreeWidgetItem *before = tree_->currentItem();
    const QString current = before ? before->data(kLabel, kKeyRole).toString() : QString();
    const int scrolled = tree_->verticalScrollBar()->value();
    tree_->clear();
    for (const SummarySection &section : sections) {
        auto *title = new QTreeWidgetItem(tree_, {section.title}); // owned by the tree, as the rows
        title->setFlags(Qt::ItemIsEnabled);
        QFont bold = tree_->font();
        bold.setBold(true);
        title->setFont(kLabel, bold);
        title->setFirstColumnSpanned(true);
        for (const SummaryRow &row : section.rows) {
            addRow(title, row);
        }
        title->setExpanded(true);
    }
    bool anyDiffers = false;
    for (QTreeWidgetItemIterator item(tree_); *item; ++item) {
        const QString key = (*item)->data(kLabel, kKeyRole).toString();
        anyDiffers = anyDiffers || (*item)->data(kLabel, kDiffersRole).toBool();
        if (key.isEmpty()) {
            continue;
        }
        if (key == current) {
            tree_->setCurrentItem(*item, kLabel, QItemSelectionModel::NoUpdate);
        }
        (*item)->setSelected(selected.contains(key));
    }
    tree_->verticalScrollBar()->setValue(scrolled);
    resetAll_->setEnabled(anyDiffers);
    fitNotes();
}

void SummaryPage::addRow(QTreeWidgetItem *title, const SummaryRow &row)
{
    auto *item = new QTreeWidgetItem(title, {row.label, row.value}); // owned by the title
    item->setData(kLabel, kKeyRole, row.key);
    if (!row.differs) {
        return;
    }
    QFont bold = tree_->font();
    bold.setBold(true);
    item->setFont(kValue, bold);
    item->setText(kNote, note(row));
    item->setIcon(kNote, changedMark());
    item->setData(kLabel, kDiffersRole, !row.key.isEmpty());
}

QStringList SummaryPage::resettableKeys() const
{
    QStringList keys;
    for (const QTreeWidgetItem *item : tree_->selectedItems()) {
        if (item->data(kLabel, kDiffersRole).toBool()) {
            keys << item->data(kLabel, kKeyRole).toString();
        }
    }
    return keys;
}

void SummaryPage::resetSelected()
{
    if (const QStringList keys = resettableKeys(); !keys.isEmpty()) {
        emit resetRequested(keys);
    }
}

void SummaryPage::copySelected() const
{
    QStringList lines;
    for (QTreeWidgetItemIterator item(tree_, QTreeWidgetItemIterator::Selected); *item; ++item) {
        const QString label = (*item)->text(kLabel);
        // Some labels end in a colon of their own.
        lines << label + QLatin1String(label.endsWith(u':') ? " " : ": ") + (*item)->text(kValue);
    }
    if (!lines.isEmpty()) {
        QApplication::clipboard()->setText(lines.join(u'\n'));
    }
}

bool SummaryPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == tree_ && event->type() == QEvent::KeyPress) {
        auto *press = static_cast<QKeyEvent *>(event);
        if (press->key() == Qt::Key_Delete || press->key() == Qt::Key_Backspace) {
            resetSelected();
            return true;
        }
        if (press->matches(QKeySequence::Copy)) {
            copySelected();
            return true;
        }
    }
    if (watched == tree_->viewport() && event->type() == QEvent::Resize) {
        fitNotes();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tessarin::host

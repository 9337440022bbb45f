// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/printer_picker.h"

#include "host/input_guard.h"
#include "host/line_label.h"
#include "host/printer_icon.h"
#include "printing/text.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace tessarin::host {

namespace {

constexpr int kPictureSize = 32;
constexpr int kShortestName = 24; // characters of the longest name that count for the list's width

} // namespace

QString PrinterChoice::identity() const
{
    switch (kind) {
    case PrinterKind::Queue:
        return QStringLiteral("queue ") + queue.text();
    case PrinterKind::PpdFile:
        return QStringLiteral("ppd ") + path;
    case PrinterKind::Pdf:
        return QStringLiteral("pdf");
    case PrinterKind::Sample:
        break;
    }
    return QStringLiteral("sample");
}

PrinterPicker::PrinterPicker(QWidget *parent)
    : QWidget(parent), picture_(new QLabel(this)), list_(new QComboBox(this)), refresh_(new QToolButton(this)),
      detail_(new LineLabel(QString(), this))
{
    auto *caption = new QLabel(TessarinPrint::tr("P&rinter:"), this);
    caption->setBuddy(list_);
    guardInput(*list_);
    list_->setObjectName(QStringLiteral("printers"));
    list_->setAccessibleName(TessarinPrint::tr("Printer"));
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list_->setMinimumContentsLength(kShortestName);
    connect(list_, &QComboBox::activated, this, [this](int index) {
        const PrinterChoice choice = choices_.at(index); // a copy: the list may be filled anew meanwhile
        emit picked(choice);
    });
    refresh_->setObjectName(QStringLiteral("refresh"));
    refresh_->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
    refresh_->setToolTip(TessarinPrint::tr("Look for printers again (F5)"));
    refresh_->setAccessibleName(TessarinPrint::tr("Look for printers again"));
    refresh_->setShortcut(QKeySequence(Qt::Key_F5));
    connect(refresh_, &QToolButton::clicked, this, &PrinterPicker::refreshRequested);
    detail_->setObjectName(QStringLiteral("printerDetail"));

    auto *first = new QHBoxLayout;
    first->addWidget(caption);
    first->addWidget(list_, 1);
    first->addWidget(refresh_);
    auto *lines = new QVBoxLayout;
    lines->setSpacing(2);
    lines->addLayout(first);
    lines->addWidget(detail_);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(picture_);
    row->addLayout(lines, 1);
    draw();
}

void PrinterPicker::setChoices(const QList<PrinterChoice> &choices)
{
    choices_ = choices;
    const auto found = std::find_if(choices_.begin(), choices_.end(),
                                    [this](const PrinterChoice &choice) { return choice.isSame(current_); });
    if (found != choices_.end()) {
        current_ = *found; // its state may be another now
    } else if (!current_.name.isEmpty()) {
        choices_.prepend(current_);
    }
    fill();
}

void PrinterPicker::setCurrent(const PrinterChoice &choice)
{
    current_ = choice;
    setChoices(choices_);
}

void PrinterPicker::setRemark(const QString &remark)
{
    remark_ = remark;
    showDetail();
}

void PrinterPicker::setSearching(bool searching)
{
    searching_ = searching;
    refresh_->setEnabled(!searching);
    showDetail();
}

void PrinterPicker::fill()
{
    const QSignalBlocker blocker(list_);
    list_->clear();
    for (const PrinterChoice &choice : choices_) {
        list_->addItem(choice.name);
        list_->setItemData(list_->count() - 1, choice.detail, Qt::ToolTipRole);
        if (choice.isSame(current_)) {
            list_->setCurrentIndex(list_->count() - 1);
        }
    }
    if (current_.name.isEmpty()) {
        list_->setCurrentIndex(-1);
    }
    showDetail();
}

void PrinterPicker::showDetail()
{
    QStringList parts;
    for (const QString &part :
         {current_.detail, remark_, searching_ ? TessarinPrint::tr("looking for printers…") : QString()}) {
        if (!part.isEmpty()) {
            parts << part;
        }
    }
    detail_->setText(parts.join(QStringLiteral("  ·  ")));
}

void PrinterPicker::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        draw();
    }
}

void PrinterPicker::draw()
{
    picture_->setPixmap(printerPicture(kPictureSize, devicePixelRatioF(), palette()));
}

} // namespace tessarin::host

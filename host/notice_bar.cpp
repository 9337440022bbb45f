// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/notice_bar.h"

#include "printing/text.h"

#include <QStyle>
#include <QToolButton>

namespace tessarin::host {

NoticeBar::NoticeBar(QWidget *parent) : QFrame(parent), text_(new QLabel(this)), row_(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("notice"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setObjectName(QStringLiteral("noticeText"));
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *close = new QToolButton(this);
    close->setObjectName(QStringLiteral("noticeClose"));
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAccessibleName(TessarinPrint::tr("Close the notice"));
    connect(close, &QToolButton::clicked, this, &NoticeBar::dismiss);
    row_->addWidget(text_, 1);
    row_->addWidget(close);
    hide();
}

void NoticeBar::tell(const QString &text, const QList<NoticeAction> &actions)
{
    dismiss();
    text_->setText(text);
    setAccessibleName(text);
    QWidget *before = text_;
    for (const NoticeAction &action : actions) {
        auto *button = new QPushButton(action.text, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, run = action.run] {
            dismiss();
            run();
        });
        row_->insertWidget(row_->count() - 1, button);
        buttons_ << button;
        setTabOrder(before, button);
        before = button;
    }
    show();
}

void NoticeBar::dismiss()
{
    for (QPushButton *button : buttons_) {
        button->hide();
        button->deleteLater(); // it may be the one whose click brought us here
    }
    buttons_.clear();
    text_->clear();
    hide();
}

QString NoticeBar::text() const
{
    return text_->text();
}

} // namespace tessarin::host

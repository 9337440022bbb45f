// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A line over the pages that tells something without standing in the way, with what can be done about it.

#ifndef TESSARIN_HOST_NOTICE_BAR_H
#define TESSARIN_HOST_NOTICE_BAR_H

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QList>
#include <QPushButton>
#include <QString>

#include <functional>

namespace tessarin::host {

struct NoticeAction {
    QString text{};
    std::function<void()> run{};
};

/// Hidden while there is nothing to tell. A new notice takes the place of the old one.
class NoticeBar final : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    void tell(const QString &text, const QList<NoticeAction> &actions = {});
    void dismiss();
    /// What is told; empty for nothing.
    QString text() const;

private:
    QLabel *text_; ///< owned by this widget, as the following
    QHBoxLayout *row_;
    QList<QPushButton *> buttons_{};
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog's page that lists what Print will send.

#ifndef TESSARIN_HOST_SUMMARY_PAGE_H
#define TESSARIN_HOST_SUMMARY_PAGE_H

#include "host/summary_rows.h"

#include <QAction>
#include <QIcon>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTreeWidget>
#include <QWidget>

namespace tessarin::host {

/// Setting, value, and what the default would be where it is another. Settings can be reset one by one (a button,
/// the rows' menu, Delete and Backspace) and all at once; selected rows can be copied as text.
class SummaryPage final : public QWidget {
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent = nullptr);

    /// Shows these in place of what is shown; the current row and the selection stay where their settings are.
    void showSections(const QList<SummarySection> &sections);

signals:
    /// Keys of settings that differ from their defaults, at least one.
    void resetRequested(const QStringList &keys);
    void resetAllRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeTree();
    void makeActions();
    void fitNotes();
    void addRow(QTreeWidgetItem *title, const SummaryRow &row);
    QIcon changedMark() const;
    QStringList resettableKeys() const;
    void resetSelected();
    void copySelected() const;

    QTreeWidget *tree_; ///< owned by this widget, as the following
    QPushButton *reset_;
    QPushButton *resetAll_;
    QAction *resetAction_;
};

} // namespace tessarin::host

#endif

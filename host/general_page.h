// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The page of what every printer has: copies, pages, paper, orientation, sides.

#ifndef TESSARIN_HOST_GENERAL_PAGE_H
#define TESSARIN_HOST_GENERAL_PAGE_H

#include "host/option_box.h"
#include "settings/job_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QRadioButton>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace tessarin::host {

/// What a person chooses is told by chosen() and not yet set; the page shows what the settings hold. Paper and
/// sides are there where the printer's PPD has them, copies where there is a printer.
class GeneralPage final : public QWidget {
    Q_OBJECT

public:
    /// `settings` outlives this widget.
    explicit GeneralPage(JobSettings &settings, QWidget *parent = nullptr);

    /// The options of the PPD that this page shows.
    static QStringList optionKeys();
    /// Shows a preview beside the settings. It becomes a child of this page until somebody gives it another parent.
    void setPreview(QWidget *preview);
    /// Shows what holds. Page ranges that a person is writing and that cannot be read yet stay as they are.
    void refresh();
    /// Why what is written on this page is not what the settings hold; empty when it is. With a problem nothing
    /// should be printed: it would be other pages than those that the person sees here.
    QString problem() const;

signals:
    void chosen(const QString &key, const QString &value);

private:
    void askForSize();
    void addOption(QFormLayout *form, const QString &caption, const char *key);
    QComboBox *addAttribute(QFormLayout *form, const QString &caption, const char *key, const QStringList &values);
    void makeCopies(QFormLayout *form);
    void makePages(QFormLayout *form);
    void chooseRanges();
    void showRanges();
    void showProblem();

    JobSettings &settings_;
    QHBoxLayout *row_; ///< owned by this widget, as the following
    QSpinBox *copies_;
    QCheckBox *collate_;
    QRadioButton *allPages_;
    QRadioButton *somePages_;
    QLineEdit *ranges_;
    QLabel *rangesProblem_;
    QList<QComboBox *> attributes_{}; ///< each bears its attribute's name
    QList<OptionBox *> options_{};
    QString shownRanges_{}; ///< the value that the written ranges stand for, or stood for before they were changed
    bool wantsRanges_ = false; ///< "Pages" is chosen and not "All"
};

} // namespace tessarin::host

#endif

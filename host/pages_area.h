// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The pages of one open printer: their list at the left, the current one beside it.

#ifndef TESSARIN_HOST_PAGES_AREA_H
#define TESSARIN_HOST_PAGES_AREA_H

#include "host/features_page.h"
#include "host/general_page.h"
#include "host/open_printer.h"
#include "host/panel_area.h"
#include "host/summary_page.h"

#include <QListWidget>
#include <QStackedWidget>
#include <QString>
#include <QWidget>

namespace tessarin::host {

enum class Page : int { General = 0, Panel = 1, Features = 2, Summary = 3 };

/// General, the panel (or why there is none), Printer Features and Summary. What a person chooses on the dialog's
/// own pages is told by chosen(); whether it comes about is the dialog's business, and the pages show what holds.
class PagesArea final : public QWidget {
    Q_OBJECT

public:
    /// `printer` outlives this object. `preview` is shown on the first page; it stays the caller's, who takes it
    /// back with takePreview() before this object goes.
    PagesArea(OpenPrinter &printer, QWidget *preview, QWidget *parent = nullptr);
    /// Gives the panel's view back to the panel, which may outlive the dialog.
    ~PagesArea() override;

    Page page() const;
    void showPage(Page page);
    /// What a person has written on a page that cannot be read; empty when there is nothing of the kind.
    QString problem() const { return general_->problem(); }
    /// Shows on the pages what the settings hold, after a choice that did not come about.
    void refresh();
    /// Gives the preview another parent and takes it off the page.
    void takePreview(QWidget *newParent);

signals:
    void chosen(const QString &key, const QString &value);
    void resetRequested(const QStringList &keys);
    void resetAllRequested();
    void pageShown(tessarin::host::Page page);

private:
    QWidget *makePanelPage();
    void addPage(const QString &title, const QString &name, QWidget *page);

    OpenPrinter &printer_;
    QWidget *preview_;
    QListWidget *list_; ///< owned by this widget, as the following
    QStackedWidget *stack_;
    GeneralPage *general_ = nullptr;
    PanelArea *area_ = nullptr; ///< null when there is no view
    FeaturesPage *features_ = nullptr;
    SummaryPage *summary_ = nullptr;
};

} // namespace tessarin::host

#endif

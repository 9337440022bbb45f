// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A pop-up for one option of the printer's PPD.

#ifndef TESSARIN_HOST_OPTION_BOX_H
#define TESSARIN_HOST_OPTION_BOX_H

#include "settings/job_settings.h"
#include "settings/option_catalogue.h"

#include <QComboBox>
#include <QString>

namespace tessarin::host {

/// Shows an option's choices and the one that holds. What a person chooses is told by chosen() and not yet set: the
/// dialog decides, and until then what holds is shown. Choices that would be in conflict are drawn faint and say
/// with what, but can be chosen: the dialog offers what has to change for it. A value that is none of the choices,
/// such as a number that the PPD does not list, is shown among them while it holds.
class OptionBox final : public QComboBox {
    Q_OBJECT

public:
    /// `settings` outlives this widget.
    OptionBox(JobSettings &settings, const CatalogueOption &option, QWidget *parent = nullptr);

    const CatalogueOption &option() const { return option_; }
    /// Adds an entry at the end that is no choice: who picks it is asked for more, which moreWanted() tells.
    void offerMore(const QString &text);
    /// Shows what holds, and what is in conflict now.
    void refresh();
    void showPopup() override;

signals:
    /// Told when the event that chose is over, so that the dialog may replace this widget.
    void chosen(const QString &key, const QString &choice);
    void moreWanted();

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    /// Where a value that is none of the choices is shown, and behind it the entry for more.
    int listed() const { return static_cast<int>(option_.choices.size()); }
    bool isMore(int index) const { return offersMore_ && index == count() - 1; }
    void showValue();
    void choose(int index);
    void markConflict(int index);
    void markConflicts();

    JobSettings &settings_;
    CatalogueOption option_;
    bool offersMore_ = false;
};

} // namespace tessarin::host

#endif

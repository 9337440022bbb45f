// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The place of the panel, or of another view that a small screen has no room for.

#ifndef TESSARIN_HOST_PANEL_AREA_H
#define TESSARIN_HOST_PANEL_AREA_H

#include <QPointer>
#include <QScrollArea>

namespace tessarin::host {

/// Shows a view whole where the screen has room for it, and scrolls it where not.
class PanelArea final : public QScrollArea {
    Q_OBJECT

public:
    explicit PanelArea(QWidget *parent = nullptr);

    /// Shows `view`, which this area owns until releaseView().
    void showView(QWidget *view);
    /// Gives the view back to the parent it had before, and with it to whoever owned it.
    void releaseView();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QPointer<QWidget> formerParent_{}; ///< null: the view had none
};

} // namespace tessarin::host

#endif

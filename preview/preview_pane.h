// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The place in the dialog that shows the document.

#ifndef TESSARIN_PREVIEW_PREVIEW_PANE_H
#define TESSARIN_PREVIEW_PREVIEW_PANE_H

#include "preview/preview_renderer.h"

#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QString>
#include <QStyle>
#include <QToolButton>
#include <QWidget>

namespace tessarin::host {

/// One sheet at a time, with buttons, keys (Page Up, Page Down, Home, End) and the wheel to turn to others.
class PreviewPane final : public QWidget {
    Q_OBJECT

public:
    explicit PreviewPane(QWidget *parent = nullptr);

    /// What draws; borrowed, null for nothing.
    void setRenderer(PreviewRenderer *renderer);
    int sheet() const { return sheet_; }
    /// What is shown in place of a sheet; empty while there is one.
    QString message() const;

    QSize sizeHint() const override;

public slots:
    void showSheet(int sheet);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QToolButton *addButton(const char *name, const QString &text, QStyle::StandardPixmap icon);
    QRect paperArea() const;
    void start();
    void take(int sheet, const QImage &image);
    void showPosition();

    QPointer<PreviewRenderer> renderer_{};
    int sheet_ = 0;
    QImage image_{};
    int wheel_ = 0; ///< part of a turn that did not yet make a page
    QWidget *bar_;  ///< owned by this widget, as the following
    QToolButton *first_;
    QToolButton *previous_;
    QLabel *position_;
    QToolButton *next_;
    QToolButton *last_;
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The place in the dialog that shows the document.

#ifndef TESSARIN_PREVIEW_PREVIEW_PANE_H
#define TESSARIN_PREVIEW_PREVIEW_PANE_H

#include "preview/preview_renderer.h"
#include "preview/turn_bar.h"

#include <QImage>
#include <QLabel>
#include <QPen>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace tessarin::host {

/// One sheet at a time, with buttons, keys (Page Up, Page Down, Home, End) and the wheel to turn to others.
class PreviewPane final : public QWidget {
    Q_OBJECT

public:
    explicit PreviewPane(QWidget *parent = nullptr);

    /// What draws; borrowed, null for nothing.
    void setRenderer(PreviewRenderer *renderer);
    /// The sheet that is shown, from 0.
    int sheet() const { return sheet_; }
    /// The picture that is shown; null while there is none.
    const QImage &picture() const { return image_; }
    /// The room for it, within the pane.
    QRect paperArea() const;
    /// What is shown in place of a picture; empty while there is one.
    QString message() const;

    QSize sizeHint() const override;

public slots:
    /// Turns to a sheet; beyond the first or last one to that.
    void showSheet(int sheet);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void turnTo(Turn turn);
    QPen focusPen() const;
    void drawPaper(QPainter &painter, const QRect &area) const;
    void ask();
    void take(int sheet, const QImage &image);
    void fail(int sheet, const QString &reason);
    void forget();
    void showPosition();

    QPointer<PreviewRenderer> renderer_{};
    int sheet_ = 0;
    QImage image_{};
    QString failure_{}; ///< why there is no picture of the sheet; empty: it may still come
    int wheel_ = 0;     ///< part of a turn that did not yet make a page
    QTimer asking_{};   ///< runs while the size may still change
    QTimer patience_{}; ///< runs while nothing is said of a picture that is late
    QLabel *remark_;    ///< owned by this widget, as the following
    TurnBar *bar_;
};

} // namespace tessarin::host

#endif

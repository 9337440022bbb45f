// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The buttons that turn from sheet to sheet.

#ifndef TESSARIN_PREVIEW_TURN_BAR_H
#define TESSARIN_PREVIEW_TURN_BAR_H

#include <QIcon>
#include <QLabel>
#include <QString>
#include <QToolButton>
#include <QWidget>

namespace tessarin::host {

enum class Turn { First, Previous, Next, Last };

/// First, previous, next and last, and between them where one is.
class TurnBar final : public QWidget {
    Q_OBJECT

public:
    explicit TurnBar(QWidget *parent = nullptr);

    /// Sheet `sheet` (from 0) of `sheets` is shown; `text` says so.
    void setPosition(int sheet, int sheets, const QString &text);
    QString text() const { return position_->text(); }

signals:
    void turned(tessarin::host::Turn turn);

protected:
    void changeEvent(QEvent *event) override;

private:
    QToolButton *addButton(Turn turn, const char *name, const QString &text);
    void drawIcons();
    QIcon icon(Turn turn) const;

    QToolButton *first_; ///< owned by this widget, as the following
    QToolButton *previous_;
    QLabel *position_;
    QToolButton *next_;
    QToolButton *last_;
};

} // namespace tessarin::host

#endif

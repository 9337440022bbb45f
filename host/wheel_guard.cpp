// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/wheel_guard.h"

#include <QEvent>

namespace tessarin::host {

namespace {

class WheelGuard final : public QObject {
public:
    explicit WheelGuard(QWidget &widget) : QObject(&widget), widget_(widget) { widget.installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &widget_ && event->type() == QEvent::Wheel && !widget_.hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget &widget_;
};

} // namespace

void guardWheel(QWidget &widget)
{
    widget.setFocusPolicy(Qt::StrongFocus);
    new WheelGuard(widget); // owned by the widget
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/input_guard.h"

#include <QComboBox>
#include <QKeyEvent>

namespace tessarin::host {

namespace {

class InputGuard final : public QObject {
public:
    explicit InputGuard(QWidget &widget) : QObject(&widget), widget_(widget) { widget.installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &widget_ && event->type() == QEvent::Wheel && !widget_.hasFocus()) {
            event->ignore();
            return true;
        }
        if (watched == &widget_ && event->type() == QEvent::KeyPress) {
            const auto *press = static_cast<QKeyEvent *>(event);
            const bool isShortcut =
                press->modifiers().testAnyFlags(Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
            if (isShortcut && qobject_cast<QComboBox *>(&widget_) && !press->text().isEmpty()) {
                event->ignore();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget &widget_;
};

} // namespace

void guardInput(QWidget &widget)
{
    widget.setFocusPolicy(Qt::StrongFocus);
    new InputGuard(widget); // owned by the widget
}

} // namespace tessarin::host

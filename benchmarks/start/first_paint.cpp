// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Loaded into a program before its own code (LD_PRELOAD), ends it once its first window has been painted and is
// ready for input.

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

namespace {

class FirstPaint : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = event->type() == QEvent::Paint ? qobject_cast<QWidget *>(watched) : nullptr;
        if (widget != nullptr && widget->isWindow() && widget->isVisible()) {
            QTimer::singleShot(0, [] { std::_Exit(0); }); // once the queue is empty
        }
        return QObject::eventFilter(watched, event);
    }
};

void watch()
{
    QCoreApplication::instance()->installEventFilter(new FirstPaint(QCoreApplication::instance()));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)

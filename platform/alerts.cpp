// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/alerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace tessarin {

namespace {

bool hasUsableDisplay()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) {
        return false;
    }
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

std::optional<int> showMessageBox(const Alert &alert)
{
    if (!hasUsableDisplay()) {
        return std::nullopt;
    }
    QMessageBox box(alert.parent);
    box.setIcon(alert.critical ? QMessageBox::Critical : QMessageBox::Warning);
    box.setWindowTitle(alert.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(alert.text);
    QList<QPushButton *> buttons;
    for (const QString &text : alert.buttons) {
        buttons.append(box.addButton(text, buttons.isEmpty() ? QMessageBox::AcceptRole : QMessageBox::RejectRole));
    }
    if (!buttons.isEmpty()) {
        box.setDefaultButton(buttons.first());
        box.setEscapeButton(buttons.last());
    }
    box.exec();
    for (int i = 0; i < buttons.size(); ++i) {
        if (box.clickedButton() == buttons[i]) {
            return i;
        }
    }
    return static_cast<int>(buttons.size()) - 1;
}

AlertHandler &currentHandler()
{
    static AlertHandler handler;
    return handler;
}

} // namespace

std::optional<int> runAlert(const Alert &alert)
{
    const AlertHandler &handler = currentHandler();
    return handler ? handler(alert) : showMessageBox(alert);
}

void setAlertHandler(AlertHandler handler)
{
    currentHandler() = std::move(handler);
}

} // namespace tessarin

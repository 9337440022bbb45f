// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Alerts: the only messages of the panel that reach the user.

#ifndef TESSARIN_PLATFORM_ALERTS_H
#define TESSARIN_PLATFORM_ALERTS_H

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

namespace tessarin {

/// One alert. All texts are plain text.
struct Alert {
    QString title;
    QString text;
    QStringList buttons;           ///< at least one; the first is the default button
    bool critical = false;         ///< shown with the sign of an error
    QPointer<QWidget> parent = {}; ///< window the alert belongs to; null: none
};

/// Shows an alert and waits for the answer: the index of the button pressed, or nothing when the alert could not be
/// shown.
using AlertHandler = std::function<std::optional<int>(const Alert &)>;

/// Shows an alert through the current handler.
std::optional<int> runAlert(const Alert &alert);

/// Replaces the handler; an empty one restores the default, a modal message box. In a process without a usable
/// display the default cannot show anything.
void setAlertHandler(AlertHandler handler);

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A panel in a window for tests of what a person can ask of its settings.

#ifndef TESSARIN_TESTS_PANEL_SETTING_TEST_SUPPORT_H
#define TESSARIN_TESTS_PANEL_SETTING_TEST_SUPPORT_H

#include "tests/controls/controls_test_support.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>

#include <map>

namespace tessarin::test {

/// The choices that the panel hands over now, by option.
inline std::map<std::string, std::string> handedOver(PanelSession &session)
{
    session.host->changes.clear();
    session.panel->saveValuesAndReturnError(nullptr);
    return {session.host->changes.begin(), session.host->changes.end()};
}

/// The field for a value that is open on the panel; null: none.
inline QLineEdit *openField(const PanelSession &session)
{
    for (QLineEdit *field : session.panel->contentView()->findChildren<QLineEdit *>()) {
        if (!field->isHidden()) {
            return field;
        }
    }
    return nullptr;
}

/// The position of the page that holds a view.
inline int pageOf(const PanelSession &session, const QWidget *view)
{
    const auto *tabs = qobject_cast<const QTabWidget *>(session.context()->controls.tabView.data());
    for (int position = 0; position < tabs->count(); ++position) {
        if (tabs->widget(position)->isAncestorOf(view)) {
            return position;
        }
    }
    return -1;
}

/// Closes the tool tip at once; the toolkit alone would let it stand for a while.
inline void closeTip()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel")) {
            window->close();
        }
    }
}

/// The text of the tool tip that comes where the mouse rests over a view; empty when none comes.
inline QString tipOver(QWidget *view)
{
    closeTip();
    const QPoint place = view->rect().center();
    QHelpEvent event(QEvent::ToolTip, place, view->mapToGlobal(place));
    QCoreApplication::sendEvent(view, &event);
    QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
    text.remove(0, 3).chop(4);
    return text.replace(QLatin1String("</p><p>"), QLatin1String("\n"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"));
}

} // namespace tessarin::test

#endif

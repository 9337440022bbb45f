// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the tests of the dialog's pages need: settings of a fixture, and somebody who decides on choices.

#ifndef TESSARIN_TESTS_HOST_PAGES_TEST_SUPPORT_H
#define TESSARIN_TESTS_HOST_PAGES_TEST_SUPPORT_H

#include "settings/conflicts.h"
#include "settings/job_settings.h"

#include "tests/host/host_test_support.h"

#include <QKeyEvent>
#include <QStringList>
#include <QWheelEvent>
#include <QWidget>

#include <memory>
#include <string>

namespace tessarin::test {

/// The settings of a PPD of the fixtures; null, which the caller checks, when it cannot be opened.
inline std::unique_ptr<host::JobSettings> settingsOf(const QString &path)
{
    const auto printer = host::HostPrinter::fromPpdFile(path);
    return printer.ok() ? std::make_unique<host::JobSettings>(printer.value()) : nullptr;
}

/// Every option of the PPD with its marked choice, to see that nothing moved.
inline QStringList marks(const host::HostPrinter &printer)
{
    QStringList all;
    for (ppd_option_t *option = ppdFirstOption(printer.ppd()); option; option = ppdNextOption(printer.ppd())) {
        for (int i = 0; i < option->num_choices; ++i) {
            if (option->choices[i].marked) {
                all << QString::fromUtf8(option->keyword) + u'=' + QString::fromUtf8(option->choices[i].choice);
            }
        }
    }
    return all;
}

/// "MediaType=Canvas Quality=Draft"
inline QString listed(const QList<host::OptionChoice> &choices)
{
    QStringList all;
    for (const host::OptionChoice &one : choices) {
        all << one.key + u'=' + one.choice;
    }
    return all.join(u' ');
}

/// Collects what a page or control tells of choices, as "key=value".
template <typename Page>
std::shared_ptr<QStringList> chosenOn(Page &page)
{
    auto told = std::make_shared<QStringList>();
    QObject::connect(&page, &Page::chosen, &page,
                     [told](const QString &key, const QString &value) { *told << key + u'=' + value; });
    return told;
}

inline void pressKey(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                     const QString &text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(&widget, &event);
    }
}

/// Writes as a person does, letter by letter.
inline void type(QWidget &widget, const QString &text)
{
    for (const QChar letter : text) {
        pressKey(widget, Qt::Key_unknown, Qt::NoModifier, letter);
    }
}

/// One notch of the wheel over a widget; answers whether the widget took it.
inline bool turnWheel(QWidget &widget)
{
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

} // namespace tessarin::test

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the panel answers beside its settings' own events: tool tips, "What's this?", descriptions for assistive
// technology, a slider's way back to its default, and values that are typed. Nothing is worked out before it is
// asked for.

#ifndef TESSARIN_CONTROLS_SETTING_EVENTS_H
#define TESSARIN_CONTROLS_SETTING_EVENTS_H

#include "controls/value_editor.h"
#include "plugin/panel_context.h"

#include <QAccessible>
#include <QObject>

#include <functional>

class QKeyEvent;

namespace tessarin {

class SettingEvents : public QObject, private QAccessible::ActivationObserver {
public:
    /// `context` gives the panel's record, null while there is none.
    SettingEvents(QObject *parent, std::function<const PanelContext *()> context);
    ~SettingEvents() override;

    /// Watches the panel's view, to which its controls' unanswered events come.
    void watchView(QWidget *view);
    /// Watches a pop-up, slider or check box.
    void watchControl(QWidget *control);
    /// Takes a value that is being typed, when it can be taken, before the settings are saved.
    void finishTyping() { editor_.finishToSave(); }
    /// Forgets a value that is being typed.
    void dropTyping() { editor_.drop(); }
    /// Describes all controls anew, while assistive technology is running.
    void describeAll() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void accessibilityActiveChanged(bool active) override;
    bool helpFor(const QWidget *control) const;
    bool controlEvent(QWidget *control, QEvent *event);
    bool sliderEvent(QSlider *slider, int number, QEvent *event);
    bool sliderKey(QSlider *slider, int number, const QKeyEvent &key);
    /// The slider whose value text is at a place of the view; null: none that can be set.
    QSlider *sliderOfText(QWidget *view, const QPoint &place, int &number) const;
    void edit(int number, const QString &typed);
    void showMenu(QSlider *slider, int number, const QPoint &place);
    void describe(QWidget *control) const;

    std::function<const PanelContext *()> context_;
    QPointer<QWidget> view_;
    ValueEditor editor_{nullptr};
    bool isDescribing_ = false;   ///< assistive technology is running
    bool swallowRelease_ = false; ///< of the double click that was answered
};

} // namespace tessarin

#endif

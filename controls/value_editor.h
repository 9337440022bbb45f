// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The field for a slider's value, over the slider's value text. It exists only while a person types.

#ifndef TESSARIN_CONTROLS_VALUE_EDITOR_H
#define TESSARIN_CONTROLS_VALUE_EDITOR_H

#include <QLineEdit>
#include <QPointer>
#include <QSlider>

namespace tessarin {

class ValueEditor : public QObject {
public:
    explicit ValueEditor(QObject *parent) : QObject(parent) {}
    ~ValueEditor() override;

    /// Opens the field for the slider in a row of `Scrolls`, with what was typed to open it, or with the value as
    /// it is, selected. A field that is open already is finished first.
    void open(QSlider *slider, QWidget *valueView, int row, const QString &typed);
    /// Takes a value that was typed and can be taken, and closes the field in any case. Without an open one nothing
    /// happens.
    void finish();
    /// The same before the settings are saved: a tool tip tells of a value that was not taken.
    void finishToSave();
    /// Closes the field without its value.
    void drop();
    /// The open field; null: none.
    QLineEdit *field() const { return field_; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeField(const QString &typed);
    /// Whatever moves the slider or shows another page meanwhile ends the field.
    void watchOutside();
    bool keyPressed(int key);
    /// Takes the value, when one was typed, and closes the field; false, and the field stays, for one that cannot
    /// be taken.
    bool take();
    /// A field that is left with a value that cannot be taken stays as well.
    void takeOrRefuse();
    void refuse();
    void close();

    QPointer<QLineEdit> field_;
    QPointer<QSlider> slider_;
    QPointer<QWidget> valueView_;
    int row_ = 0;
    bool isTyped_ = false; ///< the field's text is a person's, not the slider's own
};

} // namespace tessarin

#endif

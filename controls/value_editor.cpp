// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/value_editor.h"

#include "controls/control_tables.h"
#include "controls/setting_help.h"
#include "controls/typed_value.h"
#include "platform/view_tags.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QTabWidget>
#include <QToolTip>

#include <algorithm>

namespace tessarin {

namespace {

constexpr qintptr kNoControl = -1; // the tag of a plain view, by which nothing is looked for

QString rangeText(int row)
{
    const ScrollRow &slider = Scrolls[static_cast<std::size_t>(row)];
    int least = slider.minimum;
    int most = slider.maximum;
    if (slider.shownFactor < 0.0F) {
        std::swap(least, most);
    }
    return localizedSentence(kRangeText).arg(valueText(row, least), valueText(row, most));
}

/// Over the value text, but as high as a field needs.
QRect fieldPlace(const QWidget &valueView, const QLineEdit &field)
{
    QRect place = valueView.geometry();
    const int height = std::max(field.sizeHint().height(), 1);
    place.setTop(place.top() + (place.height() - height) / 2);
    place.setHeight(height);
    return place;
}

bool isOurKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
}

} // namespace

ValueEditor::~ValueEditor()
{
    delete field_.data();
}

void ValueEditor::open(QSlider *slider, QWidget *valueView, int row, const QString &typed)
{
    finish();
    if (slider == nullptr || valueView == nullptr || !slider->isEnabled()) {
        return;
    }
    slider_ = slider;
    valueView_ = valueView;
    row_ = row;
    makeField(typed);
    watchOutside();
    field_->show();
    field_->setFocus(Qt::OtherFocusReason);
    if (typed.isEmpty()) {
        field_->selectAll();
    } else {
        field_->deselect();
        field_->end(false);
    }
}

void ValueEditor::makeField(const QString &typed)
{
    field_ = new QLineEdit(valueView_->parentWidget());
    setTagOf(field_, kNoControl);
    field_->setAlignment(Qt::AlignRight);
    field_->setAccessibleName(localizedSentence(Scrolls[static_cast<std::size_t>(row_)].label));
    field_->setAccessibleDescription(rangeText(row_));
    field_->setText(typed.isEmpty() ? valueText(row_, slider_->value()) : typed);
    field_->setGeometry(fieldPlace(*valueView_, *field_));
    field_->installEventFilter(this);
    isTyped_ = !typed.isEmpty();
    connect(field_, &QLineEdit::textChanged, this, [this] { // also by assistive technology, which presses no key
        isTyped_ = true;
        field_->setPalette(QPalette());
    });
}

void ValueEditor::watchOutside()
{
    // A field that is closed may live on until the next event.
    const QLineEdit *field = field_;
    connect(slider_, &QSlider::valueChanged, field, [this, field] {
        if (field_ == field) {
            drop();
        }
    });
    for (QWidget *view = valueView_; view != nullptr; view = view->parentWidget()) {
        if (const auto *tabs = qobject_cast<QTabWidget *>(view)) {
            connect(tabs, &QTabWidget::currentChanged, field, [this, field] {
                if (field_ == field) {
                    finish();
                }
            });
        }
    }
}

bool ValueEditor::eventFilter(QObject *watched, QEvent *event)
{
    // A field that goes with its view tells of it when it is only a plain view any more.
    const auto *field = qobject_cast<QLineEdit *>(watched);
    if (field == nullptr || field != field_) {
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride: // Return prints and Escape leaves the dialog: not while a value is typed
        if (isOurKey(static_cast<QKeyEvent *>(event)->key())) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (keyPressed(static_cast<QKeyEvent *>(event)->key())) {
            return true;
        }
        break;
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            takeOrRefuse();
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool ValueEditor::keyPressed(int key)
{
    if (key == Qt::Key_Escape) {
        close();
    } else if (isOurKey(key)) {
        takeOrRefuse();
    } else {
        return false;
    }
    return true;
}

void ValueEditor::finish()
{
    if (field_ && !take()) {
        close();
    }
}

void ValueEditor::finishToSave()
{
    if (!field_ || take()) {
        return;
    }
    close();
    if (valueView_ && valueView_->isVisible()) { // after the focus has moved, which hides tool tips
        QToolTip::showText(valueView_->mapToGlobal(valueView_->rect().bottomLeft()), rangeText(row_), valueView_);
    }
}

void ValueEditor::drop()
{
    if (field_) {
        close();
    }
}

void ValueEditor::takeOrRefuse()
{
    if (!take()) {
        refuse();
    }
}

bool ValueEditor::take()
{
    if (!isTyped_) { // the slider may have another value since
        close();
        return true;
    }
    const std::optional<int> position = typedPosition(row_, field_->text());
    if (!position) {
        return false;
    }
    const QPointer<QSlider> slider = slider_;
    close();
    if (slider && slider->isEnabled()) {
        slider->setValue(*position); // tells of itself as a dragged slider does
    }
    return true;
}

void ValueEditor::refuse()
{
    QPalette colours;
    colours.setColor(QPalette::Base, QColor(0xff, 0xd8, 0xd8));
    colours.setColor(QPalette::Text, Qt::black);
    field_->setPalette(colours);
    field_->selectAll();
    QToolTip::showText(field_->mapToGlobal(field_->rect().bottomLeft()), rangeText(row_), field_->parentWidget());
    QAccessibleEvent alert(field_.data(), QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ValueEditor::close()
{
    QLineEdit *field = field_;
    field_.clear();
    field->removeEventFilter(this);
    if (field->hasFocus() && slider_) {
        slider_->setFocus(Qt::OtherFocusReason);
    }
    field->hide();
    field->deleteLater(); // after the event that closes it
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/control_layer.h"

#include "controls/menu_items.h"
#include "platform/alerts.h"
#include "platform/level_view.h"
#include "platform/numbers.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include <cstdlib>
#include <cstring>

namespace tessarin {

namespace {

constexpr char kAlertTitle[] = "Tessarin ToolBox";

QAbstractSlider *asSlider(QWidget *view)
{
    return qobject_cast<QAbstractSlider *>(view);
}

void selectIndex(QComboBox *popup, int index)
{
    const QSignalBlocker blocker(popup);
    popup->setCurrentIndex(index < 0 ? -1 : index);
}

void selectTag(QComboBox *popup, int tag)
{
    for (int index = 0; index < popup->count(); ++index) {
        if (menuItemTag(popup, index) == tag) {
            selectIndex(popup, index);
            return;
        }
    }
}

} // namespace

int GetControlByID(QWidget *parent, ControlIDRecord id, ControlHandle *control)
{
    *control = viewWithTag(parent, id.id);
    return control->isNull() ? -1 : 0;
}

bool MyEmbedControl(QWidget *parent, void * /*unused*/, ControlIDRecord id, ControlHandle *control)
{
    return GetControlByID(parent, id, control) != 0;
}

QWidget *GetControlOwner(QWidget * /*view*/)
{
    return nullptr;
}

void InitOSSpecificItems() {}

void MySetControlIcon(QWidget * /*control*/, int /*icon*/) {}

void SetControlReference(QWidget * /*control*/, std::int32_t /*reference*/) {}

std::int32_t GetControlReference(QWidget * /*control*/)
{
    return 0;
}

int SetControlProperty(QWidget *control, std::uint32_t /*signature*/, std::uint32_t /*propertyTag*/,
                       std::size_t size, const void *value)
{
    if (!isControl(control)) {
        return 0;
    }
    if (size == sizeof(std::int32_t)) {
        std::int32_t number = 0;
        std::memcpy(&number, value, sizeof number);
        setTagOf(control, number);
    } else if (size == sizeof(qintptr)) {
        qintptr handle = 0;
        std::memcpy(&handle, value, sizeof handle);
        setTagOf(control, handle);
    }
    return 0;
}

int GetControlProperty(QWidget *control, std::uint32_t /*signature*/, std::uint32_t /*propertyTag*/,
                       std::size_t /*size*/, qintptr *value)
{
    if (isControl(control)) {
        *value = tagOf(control);
    }
    return 0;
}

int GetComboControlValue(QWidget *popup)
{
    const auto *combo = qobject_cast<const QComboBox *>(popup);
    if (combo == nullptr || combo->currentIndex() < 0) {
        return 0;
    }
    const std::int32_t tag = menuItemTag(combo, combo->currentIndex());
    _VERBOSE("+++ tag of selected item: %d\n", tag);
    return std::abs(tag);
}

int SetComboControlValue(QWidget *popup, int n)
{
    auto *combo = qobject_cast<QComboBox *>(popup);
    if (combo == nullptr) {
        return 0;
    }
    _VERBOSE("SetComboControlValue to #%d of %d\n", n, combo->count());
    if (combo->count() >= n) {
        selectIndex(combo, n - 1);
    }
    return 0;
}

int SelectComboControlEntryWithTag(QWidget *popup, int tag)
{
    auto *combo = qobject_cast<QComboBox *>(popup);
    if (combo == nullptr) {
        return 0;
    }
    _VERBOSE("SetComboControlValue to #%d of %d\n", tag, combo->count());
    selectTag(combo, tag);
    selectTag(combo, -tag);
    return 0;
}

int SetSliderMinimum(QWidget *slider, std::int32_t minimum)
{
    if (QAbstractSlider *control = asSlider(slider)) {
        const QSignalBlocker blocker(control);
        control->setMinimum(minimum);
    }
    return 0;
}

int SetSliderMaximum(QWidget *slider, std::int32_t maximum)
{
    if (QAbstractSlider *control = asSlider(slider)) {
        const QSignalBlocker blocker(control);
        control->setMaximum(maximum);
    }
    return 0;
}

int SetSliderControlValue(QWidget *slider, std::int32_t position)
{
    if (QAbstractSlider *control = asSlider(slider)) {
        const QSignalBlocker blocker(control);
        control->setValue(position);
    }
    return 0;
}

std::int32_t GetSliderControlValue(QWidget *slider)
{
    const QAbstractSlider *control = asSlider(slider);
    return control != nullptr ? control->value() : 0;
}

int SetCheckButtonValue(QWidget *checkBox, int value)
{
    if (auto *button = qobject_cast<QAbstractButton *>(checkBox)) {
        const QSignalBlocker blocker(button);
        button->setChecked(value != 0);
    }
    return 0;
}

int GetCheckButtonValue(QWidget *checkBox)
{
    if (const auto *box = qobject_cast<const QCheckBox *>(checkBox)) {
        return box->checkState() == Qt::Checked ? 1 : 0; // isChecked() would count a mixed state
    }
    const auto *button = qobject_cast<const QAbstractButton *>(checkBox);
    return button != nullptr && button->isChecked() ? 1 : 0;
}

int SetControlVisibility(QWidget *view, bool visible)
{
    if (view != nullptr) {
        view->setVisible(visible);
    }
    return 0;
}

int EnableControl(QWidget *control)
{
    SetControlEnabled(control, true);
    return 0;
}

int DisableControl(QWidget *control)
{
    SetControlEnabled(control, false);
    return 0;
}

void SetControlEnabled(QWidget *control, bool enabled)
{
    if (isControl(control)) {
        control->setEnabled(enabled);
    }
}

int GetControlBounds(QWidget *view, ControlRect *bounds)
{
    *bounds = {};
    if (view != nullptr) {
        const QRect frame = view->geometry();
        bounds->top = clampToInt16(frame.y());
        bounds->left = clampToInt16(frame.x());
        bounds->bottom = clampToInt16(frame.y() - frame.height() + 1);
        bounds->right = clampToInt16(frame.x() + frame.width() - 1);
    }
    return 0;
}

int SetControlBounds(QWidget *view, const ControlRect &bounds)
{
    if (view != nullptr) {
        view->setGeometry(bounds.left, bounds.top, bounds.right + 1 - bounds.left, bounds.top + 1 - bounds.bottom);
    }
    return 0;
}

int MoveControl(QWidget *view, int h, int v)
{
    if (view != nullptr) {
        view->move(h, v);
    }
    return 0;
}

int Draw1Control(QWidget *view)
{
    if (view != nullptr) {
        view->repaint();
    }
    return 0;
}

int SetTextControl(QWidget *textField, const StringRef &text)
{
    if (auto *label = qobject_cast<QLabel *>(textField)) {
        label->setTextFormat(Qt::PlainText);
        label->setText(toQString(text));
    } else if (auto *line = qobject_cast<QLineEdit *>(textField)) {
        const QSignalBlocker blocker(line);
        line->setText(toQString(text));
    }
    return 0;
}

int SetTabEnabled(QWidget *tabView, int n, bool enabled)
{
    if (auto *tabs = qobject_cast<TabView *>(tabView)) {
        tabs->setIdentifier(n - 1, QString::fromLatin1(enabled ? kTabOn : kTabOff));
    }
    return 0;
}

int SetBarControlValue(QWidget *levelView, int level)
{
    if (auto *bar = dynamic_cast<LevelView *>(levelView)) {
        bar->setLevel(level);
    }
    return 0;
}

int SetBarColVal(QWidget *levelView, int red, int green, int blue)
{
    if (auto *bar = dynamic_cast<LevelView *>(levelView)) {
        bar->setColor(QColor::fromRgbF(static_cast<float>(red / 255.0), static_cast<float>(green / 255.0),
                                       static_cast<float>(blue / 255.0), 1.0F));
    }
    return 0;
}

int MyAlertPanel(const char *message)
{
    const Alert alert{.title = QString::fromLatin1(kAlertTitle),
                      .text = QString::fromUtf8(message),
                      .buttons = {QStringLiteral("OK")},
                      .critical = true};
    return runAlert(alert) ? 1 : 0;
}

int MyStdAlert(QWidget *parent, bool withCancel, const StringRef &title, const StringRef &message,
               std::int16_t *item)
{
    const StringRef format = makeString(std::string("%@\n\n%@"));
    Alert alert{.title = QString::fromLatin1(kAlertTitle),
                .text = toQString(myCFStringCreateWithFormat(nullptr, nullptr, format, title, message)),
                .buttons = {QStringLiteral("OK")},
                .parent = parent};
    if (withCancel) {
        alert.buttons.append(QStringLiteral("Cancel"));
    }
    const std::optional<int> pressed = runAlert(alert);
    if (!pressed) {
        return -1;
    }
    if (item != nullptr) {
        *item = *pressed == 0 ? 1 : 2;
    }
    return 0;
}

} // namespace tessarin

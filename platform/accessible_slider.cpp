// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/accessible_slider.h"

#include "platform/accessible_reach.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tessarin {

namespace {

/// The first whole number in a text such as "95%", "D65" or "-5".
std::optional<int> numberIn(const QString &text)
{
    const auto isDigit = [](QChar letter) { return letter >= u'0' && letter <= u'9'; };
    const auto first = std::find_if(text.begin(), text.end(), isDigit);
    if (first == text.end()) {
        return std::nullopt;
    }
    const auto last = std::find_if_not(first, text.end(), isDigit);
    const int number = QStringView(first, last).toInt();
    return first != text.begin() && *(first - 1) == u'-' ? -number : number;
}

} // namespace

AccessibleSlider::AccessibleSlider(QAbstractSlider *slider, TextOfPosition textOfPosition)
    : QAccessibleWidget(slider, QAccessible::Slider), textOfPosition_(textOfPosition)
{}

QAbstractSlider *AccessibleSlider::slider() const
{
    return static_cast<QAbstractSlider *>(object());
}

QString AccessibleSlider::textAt(int position) const
{
    return textOfPosition_(slider(), position);
}

int AccessibleSlider::numberAt(int position) const
{
    return numberIn(textAt(position)).value_or(position);
}

void *AccessibleSlider::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface) {
        return static_cast<QAccessibleValueInterface *>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleSlider::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return captionOf(slider());
    case QAccessible::Accelerator:
        return acceleratorOf(slider());
    case QAccessible::Value:
        return textAt(slider()->value());
    case QAccessible::Description: {
        QStringList parts{textAt(slider()->value()), slider()->accessibleDescription()};
        parts.removeAll(QString());
        return parts.join(QStringLiteral("; "));
    }
    default:
        return QAccessibleWidget::text(kind);
    }
}

QStringList AccessibleSlider::keyBindingsForAction(const QString &name) const
{
    const QString keys = name == setFocusAction() ? acceleratorOf(slider()) : QString();
    return keys.isEmpty() ? QAccessibleWidget::keyBindingsForAction(name) : QStringList{keys};
}

QAccessible::State AccessibleSlider::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.disabled = !isWithinReach(slider());
    return state;
}

QStringList AccessibleSlider::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (isWithinReach(slider())) {
        names << increaseAction() << decreaseAction();
    }
    return names;
}

void AccessibleSlider::doAction(const QString &name)
{
    if (name != increaseAction() && name != decreaseAction()) {
        QAccessibleWidget::doAction(name);
        return;
    }
    if (canBeUsedNow(slider())) {
        const bool rises = numberAt(slider()->maximum()) >= numberAt(slider()->minimum());
        slider()->triggerAction((name == increaseAction()) == rises ? QAbstractSlider::SliderSingleStepAdd
                                                                    : QAbstractSlider::SliderSingleStepSub);
    }
}

QVariant AccessibleSlider::currentValue() const
{
    return numberAt(slider()->value());
}

void AccessibleSlider::setCurrentValue(const QVariant &value)
{
    bool isNumber = false;
    const double wanted = value.toDouble(&isNumber);
    if (!isNumber || !canBeUsedNow(slider())) {
        return;
    }
    int nearest = slider()->minimum();
    for (int position = nearest; position <= slider()->maximum(); ++position) {
        if (std::abs(numberAt(position) - wanted) < std::abs(numberAt(nearest) - wanted)) {
            nearest = position;
        }
    }
    slider()->setValue(nearest);
}

QVariant AccessibleSlider::maximumValue() const
{
    return std::max(numberAt(slider()->minimum()), numberAt(slider()->maximum()));
}

QVariant AccessibleSlider::minimumValue() const
{
    return std::min(numberAt(slider()->minimum()), numberAt(slider()->maximum()));
}

QVariant AccessibleSlider::minimumStepSize() const
{
    // The steps below the middle may differ from those above it.
    const int least = slider()->minimum();
    const int most = slider()->maximum();
    if (least == most) {
        return 0;
    }
    return std::min(std::abs(numberAt(least + 1) - numberAt(least)), std::abs(numberAt(most) - numberAt(most - 1)));
}

} // namespace tessarin

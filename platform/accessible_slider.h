// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A slider as assistive technology reads it: in the numbers that are shown beside it, not in positions.

#ifndef TESSARIN_PLATFORM_ACCESSIBLE_SLIDER_H
#define TESSARIN_PLATFORM_ACCESSIBLE_SLIDER_H

#include "platform/accessible_views.h"

#include <QAbstractSlider>
#include <QAccessibleWidget>

namespace tessarin {

class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    AccessibleSlider(QAbstractSlider *slider, TextOfPosition textOfPosition);

    void *interface_cast(QAccessible::InterfaceType type) override;
    /// The description starts with the shown value, since the value itself is a bare number.
    QString text(QAccessible::Text kind) const override;
    QStringList keyBindingsForAction(const QString &name) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    QVariant currentValue() const override;
    /// Takes the position whose shown number is the nearest.
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    /// The least step between two shown numbers.
    QVariant minimumStepSize() const override;

private:
    QAbstractSlider *slider() const;
    QString textAt(int position) const;
    int numberAt(int position) const;

    TextOfPosition textOfPosition_;
};

} // namespace tessarin

#endif

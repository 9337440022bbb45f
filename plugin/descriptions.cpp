// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/descriptions.h"

namespace tessarin {

namespace {

ObjectText describeList(const QStringList &items)
{
    return {"(" + items.join(QStringLiteral(", ")).toStdString() + ")"};
}

} // namespace

ObjectText describe(const QString &text)
{
    return text.isNull() ? ObjectText{} : ObjectText{text.toStdString()};
}

ObjectText describe(const pde::Bundle *bundle)
{
    return describeObject("Bundle", bundle);
}

ObjectText describe(const pde::HostCallback *callback)
{
    return describeObject("HostCallback", callback);
}

ObjectText describe(const pde::Panel *panel)
{
    return describeObject("PasswordPDE", panel);
}

ObjectText describe(const QWidget *view)
{
    return describeObject(view != nullptr ? view->metaObject()->className() : "", view);
}

ObjectText describe(const QStringList *array)
{
    return array != nullptr ? describeList(*array) : ObjectText{};
}

ObjectText describe(const pde::PanelArray *array)
{
    if (array == nullptr) {
        return {};
    }
    QStringList items;
    for (const auto &panel : *array) {
        items.append(QString::fromStdString(describe(panel.get()).description.value_or("(null)")));
    }
    return describeList(items);
}

ObjectText describe(const std::optional<pde::Summary> &dictionary)
{
    if (!dictionary) {
        return {};
    }
    std::string text = "{";
    for (const QString &label : dictionary->displayOrder.value_or(QStringList())) {
        text += label.toStdString() + " = " + dictionary->entries.value(label).toStdString() + "; ";
    }
    return {text + "}"};
}

} // namespace tessarin

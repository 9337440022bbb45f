// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel's state as a tree of values, in the order in which the trace of a session shows it.

#include "plugin/diagnostics.h"

#include "controls/control_tables.h"
#include "controls/menu_items.h"
#include "platform/level_view.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/password_pde.h"
#include "ppd/option_table.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <map>

namespace tessarin {

namespace {

using Value = pde::DiagnosticValue;
using Array = Value::Array;
using Object = Value::Object;

template <typename Numbers>
Value numbers(const Numbers &values)
{
    Array array;
    for (const auto value : values) {
        array.emplace_back(static_cast<std::int32_t>(value));
    }
    return array;
}

Value settingsState(const PanelSettings &settings)
{
    return Object{{"checkBoxStates", numbers(settings.checkBoxStates)},
                  {"inkFilePath", settings.inkFilePath.data()},
                  {"popupSelections", numbers(settings.popupSelections)},
                  {"sliderValues", numbers(settings.sliderValues)},
                  {"inkLast", numbers(settings.inkLast)},
                  {"inkTotal", numbers(settings.inkTotal)},
                  {"inkSeen", numbers(settings.inkSeen)},
                  {"inkChannelCount", settings.inkChannelCount}};
}

Value contextState(const PanelContext &context)
{
    return Object{{"ppdPath", context.ppdPath.data()},
                  {"onTiger", std::int32_t{context.onTiger}},
                  {"optionFlagD", context.optionFlagD},
                  {"availabilityInt1", context.availabilityInt1},
                  {"availabilityInt2", context.availabilityInt2},
                  {"inkFirstLine", context.inkFirstLine},
                  {"inkLastLine", context.inkLastLine},
                  {"inkRowHeight", context.inkRowHeight},
                  {"controlsInt", context.controls.controlsInt}};
}

Value choicesState(const PPDOptionTable &table)
{
    Array rows;
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        const ChoiceList list = choiceList(table, static_cast<int>(row));
        Array pairs;
        for (int n = 1; n <= pairCount(list); ++n) {
            pairs.emplace_back(Array{pairKey(list, n), pairText(list, n)});
        }
        rows.emplace_back(std::move(pairs));
    }
    return rows;
}

Value constraintsState(const PPDOptionTable &table)
{
    Array groups;
    ConstraintGroup group{};
    for (std::size_t place = 0; constraintAt(table, place, group); ++place) {
        groups.emplace_back(Array{group.firstRow, group.firstChoice, group.secondRow, group.secondChoice});
    }
    return groups;
}

Value popsState()
{
    Array rows;
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        rows.emplace_back(Array{pops[row].keyword, pops[row].defaultIndex});
    }
    return rows;
}

Value scrollsState()
{
    Array rows;
    for (std::size_t row = 0; row < kSliderCount; ++row) {
        rows.emplace_back(Array{Scrolls[row].number, Scrolls[row].keyword, Scrolls[row].ppdDefault});
    }
    return rows;
}

Value checkBoxTableState()
{
    Array rows;
    for (std::size_t row = 0; row < kCheckBoxCount; ++row) {
        rows.emplace_back(Array{checkboxes[row].keyword, checkboxes[row].value});
    }
    return rows;
}

Value frame(const QWidget *view)
{
    if (view == nullptr) {
        return nullptr;
    }
    const QRect rect = view->geometry();
    return Array{rect.x(), rect.y(), rect.width(), rect.height()};
}

Value text(const QWidget *view)
{
    if (const auto *label = qobject_cast<const QLabel *>(view)) {
        return label->text();
    }
    const auto *line = qobject_cast<const QLineEdit *>(view);
    return line != nullptr ? Value(line->text()) : Value();
}

Value hidden(const QWidget *view)
{
    return view != nullptr ? Value(isHiddenItself(*view)) : Value();
}

Value itemState(const QComboBox &popup, int index)
{
    const bool separator = menuItemIsSeparator(&popup, index);
    const bool enabled = popup.model()->flags(popup.model()->index(index, 0)).testFlag(Qt::ItemIsEnabled);
    return Object{{"title", separator ? QStringLiteral("") : popup.itemText(index)},
                  {"tag", menuItemTag(&popup, index)},
                  {"hidden", menuItemIsHidden(&popup, index)},
                  {"enabled", enabled},
                  {"separator", separator}};
}

Value popUpState(const QWidget *view)
{
    const auto *popup = qobject_cast<const QComboBox *>(view);
    if (popup == nullptr) {
        return nullptr;
    }
    Array items;
    for (int index = 0; index < popup->count(); ++index) {
        items.push_back(itemState(*popup, index));
    }
    const int current = popup->currentIndex();
    return Object{{"hidden", isHiddenItself(*popup)},
                  {"enabled", isEnabledItself(*popup)},
                  {"value", current < 0 ? 0 : std::abs(menuItemTag(popup, current))},
                  {"title", current < 0 ? QStringLiteral("") : popup->itemText(current)},
                  {"frame", frame(popup)},
                  {"items", std::move(items)}};
}

Value sliderState(const QWidget *view, const QWidget *textField)
{
    const auto *slider = qobject_cast<const QAbstractSlider *>(view);
    if (slider == nullptr) {
        return nullptr;
    }
    return Object{{"min", slider->minimum()},          {"max", slider->maximum()},
                  {"value", slider->value()},          {"enabled", isEnabledItself(*slider)},
                  {"hidden", isHiddenItself(*slider)}, {"text", text(textField)}};
}

Value boxState(const QWidget *view)
{
    const auto *box = qobject_cast<const QCheckBox *>(view);
    if (box == nullptr) {
        return nullptr;
    }
    return Object{{"on", box->isChecked()}, {"enabled", isEnabledItself(*box)}, {"hidden", isHiddenItself(*box)}};
}

/// Fields named by control ids, in ascending order.
Value byID(const std::map<std::int32_t, Value> &values)
{
    Object object;
    for (const auto &[id, value] : values) {
        object.emplace_back(QString::number(id), value);
    }
    return object;
}

Value popUpsState(const ControlsStruct &controls)
{
    std::map<std::int32_t, Value> values;
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        values[pops[row].controlId] = popUpState(controls.popupControls[row]);
    }
    return byID(values);
}

Value slidersState(const ControlsStruct &controls)
{
    std::map<std::int32_t, Value> values;
    for (std::size_t row = 0; row < kSliderCount; ++row) {
        const auto number = static_cast<std::size_t>(Scrolls[row].number);
        values[Scrolls[row].sliderId] =
            sliderState(controls.sliderControls[number], controls.sliderAuxControls[number]);
    }
    return byID(values);
}

Value tabsState(const TabView *tabs)
{
    Array items;
    for (int position = 0; tabs != nullptr && position < tabs->count(); ++position) {
        QString label = tabs->tabText(position);
        label.replace(QLatin1String("&&"), QLatin1String("&"));
        items.emplace_back(Object{{"label", label}, {"identifier", tabs->identifier(position)}});
    }
    return items;
}

Value inkRowState(const QWidget *name, const QWidget *bar, const QWidget *value)
{
    const auto *level = dynamic_cast<const LevelView *>(bar);
    const QColor color = level != nullptr ? level->color() : QColor();
    return Object{{"name", text(name)},
                  {"value", text(value)},
                  {"level", level != nullptr ? Value(level->level()) : Value()},
                  {"color", level != nullptr ? Value(Array{color.red(), color.green(), color.blue()}) : Value()},
                  {"hidden", hidden(name)},
                  {"top", name != nullptr ? Value(name->y()) : Value()}};
}

Value inkRows(const ControlSlots &names, const ControlSlots &bars, const ControlSlots &values)
{
    Array rows;
    for (std::size_t row = 0; row < kInkRowCount; ++row) {
        rows.push_back(inkRowState(names[row], bars[row], values[row]));
    }
    return rows;
}

Value inkState(const ControlsStruct &controls)
{
    return Object{{"last", inkRows(controls.lastInkNames, controls.lastInkBars, controls.lastInkValues)},
                  {"lastSum", text(controls.lastInkValues[kInkRowCount])},
                  {"total", inkRows(controls.totalInkNames, controls.totalInkBars, controls.totalInkValues)},
                  {"totalSum", text(controls.totalInkValues[kInkRowCount])}};
}

Value brightState(const ControlsStruct &controls)
{
    return Object{
        {"label", text(controls.brightUsageLabel)},     {"brightCyanIconHidden", hidden(controls.brightCyanIcon)},
        {"photoHidden", hidden(controls.photoControl)}, {"cyanPane", frame(controls.cyanPane)},
        {"magentaPane", frame(controls.magentaPane)},   {"magentaPaneHidden", hidden(controls.magentaPane)}};
}

} // namespace

pde::DiagnosticValue panelState(const PasswordPDE &panel)
{
    const PanelContext *context = panel.panelContext();
    Object state;
    if (context == nullptr) {
        return state;
    }
    const ControlsStruct &controls = context->controls;
    state.emplace_back("settings", settingsState(context->settings));
    state.emplace_back("context", contextState(*context));
    state.emplace_back("choices", choicesState(*context->ppdOptions));
    state.emplace_back("constraints", constraintsState(*context->ppdOptions));
    state.emplace_back("pops", popsState());
    state.emplace_back("scrolls", scrollsState());
    state.emplace_back("checkboxes", checkBoxTableState());
    if (panel.contentView() == nullptr) {
        return state;
    }
    const auto *tabs = qobject_cast<const TabView *>(panel.tabView());
    state.emplace_back("popups", popUpsState(controls));
    state.emplace_back("sliders", slidersState(controls));
    state.emplace_back("boxes", byID({{kNoPrintID, boxState(controls.noPrintCheckBox)},
                                      {kPSInterpreterID, boxState(controls.psInterpreterCheckBox)},
                                      {kColorGammaID, boxState(controls.colorGammaCheckBox)}}));
    state.emplace_back("tabs", tabsState(tabs));
    state.emplace_back("tab", tabs != nullptr ? tabs->currentIndex() : -1);
    state.emplace_back("ink", inkState(controls));
    state.emplace_back("bright", brightState(controls));
    return state;
}

} // namespace tessarin

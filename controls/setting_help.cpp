// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/setting_help.h"

#include "controls/availability.h"
#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "controls/menu_items.h"
#include "platform/caption_label.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/string_helpers.h"
#include "ppd/constraints.h"
#include "ppd/option_table.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStringList>

#include <algorithm>
#include <map>
#include <utility>

namespace tessarin {

namespace {

constexpr qsizetype kNamedChoices = 6; // a longer list ends with an ellipsis

/// The place of a view in a row of handles; -1 when it is not there.
template <typename Handles>
int placeOf(const Handles &handles, const QWidget *view)
{
    const auto at = std::find_if(handles.begin(), handles.end(),
                                 [view](const ControlHandle &one) { return one.data() == view; });
    return at != handles.end() ? static_cast<int>(at - handles.begin()) : -1;
}

/// The check boxes in the order of the `checkboxes` table.
std::array<ControlHandle, kCheckBoxCount> checkBoxControls(const ControlsStruct &controls)
{
    return {controls.noPrintCheckBox, controls.colorGammaCheckBox, controls.psInterpreterCheckBox};
}

bool isInkView(const ControlSlots &bars, const ControlSlots &values, const ControlSlots &names, const QWidget *view)
{
    return placeOf(bars, view) >= 0 || placeOf(values, view) >= 0 || placeOf(names, view) >= 0;
}

/// A pop-up's caption and its selected choice.
struct Cause {
    QString caption;
    QString choice;
};

Cause causeOf(const PanelContext &context, int row)
{
    const auto place = static_cast<std::size_t>(row);
    const char *choice = pairText(choiceList(*context.ppdOptions, row), context.settings.popupSelections[place]);
    return {localizedSentence(pops[place].label), QString::fromUtf8(choice)};
}

QString mediaReason(const PanelContext &context)
{
    const Cause media = causeOf(context, kPopMediaType);
    const bool complete = selectedMediaMode(context) != kIncompleteProfileMode;
    return localizedSentence(complete ? kNotWithText : kNoColorDataText).arg(media.caption, media.choice);
}

bool isListed(const std::array<int, 7> &list, int number)
{
    return std::find(list.begin(), list.end(), number) != list.end();
}

QString popUpReason(const PanelContext &context, int row)
{
    // A pop-up stays as it is when the settings are restored: then its reason may be a medium that has gone.
    const bool byMedia = isListed(disablepopups, row) && selectedMediaMode(context) == kIncompleteProfileMode;
    return byMedia ? mediaReason(context) : localizedSentence(kNotNowText);
}

QString sliderReason(const PanelContext &context, int number)
{
    if (number >= kSliderColorBlack && number <= kSliderColorYellow &&
        GetCheckButtonValue(context.controls.colorGammaCheckBox) == 0) {
        return localizedSentence(kSwitchedOffText).arg(localizedSentence(kCorrectionCaption));
    }
    const bool byMedia =
        isListed(disablesliders, number) || (number >= kSliderUCR && number <= kSliderBrightMagenta);
    return byMedia ? mediaReason(context) : localizedSentence(kNotNowText);
}

QString namesOf(const QStringList &choices)
{
    QString names = choices.mid(0, kNamedChoices).join(QStringLiteral(", "));
    return choices.size() > kNamedChoices ? names + QStringLiteral(", …") : names;
}

/// Choices by what keeps them out: the row of a pop-up whose selection excludes them, or one of these.
constexpr int kHiddenByMedia = -1;
constexpr int kNeverChoosable = static_cast<int>(kPopUpCount);

std::map<int, QStringList> choicesByCause(const PanelContext &context, int row, const QComboBox *menu)
{
    std::map<int, QStringList> causes;
    for (int index = 0; menu != nullptr && index < menu->count(); ++index) {
        if (menuItemIsSeparator(menu, index) || menu->itemText(index) == QLatin1String(kSeparatorText)) {
            continue;
        }
        if (menuItemIsHidden(menu, index)) {
            causes[kHiddenByMedia].append(menu->itemText(index));
        } else if (!menuItemTagIsEnabled(menuItemTag(menu, index))) {
            const int cause = excludingRow(context, row, index);
            causes[cause >= 0 ? cause : kNeverChoosable].append(menu->itemText(index));
        }
    }
    return causes;
}

} // namespace

QString localizedSentence(const char *text)
{
    return toQString(localizedText(text));
}

std::optional<Setting> settingOf(const PanelContext &context, const QWidget *view)
{
    if (view == nullptr) {
        return std::nullopt;
    }
    const ControlsStruct &controls = context.controls;
    if (const int row = placeOf(controls.popupControls, view); row >= 0) {
        return Setting{SettingKind::PopUp, row};
    }
    if (const int number = placeOf(controls.sliderControls, view); number >= 0) {
        return Setting{SettingKind::Slider, number};
    }
    if (const int number = placeOf(controls.sliderAuxControls, view); number >= 0) {
        return Setting{SettingKind::Slider, number};
    }
    if (const int row = placeOf(checkBoxControls(controls), view); row >= 0) {
        return Setting{SettingKind::CheckBox, row};
    }
    if (isInkView(controls.lastInkBars, controls.lastInkValues, controls.lastInkNames, view)) {
        return Setting{SettingKind::LastInk, 0};
    }
    if (isInkView(controls.totalInkBars, controls.totalInkValues, controls.totalInkNames, view)) {
        return Setting{SettingKind::TotalInk, 0};
    }
    if (qobject_cast<const QAbstractButton *>(view) != nullptr && tagOf(view) == kReloadInkID) {
        return Setting{SettingKind::ReloadInk, 0};
    }
    const auto *caption = qobject_cast<const QLabel *>(view);
    return caption != nullptr ? settingOf(context, captionedControl(*caption)) : std::nullopt;
}

QWidget *settingControl(const PanelContext &context, Setting setting)
{
    const auto number = static_cast<std::size_t>(setting.number);
    switch (setting.kind) {
    case SettingKind::PopUp:
        return context.controls.popupControls[number];
    case SettingKind::Slider:
        return context.controls.sliderControls[number];
    case SettingKind::CheckBox:
        return checkBoxControls(context.controls)[number];
    case SettingKind::LastInk:
    case SettingKind::TotalInk:
    case SettingKind::ReloadInk:
        break;
    }
    return nullptr;
}

QString unavailableReason(const PanelContext &context, Setting setting)
{
    // The control itself: a host that disables the whole panel has reasons of its own.
    const QWidget *control = settingControl(context, setting);
    if (control == nullptr || !control->testAttribute(Qt::WA_ForceDisabled)) {
        return {};
    }
    if (setting.kind == SettingKind::PopUp) {
        return popUpReason(context, setting.number);
    }
    if (setting.kind == SettingKind::Slider) {
        return sliderReason(context, setting.number);
    }
    const bool byInterpreter = control == context.controls.psInterpreterCheckBox && context.optionFlagD == 0;
    return localizedSentence(byInterpreter ? kNoGhostscriptText : kNotNowText);
}

QString missingChoices(const PanelContext &context, int row)
{
    const QComboBox *menu = comboMenu(settingControl(context, {SettingKind::PopUp, row}));
    if (menu == nullptr) {
        return {};
    }
    if (menu->count() == 0) {
        return localizedSentence(kNoChoicesText);
    }
    QStringList lines;
    for (const auto &[cause, choices] : choicesByCause(context, row, menu)) {
        const QString count = QString::number(choices.size());
        if (cause == kNeverChoosable) {
            lines.append(localizedSentence(kNotChoosableText).arg(count, namesOf(choices)));
            continue;
        }
        const Cause other = causeOf(context, cause == kHiddenByMedia ? static_cast<int>(kPopMediaType) : cause);
        lines.append(localizedSentence(cause == kHiddenByMedia ? kNotOfferedText : kExcludedText)
                         .arg(other.caption, other.choice, count, namesOf(choices)));
    }
    return lines.join(QLatin1Char('\n'));
}

QString settingDescription(const PanelContext &context, const QWidget *view)
{
    const std::optional<Setting> setting = settingOf(context, view);
    const char *text = setting ? settingText(*setting) : nullptr;
    if (text == nullptr) {
        return {};
    }
    QStringList lines{localizedSentence(text), unavailableReason(context, *setting)};
    if (setting->kind == SettingKind::PopUp) {
        lines.append(missingChoices(context, setting->number));
    }
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

QString tabReason(const PanelContext &context, int position)
{
    const auto *tabs = qobject_cast<const TabView *>(context.controls.tabView.data());
    if (tabs == nullptr || position < 0 || tabs->identifier(position) != QLatin1String(kTabOff)) {
        return {};
    }
    return selectedMediaMode(context) == kIncompleteProfileMode ? mediaReason(context)
                                                                : localizedSentence(kNotNowText);
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/diagnostics.h"

#include "controls/control_tables.h"
#include "controls/event_dispatch.h"
#include "controls/menu_items.h"
#include "platform/alerts.h"
#include "platform/bounded_copy.h"
#include "platform/formatter.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/password_pde.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

#include <utility>

namespace tessarin {

namespace {

// The interface hands out panels of this plug-in alone.
PasswordPDE &ours(pde::Panel &panel)
{
    return static_cast<PasswordPDE &>(panel);
}

template <typename Control>
Control *findView(const PasswordPDE &panel, int id)
{
    QWidget *root = panel.contentView();
    return root != nullptr ? qobject_cast<Control *>(viewWithTag(root, id)) : nullptr;
}

bool canPick(const QComboBox &popup, int item)
{
    return !isHiddenItself(popup) && isEnabledItself(popup) && item >= 1 && item <= popup.count() &&
           popup.model()->flags(popup.model()->index(item - 1, 0)).testFlag(Qt::ItemIsEnabled);
}

} // namespace

bool isEnabledItself(const QWidget &control)
{
    return !control.testAttribute(Qt::WA_ForceDisabled);
}

bool isHiddenItself(const QWidget &control)
{
    return control.testAttribute(Qt::WA_WState_ExplicitShowHide) && control.testAttribute(Qt::WA_WState_Hidden);
}

void Diagnostics::setStableAddresses(bool stable)
{
    tessarin::setStableAddresses(stable);
}

void Diagnostics::setAlertObserver(std::function<void(const pde::DiagnosticAlert &)> observer)
{
    setAlertHandler([observer = std::move(observer)](const Alert &alert) {
        observer({alert.title, alert.text, alert.buttons});
        return std::optional<int>(0);
    });
}

pde::DiagnosticValue Diagnostics::state(pde::Panel &panel)
{
    return panelState(ours(panel));
}

void Diagnostics::setInkFilePath(pde::Panel &panel, const QString &path)
{
    if (PanelContext *context = ours(panel).panelContext()) {
        copyBounded(context->settings.inkFilePath, path.toStdString());
    }
}

pde::DiagnosticValue Diagnostics::choose(pde::Panel &panel, int popUpId, int item)
{
    auto *popup = findView<QComboBox>(ours(panel), popUpId);
    if (popup == nullptr || !canPick(*popup, item)) {
        return pde::kDiagnosticIgnored;
    }
    popup->setCurrentIndex(item - 1);
    emit popup->activated(item - 1);
    return ours(panel).lastEventResult();
}

pde::DiagnosticValue Diagnostics::slide(pde::Panel &panel, int sliderId, int position)
{
    const PanelContext *context = ours(panel).panelContext();
    for (const ScrollRow &row : Scrolls) {
        if (row.number < 0 || row.sliderId != sliderId || context == nullptr) {
            continue;
        }
        QWidget *control = context->controls.sliderControls[static_cast<std::size_t>(row.number)];
        auto *slider = qobject_cast<QAbstractSlider *>(control);
        if (slider != nullptr && isEnabledItself(*slider)) {
            slider->setValue(position);
            return slider->value();
        }
    }
    return pde::kDiagnosticIgnored;
}

pde::DiagnosticValue Diagnostics::check(pde::Panel &panel, int checkBoxId, bool on)
{
    auto *box = findView<QCheckBox>(ours(panel), checkBoxId);
    if (box == nullptr || !isEnabledItself(*box)) {
        return pde::kDiagnosticIgnored;
    }
    if (box->isChecked() == on) {
        return nullptr;
    }
    box->click();
    return ours(panel).lastEventResult();
}

pde::DiagnosticValue Diagnostics::press(pde::Panel &panel, int buttonId)
{
    auto *button = findView<QPushButton>(ours(panel), buttonId);
    if (button == nullptr || !isEnabledItself(*button)) {
        return pde::kDiagnosticIgnored;
    }
    button->click();
    return ours(panel).lastEventResult();
}

bool Diagnostics::selectTab(pde::Panel &panel, int position)
{
    auto *tabs = qobject_cast<TabView *>(ours(panel).tabView());
    if (tabs == nullptr || position < 0 || position >= tabs->count() ||
        !ours(panel).tabViewShouldSelectTabViewItem(tabs, position)) {
        return false;
    }
    tabs->setCurrentIndex(position);
    return tabs->currentIndex() == position;
}

std::int32_t Diagnostics::event(pde::Panel &panel, int eventId)
{
    return processEvent(ours(panel).panelContext(), 1, eventId);
}

} // namespace tessarin

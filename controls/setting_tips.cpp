// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/setting_tips.h"

#include "controls/setting_help.h"
#include "controls/typed_value.h"

#include <QTabBar>
#include <QToolTip>
#include <QWhatsThis>

namespace tessarin {

namespace {

/// A text for a tool tip: broken into lines as long as the style likes them, and without markup of its own.
QString helpMarkup(const QString &text)
{
    return QStringLiteral("<p>") + text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("</p><p>")) +
           QStringLiteral("</p>");
}

QString howToSet(const PanelContext &context, int row)
{
    const std::optional<int> position = defaultPosition(context, row);
    const QString typing = localizedSentence(kHowToTypeText);
    return position ? localizedSentence(kHowToResetText).arg(valueText(row, *position)) + QLatin1Char('\n') + typing
                    : typing;
}

} // namespace

QString settingTip(const PanelContext &context, const QWidget *view, const QPoint &place)
{
    const QWidget *child = view->childAt(place);
    if (const auto *bar = qobject_cast<const QTabBar *>(child)) {
        return tabReason(context, bar->tabAt(bar->mapFrom(view, place)));
    }
    const QString text = settingDescription(context, child);
    const std::optional<Setting> setting = settingOf(context, child);
    const QWidget *slider =
        setting && setting->kind == SettingKind::Slider ? settingControl(context, *setting) : nullptr;
    const bool canBeSet = slider != nullptr && slider->isEnabled();
    return canBeSet ? text + QLatin1Char('\n') + howToSet(context, setting->number) : text;
}

bool answerHelp(const PanelContext &context, QWidget *view, const QHelpEvent &event)
{
    const QString text = settingTip(context, view, event.pos());
    if (text.isEmpty()) {
        return false;
    }
    QWidget *child = view->childAt(event.pos());
    if (event.type() == QEvent::ToolTip) {
        QToolTip::showText(event.globalPos(), helpMarkup(text), child, child->rect());
    } else if (event.type() == QEvent::WhatsThis) {
        QWhatsThis::showText(event.globalPos(), helpMarkup(text), child);
    }
    return true; // a question whether there is help is answered as well
}

} // namespace tessarin

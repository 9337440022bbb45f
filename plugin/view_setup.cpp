// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/view_setup.h"

#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "controls/embedding.h"
#include "platform/mnemonics.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace tessarin {

namespace {

QString localized(const QString &text)
{
    return toQString(MyCFCopyLocalizedString(makeString(text), ""));
}

/// The texts of tabs and buttons mark a shortcut with "&"; the panel's texts are plain.
QString localizedTitle(QString title)
{
    title.replace(QLatin1String("&&"), QLatin1String("&"));
    return localized(title).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void translateView(QWidget *view)
{
    if (!view->accessibleName().isEmpty()) { // of what has no caption
        view->setAccessibleName(localized(view->accessibleName()));
    }
    if (auto *label = qobject_cast<QLabel *>(view)) {
        if (!label->text().isEmpty()) { // an empty text would take the place of a picture
            SetTextControl(label, makeString(localized(label->text())));
        }
    } else if (auto *line = qobject_cast<QLineEdit *>(view)) {
        SetTextControl(line, makeString(localized(line->text())));
    } else if (auto *button = qobject_cast<QAbstractButton *>(view)) {
        button->setText(localizedTitle(unmarkedText(button->text()))); // shown before, it marks a letter
    }
}

void rememberPane(QWidget *page, ControlID sliderId, ControlHandle &pane)
{
    if (QWidget *slider = viewWithTag(page, sliderId)) {
        pane = slider->parentWidget();
    }
}

} // namespace

int CocoaEmbedControls(PanelContext *context, QWidget * /*contentView*/, QWidget *tabView)
{
    if (context == nullptr) {
        return 1;
    }
    context->controls.tabView = tabView;
    auto *tabs = qobject_cast<TabView *>(tabView);
    const int count = tabs != nullptr ? tabs->count() : 0;
    _VERBOSE("CoCoaEmbedControls - %d TABS - View=%p\n", count, static_cast<const void *>(tabView));
    int result = 1;
    for (int i = 0; i < std::min(count, static_cast<int>(dlgidx.size())); ++i) {
        const std::int32_t index = dlgidx[static_cast<std::size_t>(i)];
        QWidget *page = tabs->widget(i);
        if (page == nullptr) {
            continue;
        }
        tabs->setIdentifier(i, QString::fromLatin1(kTabOn));
        tabs->setTabText(i, localizedTitle(tabs->tabText(i)));
        translateSubviews(page);
        if ((index & kPageInkUsage) != 0) {
            rememberPane(page, kBrightMagentaSliderID, context->controls.magentaPane);
            rememberPane(page, kBrightCyanSliderID, context->controls.cyanPane);
        }
        _VERBOSE("Init Tab #%d (%p) with idx #%d\n", i, static_cast<const void *>(page), index);
        if (MyEmbedCustomControls(index, context, 0, page) != 0) {
            result = 0;
        }
    }
    return result;
}

void translateSubviews(QWidget *view)
{
    if (view == nullptr) {
        return;
    }
    for (QObject *child : view->children()) {
        if (child->isWidgetType()) {
            auto *subview = static_cast<QWidget *>(child);
            translateView(subview);
            translateSubviews(subview);
        }
    }
}

} // namespace tessarin

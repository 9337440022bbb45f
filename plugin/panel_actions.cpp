// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel's view: loading, outlets, and the actions of its controls.

#include "plugin/password_pde.h"

#include "controls/control_layer.h"
#include "controls/event_dispatch.h"
#include "controls/menu_items.h"
#include "controls/setting_events.h"
#include "controls/sliders.h"
#include "ink/level_box.h"
#include "platform/accessible_views.h"
#include "platform/bundle.h"
#include "platform/interface_loader.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "plugin/log.h"
#include "plugin/restore.h"
#include "plugin/string_helpers.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QEvent>

#include <functional>
#include <utility>

namespace tessarin {

namespace {

constexpr char kInterfaceName[] = "TessarinPDE_C";

/// Receives the actions of the panel's controls, and tells of mouse clicks that no control took.
class ActionReceiver : public QObject {
public:
    explicit ActionReceiver(std::function<void()> mouseUp) : mouseUp_(std::move(mouseUp)) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonRelease) {
            mouseUp_();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> mouseUp_;
};

void setOutlet(QWidget *root, const char *name, QPointer<QWidget> &outlet)
{
    const QString wanted = QString::fromLatin1(name);
    outlet = root->objectName() == wanted ? root : root->findChild<QWidget *>(wanted);
}

/// The value text of a slider at a position.
QString shownText(const QWidget *slider, int position)
{
    const auto row = static_cast<int>(tagOf(viewForHandle(tagOf(slider))));
    const StringRef text = CreateScrollValueCFString(row, position);
    myCFRelease(text);
    return toQString(text);
}

} // namespace

void PasswordPDE::loadInterface()
{
    const auto *bundle = dynamic_cast<const DirectoryBundle *>(pluginBundle.get());
    if (bundle == nullptr) {
        _VERBOSE("ERROR: no bundle to load the interface from\n");
        return;
    }
    const QHash<QString, ViewMaker> makers{
        {QStringLiteral("LevelBox"), [](QWidget *parent) -> QWidget * { return new LevelBox(parent); }}};
    AccessibleLoading accessible(shownText);
    QString reason;
    std::unique_ptr<QWidget> root =
        loadInterfaceFile(bundle->interfacePath(QString::fromLatin1(kInterfaceName)), makers, &reason);
    if (!root) {
        _VERBOSE("ERROR: cannot load the interface - %S\n", reason.toStdString());
        return;
    }
    connectOutlets(root.get());
    connectActions(root.get());
    if (TessarinPDEView) {
        accessible.keep(TessarinPDEView);
    }
    loadedRoots.emplace_back(root.release());
}

void PasswordPDE::connectOutlets(QWidget *root)
{
    setOutlet(root, "pdeView", pdeView);
    setOutlet(root, "usernameView", usernameView);
    setOutlet(root, "passwordView", passwordView);
    setOutlet(root, "TessarinPDEView", TessarinPDEView);
    setOutlet(root, "PDETabView", PDETabView);
    setOutlet(root, "lastConsumptionBox", lastConsumptionBox);
    setOutlet(root, "totalConsumptionBox", totalConsumptionBox);
}

void PasswordPDE::connectActions(QWidget *root)
{
    // By view, since tags change. Only a person's actions arrive: the control layer sets values with signals
    // blocked.
    if (!actions) {
        actions = std::make_unique<ActionReceiver>([this] { mouseUp(); });
    }
    if (TessarinPDEView) {
        TessarinPDEView->installEventFilter(actions.get());
    }
    settingEvents = new SettingEvents(actions.get(), [this] { return context; });
    settingEvents->watchView(TessarinPDEView);
    const auto popups = root->findChildren<QComboBox *>();
    for (QComboBox *popup : popups) {
        QObject::connect(popup, &QComboBox::activated, actions.get(), [this, popup] { popupChanged(popup); });
        settingEvents->watchControl(popup);
    }
    const auto buttons = root->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (tagOf(button) == 0) { // the toolkit's own buttons, of tab bars and lists, have none
            continue;
        }
        const auto callback = [this, button] { buttonCallback(button); };
        if (button->isCheckable()) { // assistive technology toggles without a click
            QObject::connect(button, &QAbstractButton::toggled, actions.get(), callback);
            settingEvents->watchControl(button);
        } else {
            QObject::connect(button, &QAbstractButton::clicked, actions.get(), callback);
        }
    }
    const auto sliders = root->findChildren<QAbstractSlider *>();
    for (QAbstractSlider *slider : sliders) {
        if (tagOf(slider) != 0) {
            QObject::connect(slider, &QAbstractSlider::valueChanged, actions.get(),
                             [this, slider] { scrollCallback(slider); });
            settingEvents->watchControl(slider);
        }
    }
    if (auto *tabs = qobject_cast<TabView *>(PDETabView)) {
        tabs->setShouldSelect(
            [this, tabs](int position) { return tabViewShouldSelectTabViewItem(tabs, position); });
    }
}

void PasswordPDE::releaseViews()
{
    if (auto *tabs = qobject_cast<TabView *>(PDETabView)) {
        tabs->setShouldSelect({});
    }
    settingEvents = nullptr;
    actions.reset();
    for (const QPointer<QWidget> &root : loadedRoots) {
        if (root && root->parent() == nullptr) {
            delete root.data();
        }
    }
    loadedRoots.clear();
}

std::int32_t PasswordPDE::popupChanged(QWidget *sender)
{
    eventResult = processEvent(context, 1, static_cast<std::int32_t>(tagOf(sender)));
    return eventResult;
}

std::int32_t PasswordPDE::buttonCallback(QWidget *sender)
{
    const auto id = static_cast<std::int32_t>(tagOf(sender));
    _VERBOSE("buttonCallback: id=%d\n", id);
    eventResult = processEvent(context, 1, id);
    return eventResult;
}

void PasswordPDE::scrollCallback(QWidget *sender)
{
    _VERBOSE("scrollCallback: id=%d\n", HandleNumber{tagOf(sender)});
    SetScrollValue(sender);
    const bool continuous = RunningOn105OrLater();
    if (auto *slider = qobject_cast<QAbstractSlider *>(sender)) {
        slider->setTracking(continuous);
    }
}

void PasswordPDE::mouseUp()
{
    _VERBOSE("MOUSE UP\n");
}

bool PasswordPDE::validateMenuItem(std::int32_t itemTag)
{
    return menuItemTagIsEnabled(itemTag);
}

bool PasswordPDE::tabViewShouldSelectTabViewItem(const TabView *tabView, int position) const
{
    return tabView != nullptr && tabView->identifier(position) == QLatin1String(kTabOn);
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel object that the host drives. Its methods are thin: they log, and hand the work to plain functions over
// the panel's context record.

#ifndef TESSARIN_PLUGIN_PASSWORD_PDE_H
#define TESSARIN_PLUGIN_PASSWORD_PDE_H

#include "pde/print_dialog_extension.h"
#include "plugin/panel_context.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

class QAbstractSlider;
class QMouseEvent;

namespace tessarin {

class SettingEvents;
class TabView;

/// What panelKind() answers: the identifier of the bundle, as its metadata gives it.
inline constexpr char kPanelKind[] = "org.tessarin.settings.pde";

class PasswordPDE : public pde::Panel {
public:
    PasswordPDE() = default;
    /// `dealloc`: clears the menus and gives back what the panel holds. The bundle stays retained, and the context
    /// record stays allocated.
    ~PasswordPDE() override;

    /// Takes a share of the callback (may be null) and the bundle, and restores the panel's values. Answers the
    /// panel, which has no context when its record could not be made.
    PasswordPDE *initWithCallback(const std::shared_ptr<pde::HostCallback> &callback,
                                  const std::shared_ptr<pde::Bundle> &bundle);

    QString panelName() override;
    QString panelKind() override;
    std::shared_ptr<const QStringList> supportedPPDOptionKeys() override;
    QWidget *panelView() override;
    void willShow() override;
    bool shouldHide() const override { return true; }
    bool shouldPrint() const override { return true; }
    bool shouldShowHelp() const override { return true; }
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<pde::Summary> summaryInfo() override;
    void PPDOptionKeyValueDidChange(const QString &optionKey, const QString &choiceKey) override;
    void finalize() override;

    // Action methods of the panel's controls; each takes the control that sends it.
    std::int32_t popupChanged(QWidget *sender);
    std::int32_t buttonCallback(QWidget *sender);
    void scrollCallback(QWidget *sender);
    void mouseUp();
    /// Whether a menu item with the tag is enabled.
    static bool validateMenuItem(std::int32_t itemTag);
    /// Whether the tab at a 0-based position may be selected: its identifier must be "On".
    bool tabViewShouldSelectTabViewItem(const TabView *tabView, int position) const;

    /// The panel's record; null before the first restore and when it could not be made.
    PanelContext *panelContext() const { return context; }
    /// The loaded content view and tab view; null before the first panelView() and when they have gone.
    QWidget *contentView() const { return TessarinPDEView; }
    QWidget *tabView() const { return PDETabView; }
    /// The result of the last event that a control raised; 0 before the first.
    std::int32_t lastEventResult() const { return eventResult; }

private:
    void loadInterface();
    void connectOutlets(QWidget *root);
    void connectActions(QWidget *root);
    void releaseViews();
    /// Tells assistive technology what has changed.
    void describeControls() const;

    std::shared_ptr<pde::HostCallback> pdePluginCallbackObject;
    QString thePDEName;
    std::shared_ptr<pde::Bundle> pluginBundle;
    std::shared_ptr<const QStringList> supportedOptions;
    bool hasInited = false;
    QPointer<QWidget> pdeView;
    QPointer<QWidget> usernameView;
    QPointer<QWidget> passwordView;
    QPointer<QWidget> TessarinPDEView;
    QPointer<QWidget> PDETabView;
    QPointer<QWidget> lastConsumptionBox;
    QPointer<QWidget> totalConsumptionBox;
    PanelContext *context = nullptr; ///< kept reachable by the record's own registry

    std::int32_t eventResult = 0;
    std::vector<QPointer<QWidget>>
        loadedRoots;                        ///< top views of the loaded interfaces, the panel's while parentless
    std::unique_ptr<QObject> actions;       ///< receiver of the controls' signals; cut off with the panel
    SettingEvents *settingEvents = nullptr; ///< of the interface loaded last; owned by the receiver
};

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A diagnostic interface that a plug-in may export beside its factory: the panel's state as data, and a person's
// actions without a person. For tools and tests; no print dialog needs it.

#ifndef TESSARIN_PDE_PANEL_DIAGNOSTICS_H
#define TESSARIN_PDE_PANEL_DIAGNOSTICS_H

#include "pde/print_dialog_extension.h"

#include <cstdint>
#include <utility>
#include <variant>

namespace tessarin::pde {

/// A tree of values that keeps the order of its fields.
struct DiagnosticValue {
    using Array = std::vector<DiagnosticValue>;
    using Object = std::vector<std::pair<QString, DiagnosticValue>>;

    DiagnosticValue() = default;
    DiagnosticValue(std::nullptr_t) {}
    DiagnosticValue(bool flag) : value(flag) {}
    DiagnosticValue(std::int32_t number) : value(std::int64_t{number}) {}
    DiagnosticValue(std::int64_t number) : value(number) {}
    DiagnosticValue(QString text) : value(std::move(text)) {}
    DiagnosticValue(const char *text) : value(QString::fromUtf8(text)) {}
    DiagnosticValue(Array array) : value(std::move(array)) {}
    DiagnosticValue(Object object) : value(std::move(object)) {}

    std::variant<std::monostate, bool, std::int64_t, QString, Array, Object> value; ///< monostate: null
};

/// One alert of the panel. All texts are plain.
struct DiagnosticAlert {
    QString title;
    QString text;
    QStringList buttons;
};

/// The text with which an action answers that a person could not do it.
inline constexpr char kDiagnosticIgnored[] = "ignored";

class PanelDiagnostics {
public:
    PanelDiagnostics() = default;
    virtual ~PanelDiagnostics() = default;
    PanelDiagnostics(const PanelDiagnostics &) = delete;
    PanelDiagnostics &operator=(const PanelDiagnostics &) = delete;

    /// Writes every pointer in a log line that is not null as "0xP" and every handle as 0.
    virtual void setStableAddresses(bool stable) = 0;
    /// Tells of every alert instead of showing it; each is answered with its default button.
    virtual void setAlertObserver(std::function<void(const DiagnosticAlert &)> observer) = 0;

    /// The state of a panel: record, tables and controls. Changes nothing and logs nothing.
    virtual DiagnosticValue state(Panel &panel) = 0;
    /// Points the panel at another ink counter file; the path is cut to the record's buffer.
    virtual void setInkFilePath(Panel &panel, const QString &path) = 0;

    // A person's actions. Those on a control answer kDiagnosticIgnored where a person could not do them: there is
    // no such control, or it is disabled. Where a panel page lies behind another does not matter.

    /// Picks item `item` (1-based) of the pop-up with the id. The event's result.
    virtual DiagnosticValue choose(Panel &panel, int popUpId, int item) = 0;
    /// Moves the slider of the slider id to a position, limited to its range. The position it then has.
    virtual DiagnosticValue slide(Panel &panel, int sliderId, int position) = 0;
    /// Sets a check box. The event's result; null when it had that state.
    virtual DiagnosticValue check(Panel &panel, int checkBoxId, bool on) = 0;
    /// Presses a button. The event's result.
    virtual DiagnosticValue press(Panel &panel, int buttonId) = 0;
    /// Selects the tab at a 0-based position. Whether it was allowed and is selected.
    virtual bool selectTab(Panel &panel, int position) = 0;
    /// Raises an event directly. Its result.
    virtual std::int32_t event(Panel &panel, int eventId) = 0;
};

} // namespace tessarin::pde

#define TESSARIN_PDE_DIAGNOSTICS_IID "org.tessarin.pde.PanelDiagnostics"
Q_DECLARE_INTERFACE(tessarin::pde::PanelDiagnostics, TESSARIN_PDE_DIAGNOSTICS_IID)

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The print-dialog extension protocol: all that a host (a print dialog) and a plug-in (a panel of printer
// settings) know of each other. A method takes the words of its selector before the first colon.
//
// Everything runs on the host's user-interface thread. No exception may cross this boundary in either direction.
// Strings are UTF-8 once they leave Qt; a null QString stands for an absent object.

#ifndef TESSARIN_PDE_PRINT_DIALOG_EXTENSION_H
#define TESSARIN_PDE_PRINT_DIALOG_EXTENSION_H

#include <QHash>
#include <QString>
#include <QStringList>
#include <QtPlugin>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

class QWidget;
struct ppd_file_s; // libcups' parsed PPD (ppd_file_t)

namespace tessarin::pde {

/// Version of this protocol. A plug-in names the version it was built for in its metadata ("protocolVersion");
/// a host refuses any other.
inline constexpr int kProtocolVersion = 1;

/// The panel type of a printer module: the only type for which a plug-in offers panels of printer settings.
inline constexpr char kPrinterModulePanelType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// The kind of description that Printer::descriptionPath() is asked for: the printer's PPD file.
inline constexpr char kPPDDescriptionType[] = "PMPPDDescriptionType";

/// The key under which a summary keeps the order of its labels.
inline constexpr char kSummaryDisplayOrderKey[] = "Summary Display Order";

/// A printer as the host knows it. Owned by the host.
class Printer {
public:
    Printer() = default;
    virtual ~Printer() = default;
    Printer(const Printer &) = delete;
    Printer &operator=(const Printer &) = delete;

    /// The path of the printer's description file of the given type (kPPDDescriptionType), as the host has it
    /// (not made absolute); nothing when the printer has no such description.
    virtual std::optional<QString> descriptionPath(const QString &descriptionType) const = 0;
    /// The printer's identifier (a queue name); nothing when it has none.
    virtual std::optional<QString> identifier() const = 0;
};

/// The print session of one dialog. Owned by the host.
class PrintSession {
public:
    PrintSession() = default;
    virtual ~PrintSession() = default;
    PrintSession(const PrintSession &) = delete;
    PrintSession &operator=(const PrintSession &) = delete;

    /// The printer selected in the dialog; null when there is none. Borrowed, valid during the call.
    virtual Printer *currentPrinter() = 0;
};

/// What the host offers to a panel. The panel keeps a share of it for its whole life.
class HostCallback {
public:
    HostCallback() = default;
    virtual ~HostCallback() = default;
    HostCallback(const HostCallback &) = delete;
    HostCallback &operator=(const HostCallback &) = delete;

    /// The dialog's print session; null when there is none. Borrowed.
    virtual PrintSession *printSession() = 0;
    /// The printer the panel is made for; null when there is none. Borrowed.
    virtual Printer *PMPrinter() = 0;
    /// The printer's parsed PPD with the current choices marked; null when it could not be parsed. The host owns
    /// it and keeps it open for the panel's life.
    virtual ppd_file_s *ppdFile() = 0;
    /// The panel wants the option `key` (a PPD main keyword without "*") to have the choice `choice`. Answers
    /// true when the host accepts it; an accepted choice is marked in ppdFile() where the PPD has it.
    virtual bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) = 0;
};

/// A panel's summary: one text per localised label, and the labels in the order in which they are shown.
struct Summary {
    QHash<QString, QString> entries; ///< label to value, both as shown; without the order key
    std::optional<QStringList>
        displayOrder{}; ///< what stands under kSummaryDisplayOrderKey; nothing: no order given
};

/// One panel of the print dialog. Destruction is its `dealloc`.
class Panel {
public:
    Panel() = default;
    virtual ~Panel() = default;
    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;

    /// The panel's title in the user's language.
    virtual QString panelName() = 0;
    /// The panel's kind: the identifier of the plug-in's bundle.
    virtual QString panelKind() = 0;
    /// The PPD option keys (without "*") that this panel presents, so that a host keeps them out of its own pages.
    /// The same array on every call; null when it could not be made.
    virtual std::shared_ptr<const QStringList> supportedPPDOptionKeys() = 0;
    /// The panel's content view, loaded by the first call; null when the interface cannot be loaded. Ask once:
    /// each further call sets all controls up again. The host may give the view a parent, which then owns it; a
    /// view without a parent of the host's is deleted with the panel.
    virtual QWidget *panelView() = 0;
    /// The panel is about to be shown.
    virtual void willShow() = 0;
    virtual bool shouldHide() const = 0;
    virtual bool shouldPrint() const = 0;
    virtual bool shouldShowHelp() const = 0;
    /// Reads the current choices from the host's PPD and shows them. `error` is never written; it may be null.
    /// False only when the panel's record could not be made.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Hands every setting to the host. `error` is never written; it may be null. Always true.
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    /// The settings as label and value texts; nothing when there is no summary. It shows what was last stored:
    /// save first.
    virtual std::optional<Summary> summaryInfo() = 0;
    /// The host tells of a choice made elsewhere. A null string stands for an absent argument.
    virtual void PPDOptionKeyValueDidChange(const QString &optionKey, const QString &choiceKey) = 0;
    /// The clean-up of a collected environment: the same as destruction, without giving anything back.
    virtual void finalize() = 0;
};

using PanelArray = std::vector<std::shared_ptr<Panel>>;

/// A plug-in's bundle: the directory that holds its library, interface file, translations and metadata.
class Bundle {
public:
    Bundle() = default;
    virtual ~Bundle() = default;
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    /// The reverse-domain name of the bundle.
    virtual QString identifier() const = 0;
    /// The translation of an English text into the bundle's language; the text itself where there is none.
    virtual QString localizedString(const QString &key) const = 0;
};

/// A plug-in's factory of panels.
class PlugIn {
public:
    PlugIn() = default;
    virtual ~PlugIn() = default;
    PlugIn(const PlugIn &) = delete;
    PlugIn &operator=(const PlugIn &) = delete;

    /// Gives the factory its bundle, which the caller keeps alive. Always true.
    virtual bool initWithBundle(const std::shared_ptr<Bundle> &bundle) = 0;
    /// The panels for a panel type: a new array, empty for a type that the plug-in does not serve, or null.
    virtual std::shared_ptr<PanelArray> PDEPanelsForType(const QString &type,
                                                         const std::shared_ptr<HostCallback> &hostInfo) = 0;
};

/// Receives the text of one log line, line ends included. May be called on any thread.
using LogSink = std::function<void(std::string_view line)>;

/// The root object of a plug-in library (the instance that QPluginLoader gives).
class PlugInEntry {
public:
    PlugInEntry() = default;
    virtual ~PlugInEntry() = default;
    PlugInEntry(const PlugInEntry &) = delete;
    PlugInEntry &operator=(const PlugInEntry &) = delete;

    /// Opens the bundle in `directory`. `language` is a language code ("de", "pt_BR"); "en" is the texts as
    /// written, an empty one the language of the environment. On failure null, with the reason in `reason`.
    virtual std::shared_ptr<Bundle> openBundle(const QString &directory, const QString &language,
                                               QString *reason) = 0;
    /// A new factory, not yet initialised.
    virtual std::unique_ptr<PlugIn> createPlugIn() = 0;
    /// Sends the diagnostic log to `sink`; an empty one restores the default, the system log.
    virtual void setLogSink(LogSink sink) = 0;
};

} // namespace tessarin::pde

#define TESSARIN_PDE_PLUGIN_IID "org.tessarin.pde.PlugInEntry"
Q_DECLARE_INTERFACE(tessarin::pde::PlugInEntry, TESSARIN_PDE_PLUGIN_IID)

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/open_printer.h"

#include "printing/text.h"

#include <algorithm>
#include <utility>

namespace tessarin::host {

PanelSession openPanel(pde::PlugIn &plugIn, const std::shared_ptr<DialogCallback> &callback)
{
    PanelSession session;
    const std::shared_ptr<pde::PanelArray> panels =
        plugIn.PDEPanelsForType(QLatin1String(pde::kPrinterModulePanelType), callback);
    if (!panels || panels->empty() || !panels->front()) {
        session.problem = TessarinPrint::tr("The printer's plug-in offers no panel of settings.");
        return session;
    }
    session.panel = panels->front();
    session.name = session.panel->panelName();
    session.kind = session.panel->panelKind();
    session.supportedKeys = session.panel->supportedPPDOptionKeys();
    const JobSettings &settings = callback->settings();
    if (session.supportedKeys && std::none_of(session.supportedKeys->begin(), session.supportedKeys->end(),
                                              [&](const QString &key) { return settings.hasOption(key); })) {
        session.panel.reset();
        session.problem =
            TessarinPrint::tr("%1 is for other printers: this one has none of its options.").arg(session.name);
        return session;
    }
    session.view = session.panel->panelView();
    session.panel->willShow();
    if (!session.panel->restoreValuesAndReturnError(nullptr)) {
        session.problem = TessarinPrint::tr("The panel could not read the printer's settings.");
    }
    if (!session.view) {
        session.problem = TessarinPrint::tr("The panel of printer settings could not load its controls.");
    }
    return session;
}

KeyValues knownValues(const std::shared_ptr<HostPrinter> &printer, const KeyValues &values)
{
    const JobSettings settings(printer);
    KeyValues known;
    for (const KeyValue &one : values) {
        if (settings.knows(one.key)) {
            known << one;
        }
    }
    return known;
}

KeyValues lastOfEach(const JobSettings &settings, const KeyValues &values)
{
    KeyValues last;
    for (const KeyValue &one : values) {
        const QString key = settings.meant(one).key;
        last.removeIf([&](const KeyValue &earlier) {
            return settings.meant(earlier).key.compare(key, Qt::CaseInsensitive) == 0;
        });
        last << one;
    }
    return last;
}

KeyValues missingOf(const OpenPrinter &printer, const KeyValues &wanted)
{
    const JobSettings &settings = printer.settings();
    KeyValues missing;
    for (const KeyValue &one : lastOfEach(settings, wanted)) {
        const KeyValue setting = settings.meant(one);
        if (settings.value(setting.key).compare(setting.value, Qt::CaseInsensitive) != 0) {
            missing << one;
        }
    }
    return missing;
}

QStringList lastingKeys(const JobSettings &settings)
{
    QStringList keys = settings.optionKeys();
    for (const char *key : {kCollate, kOrientation, kNumberUp}) {
        keys << QLatin1String(key);
    }
    return keys;
}

Outcome<std::shared_ptr<HostPrinter>> againWith(const HostPrinter &printer, const KeyValues &values)
{
    JobTicket all;
    for (const KeyValue &one : values) {
        all.set(one.key, one.value);
    }
    return printer.again(all.toCupsOptions());
}

OpenPrinter::OpenPrinter(std::shared_ptr<HostPrinter> printer, pde::PlugIn *plugIn, const QString &problem,
                         const KeyValues &values)
    : settings_(std::make_shared<JobSettings>(std::move(printer))),
      callback_(std::make_shared<DialogCallback>(settings_)), plugIn_(plugIn), problem_(problem)
{
    for (const KeyValue &one : values) {
        if (!settings_->setAsWritten(one)) {
            refused_ << one;
        }
    }
    if (plugIn_) {
        panel_ = openPanel(*plugIn_, callback_);
    } else {
        panel_.problem = problem_;
    }
}

QStringList OpenPrinter::panelKeys() const
{
    return panel_.panel && panel_.supportedKeys ? *panel_.supportedKeys : QStringList();
}

void OpenPrinter::savePanel()
{
    if (panel_.panel) {
        panel_.panel->saveValuesAndReturnError(nullptr);
    }
}

bool OpenPrinter::apply(const KeyValues &values, ChangeOrigin origin)
{
    savePanel(); // what the panel shows now is what must not get lost
    for (const KeyValue &one : values) {
        if (settings_->set(one.key, one.value, origin) && panel_.panel) {
            panel_.panel->PPDOptionKeyValueDidChange(one.key, one.value);
        }
    }
    const QStringList keys = panelKeys();
    const bool concernsPanel =
        std::any_of(values.begin(), values.end(), [&](const KeyValue &one) { return keys.contains(one.key); });
    if (!concernsPanel) {
        return true;
    }
    savePanel();
    return std::all_of(values.begin(), values.end(),
                       [&](const KeyValue &one) { return settings_->value(one.key) == one.value; });
}

Outcome<std::shared_ptr<OpenPrinter>> OpenPrinter::reopened(const KeyValues &changes) const
{
    QStringList kept;
    for (const TicketEntry &entry : settings_->ticket().entries()) {
        kept << entry.key;
    }
    return reopenedWith(changes, kept);
}

Outcome<std::shared_ptr<OpenPrinter>> OpenPrinter::reopenedWith(const KeyValues &values,
                                                                const QStringList &kept) const
{
    using Result = Outcome<std::shared_ptr<OpenPrinter>>;
    JobTicket all;
    for (const QString &key : kept) {
        if (const std::optional<QString> now = settings_->ticket().value(key)) {
            all.set(key, *now);
        }
    }
    for (const KeyValue &one : values) {
        all.set(one.key, one.value);
    }
    KeyValues wanted;
    for (const TicketEntry &entry : all.entries()) {
        wanted << KeyValue{.key = entry.key, .value = entry.value};
    }
    Outcome<std::shared_ptr<HostPrinter>> printer = againWith(settings_->printer(), wanted);
    if (!printer.ok()) {
        return Result::failed(printer.reason());
    }
    return std::make_shared<OpenPrinter>(printer.take(), plugIn_, problem_, wanted);
}

} // namespace tessarin::host

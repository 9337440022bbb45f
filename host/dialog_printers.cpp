// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog's part in printers: which are offered, how one is opened, and its pages shown.

#include "host/dialog.h"

#include "host/focus_order.h"
#include "host/memory.h"
#include "host/printer_choices.h"
#include "printing/text.h"

#include <utility>

namespace tessarin::host {

void PrintDialog::start()
{
    if (!open_ && !parts_.wanted.name.isEmpty()) {
        openChoice(parts_.wanted);
    }
    if (parts_.discover) {
        picker_->setSearching(true);
        finder_->start();
    }
}

void PrintDialog::pick(const PrinterChoice &choice)
{
    if (open_ && choice.isSame(picker_->current())) {
        cancelOpening();
    } else {
        openChoice(choice);
    }
}

void PrintDialog::cancelOpening()
{
    loader_->cancel();
    opening_ = {};
    status_->clear();
    picker_->setCurrent(picker_->current()); // the list goes back to the printer that is open
    updateEnabled();
}

void PrintDialog::updateEnabled()
{
    const bool ready = open_ && opening_.name.isEmpty() && !delivering_;
    print_->setEnabled(ready || isHandedOver());
    body_->setEnabled(ready || !open_);
    presets_->setEnabled(ready);
    picker_->setEnabled(!delivering_);
    separate_->setEnabled(!delivering_);
    notice_->setEnabled(!delivering_);
}

void PrintDialog::openChoice(const PrinterChoice &choice)
{
    loader_->cancel();
    notice_->dismiss(); // it is about the printer that is left
    opening_ = choice;
    status_->setText(TessarinPrint::tr("Opening %1…").arg(choice.name));
    updateEnabled();
    if (choice.kind == PrinterKind::Queue) {
        if (!open_) {
            showPlaceholder(TessarinPrint::tr("Opening %1…").arg(choice.name));
        }
        loader_->start(choice.queue);
        return;
    }
    const Outcome<std::shared_ptr<HostPrinter>> printer = openLocalPrinter(choice);
    if (printer.ok()) {
        adopt(printer.value(), choice);
    } else {
        printerFailed(printer.reason());
    }
}

void PrintDialog::adopt(std::shared_ptr<HostPrinter> printer, PrinterChoice choice)
{
    opening_ = {};
    status_->clear();
    notice_->dismiss();
    presets_->setPrinter(choice.identity(), choice.queue);
    KeyValues values;
    QStringList problems;
    // Preset and settings of the command line are for the first printer.
    if (!parts_.preset.isEmpty()) {
        const Outcome<KeyValues> preset = presets_->valuesOf(parts_.preset);
        values = preset.ok() ? knownValues(printer, preset.value()) : KeyValues();
        problems << preset.reason();
    }
    values = lastOfEach(JobSettings(printer), values + parts_.values);
    if (!values.isEmpty()) {
        Outcome<std::shared_ptr<HostPrinter>> again = againWith(*printer, values);
        if (!again.ok()) {
            opening_ = choice;
            printerFailed(again.reason());
            return;
        }
        printer = again.take();
    }
    parts_.preset.clear();
    parts_.values.clear();
    picker_->setCurrent(choice);
    setWindowTitle(TessarinPrint::tr("Print – %1").arg(choice.name));
    showPrinter(std::make_shared<OpenPrinter>(std::move(printer), parts_.plugIn, parts_.panelProblem, values));
    if (!values.isEmpty()) {
        saveSettings();
        problems << differences(TessarinPrint::tr("Not possible on this printer"), values);
    }
    problems.removeAll(QString());
    if (!problems.isEmpty()) {
        notice_->tell(problems.join(u'\n'));
    }
}

void PrintDialog::printerFailed(const QString &reason)
{
    const PrinterChoice failed = std::exchange(opening_, {});
    status_->clear();
    const QList<NoticeAction> again = {{TessarinPrint::tr("Tr&y Again"), [this, failed] { openChoice(failed); }}};
    if (!open_) {
        picker_->setCurrent(failed);
        showPlaceholder(TessarinPrint::tr("There is no printer open."));
    }
    picker_->setCurrent(open_ ? picker_->current() : failed); // the list goes back to the printer that is open
    updateEnabled();
    notice_->tell(reason, again);
}

void PrintDialog::destinationsFound(const QList<Destination> &destinations)
{
    picker_->setSearching(false);
    const QList<PrinterChoice> queues = choicesOf(destinations);
    picker_->setChoices(queues + parts_.offered);
    // Who asked for a printer that cannot be opened chooses another one; it is not for the dialog to do so.
    if (open_ || !opening_.name.isEmpty() || !parts_.wanted.name.isEmpty()) {
        return;
    }
    for (const PrinterChoice &choice : parts_.offered) {
        if (choice.identity() == lastPrinter()) {
            openChoice(choice);
            return;
        }
    }
    if (const std::optional<PrinterChoice> first = preferredChoice(queues, lastPrinter(), destinations)) {
        openChoice(*first);
    } else {
        showPlaceholder(TessarinPrint::tr("There are no printers. Choose another destination from the list above, "
                                          "or add a printer in the system's settings and look again."));
    }
}

void PrintDialog::showPlaceholder(const QString &text, const QList<NoticeAction> &actions)
{
    placeholder_->setText(text);
    placeholder_->show();
    updateEnabled();
    if (!actions.isEmpty()) {
        placeholder_->setText(TessarinPrint::tr("There is no printer open."));
        notice_->tell(text, actions);
    }
}

void PrintDialog::showPrinter(std::shared_ptr<OpenPrinter> printer)
{
    std::optional<Page> page;
    if (pages_) {
        page = pages_->page();
        pages_->takePreview(this);
        delete std::exchange(pages_, nullptr);
    }
    open_ = std::move(printer);
    pages_ = new PagesArea(*open_, preview_, body_);
    pages_->showPage(page.value_or(panelView() ? Page::Panel : Page::General));
    placeholder_->hide();
    bodyColumn_->addWidget(pages_, 1);
    orderFocus({picker_, notice_, pages_, presets_, separate_, print_, cancel_});
    updateEnabled();
    connect(pages_, &PagesArea::chosen, this, &PrintDialog::choose);
    // Queued: a reset may bring new pages, and the one that asks for it has not come to its end.
    connect(pages_, &PagesArea::resetRequested, this, &PrintDialog::resetKeys, Qt::QueuedConnection);
    connect(pages_, &PagesArea::resetAllRequested, this, &PrintDialog::resetAll, Qt::QueuedConnection);
    connect(pages_, &PagesArea::pageShown, this, [this](Page shown) {
        if (shown == Page::Summary) {
            saveSettings();
            pages_->refresh();
        }
    });
    connect(&open_->settings(), &JobSettings::changed, this, &PrintDialog::updatePreview);
    connect(
        &open_->settings(), &JobSettings::changed, this,
        [this](const QString &key, const QString &value, ChangeOrigin origin) {
            if (origin == ChangeOrigin::Panel) {
                panelChose({.key = key, .value = value});
            }
        },
        Qt::QueuedConnection);
    connect(&open_->settings(), &JobSettings::hintChanged, this, &PrintDialog::updatePreview);
    updatePreview();
}

void PrintDialog::updatePreview()
{
    renderer_->setLayout(layoutOf(open_->settings()));
    renderer_->setPages(selectedPages(open_->settings()));
}

} // namespace tessarin::host

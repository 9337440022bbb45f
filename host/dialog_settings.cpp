// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog's part in changes of settings: what conflicts, what is undone, what a preset sets.

#include "host/dialog.h"

#include "printing/text.h"
#include "settings/conflicts.h"
#include "settings/option_catalogue.h"

#include <QMessageBox>

#include <utility>

namespace tessarin::host {

namespace {

/// "Media Type: Canvas, Quality: Best"
QString listed(const OpenPrinter &printer, const KeyValues &values)
{
    QStringList parts;
    for (const KeyValue &one : values) {
        //: %1 is a setting, %2 its value
        parts << TessarinPrint::tr("%1: %2").arg(settingText(printer.settings(), one.key),
                                                 settingValueText(printer.settings(), one.key, one.value));
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

void PrintDialog::saveSettings()
{
    if (open_) {
        open_->savePanel();
    }
}

std::optional<QList<SummaryLine>> PrintDialog::currentSummary()
{
    if (!open_ || !open_->panel().panel) {
        return std::nullopt;
    }
    saveSettings(); // the panel's summary shows what was last stored
    const std::optional<pde::Summary> summary = open_->panel().panel->summaryInfo();
    return summary ? std::optional(summaryLines(*summary)) : std::nullopt;
}

JobTicket PrintDialog::completeTicket()
{
    saveSettings();
    return open_ ? open_->settings().completeTicket() : JobTicket();
}

void PrintDialog::choose(const QString &key, const QString &value)
{
    const KeyValue wanted{.key = key, .value = value};
    const HostPrinter &printer = open_->printer();
    if (!open_->settings().hasOption(key) || conflictsOf(printer, key, value).isEmpty()) {
        applyValues({wanted});
        pages_->refresh();
        return;
    }
    KeyValues changes;
    const auto resolved = resolution(printer, key, value);
    for (const OptionChoice &change : resolved.value_or(QList<OptionChoice>())) {
        changes << KeyValue{.key = change.key, .value = change.choice};
    }
    offerResolution(wanted, conflictReason(printer, key, value), changes);
}

void PrintDialog::offerResolution(const KeyValue &wanted, const QString &reason, const KeyValues &changes)
{
    //: %1 is a setting with its value, %2 says what it does not go with
    const QString text = TessarinPrint::tr("%1 is possible %2.").arg(listed(*open_, {wanted}), reason);
    auto *box = new QMessageBox(QMessageBox::Question, TessarinPrint::tr("Settings that exclude each other"), text,
                                QMessageBox::Cancel, this);
    box->setObjectName(QStringLiteral("conflict"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    if (changes.isEmpty()) {
        box->setIcon(QMessageBox::Information);
        box->setInformativeText(TessarinPrint::tr("Change the other setting first."));
    } else {
        box->setInformativeText(
            TessarinPrint::tr("To make it fit, this would be set, too: %1.").arg(listed(*open_, changes)));
        QPushButton *accept = box->addButton(TessarinPrint::tr("&Change Both"), QMessageBox::AcceptRole);
        box->setDefaultButton(accept);
        connect(accept, &QPushButton::clicked, this, [this, wanted, changes] {
            const KeyValues all = changes + KeyValues{wanted};
            const KeyValues before = currentValues(all);
            const QString wrong = applyValues(all);
            offerUndo(wrong.isEmpty() ? TessarinPrint::tr("Changed, too: %1").arg(listed(*open_, changes)) : wrong,
                      [this, before] { applyValues(before); });
        });
    }
    connect(box, &QMessageBox::finished, this, [this] { pages_->refresh(); });
    box->open();
}

void PrintDialog::offerUndo(const QString &text, std::function<void()> undo)
{
    notice_->tell(text, {{TessarinPrint::tr("&Undo"), std::move(undo)}});
}

KeyValues PrintDialog::allSet()
{
    saveSettings();
    KeyValues all;
    for (const TicketEntry &entry : open_->settings().ticket().entries()) {
        all << KeyValue{.key = entry.key, .value = entry.value};
    }
    return all;
}

bool PrintDialog::reopen(const KeyValues &values, const QStringList &kept)
{
    const Outcome<std::shared_ptr<OpenPrinter>> again = open_->reopenedWith(values, kept);
    if (!again.ok()) {
        notice_->tell(again.reason());
        return false;
    }
    showPrinter(again.value());
    saveSettings();
    return true;
}

KeyValues PrintDialog::currentValues(const KeyValues &changes) const
{
    KeyValues now;
    for (const KeyValue &change : changes) {
        now << KeyValue{.key = change.key, .value = open_->settings().value(change.key)};
    }
    return now;
}

QString PrintDialog::applyValues(const KeyValues &values)
{
    if (!open_) {
        return TessarinPrint::tr("There is no printer open.");
    }
    if (!open_->apply(values, ChangeOrigin::Host)) {
        const Outcome<std::shared_ptr<OpenPrinter>> again = open_->reopened(values);
        if (!again.ok()) {
            return again.reason();
        }
        showPrinter(again.value());
    }
    pages_->refresh();
    return {};
}

void PrintDialog::tellDifferences(const QString &what, const KeyValues &wanted)
{
    if (wanted.isEmpty()) {
        return;
    }
    saveSettings();
    KeyValues missing;
    for (const KeyValue &one : wanted) {
        if (open_->settings().value(one.key).compare(one.value, Qt::CaseInsensitive) != 0) {
            missing << one;
        }
    }
    if (!missing.isEmpty()) {
        //: %1 says what was tried, %2 lists the settings
        notice_->tell(TessarinPrint::tr("%1: %2").arg(what, listed(*open_, missing)));
    }
}

void PrintDialog::applyPreset(const QString &name)
{
    const Outcome<KeyValues> values = presets_->valuesOf(name);
    if (!values.ok()) {
        notice_->tell(values.reason());
        return;
    }
    const KeyValues before = allSet();
    QStringList kept;
    for (const KeyValue &one : before) {
        kept << one.key;
    }
    if (!reopen(knownValues(open_->settings().sharedPrinter(), values.value()), kept)) {
        return;
    }
    offerUndo(TessarinPrint::tr("Preset applied: %1").arg(name), [this, before] { reopen(before, {}); });
    tellDifferences(TessarinPrint::tr("Preset %1: not possible on this printer now").arg(name), values.value());
}

void PrintDialog::resetKeys(const QStringList &keys)
{
    KeyValues defaults;
    for (const QString &key : keys) {
        defaults << KeyValue{.key = key, .value = open_->settings().defaultValue(key)};
    }
    const KeyValues before = currentValues(defaults);
    const QString wrong = applyValues(defaults);
    const bool one = keys.size() == 1;
    offerUndo(!wrong.isEmpty() ? wrong
              : one            ? TessarinPrint::tr("Reset to its default: %1").arg(listed(*open_, defaults))
                               : TessarinPrint::tr("Reset to defaults."),
              [this, before] { applyValues(before); });
    tellDifferences(TessarinPrint::tr("Its default is not possible now"), defaults);
}

void PrintDialog::resetAll()
{
    const KeyValues before = allSet();
    // Which pages and how many belongs to the document at hand, not to the printer's settings.
    if (reopen({}, {QLatin1String(kCopies), QLatin1String(kPageRanges), QLatin1String(kPageSet)})) {
        offerUndo(TessarinPrint::tr("All settings are at their defaults."), [this, before] { reopen(before, {}); });
    }
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog's part in changes of settings: what conflicts, what is undone, what a preset sets.

#include "host/dialog.h"

#include "printing/text.h"
#include "settings/conflicts.h"
#include "settings/option_catalogue.h"

#include <QMessageBox>

#include <algorithm>
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
    if (!open_ || delivering_) {
        return;
    }
    const KeyValue wanted{.key = key, .value = value};
    const HostPrinter &printer = open_->printer();
    if (!open_->settings().hasOption(key) || conflictsOf(printer, key, value).isEmpty()) {
        applyValues({wanted});
        pages_->refresh();
        return;
    }
    offerResolution(wanted, conflictReason(printer, key, value), resolvingChanges(printer, key, value));
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
            const KeyValues before = allSet();
            const QString wrong = applyValues(changes + KeyValues{wanted});
            offerUndo(wrong.isEmpty() ? TessarinPrint::tr("Changed, too: %1").arg(listed(*open_, changes)) : wrong,
                      undoOf(before));
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

bool PrintDialog::showAgain(const Outcome<std::shared_ptr<OpenPrinter>> &again)
{
    if (!again.ok()) {
        notice_->tell(again.reason());
        return false;
    }
    showPrinter(again.value());
    saveSettings();
    return true;
}

std::function<void()> PrintDialog::undoOf(const KeyValues &before)
{
    // What the change touched, the panel's own consequences included. What is edited after it stays.
    struct Touched {
        QString key{};
        QString before{};
        QString after{};
    };
    QList<Touched> touched;
    const auto note = [&](const QString &key, const QString &earlier) {
        if (const QString now = open_->settings().value(key); now != earlier) {
            touched << Touched{.key = key, .before = earlier, .after = now};
        }
    };
    QStringList known;
    const KeyValues now = allSet();
    for (const KeyValue &one : before) {
        known << one.key;
        note(one.key, one.value);
    }
    for (const KeyValue &one : now) {
        if (!known.contains(one.key)) {
            note(one.key, open_->settings().defaultValue(one.key));
        }
    }
    return [this, touched] {
        saveSettings();
        KeyValues back;
        bool isKnown = true;
        for (const Touched &one : touched) {
            if (open_->settings().value(one.key) == one.after) {
                back << KeyValue{.key = one.key, .value = one.before};
                isKnown = isKnown && open_->settings().knows(one.key);
            }
        }
        if (!isKnown) {
            showAgain(open_->reopened(back)); // which sets them as they came from the command line
        } else if (const QString wrong = applyValues(back); !wrong.isEmpty()) {
            notice_->tell(wrong);
        }
    };
}

void PrintDialog::panelChose(const KeyValue &choice)
{
    const bool isAsked = std::any_of(children().begin(), children().end(), [](const QObject *child) {
        const auto *box = qobject_cast<const QMessageBox *>(child);
        return box && box->isVisible();
    });
    if (!open_ || delivering_ || isAsked || open_->settings().value(choice.key) != choice.value) {
        return;
    }
    const HostPrinter &printer = open_->printer();
    if (conflictsOf(printer, choice.key, choice.value).isEmpty()) {
        return;
    }
    offerResolution(choice, conflictReason(printer, choice.key, choice.value),
                    resolvingChanges(printer, choice.key, choice.value));
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

QString PrintDialog::differences(const QString &what, const KeyValues &wanted) const
{
    const KeyValues missing = missingOf(*open_, wanted);
    //: %1 says what was tried, %2 lists the settings
    return missing.isEmpty() ? QString() : TessarinPrint::tr("%1: %2").arg(what, listed(*open_, missing));
}

void PrintDialog::applyPreset(const QString &name)
{
    if (!open_ || delivering_) {
        return;
    }
    const Outcome<KeyValues> values = presets_->valuesOf(name);
    if (!values.ok()) {
        notice_->tell(values.reason());
        return;
    }
    const KeyValues before = allSet();
    const KeyValues known = knownValues(open_->settings().sharedPrinter(), values.value());
    if (!showAgain(open_->reopened(known))) {
        return;
    }
    const QString missing =
        differences(TessarinPrint::tr("Preset %1: not possible on this printer now").arg(name), known);
    offerUndo(missing.isEmpty() ? TessarinPrint::tr("Preset applied: %1").arg(name) : missing, undoOf(before));
}

void PrintDialog::resetKeys(const QStringList &keys)
{
    if (!open_ || delivering_) {
        return;
    }
    const KeyValues before = allSet();
    KeyValues defaults;
    for (const QString &key : keys) {
        defaults << KeyValue{.key = key, .value = open_->settings().defaultValue(key)};
    }
    QString text = applyValues(defaults);
    if (text.isEmpty()) {
        saveSettings();
        text = differences(TessarinPrint::tr("Its default is not possible now"), defaults);
    }
    if (text.isEmpty()) {
        text = keys.size() == 1 ? TessarinPrint::tr("Reset to its default: %1").arg(listed(*open_, defaults))
                                : TessarinPrint::tr("Reset to defaults.");
    }
    offerUndo(text, undoOf(before));
}

void PrintDialog::resetAll()
{
    if (!open_ || delivering_) {
        return;
    }
    const KeyValues before = allSet();
    // Which pages and how many belongs to the document at hand, not to the printer's settings.
    const QStringList kept = {QLatin1String(kCopies), QLatin1String(kPageRanges), QLatin1String(kPageSet)};
    if (showAgain(open_->reopenedWith({}, kept))) {
        offerUndo(TessarinPrint::tr("All settings are at their defaults."), undoOf(before));
    }
}

} // namespace tessarin::host

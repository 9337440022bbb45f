// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/no_dialog.h"

#include "host/job_run.h"
#include "printing/text.h"
#include "settings/conflicts.h"

#include <QEventLoop>
#include <QStringList>

#include <algorithm>

namespace tessarin::host {

namespace {

/// The settings that did not come about as they were asked for; empty when all did.
QString notPossible(const OpenPrinter &printer, const KeyValues &wanted)
{
    const KeyValues &refused = printer.refused();
    QStringList texts;
    for (const KeyValue &one : missingOf(printer, wanted)) {
        const bool impossible = std::any_of(refused.begin(), refused.end(), [&](const KeyValue &other) {
            return other.key == one.key && other.value == one.value;
        });
        texts << (impossible
                      ? one.key + u'=' + one.value
                      : TessarinPrint::tr("%1=%2 (with the other settings it is %3)")
                            .arg(one.key, one.value, printer.settings().value(printer.settings().meant(one).key)));
    }
    return texts.join(QStringLiteral(", "));
}

ExitCode codeOf(DeliveryFault fault)
{
    switch (fault) {
    case DeliveryFault::Document:
        return ExitCode::Document;
    case DeliveryFault::Output:
        return ExitCode::Usage;
    case DeliveryFault::Printer:
        break;
    }
    return ExitCode::Printer;
}

QString conflictText(const HostPrinter &printer)
{
    QStringList texts;
    for (const OptionChoice &one : presentConflicts(printer)) {
        texts << one.key + u'=' + one.choice;
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace

Outcome<std::shared_ptr<OpenPrinter>> openWithValues(const DialogParts &parts)
{
    using Result = Outcome<std::shared_ptr<OpenPrinter>>;
    KeyValues values;
    if (!parts.preset.isEmpty()) {
        PresetMenu presets;
        presets.setPrinter(parts.wanted.identity(), parts.wanted.queue);
        const Outcome<KeyValues> preset = presets.valuesOf(parts.preset);
        if (!preset.ok()) {
            return Result::failed(preset.reason());
        }
        values = knownValues(parts.printer, preset.value());
    }
    const KeyValues wanted = lastOfEach(JobSettings(parts.printer), values + parts.values);
    Outcome<std::shared_ptr<HostPrinter>> printer = againWith(*parts.printer, wanted);
    if (!printer.ok()) {
        return Result::failed(printer.reason());
    }
    auto open = std::make_shared<OpenPrinter>(printer.take(), parts.plugIn, parts.panelProblem, wanted);
    open->savePanel();
    if (const QString wrong = notPossible(*open, wanted); !wrong.isEmpty()) {
        return Result::failed(TessarinPrint::tr("not possible on this printer: %1").arg(wrong));
    }
    return open;
}

RunResult printWithoutDialog(const DialogParts &parts)
{
    const Outcome<std::shared_ptr<OpenPrinter>> opened = openWithValues(parts);
    if (!opened.ok()) {
        return {.code = ExitCode::Usage, .reason = opened.reason()};
    }
    const OpenPrinter &printer = *opened.value();
    if (const QString conflicts = conflictText(printer.printer()); !conflicts.isEmpty()) {
        return {.code = ExitCode::Usage,
                .reason = TessarinPrint::tr("the printer cannot do all of this at once: %1").arg(conflicts)};
    }
    RunResult result;
    QEventLoop loop;
    std::unique_ptr<Delivery> delivery = parts.makeDelivery(printer.printer(), parts.separateJobs);
    delivery->start(printer.settings().completeTicket(), [&](const QString &failure) {
        result.reason = failure;
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    if (!result.reason.isEmpty()) {
        result.code = codeOf(delivery->fault());
    }
    for (const int id : delivery->jobIds()) {
        result.output +=
            TessarinPrint::tr("job %1-%2\n").arg(printer.printer().queueName().queue, QString::number(id));
    }
    return result;
}

} // namespace tessarin::host

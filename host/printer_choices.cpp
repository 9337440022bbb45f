// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/printer_choices.h"

#include "host/installation.h"
#include "printing/text.h"
#include "settings/page_ranges.h"

#include <QFileInfo>

#include <algorithm>

namespace tessarin::host {

PrinterChoice sampleChoice()
{
    return {.kind = PrinterKind::Sample,
            .name = TessarinPrint::tr("Sample printer"),
            .detail = TessarinPrint::tr("Print lists the job's options")};
}

PrinterChoice pdfChoice()
{
    return {.kind = PrinterKind::Pdf,
            .name = TessarinPrint::tr("Save as PDF"),
            .detail = TessarinPrint::tr("Print writes the pages into a file")};
}

PrinterChoice ppdChoice(const QString &path)
{
    return {.kind = PrinterKind::PpdFile,
            .path = path,
            .name = QFileInfo(path).fileName(),
            .detail = TessarinPrint::tr("PPD file %1: Print lists the job's options").arg(path)};
}

PrinterChoice queueChoice(const QueueName &queue)
{
    return {.kind = PrinterKind::Queue, .queue = queue, .name = queue.text()};
}

QList<PrinterChoice> choicesOf(const QList<Destination> &destinations)
{
    QList<PrinterChoice> choices;
    for (const Destination &destination : destinations) {
        PrinterChoice choice = queueChoice(destination.name);
        choice.detail = destinationDetail(destination);
        choices << choice;
    }
    return choices;
}

std::optional<PrinterChoice> preferredChoice(const QList<PrinterChoice> &queues, const QString &lastUsed,
                                             const QList<Destination> &destinations)
{
    for (const PrinterChoice &queue : queues) {
        if (queue.identity() == lastUsed) {
            return queue;
        }
    }
    const auto isDefault = std::find_if(destinations.begin(), destinations.end(),
                                        [](const Destination &destination) { return destination.isDefault; });
    const auto takesJobs = std::find_if(destinations.begin(), destinations.end(),
                                        [](const Destination &destination) { return destination.accepting; });
    for (const auto &found : {isDefault, takesJobs, destinations.begin()}) {
        if (found != destinations.end()) {
            return queues.at(found - destinations.begin());
        }
    }
    return std::nullopt;
}

Outcome<std::shared_ptr<HostPrinter>> openLocalPrinter(const PrinterChoice &choice)
{
    switch (choice.kind) {
    case PrinterKind::Sample:
        return HostPrinter::sample(samplePpdPath());
    case PrinterKind::Pdf:
        return HostPrinter::saveAsPdf(pdfPpdPath());
    case PrinterKind::PpdFile:
    case PrinterKind::Queue:
        break;
    }
    return HostPrinter::fromPpdFile(choice.path);
}

PageLayout layoutOf(const JobSettings &settings)
{
    PageLayout layout;
    const QByteArray name = settings.value(QStringLiteral("PageSize")).toUtf8();
    if (const ppd_size_t *size = ppdPageSize(settings.printer().ppd(), name.constData())) {
        layout.paper = QSizeF(static_cast<qreal>(size->width), static_cast<qreal>(size->length));
        layout.margins = QMarginsF(static_cast<qreal>(size->left), static_cast<qreal>(size->length - size->top),
                                   static_cast<qreal>(size->width - size->right), static_cast<qreal>(size->bottom));
    }
    layout.orientation = settings.value(QLatin1String(kOrientation)).toInt();
    layout.numberUp = settings.value(QLatin1String(kNumberUp)).toInt();
    layout.grey = settings.isGrey();
    return layout;
}

std::function<bool(int page)> selectedPages(const JobSettings &settings)
{
    const Outcome<std::vector<PageRange>> parsed = parsePageRanges(settings.value(QLatin1String(kPageRanges)));
    const std::vector<PageRange> ranges = parsed.ok() ? parsed.value() : std::vector<PageRange>();
    const QString set = settings.value(QLatin1String(kPageSet));
    const int parity = set == QLatin1String("odd") ? 1 : set == QLatin1String("even") ? 0 : -1;
    return [ranges, parity](int page) { return containsPage(ranges, page) && (parity < 0 || page % 2 == parity); };
}

} // namespace tessarin::host

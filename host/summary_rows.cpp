// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/summary_rows.h"

#include "host/general_page.h"
#include "printing/text.h"
#include "settings/option_catalogue.h"

#include <algorithm>

namespace tessarin::host {

namespace {

SummaryRow rowOf(const JobSettings &settings, const QString &key)
{
    const QString value = settings.value(key);
    const QString standard = settings.defaultValue(key);
    return {.key = key,
            .label = settingText(settings, key),
            .value = settingValueText(settings, key, value),
            .defaultValue = settingValueText(settings, key, standard),
            .differs = value != standard};
}

bool isAttribute(const QString &key)
{
    return std::any_of(jobAttributes().begin(), jobAttributes().end(), [&](const JobAttribute &attribute) {
        return key.compare(QLatin1String(attribute.name), Qt::CaseInsensitive) == 0;
    });
}

SummarySection generalSection(const JobSettings &settings)
{
    SummarySection section{.title = TessarinPrint::tr("General")};
    for (const JobAttribute &attribute : jobAttributes()) {
        const QLatin1String name(attribute.name);
        const bool isForPrinters = name == QLatin1String(kCopies) || name == QLatin1String(kCollate);
        if (!isForPrinters || settings.printer().kind() != PrinterKind::Pdf) {
            section.rows << rowOf(settings, name);
        }
    }
    return section;
}

} // namespace

QList<SummarySection> summarySections(const JobSettings &settings, const QStringList &panelKeys,
                                      const QString &panelName)
{
    SummarySection general = generalSection(settings);
    SummarySection panel{.title = panelName};
    SummarySection features{.title = TessarinPrint::tr("Printer Features")};
    SummarySection others{.title = TessarinPrint::tr("Other options of the job")};
    const QStringList generalKeys = GeneralPage::optionKeys();
    for (const QString &key : settings.optionKeys()) {
        if (settings.value(key).isEmpty()) {
            continue;
        }
        SummarySection &section = panelKeys.contains(key, Qt::CaseInsensitive) ? panel
                                  : generalKeys.contains(key)                  ? general
                                                                               : features;
        section.rows << rowOf(settings, key);
    }
    for (const TicketEntry &entry : settings.ticket().entries()) {
        if (!settings.hasOption(entry.key) && !isAttribute(entry.key)) {
            others.rows << SummaryRow{.label = entry.key, .value = entry.value, .differs = true};
        }
    }
    QList<SummarySection> sections;
    for (const SummarySection &section : {general, panel, features, others}) {
        if (!section.rows.isEmpty()) {
            sections << section;
        }
    }
    return sections;
}

} // namespace tessarin::host

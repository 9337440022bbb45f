// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/state_reasons.h"

#include "printing/text.h"

#include <array>

namespace tessarin::host {

namespace {

struct Reason {
    const char *keyword;
    const char *text;
};

// RFC 8011 section 5.4.12, RFC 3998, PWG 5100.9 and the scheduler's own.
constexpr std::array kReasons = {
    Reason{"paused", QT_TRANSLATE_NOOP("TessarinPrint", "paused")},
    Reason{"moving-to-paused", QT_TRANSLATE_NOOP("TessarinPrint", "being paused")},
    Reason{"shutdown", QT_TRANSLATE_NOOP("TessarinPrint", "switched off")},
    Reason{"offline", QT_TRANSLATE_NOOP("TessarinPrint", "offline")},
    Reason{"connecting-to-device", QT_TRANSLATE_NOOP("TessarinPrint", "connecting to the printer")},
    Reason{"timed-out", QT_TRANSLATE_NOOP("TessarinPrint", "the printer does not answer")},
    Reason{"media-needed", QT_TRANSLATE_NOOP("TessarinPrint", "paper is needed")},
    Reason{"media-empty", QT_TRANSLATE_NOOP("TessarinPrint", "out of paper")},
    Reason{"media-low", QT_TRANSLATE_NOOP("TessarinPrint", "paper is low")},
    Reason{"media-jam", QT_TRANSLATE_NOOP("TessarinPrint", "paper jam")},
    Reason{"cover-open", QT_TRANSLATE_NOOP("TessarinPrint", "a cover is open")},
    Reason{"door-open", QT_TRANSLATE_NOOP("TessarinPrint", "a door is open")},
    Reason{"input-tray-missing", QT_TRANSLATE_NOOP("TessarinPrint", "the paper tray is missing")},
    Reason{"output-area-full", QT_TRANSLATE_NOOP("TessarinPrint", "the output tray is full")},
    Reason{"marker-supply-empty", QT_TRANSLATE_NOOP("TessarinPrint", "out of ink")},
    Reason{"marker-supply-low", QT_TRANSLATE_NOOP("TessarinPrint", "ink is low")},
    Reason{"marker-waste-full", QT_TRANSLATE_NOOP("TessarinPrint", "the waste container is full")},
    Reason{"marker-waste-almost-full", QT_TRANSLATE_NOOP("TessarinPrint", "the waste container is almost full")},
    Reason{"toner-empty", QT_TRANSLATE_NOOP("TessarinPrint", "out of toner")},
    Reason{"toner-low", QT_TRANSLATE_NOOP("TessarinPrint", "toner is low")},
    Reason{"spool-area-full", QT_TRANSLATE_NOOP("TessarinPrint", "the print server has no room left")},
    Reason{"hold-new-jobs", QT_TRANSLATE_NOOP("TessarinPrint", "new jobs are held")},
    Reason{"cups-missing-filter", QT_TRANSLATE_NOOP("TessarinPrint", "a program of its driver is missing")},
    Reason{"cups-insecure-filter",
           QT_TRANSLATE_NOOP("TessarinPrint", "a program of its driver can be changed by others")},
    Reason{"printer-stopped", QT_TRANSLATE_NOOP("TessarinPrint", "the printer is stopped")},
    Reason{"printer-stopped-partly", QT_TRANSLATE_NOOP("TessarinPrint", "the printer is partly stopped")},
    Reason{"job-hold-until-specified", QT_TRANSLATE_NOOP("TessarinPrint", "it waits for its time or its release")},
    Reason{"job-data-insufficient", QT_TRANSLATE_NOOP("TessarinPrint", "documents are still to come")},
    Reason{"job-incoming", QT_TRANSLATE_NOOP("TessarinPrint", "documents are still to come")},
    Reason{"job-canceled-by-user", QT_TRANSLATE_NOOP("TessarinPrint", "cancelled by a person")},
    Reason{"job-canceled-by-operator", QT_TRANSLATE_NOOP("TessarinPrint", "cancelled by an operator")},
    Reason{"job-canceled-at-device", QT_TRANSLATE_NOOP("TessarinPrint", "cancelled at the printer")},
    Reason{"aborted-by-system", QT_TRANSLATE_NOOP("TessarinPrint", "given up by the print server")},
    Reason{"document-format-error", QT_TRANSLATE_NOOP("TessarinPrint", "the document is damaged")},
    Reason{"unsupported-document-format",
           QT_TRANSLATE_NOOP("TessarinPrint", "the printer cannot print this kind of document")},
    Reason{"job-completed-with-warnings", QT_TRANSLATE_NOOP("TessarinPrint", "printed with warnings")},
    Reason{"job-completed-with-errors", QT_TRANSLATE_NOOP("TessarinPrint", "printed with errors")},
};

QString known(const QString &keyword)
{
    for (const Reason &reason : kReasons) {
        if (keyword == QLatin1String(reason.keyword)) {
            return TessarinPrint::tr(reason.text);
        }
    }
    return {};
}

QString reasonText(const QString &keyword)
{
    if (QString text = known(keyword); !text.isEmpty()) {
        return text; // before its end is cut: "document-format-error" is a name, not a degree
    }
    QString plain = keyword;
    for (const char *degree : {"-report", "-warning", "-error"}) {
        if (plain.endsWith(QLatin1String(degree))) {
            plain.chop(QLatin1String(degree).size());
            break;
        }
    }
    const QString text = known(plain);
    return text.isEmpty() ? plain.replace(u'-', u' ') : text;
}

} // namespace

QString stateReasonsText(const QStringList &keywords)
{
    QStringList texts;
    for (const QString &keyword : keywords) {
        const QString trimmed = keyword.trimmed();
        if (trimmed.isEmpty() || trimmed == QLatin1String("none")) {
            continue;
        }
        const QString text = reasonText(trimmed);
        if (!texts.contains(text)) {
            texts << text;
        }
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/summary_lines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessarin::host {

QList<SummaryLine> summaryLines(const pde::Summary &summary)
{
    QStringList others = summary.entries.keys();
    others.sort();
    QStringList labels = summary.displayOrder.value_or(QStringList()) + others;
    labels.removeDuplicates();
    QList<SummaryLine> lines;
    for (const QString &label : labels) {
        if (summary.entries.contains(label)) {
            lines.append({.label = label, .value = summary.entries.value(label)});
        }
    }
    return lines;
}

QString summaryText(const QList<SummaryLine> &lines)
{
    QString text;
    for (const SummaryLine &line : lines) {
        // Some labels end in a colon of their own.
        const QLatin1String separator(line.label.endsWith(u':') ? " " : ": ");
        text += line.label + separator + line.value + u'\n';
    }
    return text;
}

QString summaryJson(const QList<SummaryLine> &lines)
{
    QJsonArray array;
    for (const SummaryLine &line : lines) {
        array.append(QJsonObject{{QStringLiteral("label"), line.label}, {QStringLiteral("value"), line.value}});
    }
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Indented));
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/sessions/trace_match.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace tessarin::test {

namespace {

constexpr qsizetype kLinesAround = 6;
constexpr qsizetype kShownLength = 400;

QString shown(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.sliced(1, array.size() - 2)).left(kShownLength);
}

/// Where the value differs from what is expected of it; an empty text when it does not.
QString difference(const QString &path, const QJsonValue &expected, const QJsonValue &got)
{
    if (!expected.isObject()) {
        return expected == got ? QString()
                               : QStringLiteral("%1: expected %2, got %3").arg(path, shown(expected), shown(got));
    }
    const QJsonObject fields = expected.toObject();
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        const QString below = path + QLatin1Char('.') + field.key();
        QJsonValue value =
            got.isArray() ? got.toArray().at(field.key().toInt()) : got.toObject().value(field.key());
        if (value.isUndefined()) {
            return QStringLiteral("%1: expected %2, there is none").arg(below, shown(field.value()));
        }
        if (const QString found = difference(below, field.value(), value); !found.isEmpty()) {
            return found;
        }
    }
    return {};
}

/// Why a trace line is not the expected one; an empty text when it is.
QString mismatch(const QString &expected, const QString &line)
{
    const QJsonObject wanted = QJsonDocument::fromJson(expected.toUtf8()).object();
    const QJsonObject got = QJsonDocument::fromJson(line.toUtf8()).object();
    const QJsonValue log = wanted.value(QStringLiteral("log"));
    if (log.isObject()) {
        const QString start = log.toObject().value(QStringLiteral("start")).toString();
        return got.value(QStringLiteral("log")).toString().startsWith(start) && got.contains(QStringLiteral("log"))
                   ? QString()
                   : QStringLiteral("another line");
    }
    if (wanted.contains(QStringLiteral("state")) && got.contains(QStringLiteral("state"))) {
        return difference(QStringLiteral("state"), wanted.value(QStringLiteral("state")),
                          got.value(QStringLiteral("state")));
    }
    return expected == line ? QString() : QStringLiteral("another line");
}

QString report(const QStringList &trace, qsizetype at, const QString &expected, const QString &why)
{
    QString text = QStringLiteral("expected: %1\n     got: %2\n")
                       .arg(expected, trace.value(at, QStringLiteral("(the end of the trace)")).left(kShownLength));
    if (!why.isEmpty()) {
        text += QStringLiteral("     why: %1\n").arg(why);
    }
    text += QStringLiteral("trace, line %1 and around:\n").arg(at + 1);
    for (qsizetype i = std::max<qsizetype>(0, at - kLinesAround); i < std::min(trace.size(), at + kLinesAround);
         ++i) {
        text += QStringLiteral("%1 %2\n").arg(i == at ? QStringLiteral(">") : QStringLiteral(" "),
                                              trace[i].left(kShownLength));
    }
    return text;
}

} // namespace

QString compareTrace(const QStringList &trace, const QStringList &expected)
{
    qsizetype at = 0;
    bool skipping = false;
    for (const QString &line : expected) {
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (line == QLatin1String("...")) {
            skipping = true;
            continue;
        }
        const qsizetype start = at;
        QString why = at < trace.size() ? mismatch(line, trace[at]) : QStringLiteral("the trace ends");
        while (skipping && !why.isEmpty() && at + 1 < trace.size()) {
            ++at;
            why = mismatch(line, trace[at]);
        }
        if (!why.isEmpty()) {
            return report(trace, skipping ? start : at, line, why);
        }
        ++at;
        skipping = false;
    }
    if (!skipping && at < trace.size()) {
        return report(trace, at, QStringLiteral("(the end of the trace)"), {});
    }
    return {};
}

} // namespace tessarin::test

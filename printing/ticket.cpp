// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/ticket.h"

#include "printing/text.h"

#include <QStringDecoder>

#include <algorithm>

namespace tessarin::host {

namespace {

using Entries = std::vector<TicketEntry>;

void setIn(Entries &entries, const QString &key, const QString &value)
{
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const TicketEntry &entry) {
        return entry.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    if (found != entries.end()) {
        found->value = value;
    } else {
        entries.push_back({.key = key, .value = value});
    }
}

std::optional<QString> valueIn(const Entries &entries, const QString &key)
{
    for (const TicketEntry &entry : entries) {
        if (entry.key.compare(key, Qt::CaseInsensitive) == 0) {
            return entry.value;
        }
    }
    return std::nullopt;
}

QString escaped(const QString &text, bool isKey)
{
    QString result;
    for (const QChar character : text) {
        if (character == u'\\') {
            result += QStringLiteral("\\\\");
        } else if (character == u'\n') {
            result += QStringLiteral("\\n");
        } else if (character == u'\r') {
            result += QStringLiteral("\\r");
        } else if (isKey && character == u'=') {
            result += QStringLiteral("\\=");
        } else {
            result += character;
        }
    }
    return result;
}

/// The character that stands for `\letter`; nothing for an unknown one.
std::optional<QChar> unescaped(QChar letter)
{
    switch (letter.unicode()) {
    case u'\\':
    case u'=':
        return letter;
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    default:
        return std::nullopt;
    }
}

/// Reads one line into an entry. Answers what is wrong with it; an empty text when nothing is.
QString readLine(const QString &line, TicketEntry &entry)
{
    bool inKey = true;
    for (qsizetype i = 0; i < line.size(); ++i) {
        QChar character = line[i];
        if (character.isNull()) {
            return TessarinPrint::tr("it holds a zero byte");
        }
        if (character == u'=' && inKey) {
            inKey = false;
            continue;
        }
        if (character == u'\\') {
            const std::optional<QChar> meant =
                i + 1 < line.size() ? unescaped(line[i + 1]) : std::optional<QChar>();
            if (!meant) {
                return TessarinPrint::tr("a backslash is not followed by \\, =, n or r");
            }
            character = *meant;
            ++i;
        }
        (inKey ? entry.key : entry.value) += character;
    }
    if (inKey) {
        return TessarinPrint::tr("there is no \"=\" in it");
    }
    return entry.key.isEmpty() ? TessarinPrint::tr("there is no key before the \"=\"") : QString();
}

} // namespace

void JobTicket::set(const QString &key, const QString &value)
{
    setIn(entries_, key, value);
}

std::optional<QString> JobTicket::value(const QString &key) const
{
    return valueIn(entries_, key);
}

void JobTicket::removeEmpty()
{
    std::erase_if(entries_, [](const TicketEntry &entry) { return entry.value.isEmpty(); });
}

void JobTicket::setHint(const QString &key, const QString &value)
{
    setIn(hints_, key, value);
}

std::optional<QString> JobTicket::hint(const QString &key) const
{
    return valueIn(hints_, key);
}

QByteArray JobTicket::toLines() const
{
    QString text;
    for (const TicketEntry &entry : entries_) {
        text += escaped(entry.key, true) + u'=' + escaped(entry.value, false) + u'\n';
    }
    return text.toUtf8();
}

Outcome<JobTicket> JobTicket::fromLines(const QByteArray &text)
{
    JobTicket ticket;
    int number = 0;
    for (QByteArray bytes : text.split('\n')) {
        ++number;
        if (bytes.endsWith('\r')) {
            bytes.chop(1);
        }
        if (bytes.isEmpty()) {
            continue;
        }
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString line = decoder(bytes);
        TicketEntry entry;
        const QString wrong =
            decoder.hasError() ? TessarinPrint::tr("it is not UTF-8 text") : readLine(line, entry);
        if (!wrong.isEmpty()) {
            return Outcome<JobTicket>::failed(TessarinPrint::tr("line %1: %2").arg(QString::number(number), wrong));
        }
        ticket.set(entry.key, entry.value);
    }
    return ticket;
}

CupsOptions JobTicket::toCupsOptions() const
{
    CupsOptions options;
    for (const TicketEntry &entry : entries_) {
        options.add(entry.key, entry.value);
    }
    return options;
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/options_file.h"

#include "printing/cups_options.h"

#include <QList>

#include <algorithm>

#include <cups/cups.h>

namespace tessarin::host {

namespace {

/// A line of the file.
struct Line {
    QByteArray text{};      ///< all of it, without its end
    QByteArray key{};       ///< the queue or "queue/instance" in lower case; empty: no line of a queue
    QByteArray shownKey{};  ///< as written
    QByteArray rest{};      ///< the options
    bool isDefault = false; ///< the user's default queue
};

Line lineOf(const QByteArray &text)
{
    Line line{.text = text};
    const QByteArray simple = text.trimmed();
    const auto blank = [](char character) { return character == ' ' || character == '\t'; };
    const auto wordEnd = std::find_if(simple.begin(), simple.end(), blank);
    const QByteArray word = QByteArray(simple.begin(), wordEnd - simple.begin()).toLower();
    if (word != "dest" && word != "default") {
        return line;
    }
    const auto keyBegin = std::find_if_not(wordEnd, simple.end(), blank);
    const auto keyEnd = std::find_if(keyBegin, simple.end(), blank);
    line.shownKey = QByteArray(keyBegin, keyEnd - keyBegin);
    line.key = line.shownKey.toLower();
    line.rest = QByteArray(keyEnd, simple.end() - keyEnd).trimmed();
    line.isDefault = word == "default";
    return line;
}

QList<Line> linesOf(const QByteArray &text)
{
    QList<Line> lines;
    for (const QByteArray &line : text.split('\n')) {
        if (!line.trimmed().isEmpty()) {
            lines << lineOf(line);
        }
    }
    return lines;
}

QByteArray textOf(const Line &line, bool isDefault)
{
    QByteArray text = (isDefault ? "Default " : "Dest ") + line.shownKey;
    if (!line.rest.isEmpty()) {
        text += ' ' + line.rest;
    }
    return text;
}

/// An option as libcups writes it.
QByteArray writtenOption(const QByteArray &name, const QByteArray &value)
{
    const auto needsQuotes = [](char c) { return c == ' ' || c == '\\' || c == '"' || c == '\''; };
    if (std::none_of(value.begin(), value.end(), needsQuotes)) {
        return name + '=' + value;
    }
    QByteArray text = name + "=\"";
    for (const char c : value) {
        if (c != ' ' && needsQuotes(c)) {
            text += '\\';
        }
        text += c;
    }
    return text + '"';
}

} // namespace

bool survivesOptionsFile(const QString &name, const QString &value)
{
    const auto isLost = [](QChar c) { return c < u' ' || c == QChar(0x7f) || c == u'#'; };
    if (value.isEmpty() || std::any_of(name.begin(), name.end(), isLost) ||
        std::any_of(value.begin(), value.end(), isLost)) {
        return false;
    }
    // Read by libcups itself, with an option behind it that a broken value would swallow.
    const QByteArray line = writtenOption(name.toUtf8(), value.toUtf8()) + " end=1";
    cups_option_t *options = nullptr; // owned here, freed below
    const int count = cupsParseOptions(line.constData(), 0, &options);
    const char *read = cupsGetOption(name.toUtf8().constData(), count, options);
    const char *end = cupsGetOption("end", count, options);
    const bool survives = count == 2 && read && QString::fromUtf8(read) == value && qstrcmp(end, "1") == 0;
    cupsFreeOptions(count, options);
    return survives;
}

QByteArray mergedOptionsFile(const QByteArray &before, const QByteArray &written, const QueueName &ours)
{
    const QByteArray ourKey = ours.text().toUtf8().toLower();
    const QByteArray ourInstances = ours.instance.isEmpty() ? ourKey + '/' : ourKey;
    const QList<Line> news = linesOf(written);
    QByteArrayList result;
    QByteArrayList done;
    for (const Line &old : linesOf(before)) {
        if (done.contains(old.key)) {
            continue; // libcups made one line of them
        }
        const bool isOurs = old.key == ourKey || old.key.startsWith(ourInstances);
        const auto found =
            std::find_if(news.begin(), news.end(), [&](const Line &line) { return isOurs && line.key == old.key; });
        if (found != news.end()) {
            result << textOf(*found, old.isDefault);
            done << old.key;
        } else if (old.key != ourKey) {
            result << old.text;
        } else if (old.isDefault || !ours.instance.isEmpty()) {
            // Nothing is left to say but that it is there.
            result << textOf({.shownKey = old.shownKey}, old.isDefault);
            done << old.key;
        }
    }
    for (const Line &line : news) {
        if (line.key == ourKey && !done.contains(ourKey)) {
            result << textOf(line, false);
        }
    }
    return result.isEmpty() ? QByteArray() : result.join('\n') + '\n';
}

} // namespace tessarin::host

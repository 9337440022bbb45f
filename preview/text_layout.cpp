// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/text_layout.h"

#include <QChar>
#include <QStringDecoder>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace tessarin::host {

namespace {

constexpr double kLeastMargin = 36; // points: half an inch
constexpr int kTabStop = 8;

/// Whether a byte can occur in text.
bool isTextByte(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x20 || (value >= '\b' && value <= '\r') || value == 0x1A; // the last ends files of old systems
}

/// How many columns a character takes: the scripts of East Asia need two.
int columnsOf(QStringView character)
{
    const char32_t code = character.size() > 1 && character[0].isHighSurrogate() && character[1].isLowSurrogate()
                              ? QChar::surrogateToUcs4(character[0], character[1])
                              : character[0].unicode();
    const bool isWide = (code >= 0x1100 && code <= 0x115F) || (code >= 0x2E80 && code <= 0xA4CF) ||
                        (code >= 0xAC00 && code <= 0xD7A3) || (code >= 0xF900 && code <= 0xFAFF) ||
                        (code >= 0xFE30 && code <= 0xFE6F) || (code >= 0xFF00 && code <= 0xFF60) ||
                        (code >= 0x1F300 && code <= 0x1FAFF) || (code >= 0x20000 && code <= 0x3FFFD);
    return isWide ? 2 : 1;
}

/// Pages while they are filled.
class PageFiller {
public:
    PageFiller(const TextGrid &grid, int mostPages) : grid_(grid), mostPages_(mostPages) {}

    bool isFull() const { return pages_.size() > mostPages_; }

    void put(QStringView character)
    {
        const int columns = columnsOf(character);
        if (column_ > 0 && column_ + columns > grid_.columns) {
            endLine();
        }
        line_ += character;
        column_ += columns;
    }
    void tab()
    {
        const int end = std::min((column_ / kTabStop + 1) * kTabStop, grid_.columns);
        for (; column_ < end; ++column_) {
            line_ += u' ';
        }
    }
    void endLine()
    {
        if (pages_.isEmpty() || pages_.back().size() >= grid_.lines) {
            pages_ << QStringList();
        }
        pages_.back() << line_;
        line_.clear();
        column_ = 0;
    }
    void endPage()
    {
        if (!line_.isEmpty() || pages_.isEmpty()) {
            endLine();
        }
        pages_ << QStringList();
    }
    QList<QStringList> take()
    {
        if (!line_.isEmpty() || pages_.isEmpty()) {
            endLine();
        }
        if (pages_.size() > 1 && pages_.back().isEmpty()) { // a form feed at the very end
            pages_.removeLast();
        }
        if (pages_.size() > mostPages_) {
            pages_.resize(mostPages_);
        }
        return std::move(pages_);
    }

private:
    TextGrid grid_;
    int mostPages_;
    QList<QStringList> pages_{};
    QString line_{};
    int column_ = 0;
};

} // namespace

QMarginsF textMargins(const QSizeF &paper, const QMarginsF &margins)
{
    const double least = std::min({kLeastMargin, paper.width() / 4, paper.height() / 4});
    return {std::max(least, margins.left()), std::max(least, margins.top()), std::max(least, margins.right()),
            std::max(least, margins.bottom())};
}

TextGrid textGrid(const QSizeF &paper, const QMarginsF &margins)
{
    const QMarginsF kept = textMargins(paper, margins);
    const double width = paper.width() - kept.left() - kept.right();
    const double height = paper.height() - kept.top() - kept.bottom();
    return {.columns = std::max(1, static_cast<int>(width / kTextColumn)),
            .lines = std::max(1, static_cast<int>(height / kTextLine))};
}

std::optional<QString> decodedText(const QByteArray &bytes)
{
    if (!std::all_of(bytes.begin(), bytes.end(), isTextByte)) {
        return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8); // keeps a character that is cut off for the bytes to come
    QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

QList<QStringList> textPages(const QString &text, const TextGrid &grid, int mostPages)
{
    PageFiller filler(grid, mostPages);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > start && !filler.isFull(); end = finder.toNextBoundary()) {
        const QStringView character = QStringView(text).mid(start, end - start);
        start = end;
        const QChar first = character.front();
        if (first == u'\n' || first == u'\r' || first == u'\v') { // CR LF is one grapheme
            filler.endLine();
        } else if (first == u'\f') {
            filler.endPage();
        } else if (first == u'\t') {
            filler.tab();
        } else if (first.category() != QChar::Other_Control) {
            filler.put(character);
        }
    }
    return filler.take();
}

} // namespace tessarin::host

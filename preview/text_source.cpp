// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_formats.h"

#include "preview/text_layout.h"
#include "printing/text.h"

#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <limits>
#include <utility>

namespace tessarin::host {

namespace {

constexpr qint64 kBeginning = 262144;            // bytes: more than any first page holds
constexpr qint64 kWhole = 67108864;              // bytes: a larger text is not laid out
constexpr QSizeF kA4 = QSizeF(595.276, 841.890); // points
constexpr int kFontUnit = 100;                   // pixels; drawn scaled, so that no hinting shifts the columns
constexpr double kAscent = 0.8;                  // of a line: where its letters stand

/// Text of these beginnings is a program for a printer or a word processor, and prints as something else.
bool isProgram(const QByteArray &bytes)
{
    return bytes.startsWith("%!") || bytes.startsWith("{\\rtf");
}

QFont textFont()
{
    QFont font(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace, QFont::PreferOutline);
    font.setFixedPitch(true);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(kFontUnit);
    return font;
}

class TextSource final : public PageSource {
public:
    TextSource(QString text, TextExtent extent, bool isCut) : text_(std::move(text)), extent_(extent), isCut_(isCut)
    {
        layOut(kA4, {});
    }

    int pageCount() const override { return static_cast<int>(pages_.size()); }
    QSizeF pageSize(int /*page*/) const override { return paper_; }
    QString remark() const override
    {
        return hasMore_ ? TessarinPrint::tr("only the first page is shown here; all pages are printed") : QString();
    }

    void setPaper(const QSizeF &paper, const QMarginsF &margins) override
    {
        if (!paper.isEmpty() && (paper != paper_ || margins != margins_)) {
            layOut(paper, margins);
        }
    }

    QImage render(int page, const QSize &pixels, const std::atomic<bool> &cancelled) const override
    {
        const QSize size = fittedPixels(paper_, pixels);
        if (size.isEmpty() || cancelled) {
            return {};
        }
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        return paint(page, painter, QRectF(image.rect())) ? image : QImage();
    }

    bool paint(int page, QPainter &painter, const QRectF &area) const override
    {
        if (page < 0 || page >= pageCount()) {
            return false;
        }
        const QRectF target = fitted(paper_, area);
        const QMarginsF margins = textMargins(paper_, margins_);
        const QFont font = textFont();
        const double column = QFontMetricsF(font).horizontalAdvance(u'0');
        if (column <= 0) {
            return false; // there is no font
        }
        const double unit = kTextColumn / column;
        painter.save();
        painter.setRenderHint(QPainter::TextAntialiasing);
        painter.setPen(Qt::black);
        painter.setFont(font);
        painter.translate(target.topLeft());
        painter.scale(target.width() / paper_.width() * unit, target.height() / paper_.height() * unit);
        double y = margins.top() + kAscent * kTextLine;
        for (const QString &line : pages_.at(page)) {
            painter.drawText(QPointF(margins.left() / unit, y / unit), line);
            y += kTextLine;
        }
        painter.restore();
        return true;
    }

private:
    void layOut(const QSizeF &paper, const QMarginsF &margins)
    {
        paper_ = paper;
        margins_ = margins;
        const int wanted = extent_ == TextExtent::FirstPage ? 1 : std::numeric_limits<int>::max() - 1;
        pages_ = textPages(text_, textGrid(paper, margins), extent_ == TextExtent::FirstPage ? 2 : wanted);
        hasMore_ = isCut_ || pages_.size() > wanted;
        if (pages_.size() > wanted) {
            pages_.resize(wanted);
        }
    }

    QString text_;
    TextExtent extent_;
    bool isCut_; ///< the file is longer than what was read of it
    QSizeF paper_{};
    QMarginsF margins_{};
    QList<QStringList> pages_{};
    bool hasMore_ = false;
};

} // namespace

OpenedPages openText(const QString &path, TextExtent extent)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return cannotShow(path, file.errorString());
    }
    const qint64 most = extent == TextExtent::FirstPage ? kBeginning : kWhole;
    const QByteArray bytes = file.read(most);
    if (file.error() != QFileDevice::NoError) {
        return cannotShow(path, file.errorString());
    }
    const bool isCut = bytes.size() == most && !file.atEnd();
    const std::optional<QString> text = isProgram(bytes) ? std::nullopt : decodedText(bytes);
    if (!text) {
        return cannotShow(path, noPreviewReason());
    }
    if (isCut && extent == TextExtent::Whole) {
        return cannotShow(path, TessarinPrint::tr("the text is longer than %1 MB").arg(kWhole / 1024 / 1024));
    }
    return OpenedPages(std::make_unique<TextSource>(*text, extent, isCut));
}

} // namespace tessarin::host

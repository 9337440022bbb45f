// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/caption_label.h"

#include "platform/mnemonics.h"

#include <QPainter>
#include <QShortcutEvent>
#include <QStyleOption>

namespace tessarin {

namespace {

constexpr QChar kWideLetter = QLatin1Char('W'); // as wide as any

} // namespace

qsizetype endOfCaption(const QString &text)
{
    const bool colon = text.endsWith(QLatin1Char(':')) || text.endsWith(QChar(0xFF1A));
    return text.size() - (colon ? 1 : 0);
}

QWidget *captionedControl(const QLabel &caption)
{
    QWidget *control = caption.buddy();
    const QWidget *around = control != nullptr ? control->parentWidget() : nullptr;
    if (around == nullptr || !control->isHidden()) {
        return control;
    }
    for (QObject *sibling : around->children()) {
        auto *other = qobject_cast<QWidget *>(sibling);
        if (other != nullptr && !other->isHidden() && other->geometry() == control->geometry()) {
            return other;
        }
    }
    return control;
}

CaptionLabel::CaptionLabel(QWidget *parent) : QLabel(parent) {}

void CaptionLabel::setMnemonic(QChar letter)
{
    if (letter_ == letter) {
        return;
    }
    releaseShortcut(shortcut_);
    const QKeySequence keys = mnemonicKeys(letter);
    letter_ = keys.isEmpty() ? QChar() : letter;
    shortcut_ = keys.isEmpty() ? 0 : grabShortcut(keys);
    update();
}

bool CaptionLabel::hasRoomForLetter() const
{
    return hasRoomFor(textWith(kWideLetter));
}

QString CaptionLabel::drawnText() const
{
    const QString marked = textWith(letter_);
    // The text may have changed since the letter was given to it.
    return placeOfMnemonic(text(), letter_) >= 0 || hasRoomFor(marked) ? marked : textWith({});
}

QString CaptionLabel::textWith(QChar letter) const
{
    const QString plain = QString(text()).replace(QLatin1Char('&'), QLatin1String("&&"));
    if (letter.isNull() || placeOfMnemonic(plain, letter) >= 0) {
        return markedText(plain, letter);
    }
    return QString(plain).insert(endOfCaption(plain), QStringLiteral("(&%1)").arg(letter));
}

bool CaptionLabel::hasRoomFor(const QString &text) const
{
    const QRect room = contentsRect();
    const int flags = drawingFlags(text) | Qt::TextShowMnemonic;
    const QRect needed = fontMetrics().boundingRect(room, flags, text);
    // A letter on a line of its own would belong to nothing.
    return needed.width() <= room.width() &&
           needed.height() <= fontMetrics().boundingRect(room, flags, textWith({})).height();
}

int CaptionLabel::drawingFlags(const QString &text) const
{
    const bool leftwards = text.isRightToLeft(); // as every label has it, whatever the window's direction
    const Qt::Alignment aligned =
        QStyle::visualAlignment(leftwards ? Qt::RightToLeft : Qt::LeftToRight, alignment());
    return static_cast<int>(aligned.toInt()) | (wordWrap() ? Qt::TextWordWrap : 0) |
           (leftwards ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight);
}

bool CaptionLabel::event(QEvent *event)
{
    if (event->type() != QEvent::Shortcut || shortcut_ == 0 ||
        static_cast<const QShortcutEvent *>(event)->shortcutId() != shortcut_) {
        return QLabel::event(event);
    }
    if (QWidget *control = captionedControl(*this); control != nullptr && control->isVisible()) {
        control->setFocus(Qt::ShortcutFocusReason);
        window()->setAttribute(Qt::WA_KeyboardFocusChange);
    }
    return true;
}

void CaptionLabel::paintEvent(QPaintEvent *event)
{
    if (buddy() == nullptr || text().isEmpty() || textFormat() != Qt::PlainText) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    const bool underlined = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    const QString drawn = drawnText();
    const int flags = drawingFlags(drawn) | (underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    style()->drawItemText(&painter, contentsRect(), flags, option.palette, isEnabled(), drawn, foregroundRole());
}

} // namespace tessarin

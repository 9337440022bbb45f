// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/mnemonics.h"

#include "platform/caption_label.h"
#include "platform/tab_view.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QMenuBar>

namespace tessarin {

namespace {

bool isLetter(QChar character)
{
    const QChar letter = character.toUpper();
    return letter >= QLatin1Char('A') && letter <= QLatin1Char('Z');
}

bool beginsWord(const QString &text, qsizetype place)
{
    return place == 0 || !text[place - 1].isLetterOrNumber();
}

void takeLettersOf(const QWidget *view, MnemonicLetters &letters)
{
    if (const auto *caption = qobject_cast<const CaptionLabel *>(view)) {
        letters.take(mnemonicKeys(caption->mnemonic()));
    } else if (const auto *label = qobject_cast<const QLabel *>(view)) {
        letters.take(label->buddy() != nullptr ? QKeySequence::mnemonic(label->text()) : QKeySequence());
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(view)) {
        letters.take(button->shortcut());
    } else if (const auto *group = qobject_cast<const QGroupBox *>(view)) {
        letters.take(QKeySequence::mnemonic(group->title()));
    } else if (const auto *menus = qobject_cast<const QMenuBar *>(view)) {
        for (const QAction *action : menus->actions()) {
            letters.take(QKeySequence::mnemonic(action->text()));
        }
    } else if (const auto *tabs = qobject_cast<const QTabBar *>(view)) {
        for (int position = 0; position < tabs->count(); ++position) {
            letters.take(QKeySequence::mnemonic(tabs->tabText(position)));
        }
    }
}

void giveLetterTo(CaptionLabel *caption, MnemonicLetters &letters)
{
    const QWidget *control = caption->buddy();
    if (control == nullptr || control->focusPolicy() == Qt::NoFocus) {
        return;
    }
    QChar letter = letters.give(caption->text());
    // What is written without letters has one behind it; the name of a control is English everywhere.
    if (letter.isNull() && caption->hasRoomForLetter()) {
        letter = letters.give(control->objectName());
    }
    caption->setMnemonic(letter);
}

void giveLetterTo(QAbstractButton *button, MnemonicLetters &letters)
{
    const QString text = unmarkedText(button->text());
    const QString marked = markedText(text, letters.give(text));
    if (button->text() != marked) {
        button->setText(marked);
    }
}

} // namespace

qsizetype placeOfMnemonic(const QString &text, QChar letter)
{
    qsizetype found = -1;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (text[place].toUpper() != letter.toUpper()) {
            continue;
        }
        if (beginsWord(text, place)) {
            return place;
        }
        found = found < 0 ? place : found;
    }
    return found;
}

QString markedText(const QString &text, QChar letter)
{
    const qsizetype place = isLetter(letter) ? placeOfMnemonic(text, letter) : -1;
    return place < 0 ? text : QString(text).insert(place, QLatin1Char('&'));
}

QString unmarkedText(const QString &text)
{
    QString unmarked;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (text[place] == QLatin1Char('&')) {
            const bool twice = place + 1 < text.size() && text[place + 1] == QLatin1Char('&');
            unmarked += twice ? QLatin1String("&&") : QLatin1String();
            place += twice ? 1 : 0;
        } else {
            unmarked += text[place];
        }
    }
    return unmarked;
}

QKeySequence mnemonicKeys(QChar letter)
{
    return isLetter(letter) ? QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter.toUpper().unicode()))
                            : QKeySequence();
}

void MnemonicLetters::take(const QKeySequence &keys)
{
    if (keys.count() == 1 && keys[0].keyboardModifiers() == Qt::AltModifier) {
        taken_ += QChar(static_cast<char16_t>(keys[0].key()));
    }
}

QChar MnemonicLetters::give(const QString &text)
{
    for (const bool initial : {true, false}) {
        for (qsizetype place = 0; place < text.size(); ++place) {
            if (isFree(text[place]) && (!initial || beginsWord(text, place))) {
                taken_ += text[place].toUpper();
                return taken_.back();
            }
        }
    }
    return {};
}

bool MnemonicLetters::isFree(QChar letter) const
{
    return isLetter(letter) && !taken_.contains(letter.toUpper());
}

void giveMnemonics(TabView *tabs)
{
    MnemonicLetters letters;
    const QWidget *window = tabs->window();
    for (const QWidget *view : window->findChildren<QWidget *>()) {
        if (view != tabs && !tabs->isAncestorOf(view) && view->isVisibleTo(window)) {
            takeLettersOf(view, letters);
        }
    }
    tabs->giveMnemonics(letters);
    if (const QWidget *page = tabs->currentWidget()) {
        for (QWidget *view : page->findChildren<QWidget *>()) {
            if (auto *caption = qobject_cast<CaptionLabel *>(view)) {
                giveLetterTo(caption, letters);
            } else if (auto *button = qobject_cast<QAbstractButton *>(view)) {
                giveLetterTo(button, letters);
            }
        }
    }
}

} // namespace tessarin

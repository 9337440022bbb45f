// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/mnemonics.h"

#include "platform/caption_label.h"
#include "platform/tab_view.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QMenuBar>
#include <QShortcut>

#include <functional>
#include <vector>

namespace tessarin {

namespace {

/// What is given a letter.
struct Receiver {
    QString text;                    ///< in which "&" stands for itself only where it is written twice
    QString otherwise;               ///< gives the letter when the text has none; empty: nothing does
    QChar present;                   ///< the letter that it has; null: none
    std::function<void(QChar)> give; ///< sets the letter, null for none
};

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
        letters.take(caption->mnemonic());
    } else if (const auto *label = qobject_cast<const QLabel *>(view)) {
        letters.take(label->buddy() != nullptr ? mnemonicOf(QKeySequence::mnemonic(label->text())) : QChar());
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(view)) {
        letters.take(mnemonicOf(button->shortcut()));
    } else if (const auto *group = qobject_cast<const QGroupBox *>(view)) {
        letters.take(mnemonicOf(QKeySequence::mnemonic(group->title())));
    } else if (const auto *tabs = qobject_cast<const QTabBar *>(view)) {
        const auto *asking = qobject_cast<const AskingTabBar *>(tabs);
        for (int position = 0; position < tabs->count(); ++position) {
            letters.take(mnemonicOf(QKeySequence::mnemonic(tabs->tabText(position))));
            letters.take(asking != nullptr ? asking->mnemonic(position) : QChar());
        }
    }
    const bool isMenuBar = qobject_cast<const QMenuBar *>(view) != nullptr;
    for (const QAction *action : view->actions()) {
        letters.take(mnemonicOf(action->shortcut()));
        letters.take(isMenuBar ? mnemonicOf(QKeySequence::mnemonic(action->text())) : QChar());
    }
}

void takeLettersAround(const TabView *tabs, MnemonicLetters &letters)
{
    const QWidget *window = tabs->window();
    takeLettersOf(window, letters);
    for (const QWidget *view : window->findChildren<QWidget *>()) {
        const bool isOther = view->window() == window && view != tabs && !tabs->isAncestorOf(view);
        if (isOther && view->isVisibleTo(window)) {
            takeLettersOf(view, letters);
        }
    }
    for (const QShortcut *shortcut : window->findChildren<QShortcut *>()) {
        letters.take(mnemonicOf(shortcut->key()));
    }
}

Receiver receiver(CaptionLabel *caption)
{
    // What is written without letters has one behind it; the name of a control is English everywhere.
    return {.text = caption->text(),
            .otherwise = caption->hasRoomForLetter() ? caption->buddy()->objectName() : QString(),
            .present = caption->mnemonic(),
            .give = [caption](QChar letter) { caption->setMnemonic(letter); }};
}

Receiver receiver(QAbstractButton *button)
{
    const QString text = unmarkedText(button->text());
    return {.text = text,
            .otherwise = {},
            .present = mnemonicOf(button->shortcut()),
            .give = [button, text](QChar letter) {
                const QString marked = markedText(text, letter);
                if (button->text() != marked) {
                    button->setText(marked);
                }
            }};
}

/// Takes the letters that the tabs' texts mark.
void addTabs(const TabView *tabs, MnemonicLetters &letters, std::vector<Receiver> &receivers)
{
    AskingTabBar *bar = tabs->askingBar();
    for (int position = 0; position < bar->count(); ++position) {
        const QKeySequence own = QKeySequence::mnemonic(bar->tabText(position));
        if (!own.isEmpty()) {
            letters.take(mnemonicOf(own));
            bar->setMnemonic(position, {});
        } else {
            receivers.push_back({.text = bar->tabText(position),
                                 .otherwise = {},
                                 .present = bar->mnemonic(position),
                                 .give = [bar, position](QChar letter) { bar->setMnemonic(position, letter); }});
        }
    }
}

void addPage(const QWidget *page, std::vector<Receiver> &receivers)
{
    for (QWidget *view : page->findChildren<QWidget *>()) {
        if (auto *caption = qobject_cast<CaptionLabel *>(view)) {
            if (caption->buddy() != nullptr && caption->buddy()->focusPolicy() != Qt::NoFocus) {
                receivers.push_back(receiver(caption));
            }
        } else if (auto *button = qobject_cast<QAbstractButton *>(view)) {
            receivers.push_back(receiver(button));
        }
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

QChar mnemonicOf(const QKeySequence &keys)
{
    const bool isAltAndOne = keys.count() == 1 && keys[0].keyboardModifiers() == Qt::AltModifier;
    const bool isOne = isAltAndOne && keys[0].key() >= Qt::Key_A && keys[0].key() <= Qt::Key_Z;
    return isOne ? QChar(static_cast<char16_t>(keys[0].key())) : QChar();
}

bool MnemonicLetters::take(QChar letter)
{
    if (!isLetter(letter) || taken_.contains(letter.toUpper())) {
        return false;
    }
    taken_ += letter.toUpper();
    return true;
}

QChar MnemonicLetters::give(const QString &text)
{
    for (const bool initial : {true, false}) {
        for (qsizetype place = 0; place < text.size(); ++place) {
            if ((!initial || beginsWord(text, place)) && take(text[place])) {
                return taken_.back();
            }
        }
    }
    return {};
}

void giveMnemonics(TabView *tabs)
{
    MnemonicLetters letters;
    takeLettersAround(tabs, letters);
    std::vector<Receiver> receivers;
    addTabs(tabs, letters, receivers);
    if (const QWidget *page = tabs->currentWidget()) {
        addPage(page, receivers);
    }
    // First who keeps a letter: a person may have it in mind.
    for (Receiver &receiver : receivers) {
        const bool fits = !receiver.otherwise.isEmpty() || placeOfMnemonic(receiver.text, receiver.present) >= 0;
        receiver.present = fits && letters.take(receiver.present) ? receiver.present : QChar();
    }
    for (Receiver &receiver : receivers) {
        for (const QString &text : {receiver.text, receiver.otherwise}) {
            receiver.present = receiver.present.isNull() ? letters.give(text) : receiver.present;
        }
        receiver.give(receiver.present);
    }
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Mnemonics of the interface file's captions, buttons and tabs: letters that go to a control or a page together
// with Alt. The file's texts are keys of translations and mark none, so letters are given out when a page is shown,
// and again when the host's views around change: those that the host leaves, each once.

#ifndef TESSARIN_PLATFORM_MNEMONICS_H
#define TESSARIN_PLATFORM_MNEMONICS_H

#include <QKeySequence>
#include <QString>

namespace tessarin {

class TabView;

/// The place of the letter in a text in which "&" stands for itself only where it is written twice: the beginning
/// of a word that has the letter there, else its first place; -1 when the text lacks it.
qsizetype placeOfMnemonic(const QString &text, QChar letter);
/// Such a text with the letter marked by an "&" before it; as it is when it lacks the letter.
QString markedText(const QString &text, QChar letter);
/// Such a text without marks of letters.
QString unmarkedText(const QString &text);
/// Alt and the letter; empty for what is none of A to Z.
QKeySequence mnemonicKeys(QChar letter);
/// The letter of such keys; null for other keys.
QChar mnemonicOf(const QKeySequence &keys);

/// The letters of a window that are not taken, out of A to Z, which every keyboard has.
class MnemonicLetters {
public:
    /// Takes a letter. False when it is taken, or none.
    bool take(QChar letter);
    /// Gives a letter out: of the text, best one that begins a word; null when it has none left.
    QChar give(const QString &text);

private:
    QString taken_;
};

/// Gives letters to the tabs, and to the captions and buttons of the page that is shown. They have those that no
/// visible view of the window around the tabs has, and keep what they have as long as they can.
void giveMnemonics(TabView *tabs);

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Mnemonics of the interface file's captions, buttons and tabs: letters that give a control the focus together with
// Alt. The file's texts are keys of translations and mark none, so letters are given out when a page is shown: each
// once in a window, with those of the host left to the host.

#ifndef TESSARIN_PLATFORM_MNEMONICS_H
#define TESSARIN_PLATFORM_MNEMONICS_H

#include <QKeySequence>
#include <QString>

class QWidget;

namespace tessarin {

class TabView;

/// The place of the letter in a text in which "&" stands for itself only where it is written twice: the beginning
/// of a word that has the letter there, else its first place; -1 when the text lacks it.
qsizetype placeOfMnemonic(const QString &text, QChar letter);
/// Such a text with the letter marked by an "&" before it; as it is when it lacks the letter.
QString markedText(const QString &text, QChar letter);
/// Such a text without marks of letters.
QString unmarkedText(const QString &text);
/// Alt and the letter.
QKeySequence mnemonicKeys(QChar letter);

/// The letters of a window that are not taken, out of A to Z, which every keyboard has.
class MnemonicLetters {
public:
    /// Takes the letter of a key sequence, if it is Alt and a letter.
    void take(const QKeySequence &keys);
    /// Gives a letter out: of the text, best one that begins a word; null when it has none left.
    QChar give(const QString &text);

private:
    bool isFree(QChar letter) const;

    QString taken_;
};

/// Gives letters to the tabs, and to the captions and buttons of the page that is shown. They have those that no
/// visible view of the window around the tabs has.
void giveMnemonics(TabView *tabs);

} // namespace tessarin

#endif

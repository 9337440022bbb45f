// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The tab view of the interface file: a tab widget that asks before it selects a page.

#ifndef TESSARIN_PLATFORM_TAB_VIEW_H
#define TESSARIN_PLATFORM_TAB_VIEW_H

#include <QPointer>
#include <QTabBar>
#include <QTabWidget>

#include <functional>
#include <vector>

class QShortcutEvent;

namespace tessarin {

/// Answers whether the tab at a 0-based position may be selected.
using ShouldSelectTab = std::function<bool(int position)>;

/// A tab bar that asks before it selects a tab, and passes over refused tabs on the way with keys and wheel.
class AskingTabBar : public QTabBar {
    Q_OBJECT
    Q_PROPERTY(QString mnemonics READ mnemonics)

public:
    explicit AskingTabBar(QWidget *parent = nullptr);

    /// The question that is asked; an empty one allows every tab.
    void setShouldSelect(ShouldSelectTab shouldSelect);
    bool maySelect(int position) const;
    /// Selects the next tab in the direction (1 or -1) that may be selected; `wrap` goes on at the other end. Does
    /// nothing when there is none.
    void selectNext(int direction, bool wrap);
    /// Draws each tab as its identifier says: the tabs that would be refused look disabled.
    void showIdentifiers();
    /// Alt and the letter, A to Z, select the tab at a position if it may be selected; the letter is underlined.
    /// Null: there is none.
    void setMnemonic(int position, QChar letter);
    /// The letter that a tab was given; null when it has none.
    QChar mnemonic(int position) const;
    /// The letters of all tabs that have one, in the tabs' order.
    QString mnemonics() const;

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void initStyleOption(QStyleOptionTab *option, int tabIndex) const override;

private:
    bool answerKeys(const QShortcutEvent &keys);

    struct Mnemonic {
        QChar letter;
        int shortcut = 0; ///< the toolkit's number of the keys; 0: there are none
    };

    ShouldSelectTab shouldSelect_;
    std::vector<Mnemonic> mnemonics_; ///< by the tab's position
    int wheelTurn_ = 0;               ///< angle not yet used up, in eighths of a degree
};

/// The tab widget with such a bar. Each tab's identifier is its data in the bar.
class TabView : public QTabWidget {
    Q_OBJECT

public:
    explicit TabView(QWidget *parent = nullptr);

    void setShouldSelect(ShouldSelectTab shouldSelect);
    bool maySelect(int position) const { return bar_->maySelect(position); }
    /// The identifier of the tab at a position; a null string when it has none or there is no such tab.
    QString identifier(int position) const;
    void setIdentifier(int position, const QString &identifier);
    AskingTabBar *askingBar() const { return bar_; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void keepAllowed(int position);
    void giveLetters();
    void giveLettersSoon();

    AskingTabBar *bar_; ///< owned by this widget
    int allowed_ = -1;  ///< the last position that was not refused
    QPointer<QWidget> watchedWindow_;
    bool isGivingSoon_ = false;
};

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/tab_view.h"

#include "platform/mnemonics.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcutEvent>
#include <QStyleOptionTab>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tessarin {

AskingTabBar::AskingTabBar(QWidget *parent) : QTabBar(parent) {}

void AskingTabBar::setShouldSelect(ShouldSelectTab shouldSelect)
{
    shouldSelect_ = std::move(shouldSelect);
    update();
}

bool AskingTabBar::maySelect(int position) const
{
    return !shouldSelect_ || shouldSelect_(position);
}

void AskingTabBar::selectNext(int direction, bool wrap)
{
    int position = currentIndex();
    for (int step = 1; step < count(); ++step) {
        position += direction;
        if (wrap) {
            position = (position + count()) % count();
        }
        if (position < 0 || position >= count()) {
            return;
        }
        if (isTabVisible(position) && maySelect(position)) {
            setCurrentIndex(position);
            return;
        }
    }
}

void AskingTabBar::showIdentifiers()
{
    update();
}

void AskingTabBar::setMnemonic(int position, QChar letter)
{
    if (position < 0 || position >= count() || mnemonic(position) == letter) {
        return;
    }
    const auto place = static_cast<std::size_t>(position);
    mnemonics_.resize(std::max(mnemonics_.size(), place + 1));
    releaseShortcut(mnemonics_[place].shortcut);
    mnemonics_[place] = {letter, letter.isNull() ? 0 : grabShortcut(mnemonicKeys(letter))};
    update();
}

QChar AskingTabBar::mnemonic(int position) const
{
    const auto place = static_cast<std::size_t>(position);
    return position >= 0 && place < mnemonics_.size() ? mnemonics_[place].letter : QChar();
}

QString AskingTabBar::mnemonics() const
{
    QString letters;
    for (int position = 0; position < count(); ++position) {
        letters += mnemonic(position).isNull() ? QString() : QString(mnemonic(position));
    }
    return letters;
}

bool AskingTabBar::event(QEvent *event)
{
    return (event->type() == QEvent::Shortcut && answerKeys(*static_cast<QShortcutEvent *>(event))) ||
           QTabBar::event(event);
}

bool AskingTabBar::answerKeys(const QShortcutEvent &keys)
{
    for (int position = 0; position < count(); ++position) {
        if (QKeySequence::mnemonic(tabText(position)) == keys.key() && !maySelect(position)) {
            return true;
        }
        if (!mnemonic(position).isNull() && mnemonicKeys(mnemonic(position)) == keys.key()) {
            if (maySelect(position)) {
                setCurrentIndex(position);
            }
            return true;
        }
    }
    return false;
}

void AskingTabBar::mousePressEvent(QMouseEvent *event)
{
    const int position = tabAt(event->position().toPoint());
    if (position >= 0 && position != currentIndex() && !maySelect(position)) {
        event->accept();
        return;
    }
    QTabBar::mousePressEvent(event);
}

void AskingTabBar::mouseReleaseEvent(QMouseEvent *event)
{
    const int position = tabAt(event->position().toPoint());
    if (position >= 0 && position != currentIndex() && !maySelect(position)) {
        event->accept();
        return;
    }
    QTabBar::mouseReleaseEvent(event);
}

void AskingTabBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        const int forward = isRightToLeft() ? -1 : 1;
        selectNext(event->key() == Qt::Key_Right ? forward : -forward, false);
    } else if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End) {
        const int direction = event->key() == Qt::Key_Home ? 1 : -1;
        for (int position = direction > 0 ? 0 : count() - 1; position >= 0 && position < count();
             position += direction) {
            if (maySelect(position)) {
                setCurrentIndex(position);
                break;
            }
        }
    } else {
        event->ignore();
    }
}

void AskingTabBar::wheelEvent(QWheelEvent *event)
{
    const QPoint delta = event->angleDelta();
    wheelTurn_ += qAbs(delta.x()) > qAbs(delta.y()) ? delta.x() : delta.y();
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    while (qAbs(wheelTurn_) >= notch) {
        const int direction = wheelTurn_ > 0 ? -1 : 1;
        wheelTurn_ += direction * notch;
        selectNext(direction, false);
    }
    event->accept();
}

void AskingTabBar::initStyleOption(QStyleOptionTab *option, int tabIndex) const
{
    QTabBar::initStyleOption(option, tabIndex);
    // Drawn as disabled without disabling: a disabled tab would disable its page and leave it.
    if (shouldSelect_ && !shouldSelect_(tabIndex)) {
        option->state &= ~QStyle::State_Enabled;
        option->palette.setCurrentColorGroup(QPalette::Disabled);
    }
    option->text = markedText(option->text, mnemonic(tabIndex));
}

TabView::TabView(QWidget *parent) : QTabWidget(parent), bar_(new AskingTabBar(this))
{
    setTabBar(bar_);
    // Ways that do not pass the bar's events (assistive technology, a program) arrive here.
    connect(this, &QTabWidget::currentChanged, this, &TabView::keepAllowed);
}

void TabView::setShouldSelect(ShouldSelectTab shouldSelect)
{
    bar_->setShouldSelect(std::move(shouldSelect));
    allowed_ = currentIndex();
}

QString TabView::identifier(int position) const
{
    const QVariant stored = bar_->tabData(position);
    return stored.typeId() == QMetaType::QString ? stored.toString() : QString();
}

void TabView::setIdentifier(int position, const QString &identifier)
{
    if (position < 0 || position >= count()) {
        return;
    }
    bar_->setTabData(position, identifier);
    bar_->showIdentifiers();
}

void TabView::showEvent(QShowEvent *event)
{
    QTabWidget::showEvent(event);
    if (watchedWindow_ != window()) {
        if (watchedWindow_) {
            watchedWindow_->removeEventFilter(this);
        }
        watchedWindow_ = window();
        watchedWindow_->installEventFilter(this);
    }
    giveLetters();
}

bool TabView::eventFilter(QObject *watched, QEvent *event)
{
    // The window lays itself out anew when a view around has come, gone or got another text.
    if (event->type() == QEvent::LayoutRequest && watched == watchedWindow_) {
        giveLettersSoon();
    }
    return QTabWidget::eventFilter(watched, event);
}

void TabView::giveLettersSoon()
{
    if (!std::exchange(isGivingSoon_, true)) {
        QMetaObject::invokeMethod(this, &TabView::giveLetters, Qt::QueuedConnection);
    }
}

void TabView::giveLetters()
{
    isGivingSoon_ = false;
    if (isVisible()) {
        giveMnemonics(this);
    }
}

void TabView::keyPressEvent(QKeyEvent *event)
{
    if ((event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) &&
        event->modifiers().testFlag(Qt::ControlModifier) && count() > 1) {
        const bool backward = event->key() == Qt::Key_Backtab || event->modifiers().testFlag(Qt::ShiftModifier);
        bar_->selectNext(backward ? -1 : 1, true);
        event->accept();
        return;
    }
    QTabWidget::keyPressEvent(event);
}

void TabView::keepAllowed(int position)
{
    const bool refused = position >= 0 && position != allowed_ && !bar_->maySelect(position);
    if (refused && allowed_ >= 0 && allowed_ < count()) {
        setCurrentIndex(allowed_);
        return;
    }
    allowed_ = position;
    giveLetters();
}

} // namespace tessarin

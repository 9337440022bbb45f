// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/mnemonics.h"

#include "platform/caption_label.h"
#include "tests/platform/tab_view_fixture.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace tessarin::test {
namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

TEST(MarkedText, HasItsMarkAtAWordsBeginningIfItCan)
{
    struct Row {
        const char *text;
        char16_t letter;
        const char *marked;
    };
    const std::array rows = {
        Row{"Ink Limits", u'L', "Ink &Limits"},
        Row{"Ink Limits", u'i', "&Ink Limits"},
        Row{"Ink Limits", u'M', "Ink Li&mits"},
        Row{"Total Ink Maximum:", u'M', "Total Ink &Maximum:"},
        Row{"Ink-Limit Black:", u'L', "Ink-&Limit Black:"},
        Row{"Print simulation (the printer)", u'T', "Print simulation (&the printer)"},
        Row{"A && B", u'B', "A && &B"},
        Row{"Ink Limits", u'X', "Ink Limits"},
        Row{"Größe", u'ö', "Größe"},
        Row{"", u'A', ""},
        Row{"A && B", u'&', "A && B"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(markedText(text(row.text), row.letter), text(row.marked)) << row.text;
        EXPECT_EQ(unmarkedText(text(row.marked)), text(row.text)) << row.marked;
    }
    EXPECT_EQ(markedText(text("Ink"), {}), text("Ink"));
    EXPECT_EQ(unmarkedText(text("at the end&")), text("at the end"));
}

TEST(MnemonicKeys, AreAltAndALetter)
{
    EXPECT_EQ(mnemonicKeys(u'G'), QKeySequence(Qt::ALT | Qt::Key_G));
    EXPECT_EQ(mnemonicKeys(u'g'), QKeySequence(Qt::ALT | Qt::Key_G));
    for (const QChar none : {QChar(), QChar(u'1'), QChar(u'ü'), QChar(u'&')}) {
        EXPECT_TRUE(mnemonicKeys(none).isEmpty()) << int{none.unicode()};
    }
    EXPECT_EQ(mnemonicOf(QKeySequence(Qt::ALT | Qt::Key_G)), u'G');
    for (const QKeySequence &other :
         {QKeySequence(), QKeySequence(Qt::Key_G), QKeySequence(Qt::CTRL | Qt::Key_G),
          QKeySequence(Qt::ALT | Qt::Key_1), QKeySequence(Qt::ALT | Qt::SHIFT | Qt::Key_G),
          QKeySequence(Qt::ALT | Qt::Key_G, Qt::ALT | Qt::Key_H)}) {
        EXPECT_TRUE(mnemonicOf(other).isNull()) << other.toString().toStdString();
    }
}

TEST(MnemonicLettersTest, AreGivenOnce)
{
    MnemonicLetters letters;
    EXPECT_EQ(letters.give(text("ink limits")), u'I');
    EXPECT_EQ(letters.give(text("ink limits")), u'L') << "which begins a word";
    EXPECT_EQ(letters.give(text("ink limits")), u'N');
    EXPECT_EQ(letters.give(text("Kilim")), u'K');
    EXPECT_EQ(letters.give(text("Kilim")), u'M');
    EXPECT_TRUE(letters.give(text("Kilim")).isNull());
    EXPECT_TRUE(letters.give(text("色域 12 Ü")).isNull());
    EXPECT_TRUE(letters.give({}).isNull());
}

TEST(MnemonicLettersTest, AreThoseThatOthersLeave)
{
    MnemonicLetters letters;
    EXPECT_TRUE(letters.take(u'a'));
    EXPECT_FALSE(letters.take(u'A'));
    for (const QChar none : {QChar(), QChar(u'1'), QChar(u'Ü')}) {
        EXPECT_FALSE(letters.take(none)) << int{none.unicode()};
    }
    EXPECT_EQ(letters.give(text("AB")), u'B');
    EXPECT_FALSE(letters.take(u'B'));
}

class TabViewLetters : public TabViewFixture {
protected:
    void SetUp() override
    {
        tabs.window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(tabs.window()));
    }

    QChar letter(int position) const { return qobject_cast<AskingTabBar *>(bar())->mnemonic(position); }
    QString letters() const
    {
        QString all;
        for (int position = 0; position < tabs.count(); ++position) {
            all += letter(position).isNull() ? QChar(u'-') : letter(position);
        }
        return all;
    }
    void pressAlt(Qt::Key key) { QTest::keyClick(&tabs, key, Qt::AltModifier); }
    void showAgain()
    {
        tabs.window()->hide();
        tabs.window()->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(tabs.window()));
    }
};

TEST_F(TabViewLetters, SelectTheirPages)
{
    ASSERT_EQ(letters(), text("ABGDE"));
    pressAlt(Qt::Key_G);
    EXPECT_EQ(current(), 2);
    pressAlt(Qt::Key_A);
    EXPECT_EQ(current(), 0);
    pressAlt(Qt::Key_X);
    EXPECT_EQ(current(), 0);
    EXPECT_EQ(tabs.tabText(2), text("Gamma")) << "the text stays as it is";
}

TEST_F(TabViewLetters, SelectNoRefusedPage)
{
    refused = {2};
    pressAlt(Qt::Key_G);
    EXPECT_EQ(current(), 0);
    EXPECT_NE(std::find(asked.begin(), asked.end(), 2), asked.end());
}

TEST_F(TabViewLetters, AreNotThoseThatTextsMark)
{
    tabs.setTabText(0, text("Gold"));
    tabs.setTabText(1, text("R && D"));
    tabs.setTabText(4, text("Or&igin"));
    tabs.setTabText(3, text("Iris"));
    showAgain();
    EXPECT_EQ(letters(), text("ORGS-"));
    pressAlt(Qt::Key_R);
    EXPECT_EQ(current(), 1);
    pressAlt(Qt::Key_I);
    EXPECT_EQ(current(), 4);
}

TEST_F(TabViewLetters, AreDrawnWithALine)
{
    const QImage with = bar()->grab().toImage();
    for (int position = 0; position < tabs.count(); ++position) {
        tabs.askingBar()->setMnemonic(position, {});
    }
    const QImage without = bar()->grab().toImage();
    EXPECT_EQ(with.size(), without.size());
    EXPECT_NE(with, without);
    tabs.askingBar()->setMnemonic(0, u'A');
    tabs.askingBar()->setMnemonic(tabs.count(), u'B');
    tabs.askingBar()->setMnemonic(-1, u'B');
    EXPECT_EQ(letters(), text("A----"));
}

/// A page of the tab view with two captions and a check box, in a window with a host's views around.
class PageLetters : public TabViewLetters {
protected:
    PageLetters()
    {
        for (CaptionLabel *caption : {&first, &second}) {
            caption->setParent(tabs.widget(0));
            caption->setTextFormat(Qt::PlainText);
            caption->show();
        }
        for (QWidget *control : std::initializer_list<QWidget *>{&one, &two, &box}) {
            control->setParent(tabs.widget(0));
            control->show();
        }
        first.setBuddy(&one);
        second.setBuddy(&two);
        (new QVBoxLayout(&host))->addWidget(&tabs);
    }
    ~PageLetters() override
    {
        for (QWidget *view : std::initializer_list<QWidget *>{&first, &second, &one, &two, &box, &tabs}) {
            view->setParent(nullptr);
        }
    }

    void SetUp() override {} // the host's window is shown by each test

    QWidget host{};
    CaptionLabel first{};
    CaptionLabel second{};
    QLineEdit one{};
    QLineEdit two{};
    QCheckBox box{};
};

TEST_F(PageLetters, AreNotThoseOfTheTabs)
{
    first.setText(text("Gamma:"));
    second.setText(text("Alpha:"));
    box.setText(text("Beta"));
    showAgain();
    EXPECT_EQ(first.mnemonic(), u'M');
    EXPECT_EQ(second.mnemonic(), u'L');
    EXPECT_EQ(box.text(), text("Be&ta"));
    pressAlt(Qt::Key_L);
    EXPECT_TRUE(two.hasFocus());
    pressAlt(Qt::Key_T);
    EXPECT_TRUE(QTest::qWaitFor([this] { return box.isChecked(); })) << "it is pressed for a moment";
}

TEST_F(PageLetters, AreNotThoseOfTheHost)
{
    QPushButton button(text("&Print"), &host);
    QGroupBox group(text("&Size"), &host);
    QTabBar bar(&host);
    bar.addTab(text("&Rooms"));
    QMenuBar menus(&host);
    menus.addMenu(text("&File"));
    QLabel label(text("&Copies"), &host);
    label.setBuddy(&button);
    const QLabel noCaption(text("&Tips"), &host);
    QPushButton hidden(text("&Undo"), &host);
    hidden.hide();
    QPushButton keyed(&host);
    keyed.setShortcut(QKeySequence(Qt::ALT | Qt::Key_K));
    const QShortcut shortcut(QKeySequence(Qt::ALT | Qt::Key_H), &host);
    QAction action;
    action.setShortcut(QKeySequence(Qt::ALT | Qt::Key_Y));
    host.addAction(&action);
    QDialog dialog(&host);
    const QPushButton elsewhere(text("&Wide"), &dialog);
    dialog.show();
    first.setText(text("prs fckhyu"));
    second.setText(text("prs fckhywt"));
    showAgain();
    EXPECT_EQ(first.mnemonic(), u'U');
    EXPECT_EQ(second.mnemonic(), u'W') << "the dialog is another window";
}

TEST_F(PageLetters, AreNotThoseOfAnotherTabView)
{
    TabView neighbour;
    neighbour.addTab(new QWidget, text("Zeta"));
    host.layout()->addWidget(&neighbour);
    first.setText(text("Zeta"));
    showAgain();
    EXPECT_NE(neighbour.askingBar()->mnemonic(0), first.mnemonic());
    EXPECT_FALSE(first.mnemonic().isNull());
}

TEST_F(PageLetters, GiveWayToViewsThatComeLater)
{
    first.setText(text("Zinc:"));
    second.setText(text("Theta:"));
    showAgain();
    ASSERT_EQ(first.mnemonic(), u'Z');
    ASSERT_EQ(second.mnemonic(), u'T');
    QPushButton late(text("&Zoom"));
    host.layout()->addWidget(&late);
    late.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return first.mnemonic() != u'Z'; }));
    EXPECT_EQ(first.mnemonic(), u'I');
    EXPECT_EQ(second.mnemonic(), u'T') << "who can keeps its letter";
    bool pressed = false;
    QObject::connect(&late, &QPushButton::clicked, [&pressed] { pressed = true; });
    pressAlt(Qt::Key_Z);
    EXPECT_TRUE(QTest::qWaitFor([&pressed] { return pressed; }));
    EXPECT_FALSE(one.hasFocus());
}

TEST_F(PageLetters, AreGivenWhenThePageIsShown)
{
    first.setText(text("Zeta:"));
    tabs.setCurrentIndex(1);
    showAgain();
    EXPECT_TRUE(first.mnemonic().isNull());
    pressAlt(Qt::Key_Z);
    EXPECT_FALSE(one.hasFocus());
    tabs.setCurrentIndex(0);
    EXPECT_EQ(first.mnemonic(), u'Z');
    pressAlt(Qt::Key_Z);
    EXPECT_TRUE(one.hasFocus());
}

TEST_F(PageLetters, StayTheSameWhenThePageIsShownAgain)
{
    first.setText(text("Zeta:"));
    second.setText(text("Zeta:"));
    box.setText(text("Zeta && Theta"));
    for (int times = 0; times < 3; ++times) {
        showAgain();
        EXPECT_EQ(first.mnemonic(), u'Z');
        EXPECT_EQ(second.mnemonic(), u'T');
        EXPECT_EQ(box.text(), text("Zeta && T&heta"));
    }
}

TEST_F(PageLetters, AreThoseOfTheControlWhereTheTextHasNone)
{
    first.setText(text("色域:"));
    one.setObjectName(text("mediaTypePopUp"));
    first.resize(200, 40);
    second.setText(text("色域:"));
    two.setObjectName(text("mediaTypePopUp"));
    second.resize(second.fontMetrics().horizontalAdvance(second.text()) + 1, 40);
    box.setText(text("色域"));
    showAgain();
    EXPECT_EQ(first.mnemonic(), u'M');
    EXPECT_TRUE(second.mnemonic().isNull()) << "there is no room to show it";
    EXPECT_EQ(box.text(), text("色域"));
}

TEST_F(PageLetters, AreNotSpentOnWhatTakesNoKeys)
{
    QWidget frame(tabs.widget(0));
    first.setBuddy(&frame);
    first.setText(text("Zeta:"));
    second.setText(text("Zeta:"));
    showAgain();
    EXPECT_TRUE(first.mnemonic().isNull());
    EXPECT_EQ(second.mnemonic(), u'Z');
}

} // namespace
} // namespace tessarin::test

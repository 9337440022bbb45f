// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/caption_label.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QProxyStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <set>

namespace tessarin::test {
namespace {

/// A desktop's choice: letters are underlined, or not.
class LetterStyle : public QProxyStyle {
public:
    explicit LetterStyle(bool underlined) : QProxyStyle(QStringLiteral("fusion")), underlined_(underlined) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_UnderlineShortcut ? int{underlined_} : QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    bool underlined_;
};

class CaptionLabelTest : public testing::Test {
protected:
    CaptionLabelTest()
    {
        caption.setTextFormat(Qt::PlainText);
        caption.setWordWrap(true);
        caption.setGeometry(0, 0, 200, 40);
        caption.setText(QStringLiteral("Color Gamut:"));
        caption.setBuddy(&control);
        other.setGeometry(0, 50, 200, 30);
        control.setGeometry(0, 90, 200, 30);
        window.resize(220, 140);
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            ADD_FAILURE() << "the window is not active";
        }
        other.setFocus();
    }

    void press(Qt::Key key) { QTest::keyClick(&window, key, Qt::AltModifier); }
    QImage picture() { return caption.grab().toImage(); }

    QWidget window{};
    CaptionLabel caption{&window};
    QLineEdit other{&window};
    QLineEdit control{&window};
};

TEST_F(CaptionLabelTest, GivesItsControlTheFocus)
{
    caption.setMnemonic(u'G');
    press(Qt::Key_C);
    EXPECT_TRUE(other.hasFocus());
    press(Qt::Key_G);
    EXPECT_TRUE(control.hasFocus());
    EXPECT_TRUE(window.testAttribute(Qt::WA_KeyboardFocusChange)) << "the focus is to be seen";
}

TEST_F(CaptionLabelTest, AnswersItsLatestLetterAlone)
{
    caption.setMnemonic(u'G');
    caption.setMnemonic(u'M');
    EXPECT_EQ(caption.mnemonic(), u'M');
    press(Qt::Key_G);
    EXPECT_TRUE(other.hasFocus());
    press(Qt::Key_M);
    EXPECT_TRUE(control.hasFocus());
    other.setFocus();
    caption.setMnemonic({});
    press(Qt::Key_M);
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(CaptionLabelTest, TakesNoLetterThatKeyboardsMayLack)
{
    for (const QChar letter : {QChar(u'Ä'), QChar(u'彩'), QChar(u'1'), QChar(u' '), QChar()}) {
        caption.setMnemonic(letter);
        EXPECT_TRUE(caption.mnemonic().isNull()) << int{letter.unicode()};
    }
}

TEST_F(CaptionLabelTest, AnswersWhileItIsThereAndItsControlCan)
{
    caption.setMnemonic(u'G');
    control.setEnabled(false);
    press(Qt::Key_G);
    EXPECT_TRUE(other.hasFocus());
    control.setEnabled(true);
    caption.hide();
    press(Qt::Key_G);
    EXPECT_TRUE(other.hasFocus());
    caption.show();
    caption.setBuddy(nullptr);
    press(Qt::Key_G);
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(CaptionLabelTest, GoesToItsControlWhenAnotherHasTheLetterToo)
{
    caption.setMnemonic(u'G');
    CaptionLabel second(&window);
    second.setBuddy(&other);
    second.setMnemonic(u'G');
    second.show();
    std::set<const QWidget *> reached;
    for (int times = 0; times < 2; ++times) {
        press(Qt::Key_G);
        reached.insert(QApplication::focusWidget());
    }
    EXPECT_EQ(reached, (std::set<const QWidget *>{&control, &other})) << "one after the other";
}

TEST_F(CaptionLabelTest, KeepsItsTextAsItIs)
{
    caption.setMnemonic(u'G');
    EXPECT_EQ(caption.text(), QStringLiteral("Color Gamut:"));
    EXPECT_EQ(caption.drawnText(), QStringLiteral("Color &Gamut:"));
    caption.setText(QStringLiteral("Black & Grey:"));
    EXPECT_EQ(caption.drawnText(), QStringLiteral("Black && &Grey:"));
}

TEST_F(CaptionLabelTest, ShowsALetterBehindATextThatLacksIt)
{
    caption.setText(QStringLiteral("色域:"));
    ASSERT_TRUE(caption.hasRoomForLetter());
    caption.setMnemonic(u'G');
    EXPECT_EQ(caption.drawnText(), QStringLiteral("色域(&G):"));
    caption.setText(QStringLiteral("色域："));
    EXPECT_EQ(caption.drawnText(), QStringLiteral("色域(&G)："));
    caption.setText(QStringLiteral("色域"));
    EXPECT_EQ(caption.drawnText(), QStringLiteral("色域(&G)"));
}

TEST_F(CaptionLabelTest, ShowsNoLetterForWhichThereIsNoRoom)
{
    caption.setText(QStringLiteral("色域:"));
    caption.setMnemonic(u'G');
    const int width = caption.fontMetrics().horizontalAdvance(caption.text()) + 2;
    caption.resize(width, 200); // a second line would do
    EXPECT_FALSE(caption.hasRoomForLetter());
    EXPECT_EQ(caption.drawnText(), QStringLiteral("色域:"));
}

TEST_F(CaptionLabelTest, IsDrawnAsEveryLabelExceptForTheLine)
{
    LetterStyle plain(false);
    LetterStyle lined(true);
    QLabel every(&window);
    every.setTextFormat(Qt::PlainText);
    every.setWordWrap(true);
    every.setGeometry(caption.geometry());
    every.show();
    every.setStyle(&plain);
    for (const bool enabled : {true, false}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const Qt::Alignment alignment :
                 {Qt::Alignment(Qt::AlignLeft), Qt::AlignRight | Qt::AlignVCenter}) {
                for (const char *text : {"Color Gamut:", "Bright Cyan\nUsage:", "מרחב A:",
                                         "Color Gamut of quite some more than a line:"}) {
                    for (QLabel *label : {static_cast<QLabel *>(&caption), &every}) {
                        label->setEnabled(enabled);
                        label->setLayoutDirection(direction);
                        label->setAlignment(alignment);
                        label->setText(QString::fromUtf8(text));
                    }
                    caption.setStyle(&plain);
                    caption.setMnemonic(u'A');
                    EXPECT_EQ(picture(), every.grab().toImage()) << text;
                    caption.setMnemonic({});
                    EXPECT_EQ(picture(), every.grab().toImage()) << text;
                    caption.setStyle(&lined);
                    EXPECT_EQ(picture(), every.grab().toImage()) << text;
                    caption.setMnemonic(u'A');
                    EXPECT_NE(picture(), every.grab().toImage()) << text;
                }
            }
        }
    }
    caption.setStyle(nullptr);
    every.setStyle(nullptr);
}

TEST_F(CaptionLabelTest, ShowsAnAmpersandAsOne)
{
    caption.setText(QStringLiteral("A & B"));
    caption.setMnemonic({});
    const QImage one = picture();
    caption.setText(QStringLiteral("A  B"));
    EXPECT_NE(picture(), one);
    caption.setBuddy(nullptr);
    caption.setText(QStringLiteral("A & B"));
    EXPECT_EQ(picture(), one) << "as a label that is no caption";
}

TEST_F(CaptionLabelTest, MayBeTheCaptionOfTheViewAroundIt)
{
    QWidget around; // hidden, and in nothing
    CaptionLabel inside(&around);
    inside.setBuddy(&around);
    EXPECT_EQ(captionedControl(inside), &around);
}

TEST_F(CaptionLabelTest, GoesToWhatStandsInThePlaceOfAHiddenControl)
{
    caption.setMnemonic(u'G');
    QLineEdit substitute(&window);
    substitute.setGeometry(control.geometry());
    EXPECT_EQ(captionedControl(caption), &control);
    control.hide();
    EXPECT_EQ(captionedControl(caption), &control) << "there is no other";
    press(Qt::Key_G);
    EXPECT_TRUE(other.hasFocus());
    substitute.show();
    EXPECT_EQ(captionedControl(caption), &substitute);
    press(Qt::Key_G);
    EXPECT_TRUE(substitute.hasFocus());
    caption.setBuddy(nullptr);
    EXPECT_EQ(captionedControl(caption), nullptr);
}

TEST_F(CaptionLabelTest, LeavesPicturesAlone)
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    caption.setPixmap(pixmap);
    const QImage before = picture();
    caption.setMnemonic(u'G');
    EXPECT_EQ(picture(), before);
}

} // namespace
} // namespace tessarin::test

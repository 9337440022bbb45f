// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// In every language each tab, caption and button of the panel has a letter of its own on its page, which reaches it
// together with Alt.

#include "controls/control_tables.h"
#include "platform/caption_label.h"
#include "platform/mnemonics.h"
#include "platform/tab_view.h"
#include "plugin/diagnostics.h"
#include "tests/screens/variants.h"
#include "tests/support/panel_session.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr int kColorModelPopUp = 4505;

bool isCaption(const CaptionLabel &label)
{
    return label.buddy() != nullptr && label.buddy()->focusPolicy() != Qt::NoFocus;
}

Qt::Key keyOf(QChar letter)
{
    return static_cast<Qt::Key>(letter.unicode());
}

class PanelLetters : public testing::TestWithParam<std::string> {
protected:
    PanelLetters()
    {
        view_ = session_.open();
        (new QVBoxLayout(&window_))->addWidget(view_);
        window_.show();
        tabs_ = qobject_cast<TabView *>(session_.context()->controls.tabView.data());
    }
    ~PanelLetters() override { view_->setParent(nullptr); } // the panel's again

    void SetUp() override
    {
        ASSERT_NE(tabs_, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    /// Languages that are not written in letters of the keyboard.
    static bool hasNoLetters() { return GetParam() == "ja" || GetParam() == "zh_CN"; }
    void press(QChar letter) { QTest::keyClick(&window_, keyOf(letter), Qt::AltModifier); }
    QChar letterOfTab(int position) const
    {
        return qobject_cast<AskingTabBar *>(tabs_->tabBar())->mnemonic(position);
    }
    void expectUnique(QChar letter, const QString &text)
    {
        EXPECT_FALSE(taken_.contains(letter)) << letter.toLatin1() << ": " << text.toStdString();
        taken_ += letter;
    }

    PanelSession session_{samplePPD(), "sample", buildBundle(QString::fromStdString(GetParam()))};
    QWidget window_{};
    QWidget *view_ = nullptr;
    TabView *tabs_ = nullptr;
    QString taken_{};
};

TEST_P(PanelLetters, SelectEachPage)
{
    for (int position = tabs_->count() - 1; position >= 0; --position) {
        const QChar letter = letterOfTab(position);
        if (hasNoLetters()) {
            EXPECT_TRUE(letter.isNull()) << "then Ctrl and Tab do";
            continue;
        }
        ASSERT_FALSE(letter.isNull()) << tabs_->tabText(position).toStdString();
        expectUnique(letter, tabs_->tabText(position));
        press(letter);
        EXPECT_EQ(tabs_->currentIndex(), position);
    }
}

TEST_P(PanelLetters, ReachEachControl)
{
    int reached = 0;
    for (int position = 0; position < tabs_->count(); ++position) {
        tabs_->setCurrentIndex(position);
        taken_.clear();
        for (int tab = 0; tab < tabs_->count(); ++tab) {
            taken_ += letterOfTab(tab).isNull() ? QString() : QString(letterOfTab(tab));
        }
        for (const CaptionLabel *caption : tabs_->currentWidget()->findChildren<CaptionLabel *>()) {
            if (!isCaption(*caption)) {
                EXPECT_TRUE(caption->mnemonic().isNull()) << caption->text().toStdString();
                continue;
            }
            const std::string text = caption->drawnText().toStdString();
            if (hasNoLetters() && caption->mnemonic().isNull()) {
                EXPECT_FALSE(caption->hasRoomForLetter()) << text;
                continue;
            }
            ASSERT_FALSE(caption->mnemonic().isNull()) << text;
            EXPECT_TRUE(caption->drawnText().contains(u'&')) << text;
            expectUnique(caption->mnemonic(), caption->drawnText());
            const bool wasEnabled = caption->buddy()->isEnabled();
            caption->buddy()->setEnabled(true);
            if (caption->isVisible()) {
                press(caption->mnemonic());
                EXPECT_TRUE(caption->buddy()->hasFocus()) << text;
                ++reached;
            }
            caption->buddy()->setEnabled(wasEnabled);
        }
        for (QAbstractButton *button : tabs_->currentWidget()->findChildren<QAbstractButton *>()) {
            const QKeySequence keys = button->shortcut();
            if (hasNoLetters() && keys.isEmpty()) {
                continue; // then Tab and the space bar do
            }
            ASSERT_EQ(keys.count(), 1) << button->text().toStdString();
            expectUnique(mnemonicOf(keys), button->text());
            QSignalSpy presses(button, &QAbstractButton::clicked);
            const bool wasEnabled = button->isEnabled();
            button->setEnabled(true);
            press(mnemonicOf(keys));
            EXPECT_TRUE(QTest::qWaitFor([&presses] { return presses.count() == 1; }))
                << button->text().toStdString();
            button->setEnabled(wasEnabled);
        }
    }
    EXPECT_GE(reached, 22) << "eight pop-ups and those sliders that have captions of their own";
}

TEST_P(PanelLetters, ReachTheColorSpaceThatIsShown)
{
    tabs_->setCurrentIndex(1);
    const QWidget *cmyk = session_.popup(kPopCMYKspace);
    const QWidget *rgb = session_.popup(kPopColorspace);
    ASSERT_TRUE(rgb->isVisible());
    const auto captions = tabs_->currentWidget()->findChildren<CaptionLabel *>();
    const auto found = std::find_if(captions.begin(), captions.end(),
                                    [rgb](const CaptionLabel *caption) { return caption->buddy() == rgb; });
    ASSERT_NE(found, captions.end());
    Diagnostics diagnostics;
    const QComboBox *modes = session_.popup(kPopColorModel);
    for (int item = 1; item <= modes->count() && rgb->isVisible(); ++item) {
        diagnostics.choose(*session_.panel, kColorModelPopUp, item);
    }
    ASSERT_TRUE(cmyk->isVisible());
    press((*found)->mnemonic());
    EXPECT_TRUE(cmyk->hasFocus());
}

TEST_P(PanelLetters, StayOutOfTheTextsOfAViewThatIsAskedForAgain)
{
    QMap<const QAbstractButton *, QString> texts;
    for (const QAbstractButton *button : view_->findChildren<QAbstractButton *>()) {
        texts.insert(button, unmarkedText(button->text()));
    }
    tabs_->setCurrentIndex(3);
    session_.open();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        EXPECT_EQ(unmarkedText(text.key()->text()), text.value());
    }
    EXPECT_GE(texts.size(), 4);
}

INSTANTIATE_TEST_SUITE_P(Languages, PanelLetters, testing::ValuesIn(shippedLanguages()), languageName);

} // namespace
} // namespace tessarin::test

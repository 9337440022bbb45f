// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The pop-ups' choices as assistive technology reads and presses them.

#include "controls/control_tables.h"
#include "platform/popup_button.h"
#include "tests/accessibility/accessible_support.h"
#include "tests/support/panel_session.h"

#include <QDialog>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class PopUpChoices : public testing::Test {
protected:
    PopUpChoices() { session.open()->window()->show(); }

    static QAccessibleInterface *read(QWidget *popup) { return QAccessible::queryAccessibleInterface(popup); }
    static QAccessibleInterface *choice(QWidget *popup, const QString &text)
    {
        QAccessibleInterface *list = read(popup)->child(0);
        for (int i = 0; i < list->childCount(); ++i) {
            if (list->child(i)->text(QAccessible::Name) == text) {
                return list->child(i);
            }
        }
        return nullptr;
    }
    static void press(QAccessibleInterface *choice)
    {
        choice->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTest::qWait(0);
    }

    /// Asks for a press, which comes about once the program is idle.
    static void askFor(QWidget *popup, int row)
    {
        QAccessibleInterface *one = choice(popup, static_cast<QComboBox *>(popup)->itemText(row));
        ASSERT_NE(one, nullptr);
        one->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    PanelSession session;
};

TEST_F(PopUpChoices, ReadAsTextAndAsTheSelectedOfAList)
{
    QComboBox *media = session.popup(kPopMediaType);
    QAccessibleTextInterface *text = read(media)->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(0, text->characterCount()), media->currentText());
    const QAccessibleInterface *list = read(media)->child(0);
    ASSERT_EQ(list->role(), QAccessible::List);
    QStringList selected;
    for (int i = 0; i < list->childCount(); ++i) {
        QAccessibleInterface *one = list->child(i);
        EXPECT_EQ(one->role(), QAccessible::ListItem);
        EXPECT_EQ(list->indexOfChild(one), i);
        EXPECT_EQ(one->parent(), list);
        if (one->state().selected) {
            selected << one->text(QAccessible::Name);
        }
    }
    EXPECT_EQ(selected, QStringList(media->currentText()));
}

TEST_F(PopUpChoices, ArePressedAsAPersonChooses)
{
    QComboBox *media = session.popup(kPopMediaType);
    const int before = session.settings().popupSelections[kPopMediaType];
    const int row = media->currentIndex() == 3 ? 4 : 3;
    QAccessibleInterface *other = choice(media, media->itemText(row));
    ASSERT_NE(other, nullptr);
    QSignalSpy activated(media, &QComboBox::activated);
    press(other);
    EXPECT_EQ(activated.count(), 1);
    EXPECT_EQ(media->currentIndex(), row);
    EXPECT_TRUE(other->state().selected);
    // The panel took it for an event.
    EXPECT_NE(session.settings().popupSelections[kPopMediaType], before);
}

TEST_F(PopUpChoices, AreThoseThatCanBeReached)
{
    QComboBox *media = session.popup(kPopMediaType);
    const int count = read(media)->child(0)->childCount();
    QAccessibleInterface *gone = choice(media, media->itemText(2));
    ASSERT_NE(gone, nullptr);
    media->setItemData(2, true, kItemHiddenRole);
    EXPECT_EQ(read(media)->child(0)->childCount(), count - 1);
    EXPECT_FALSE(gone->isValid());
    press(gone);
    EXPECT_NE(media->currentIndex(), 2);

    const int now = media->currentIndex();
    const int row = now == 4 ? 5 : 4;
    QAccessibleInterface *other = choice(media, media->itemText(row));
    ASSERT_NE(other, nullptr);
    media->setEnabled(false);
    EXPECT_TRUE(other->state().disabled);
    EXPECT_TRUE(other->actionInterface()->actionNames().isEmpty());
    press(other);
    EXPECT_EQ(media->currentIndex(), now);
}

TEST_F(PopUpChoices, AreThoseThatCanBeReachedWhenThePressComesAbout)
{
    QComboBox *media = session.popup(kPopMediaType);
    const int now = media->currentIndex();
    const int row = now == 3 ? 4 : 3;
    QSignalSpy activated(media, &QComboBox::activated);
    askFor(media, row);
    media->setEnabled(false);
    QTest::qWait(0);
    media->setEnabled(true);
    askFor(media, row);
    media->setItemData(row, true, kItemHiddenRole);
    QTest::qWait(0);
    EXPECT_EQ(media->currentIndex(), now);
    EXPECT_EQ(activated.count(), 0);
}

TEST_F(PopUpChoices, WaitForNoQuestionThatAnotherPressBringsAbout)
{
    QComboBox *media = session.popup(kPopMediaType);
    int questions = 0;
    QObject::connect(media, &QComboBox::activated, media, [&questions, media] {
        ++questions;
        QDialog question(media->window());
        question.setModal(true);
        question.show();
        QTest::qWait(0); // the other press has its turn
    });
    askFor(media, 3);
    askFor(media, 4);
    QTest::qWait(0);
    EXPECT_EQ(media->currentIndex(), 3);
    EXPECT_EQ(questions, 1);
}

TEST_F(PopUpChoices, MayTakeThePopUpAway)
{
    const QPointer<PopUpButton> media(qobject_cast<PopUpButton *>(session.popup(kPopMediaType)));
    ASSERT_NE(media, nullptr);
    QObject::connect(media, &QComboBox::activated, media, [media] { delete media.data(); });
    askFor(media, media->currentIndex() == 3 ? 4 : 3);
    QTest::qWait(0);
    EXPECT_EQ(media, nullptr);
}

TEST_F(PopUpChoices, OpenTheListOnDemand)
{
    QComboBox *media = session.popup(kPopMediaType);
    EXPECT_FALSE(read(media)->state().expanded);
    EXPECT_TRUE(read(media)->child(0)->state().offscreen);
    read(media)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(read(media)->state().expanded);
    EXPECT_FALSE(read(media)->child(0)->rect().isEmpty());
    EXPECT_FALSE(read(media)->child(0)->child(0)->rect().isEmpty());
    read(media)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(read(media)->state().expanded);
}

} // namespace
} // namespace tessarin::test

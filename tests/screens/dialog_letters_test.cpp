// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// In every language no letter stands twice on the screen, be it the dialog's or the panel's.

#include "printing/text.h"
#include "tests/screens/dialog_fixture.h"
#include "tests/screens/variants.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMap>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

/// What a view that is shown answers together with Alt; empty when there is nothing.
QKeySequence keysOf(const QWidget &view)
{
    if (const auto *label = qobject_cast<const QLabel *>(&view)) {
        // The labels of the panel mark their letters as they are drawn alone.
        const QVariant drawn = label->property("drawnText");
        return label->buddy() == nullptr
                   ? QKeySequence()
                   : QKeySequence::mnemonic(drawn.isValid() ? drawn.toString() : label->text());
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&view)) {
        return button->shortcut();
    }
    const auto *group = qobject_cast<const QGroupBox *>(&view);
    return group != nullptr ? QKeySequence::mnemonic(group->title()) : QKeySequence();
}

/// The window is laid out anew first, and letters are given after that.
void settle()
{
    for (int round = 0; round < 3; ++round) {
        QApplication::processEvents();
    }
}

class DialogLetters : public testing::TestWithParam<std::string> {
protected:
    void SetUp() override { ASSERT_TRUE(whole_.problem.isEmpty()) << whole_.problem.toStdString(); }

    /// Looks at what the dialog shows. The number of letters of the panel.
    int expectUnique(const std::string &page)
    {
        QMap<QKeySequence, QString> taken;
        const auto take = [&](const QKeySequence &keys, const QString &name) {
            if (!keys.isEmpty()) {
                EXPECT_FALSE(taken.contains(keys)) << page << ", " << keys.toString().toStdString() << ": "
                                                   << name.toStdString() << " and " << taken[keys].toStdString();
                taken.insert(keys, name);
            }
        };
        int ofPanel = 0;
        for (const QWidget *view : whole_.dialog->findChildren<QWidget *>()) {
            if (view->isVisible()) {
                const qsizetype before = taken.size();
                take(keysOf(*view), view->objectName() + u' ' + QLatin1String(view->metaObject()->className()));
                const QString ofTabs = view->property("mnemonics").toString();
                for (const QChar letter : ofTabs) {
                    take(QKeySequence::mnemonic(u'&' + QString(letter)), ofTabs);
                }
                ofPanel +=
                    whole_.dialog->panelView()->isAncestorOf(view) ? static_cast<int>(taken.size() - before) : 0;
            }
        }
        EXPECT_GE(taken.size(), 3) << page;
        return ofPanel;
    }

    WholeDialog whole_{GetParam()};
};

TEST_P(DialogLetters, AreThereOnce)
{
    whole_.dialog->show();
    int ofPanel = 0;
    whole_.eachPage([&](const std::string &page) { ofPanel += expectUnique(page); });
    EXPECT_GE(ofPanel, 25);
}

TEST_P(DialogLetters, AreThereOnceWithANotice)
{
    whole_.dialog->show();
    for (const char *action : {"Tr&y Again", "&Undo"}) {
        whole_.eachPage([&](const std::string &page) { // the notice comes while the page is shown
            whole_.dialog->notice()->tell(QStringLiteral("A notice"), {{host::TessarinPrint::tr(action), [] {}}});
            settle();
            expectUnique(page + ", " + action);
            whole_.dialog->notice()->dismiss();
            settle();
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogLetters, testing::ValuesIn(shippedLanguages()), languageName);

} // namespace
} // namespace tessarin::test

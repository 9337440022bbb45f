// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// In every language no letter stands twice on the screen, be it the dialog's or the panel's.

#include "printing/text.h"
#include "tests/screens/dialog_fixture.h"
#include "tests/screens/variants.h"

#include <QAbstractButton>
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

class DialogLetters : public testing::TestWithParam<std::string> {};

TEST_P(DialogLetters, AreThereOnce)
{
    WholeDialog whole(GetParam());
    ASSERT_TRUE(whole.problem.isEmpty()) << whole.problem.toStdString();
    whole.dialog->show();
    whole.dialog->notice()->tell(QStringLiteral("A notice"), {{host::TessarinPrint::tr("Tr&y Again"), [] {}},
                                                              {host::TessarinPrint::tr("&Undo"), [] {}}});
    int ofPanel = 0;
    whole.eachPage([&](const std::string &page) {
        QMap<QKeySequence, QString> taken;
        for (const QWidget *view : whole.dialog->findChildren<QWidget *>()) {
            const QKeySequence keys = view->isVisible() ? keysOf(*view) : QKeySequence();
            if (!keys.isEmpty()) {
                const QString name = view->objectName() + u' ' + view->metaObject()->className();
                EXPECT_FALSE(taken.contains(keys)) << page << ", " << keys.toString().toStdString() << ": "
                                                   << name.toStdString() << " and " << taken[keys].toStdString();
                taken.insert(keys, name);
                ofPanel += whole.dialog->panelView()->isAncestorOf(view) ? 1 : 0;
            }
        }
        EXPECT_GE(taken.size(), 3) << page;
    });
    EXPECT_GE(ofPanel, 22);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogLetters, testing::ValuesIn(shippedLanguages()),
                         [](const testing::TestParamInfo<std::string> &language) { return language.param; });

} // namespace
} // namespace tessarin::test

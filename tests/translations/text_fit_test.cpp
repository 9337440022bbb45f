// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// In every language each text of the panel has the room that it needs, and no control lies over another one.

#include "platform/tab_view.h"
#include "plugin/diagnostics.h"
#include "tests/support/panel_session.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

constexpr int kReload = 4003;
constexpr int kMediaPopUp = 4501;

std::vector<std::string> panelLanguages()
{
    std::vector<std::string> codes{"en"};
    const QDir folder(QStringLiteral(TESSARIN_TEST_BUNDLE "/translations"));
    for (const QString &file : folder.entryList({QStringLiteral("TessarinPDE_*.qm")})) {
        codes.push_back(file.mid(12).chopped(3).toStdString());
    }
    return codes;
}

bool isControlWithText(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return (label != nullptr && !label->text().isEmpty()) || (button != nullptr && !button->text().isEmpty());
}

QString textOf(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return label != nullptr ? label->text() : button != nullptr ? button->text() : widget->objectName();
}

bool hasRoom(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label != nullptr && label->wordWrap()) {
        const QStringList words = label->text().split(QRegularExpression(QStringLiteral("\\s+")));
        return label->heightForWidth(label->width()) <= label->height() &&
               std::all_of(words.begin(), words.end(), [label](const QString &word) {
                   return label->fontMetrics().horizontalAdvance(word) <= label->width();
               });
    }
    const QSize needed = widget->sizeHint();
    return needed.width() <= widget->width() && (label == nullptr || needed.height() <= label->height());
}

/// Answers how many texts there are.
int expectRoom(const QWidget *page)
{
    int texts = 0;
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        if (widget->isVisible() && isControlWithText(widget)) {
            ++texts;
            EXPECT_TRUE(hasRoom(widget))
                << textOf(widget).toStdString() << ": needs " << widget->sizeHint().width() << " x "
                << widget->sizeHint().height() << ", has " << widget->width() << " x " << widget->height();
        }
    }
    return texts;
}

void expectNoOverlap(const QWidget *page)
{
    const QList<QWidget *> all = page->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (qsizetype one = 0; one < all.size(); ++one) {
        for (qsizetype other = one + 1; other < all.size(); ++other) {
            if (all[one]->isVisible() && all[other]->isVisible()) {
                EXPECT_FALSE(all[one]->geometry().intersects(all[other]->geometry()))
                    << textOf(all[one]).toStdString() << " and " << textOf(all[other]).toStdString();
            }
        }
    }
}

class TextsFit : public testing::TestWithParam<std::string> {};

TEST_P(TextsFit, OnEveryPageOfThePanel)
{
    PanelSession session(samplePPD(), "sample", buildBundle(QString::fromStdString(GetParam())));
    QWidget window; // of the host, around the view
    QWidget *view = session.open();
    (new QVBoxLayout(&window))->addWidget(view);
    window.show();
    ASSERT_TRUE(view->isVisible());
    Diagnostics diagnostics;
    diagnostics.setInkFilePath(*session.panel, QString::fromStdString(fixturePath("ink/all-codes.ink")));
    diagnostics.press(*session.panel, kReload);
    auto *tabs = qobject_cast<TabView *>(session.context()->controls.tabView.data());
    ASSERT_NE(tabs, nullptr);
    int texts = 0;
    const int media = session.popup(1)->count();
    for (int item = 1; item <= media; ++item) { // media change what the pages show
        diagnostics.choose(*session.panel, kMediaPopUp, item);
        for (int position = 0; position < tabs->count(); ++position) {
            if (diagnostics.selectTab(*session.panel, position)) {
                SCOPED_TRACE("page " + std::to_string(position) + ", medium " + std::to_string(item));
                texts += expectRoom(tabs->widget(position));
                expectNoOverlap(tabs->widget(position));
            }
        }
        if (HasFailure()) {
            break;
        }
    }
    EXPECT_GT(texts, 20 * media); // all pages were seen
    int tabsWidth = 0;
    for (int position = 0; position < tabs->count(); ++position) {
        tabsWidth += tabs->tabBar()->tabRect(position).width();
    }
    EXPECT_LE(tabsWidth, tabs->width());
    view->setParent(nullptr); // the panel's again
}

INSTANTIATE_TEST_SUITE_P(Languages, TextsFit, testing::ValuesIn(panelLanguages()),
                         [](const testing::TestParamInfo<std::string> &language) { return language.param; });

} // namespace
} // namespace tessarin::test

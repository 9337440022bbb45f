// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The page of what Print will send, and the rows it shows.

#include "host/summary_page.h"

#include "tests/host/pages_test_support.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

/// "key|label|value|default", with "*" where it differs; titles in brackets.
QStringList lines(const QList<SummarySection> &sections)
{
    QStringList all;
    for (const SummarySection &section : sections) {
        all << u'[' + section.title + u']';
        for (const SummaryRow &row : section.rows) {
            all << QStringList{row.key, row.label, row.value, row.defaultValue}.join(u'|') +
                       QLatin1String(row.differs ? "*" : "");
        }
    }
    return all;
}

class SummaryPageTest : public testing::Test {
protected:
    void SetUp() override
    {
        settings_ = test::settingsOf(test::fixture("pages.ppd"));
        ASSERT_TRUE(settings_);
        QObject::connect(&page_, &SummaryPage::resetRequested, &page_,
                         [this](const QStringList &keys) { resets_ << keys.join(u' '); });
        QObject::connect(&page_, &SummaryPage::resetAllRequested, &page_, [this] { resets_ << u"(all)"_s; });
        page_.resize(700, 500);
        page_.show();
    }
    void set(const QString &key, const QString &value)
    {
        ASSERT_TRUE(settings_->set(key, value, ChangeOrigin::Page)) << key.toStdString();
    }
    void showAll() { page_.showSections(summarySections(*settings_, {}, u"Panel"_s)); }
    QTreeWidget *tree() { return page_.findChild<QTreeWidget *>(u"summary"_s); }
    QPushButton *button(const char *name) { return page_.findChild<QPushButton *>(QLatin1String(name)); }
    /// The first row with this label; null when there is none.
    QTreeWidgetItem *row(const QString &label)
    {
        return tree()->findItems(label, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    std::unique_ptr<JobSettings> settings_;
    SummaryPage page_;
    QStringList resets_{}; ///< the keys that were to be reset
};

TEST_F(SummaryPageTest, RowsNameAllThatIsSentByItsPage)
{
    set(u"copies"_s, u"2"_s);
    set(u"page-ranges"_s, u"1-3,8-"_s);
    set(u"MediaType"_s, u"Photo"_s);
    set(u"Seal"_s, u"37"_s);
    ASSERT_TRUE(settings_->setAsWritten({.key = u"job-sheets"_s, .value = u"standard"_s}));
    EXPECT_EQ(
        lines(summarySections(*settings_, {u"mediatype"_s, u"Seal"_s, u"Absent"_s}, u"The <b>Panel</b>"_s)),
        (QStringList{
            u"[General]"_s, u"copies|Copies|2|1*"_s,
            u"multiple-document-handling|Order of copies|page by page (1, 1, 2, 2, 3, 3)|"
            "page by page (1, 1, 2, 2, 3, 3)"_s,
            u"page-ranges|Pages|1-3, 8-|all*"_s, u"page-set|Of these|odd and even pages|odd and even pages"_s,
            u"orientation-requested|Orientation|automatic|automatic"_s, u"number-up|Pages per sheet|1|1"_s,
            u"PageSize|Media Size|A4 (210 × 297 mm)|A4 (210 × 297 mm)"_s, u"Duplex|Two-Sided|Off|Off"_s,
            u"[The <b>Panel</b>]"_s, u"MediaType|Media Type|Gl&änzend|Plain Paper*"_s, u"Seal|Seal|37|None*"_s,
            u"[Printer Features]"_s, u"Quality|Quality|Draft|Draft"_s, u"Staple|Staple & Fold|Off|Off"_s,
            u"Collate|Sort|Off|Off"_s, u"[Other options of the job]"_s, u"|job-sheets|standard|*"_s}));
}

TEST_F(SummaryPageTest, RowsOfAPdfFileHaveNoCopies)
{
    const auto pdf = HostPrinter::saveAsPdf(test::fixture("pages-utf8.ppd"));
    ASSERT_TRUE(pdf.ok()) << pdf.reason().toStdString();
    const JobSettings settings(pdf.value());
    const QStringList all = lines(summarySections(settings, {}, {}));
    EXPECT_EQ(all.filter(u"opies"_s), QStringList());
    EXPECT_EQ(all.filter(u"number-up"_s).size(), 1);
}

TEST_F(SummaryPageTest, MarksWhatDiffersInWordsTypeAndPicture)
{
    set(u"Quality"_s, u"Best"_s);
    set(u"MediaType"_s, u"Canvas"_s);
    showAll();
    EXPECT_EQ(row(u"Quality"_s)->text(1), u"Best"_s);
    EXPECT_EQ(row(u"Quality"_s)->text(2), u"changed (default: Draft)"_s);
    EXPECT_TRUE(row(u"Quality"_s)->font(1).bold());
    EXPECT_FALSE(row(u"Quality"_s)->icon(2).isNull());
    EXPECT_EQ(row(u"Media Type"_s)->text(1), u"<u>Canvas</u> & Büttenpapier"_s);
    EXPECT_EQ(row(u"Two-Sided"_s)->text(2), QString());
    EXPECT_FALSE(row(u"Two-Sided"_s)->font(1).bold());
    EXPECT_TRUE(row(u"Two-Sided"_s)->icon(2).isNull());
}

TEST_F(SummaryPageTest, HasColumnsThatFillItsWidthAndAreNeverNarrowerThanTheirTexts)
{
    showAll();
    set(u"copies"_s, u"3"_s);
    showAll();
    const QHeaderView *header = tree()->header();
    int least = 0; // of the notes
    for (const int width : {700, 1000, 300, 500}) {
        page_.resize(width, 500);
        QCoreApplication::processEvents();
        const int others = header->sectionSize(0) + header->sectionSize(1);
        least = std::max(least, width == 300 ? header->sectionSize(2) : 0);
        EXPECT_GE(header->length(), tree()->viewport()->width()) << width;
        EXPECT_TRUE(header->length() == tree()->viewport()->width() || header->length() == others + least) << width;
    }
    const QString text = row(u"Copies"_s)->text(2);
    ASSERT_FALSE(text.isEmpty());
    EXPECT_GE(least, tree()->fontMetrics().horizontalAdvance(text));
}

TEST_F(SummaryPageTest, ResetsTheSelectedRowsThatDiffer)
{
    set(u"Quality"_s, u"Best"_s);
    set(u"Collate"_s, u"True"_s);
    showAll();
    EXPECT_FALSE(button("reset")->isEnabled());
    row(u"Two-Sided"_s)->setSelected(true);
    EXPECT_FALSE(button("reset")->isEnabled());
    row(u"Quality"_s)->setSelected(true);
    EXPECT_TRUE(button("reset")->isEnabled());
    button("reset")->click();
    EXPECT_EQ(resets_, QStringList{u"Quality"_s});
    row(u"Sort"_s)->setSelected(true);
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) {
        test::pressKey(*tree(), key);
    }
    emit tree()->customContextMenuRequested(QPoint(5, 5));
    const auto *menu = page_.findChild<QMenu *>();
    ASSERT_TRUE(menu);
    ASSERT_FALSE(menu->actions().isEmpty());
    EXPECT_TRUE(menu->actions().front()->isEnabled());
    menu->actions().front()->trigger();
    const QString both = u"Quality Collate"_s;
    EXPECT_EQ(resets_, (QStringList{u"Quality"_s, both, both, both}));
}

TEST_F(SummaryPageTest, DoesNotResetWhatIsAtItsDefaultOrHasNone)
{
    ASSERT_TRUE(settings_->setAsWritten({.key = u"job-sheets"_s, .value = u"standard"_s}));
    showAll();
    for (const QString &label : {u"Two-Sided"_s, u"job-sheets"_s, u"General"_s}) {
        row(label)->setSelected(true);
        test::pressKey(*tree(), Qt::Key_Delete);
    }
    EXPECT_EQ(resets_, QStringList());
    EXPECT_FALSE(button("reset")->isEnabled());
    EXPECT_FALSE(button("resetAll")->isEnabled());
    EXPECT_EQ(row(u"job-sheets"_s)->text(2), u"set for this job"_s);
}

TEST_F(SummaryPageTest, ResetsAll)
{
    showAll();
    EXPECT_FALSE(button("resetAll")->isEnabled());
    set(u"Quality"_s, u"Best"_s);
    showAll();
    button("resetAll")->click();
    EXPECT_EQ(resets_, QStringList{u"(all)"_s});
}

TEST_F(SummaryPageTest, KeepsCurrentRowAndSelectionWhenItIsShownAnew)
{
    set(u"Quality"_s, u"Best"_s);
    showAll();
    tree()->setCurrentItem(row(u"Quality"_s));
    set(u"Quality"_s, u"Draft"_s);
    showAll();
    EXPECT_EQ(tree()->currentItem(), row(u"Quality"_s));
    EXPECT_TRUE(row(u"Quality"_s)->isSelected());
    EXPECT_FALSE(button("reset")->isEnabled());
    set(u"Quality"_s, u"Best"_s);
    showAll();
    EXPECT_TRUE(button("reset")->isEnabled());
}

TEST_F(SummaryPageTest, CopiesTheSelectedRows)
{
    showAll();
    row(u"Quality"_s)->setSelected(true);
    row(u"Copies"_s)->setSelected(true);
    test::pressKey(*tree(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Copies: 1\nQuality: Draft"_s);
}

} // namespace
} // namespace tessarin::host

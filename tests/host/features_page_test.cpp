// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/features_page.h"

#include "host/option_box.h"
#include "tests/host/pages_test_support.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class FeaturesPageTest : public testing::Test {
protected:
    void SetUp() override { open(test::fixture("pages.ppd"), {}); }
    void open(const QString &path, const QStringList &hidden)
    {
        page_.reset();
        settings_ = test::settingsOf(path);
        ASSERT_TRUE(settings_);
        page_ = std::make_unique<FeaturesPage>(*settings_, hidden);
        page_->resize(600, 800);
        page_->show();
    }
    /// The visible groups' titles, and their visible controls by key.
    QStringList shown() const
    {
        QStringList lines;
        for (const QGroupBox *group : page_->findChildren<QGroupBox *>()) {
            if (!group->isVisible()) {
                continue;
            }
            QStringList keys;
            for (const QWidget *control : group->findChildren<QWidget *>()) {
                const bool isOption =
                    qobject_cast<const QComboBox *>(control) || qobject_cast<const QCheckBox *>(control);
                if (control->isVisible() && isOption) {
                    keys << control->objectName();
                }
            }
            lines << group->title() + u": "_s + keys.join(u' ');
        }
        return lines;
    }
    QLineEdit *filter() const { return page_->findChild<QLineEdit *>(u"filter"_s); }
    QLabel *nothing() const { return page_->findChild<QLabel *>(u"noFeatures"_s); }

    std::unique_ptr<JobSettings> settings_;
    std::unique_ptr<FeaturesPage> page_;
};

TEST_F(FeaturesPageTest, GroupsWhatOtherPagesDoNotShow)
{
    EXPECT_EQ(shown(),
              (QStringList{u"Paper && Quality: MediaType Quality"_s, u"<i>Finishing</i>: Staple Seal Collate"_s}));
    EXPECT_FALSE(nothing()->isVisible());
    EXPECT_FALSE(filter()->isVisible());
}

TEST_F(FeaturesPageTest, LeavesOutTheOptionsOfThePanel)
{
    open(test::fixture("pages.ppd"), {u"MediaType"_s, u"Quality"_s, u"seal"_s});
    EXPECT_EQ(shown(), QStringList{u"<i>Finishing</i>: Staple Collate"_s});
}

TEST_F(FeaturesPageTest, SaysWhenThereIsNothingMore)
{
    open(test::fixture("pages.ppd"), {u"MediaType"_s, u"Quality"_s, u"Staple"_s, u"Seal"_s, u"Collate"_s});
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(nothing()->isVisible());
    EXPECT_EQ(nothing()->text(), u"This printer has no further features."_s);
}

TEST_F(FeaturesPageTest, CaptionsKeepAmpersandsAndHaveBuddies)
{
    auto *media = page_->findChild<OptionBox *>(u"MediaType"_s);
    ASSERT_TRUE(media);
    const QLabel *caption = nullptr;
    for (const QLabel *label : page_->findChildren<QLabel *>()) {
        caption = label->buddy() == media ? label : caption;
    }
    ASSERT_TRUE(caption);
    EXPECT_EQ(caption->text(), u"Media Type:"_s);
    EXPECT_EQ(caption->textFormat(), Qt::PlainText);
    EXPECT_EQ(page_->findChild<QCheckBox *>(u"Staple"_s)->text(), u"Staple && Fold"_s);
}

TEST_F(FeaturesPageTest, TellsChoicesAndFollowsTheSettings)
{
    const auto chosen = test::chosenOn(*page_);
    page_->findChild<QCheckBox *>(u"Collate"_s)->click();
    test::pressKey(*page_->findChild<OptionBox *>(u"Quality"_s), Qt::Key_Down);
    ASSERT_TRUE(test::waitFor([&] { return chosen->count() == 2; }));
    EXPECT_EQ(*chosen, (QStringList{u"Collate=True"_s, u"Quality=Best"_s}));
    EXPECT_EQ(page_->findChild<OptionBox *>(u"Quality"_s)->currentText(), u"Draft"_s);
    ASSERT_TRUE(settings_->set(u"Quality"_s, u"Best"_s, ChangeOrigin::Page));
    EXPECT_EQ(page_->findChild<OptionBox *>(u"Quality"_s)->currentText(), u"Best"_s);
}

TEST_F(FeaturesPageTest, FindsAmongManyByNameGroupAndChoice)
{
    open(test::fixture("minimal.ppd"), {});
    EXPECT_TRUE(filter()->isVisible());
    EXPECT_GT(shown().join(u' ').count(u"vorn"_s), 12);
    filter()->setText(u" ink-limit  C"_s);
    EXPECT_EQ(shown(), QStringList{u"General: vornInklimitC"_s});
    filter()->setText(u"ghostscript"_s);
    EXPECT_EQ(shown(), QStringList{u"General: vornPSInterpreter"_s});
    filter()->setText(u"<b>no such"_s);
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(nothing()->isVisible());
    EXPECT_EQ(nothing()->text(), u"No feature of this printer has “<b>no such” in its name or choices."_s);
    EXPECT_EQ(nothing()->textFormat(), Qt::PlainText);
    filter()->clear();
    EXPECT_FALSE(nothing()->isVisible());
    EXPECT_TRUE(page_->findChild<OptionBox *>(u"vornBrightness"_s)->isVisible());
}

TEST_F(FeaturesPageTest, FitsAShortWindow)
{
    open(test::fixture("minimal.ppd"), {});
    EXPECT_LE(page_->minimumSizeHint().height(), 300);
}

} // namespace
} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/option_box.h"
#include "host/option_check.h"

#include "tests/host/pages_test_support.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class OptionControls : public testing::Test {
protected:
    void SetUp() override
    {
        settings_ = test::settingsOf(test::fixture("pages.ppd"));
        ASSERT_TRUE(settings_);
    }
    CatalogueOption option(const char *key) const
    {
        return catalogueOption(settings_->printer(), QLatin1String(key));
    }
    bool set(const QString &key, const QString &value) { return settings_->set(key, value, ChangeOrigin::Host); }

    std::unique_ptr<JobSettings> settings_;
};

TEST_F(OptionControls, ShowTheChoicesAndFollowTheSettings)
{
    OptionBox box(*settings_, option("MediaType"));
    EXPECT_EQ(box.accessibleName(), u"Media Type"_s);
    EXPECT_EQ(box.count(), 3);
    EXPECT_EQ(box.currentText(), u"Plain Paper"_s);
    EXPECT_EQ(box.itemText(1), u"Gl&änzend"_s);
    ASSERT_TRUE(set(u"MediaType"_s, u"Photo"_s));
    EXPECT_EQ(box.currentText(), u"Gl&änzend"_s);
}

TEST_F(OptionControls, TellAChoiceAndShowWhatHoldsUntilItIsMade)
{
    OptionBox box(*settings_, option("MediaType"));
    const auto chosen = test::chosenOn(box);
    box.show();
    test::pressKey(box, Qt::Key_Down);
    EXPECT_EQ(box.currentText(), u"Plain Paper"_s);
    EXPECT_EQ(chosen->count(), 0);
    ASSERT_TRUE(test::waitFor([&] { return chosen->count() == 1; }));
    EXPECT_EQ(chosen->at(0), u"MediaType=Photo"_s);
    EXPECT_EQ(settings_->value(u"MediaType"_s), u"Plain"_s);
}

TEST_F(OptionControls, MayGoWithTheChoiceThatTheyTell)
{
    auto box = std::make_unique<OptionBox>(*settings_, option("MediaType"));
    auto check = std::make_unique<OptionCheck>(*settings_, option("Collate"));
    QObject::connect(box.get(), &OptionBox::chosen, settings_.get(), [&] { box.reset(); });
    QObject::connect(check.get(), &OptionCheck::chosen, settings_.get(), [&] { check.reset(); });
    box->show();
    test::pressKey(*box, Qt::Key_Down);
    check->findChild<QCheckBox *>()->click();
    EXPECT_TRUE(test::waitFor([&] { return !box && !check; }));
}

TEST_F(OptionControls, SayWithWhatAChoiceConflicts)
{
    OptionBox box(*settings_, option("MediaType"));
    box.show();
    box.showPopup();
    EXPECT_EQ(box.itemText(2), u"<u>Canvas</u> & Büttenpapier – not with Quality: Draft"_s);
    EXPECT_EQ(box.itemData(2, Qt::ForegroundRole).value<QBrush>().color(),
              box.palette().color(QPalette::Disabled, QPalette::Text));
    EXPECT_TRUE(box.model()->flags(box.model()->index(2, 0)).testFlag(Qt::ItemIsEnabled));
    EXPECT_EQ(box.itemText(0), u"Plain Paper"_s);
    EXPECT_FALSE(box.itemData(0, Qt::ForegroundRole).isValid());
    // The list is open: it follows at once.
    ASSERT_TRUE(set(u"Duplex"_s, u"DuplexTumble"_s));
    EXPECT_EQ(box.itemText(2), u"<u>Canvas</u> & Büttenpapier – not with Two-Sided: Short Edge, Quality: Draft"_s);
    ASSERT_TRUE(set(u"Duplex"_s, u"None"_s));
    ASSERT_TRUE(set(u"Quality"_s, u"Best"_s));
    EXPECT_EQ(box.itemText(2), u"<u>Canvas</u> & Büttenpapier"_s);
    EXPECT_FALSE(box.itemData(2, Qt::ForegroundRole).isValid());
    box.hidePopup();
}

TEST_F(OptionControls, KeepMarkupInToolTipsPlain)
{
    ASSERT_TRUE(set(u"Quality"_s, u"Best"_s));
    ASSERT_TRUE(set(u"MediaType"_s, u"Canvas"_s));
    OptionBox box(*settings_, option("Duplex"));
    box.showPopup();
    EXPECT_EQ(box.itemData(1, Qt::ToolTipRole).toString(),
              u"<qt>not with Media Type: &lt;u&gt;Canvas&lt;/u&gt; &amp; Büttenpapier</qt>"_s);
    box.hidePopup();
}

TEST_F(OptionControls, MarkTheCurrentChoiceWhenAnotherOneForbidsIt)
{
    OptionBox box(*settings_, option("Quality"));
    EXPECT_EQ(box.currentText(), u"Draft"_s);
    ASSERT_TRUE(set(u"MediaType"_s, u"Canvas"_s));
    EXPECT_EQ(box.currentText(), u"Draft – not with Media Type: <u>Canvas</u> & Büttenpapier"_s);
    ASSERT_TRUE(set(u"MediaType"_s, u"Plain"_s));
    EXPECT_EQ(box.currentText(), u"Draft"_s);
}

TEST_F(OptionControls, ShowAValueThatIsNoChoiceWhileItHolds)
{
    OptionBox box(*settings_, option("Seal"));
    ASSERT_TRUE(set(u"Seal"_s, u"37"_s));
    EXPECT_EQ(box.currentText(), u"37"_s);
    EXPECT_EQ(box.count(), 4);
    ASSERT_TRUE(set(u"Seal"_s, u"38"_s));
    EXPECT_EQ(box.currentText(), u"38"_s);
    EXPECT_EQ(box.count(), 4);
    ASSERT_TRUE(set(u"Seal"_s, u"Foil"_s));
    EXPECT_EQ(box.currentText(), u"Foil"_s);
    EXPECT_EQ(box.count(), 3);
}

TEST_F(OptionControls, LeaveTheWheelToThePageUnlessTheyHaveTheFocus)
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *box = new OptionBox(*settings_, option("MediaType"), &window);
    auto *other = new OptionBox(*settings_, option("Quality"), &window);
    column->addWidget(other);
    column->addWidget(box);
    const auto chosen = test::chosenOn(*box);
    window.show();
    window.activateWindow();
    other->setFocus();
    ASSERT_TRUE(test::waitFor([&] { return other->hasFocus(); }));
    EXPECT_FALSE(test::turnWheel(*box));
    QApplication::processEvents();
    EXPECT_EQ(chosen->count(), 0);
    EXPECT_FALSE(box->hasFocus());
    box->setFocus();
    EXPECT_TRUE(test::turnWheel(*box));
    EXPECT_TRUE(test::waitFor([&] { return chosen->count() == 1; }));
}

TEST_F(OptionControls, CheckWhatIsOnOrOff)
{
    OptionCheck check(*settings_, option("Collate"));
    auto *box = check.findChild<QCheckBox *>();
    ASSERT_TRUE(box);
    const auto chosen = test::chosenOn(check);
    EXPECT_FALSE(box->isChecked());
    box->click();
    EXPECT_FALSE(box->isChecked());
    ASSERT_TRUE(test::waitFor([&] { return chosen->count() == 1; }));
    EXPECT_EQ(chosen->at(0), u"Collate=True"_s);
    ASSERT_TRUE(set(u"Collate"_s, u"True"_s));
    EXPECT_TRUE(box->isChecked());
}

TEST_F(OptionControls, SayWhatKeepsACheckBoxFromBeingSwitched)
{
    OptionCheck check(*settings_, option("Staple"));
    auto *box = check.findChild<QCheckBox *>();
    auto *reason = check.findChild<QLabel *>();
    EXPECT_EQ(box->text(), u"Staple && Fold"_s);
    EXPECT_EQ(box->accessibleName(), u"Staple & Fold"_s);
    EXPECT_EQ(reason->text(), u"On – not with Stapler: Not Installed"_s);
    EXPECT_EQ(reason->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->accessibleDescription(), u"On – not with Stapler: Not Installed"_s);
    OptionCheck sort(*settings_, option("Collate"));
    EXPECT_EQ(sort.findChild<QLabel *>()->text(), QString());
    ASSERT_TRUE(set(u"Seal"_s, u"Foil"_s));
    EXPECT_EQ(sort.findChild<QLabel *>()->text(), u"On – not with Seal: Foil"_s);
}

} // namespace
} // namespace tessarin::host

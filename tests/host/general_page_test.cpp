// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/general_page.h"

#include "tests/host/pages_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class GeneralPageTest : public testing::Test {
protected:
    void SetUp() override { open(test::fixture("pages.ppd")); }
    /// Opens the page with a dialog that does what is chosen.
    void open(const QString &path)
    {
        page_.reset();
        settings_ = test::settingsOf(path);
        ASSERT_TRUE(settings_);
        page_ = std::make_unique<GeneralPage>(*settings_);
        QObject::connect(page_.get(), &GeneralPage::chosen, settings_.get(),
                         [this](const QString &key, const QString &value) {
                             told_ << key + u'=' + value;
                             if (accepts_) {
                                 settings_->set(key, value, ChangeOrigin::Page);
                             }
                             page_->refresh();
                         });
        page_->show();
    }
    template <typename Widget>
    Widget *find(const char *name) const
    {
        return page_->findChild<Widget *>(QLatin1String(name));
    }
    QString value(const char *key) const { return settings_->value(QLatin1String(key)); }
    bool set(const QString &key, const QString &value) { return settings_->set(key, value, ChangeOrigin::Host); }
    void write(const QString &text)
    {
        auto *ranges = find<QLineEdit>("page-ranges");
        ranges->selectAll();
        test::pressKey(*ranges, Qt::Key_Backspace);
        test::type(*ranges, text);
    }

    bool accepts_ = true;
    QStringList told_{};
    std::unique_ptr<JobSettings> settings_;
    std::unique_ptr<GeneralPage> page_;
};

TEST_F(GeneralPageTest, ShowsWhatHolds)
{
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
    EXPECT_FALSE(find<QCheckBox>("multiple-document-handling")->isChecked()) << "as the PPD's Collate has it";
    EXPECT_FALSE(find<QCheckBox>("multiple-document-handling")->isEnabled());
    EXPECT_TRUE(find<QRadioButton>("allPages")->isChecked());
    EXPECT_EQ(find<QComboBox>("page-set")->currentText(), u"odd and even pages"_s);
    EXPECT_EQ(find<QComboBox>("PageSize")->currentText(), u"A4 (210 × 297 mm)"_s);
    EXPECT_EQ(find<QComboBox>("orientation-requested")->currentText(), u"automatic"_s);
    EXPECT_EQ(find<QComboBox>("Duplex")->currentText(), u"Off"_s);
    EXPECT_EQ(find<QComboBox>("number-up")->currentText(), u"1"_s);
    EXPECT_EQ(page_->problem(), QString());
    EXPECT_TRUE(told_.isEmpty());
}

TEST_F(GeneralPageTest, FollowsTheSettings)
{
    ASSERT_TRUE(set(u"copies"_s, u"3"_s));
    ASSERT_TRUE(set(u"multiple-document-handling"_s, u"separate-documents-uncollated-copies"_s));
    ASSERT_TRUE(set(u"page-ranges"_s, u"2-4,8-"_s));
    ASSERT_TRUE(set(u"page-set"_s, u"even"_s));
    ASSERT_TRUE(set(u"orientation-requested"_s, u"5"_s));
    ASSERT_TRUE(set(u"number-up"_s, u"9"_s));
    ASSERT_TRUE(set(u"PageSize"_s, u"Letter"_s));
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 3);
    EXPECT_FALSE(find<QCheckBox>("multiple-document-handling")->isChecked());
    EXPECT_TRUE(find<QCheckBox>("multiple-document-handling")->isEnabled());
    EXPECT_TRUE(find<QRadioButton>("somePages")->isChecked());
    EXPECT_EQ(find<QLineEdit>("page-ranges")->text(), u"2-4, 8-"_s);
    EXPECT_EQ(find<QComboBox>("page-set")->currentText(), u"even pages"_s);
    EXPECT_EQ(find<QComboBox>("orientation-requested")->currentText(), u"reverse landscape"_s);
    EXPECT_EQ(find<QComboBox>("number-up")->currentText(), u"9"_s);
    EXPECT_EQ(find<QComboBox>("PageSize")->currentText(), u"US Letter"_s);
    EXPECT_TRUE(told_.isEmpty());
}

TEST_F(GeneralPageTest, TellsEveryChoice)
{
    auto *copies = find<QSpinBox>("copies");
    copies->selectAll();
    test::type(*copies, u"25"_s);
    EXPECT_EQ(copies->value(), 25);
    find<QCheckBox>("multiple-document-handling")->click();
    for (const char *key : {"page-set", "orientation-requested", "number-up"}) {
        test::pressKey(*find<QComboBox>(key), Qt::Key_End);
    }
    EXPECT_EQ(told_, (QStringList{u"copies=2"_s, u"copies=25"_s,
                                  u"multiple-document-handling=separate-documents-collated-copies"_s,
                                  u"page-set=even"_s, u"orientation-requested=5"_s, u"number-up=16"_s}));
    test::pressKey(*find<QComboBox>("PageSize"), Qt::Key_End);
    test::pressKey(*find<QComboBox>("Duplex"), Qt::Key_Down);
    EXPECT_TRUE(test::waitFor([this] { return told_.contains(u"Duplex=DuplexNoTumble"_s); }));
    EXPECT_TRUE(told_.contains(u"PageSize=EnvDL"_s));
    EXPECT_EQ(value("copies"), u"25"_s);
    EXPECT_EQ(value("PageSize"), u"EnvDL"_s);
}

TEST_F(GeneralPageTest, GoesBackToTheDocumentsOwnOrientation)
{
    ASSERT_TRUE(set(u"orientation-requested"_s, u"4"_s));
    test::pressKey(*find<QComboBox>("orientation-requested"), Qt::Key_Home);
    EXPECT_EQ(value("orientation-requested"), QString());
    EXPECT_EQ(find<QComboBox>("orientation-requested")->currentText(), u"automatic"_s);
}

TEST_F(GeneralPageTest, ShowsWhatHoldsWhenAChoiceDoesNotComeAbout)
{
    accepts_ = false;
    find<QSpinBox>("copies")->setValue(7);
    test::pressKey(*find<QComboBox>("number-up"), Qt::Key_End);
    write(u"3"_s);
    EXPECT_EQ(told_.back(), u"page-ranges=3"_s);
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
    EXPECT_EQ(find<QComboBox>("number-up")->currentText(), u"1"_s);
    EXPECT_TRUE(find<QRadioButton>("allPages")->isChecked());
    EXPECT_EQ(find<QLineEdit>("page-ranges")->text(), QString());
}

TEST_F(GeneralPageTest, ReadsPageRangesWhileTheyAreWritten)
{
    write(u"1-3, 5"_s);
    EXPECT_TRUE(find<QRadioButton>("somePages")->isChecked());
    EXPECT_EQ(find<QLineEdit>("page-ranges")->text(), u"1-3, 5"_s);
    EXPECT_EQ(value("page-ranges"), u"1-3,5"_s);
    EXPECT_EQ(page_->problem(), QString());
    find<QRadioButton>("allPages")->click();
    EXPECT_EQ(value("page-ranges"), QString());
    EXPECT_EQ(find<QLineEdit>("page-ranges")->text(), u"1-3, 5"_s);
    EXPECT_EQ(page_->problem(), QString());
    find<QRadioButton>("somePages")->click();
    EXPECT_EQ(value("page-ranges"), u"1-3,5"_s);
}

TEST_F(GeneralPageTest, SaysWhatIsWrongWithPageRangesAndKeepsThem)
{
    auto *problem = find<QLabel>("rangesProblem");
    EXPECT_FALSE(problem->isVisible());
    write(u"5-2"_s);
    EXPECT_EQ(problem->textFormat(), Qt::PlainText);
    EXPECT_TRUE(problem->isVisible());
    EXPECT_TRUE(problem->text().contains(u"5-2"_s)) << problem->text().toStdString();
    EXPECT_EQ(page_->problem(), problem->text());
    ASSERT_TRUE(set(u"copies"_s, u"2"_s)); // any other change leaves the text alone
    EXPECT_EQ(find<QLineEdit>("page-ranges")->text(), u"5-2"_s);
    EXPECT_TRUE(problem->isVisible());
    write(u"2-5"_s);
    EXPECT_FALSE(problem->isVisible());
    EXPECT_EQ(value("page-ranges"), u"2-5"_s);
    write(u"<b>"_s);
    EXPECT_TRUE(problem->isVisible());
    find<QRadioButton>("allPages")->click();
    EXPECT_FALSE(problem->isVisible());
    EXPECT_EQ(page_->problem(), QString());
}

TEST_F(GeneralPageTest, AsksForPagesWhenNoneAreWritten)
{
    find<QRadioButton>("somePages")->click();
    EXPECT_TRUE(find<QRadioButton>("somePages")->isChecked());
    EXPECT_EQ(page_->problem(), u"Which pages? For example 1-3, 5, 8-"_s);
    EXPECT_EQ(value("page-ranges"), QString());
    ASSERT_TRUE(set(u"page-ranges"_s, u"4"_s));
    EXPECT_EQ(find<QLineEdit>("page-ranges")->text(), u"4"_s);
    ASSERT_TRUE(set(u"page-ranges"_s, u""_s)); // reset
    EXPECT_TRUE(find<QRadioButton>("allPages")->isChecked());
    EXPECT_EQ(find<QLineEdit>("page-ranges")->text(), QString());
    EXPECT_EQ(page_->problem(), QString());
}

TEST_F(GeneralPageTest, OffersWhatThePrinterHas)
{
    EXPECT_TRUE(find<QComboBox>("Duplex"));
    open(test::fixture("pages-utf8.ppd"));
    EXPECT_FALSE(find<QComboBox>("Duplex"));
    EXPECT_TRUE(find<QSpinBox>("copies")->isVisible());
}

TEST_F(GeneralPageTest, OffersNoCopiesOfAPdfFile)
{
    const auto pdf = HostPrinter::saveAsPdf(test::fixture("pages-utf8.ppd"));
    ASSERT_TRUE(pdf.ok()) << pdf.reason().toStdString();
    JobSettings settings(pdf.value());
    GeneralPage page(settings);
    page.show();
    EXPECT_FALSE(page.findChild<QSpinBox *>(u"copies"_s)->isVisible());
    EXPECT_FALSE(page.findChild<QCheckBox *>(u"multiple-document-handling"_s)->isVisible());
    EXPECT_TRUE(page.findChild<QComboBox *>(u"number-up"_s)->isVisible());
}

TEST_F(GeneralPageTest, GivesEveryControlANameAndAWayToIt)
{
    for (const char *name : {"copies", "page-set", "PageSize", "orientation-requested", "Duplex", "number-up"}) {
        auto *control = find<QWidget>(name);
        ASSERT_TRUE(control) << name;
        EXPECT_FALSE(control->accessibleName().isEmpty()) << name;
        bool hasMnemonic = false;
        for (const QLabel *label : page_->findChildren<QLabel *>()) {
            hasMnemonic = hasMnemonic || (label->buddy() == control && label->text().contains(u'&'));
        }
        EXPECT_TRUE(hasMnemonic) << name;
    }
}

TEST_F(GeneralPageTest, HasAPlaceForAPreview)
{
    auto *preview = new QWidget;
    page_->setPreview(preview);
    EXPECT_EQ(preview->parentWidget(), page_.get());
    page_->resize(800, 500);
    QApplication::processEvents();
    EXPECT_GT(preview->geometry().left(), find<QComboBox>("PageSize")->geometry().right());
}

} // namespace
} // namespace tessarin::host

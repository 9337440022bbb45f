// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/job_settings.h"

#include "tests/host/host_test_support.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class JobSettingsTest : public testing::Test {
protected:
    void SetUp() override
    {
        const auto printer = test::minimalPrinter();
        ASSERT_TRUE(printer);
        settings_ = std::make_unique<JobSettings>(printer);
    }
    bool set(const QString &key, const QString &value) { return settings_->set(key, value, ChangeOrigin::Page); }
    QString marked(const char *keyword)
    {
        const ppd_choice_t *choice = ppdFindMarkedChoice(settings_->printer().ppd(), keyword);
        return choice ? QString::fromUtf8(choice->choice) : QString();
    }

    std::unique_ptr<JobSettings> settings_;
};

TEST_F(JobSettingsTest, StartsWithTheDefaultsAndAnUntouchedTicket)
{
    EXPECT_EQ(settings_->value(u"PageSize"_s), u"A4"_s);
    EXPECT_EQ(settings_->value(u"vornMediaType"_s), u"Photo6"_s);
    EXPECT_EQ(settings_->value(u"copies"_s), u"1"_s);
    EXPECT_EQ(settings_->value(u"page-ranges"_s), QString());
    EXPECT_EQ(settings_->value(u"Nothing"_s), QString());
    EXPECT_TRUE(settings_->ticket().entries().empty());
    EXPECT_FALSE(settings_->differsFromDefault(u"PageSize"_s));
}

TEST_F(JobSettingsTest, LeavesWhatRepeatsThePaperSizeOutOfTheKeys)
{
    EXPECT_TRUE(settings_->optionKeys().contains(u"PageSize"_s));
    EXPECT_FALSE(settings_->optionKeys().contains(u"PageRegion"_s));
    EXPECT_TRUE(settings_->hasOption(u"PageRegion"_s));
}

TEST_F(JobSettingsTest, MarksAndTellsAChangeOnce)
{
    QSignalSpy changes(settings_.get(), &JobSettings::changed);
    EXPECT_TRUE(set(u"pagesize"_s, u"letter"_s));
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.at(0).at(0).toString(), u"PageSize"_s);
    EXPECT_EQ(changes.at(0).at(1).toString(), u"Letter"_s);
    EXPECT_EQ(marked("PageSize"), u"Letter"_s);
    EXPECT_TRUE(settings_->differsFromDefault(u"PageSize"_s));
    EXPECT_TRUE(set(u"PageSize"_s, u"Letter"_s));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(JobSettingsTest, TakesANumberThatTheSliderDoesNotList)
{
    EXPECT_TRUE(set(u"vornBrightness"_s, u"-7"_s));
    EXPECT_EQ(settings_->value(u"vornBrightness"_s), u"-7"_s);
}

struct AttributeRow {
    const char *key;
    const char *value;
    const char *kept; ///< null: refused
};

TEST_F(JobSettingsTest, ChecksEveryAttribute)
{
    const std::vector<AttributeRow> rows = {
        {"copies", "1", "1"},
        {"copies", "9999", "9999"},
        {"copies", "007", "7"},
        {"copies", "0", nullptr},
        {"copies", "10000", nullptr},
        {"copies", "-1", nullptr},
        {"copies", "", nullptr},
        {"copies", "2x", nullptr},
        {"multiple-document-handling", "separate-documents-uncollated-copies",
         "separate-documents-uncollated-copies"},
        {"multiple-document-handling", "sometimes", nullptr},
        {"page-ranges", "1-3, 5,8-", "1-3,5,8-2147483647"},
        {"page-ranges", "", ""},
        {"page-ranges", "3-1", nullptr},
        {"page-set", "odd", "odd"},
        {"page-set", "third", nullptr},
        {"orientation-requested", "4", "4"},
        {"orientation-requested", "", ""},
        {"orientation-requested", "7", nullptr},
        {"number-up", "16", "16"},
        {"number-up", "3", nullptr},
    };
    for (const AttributeRow &row : rows) {
        const QString key = QLatin1String(row.key);
        const QString before = settings_->value(key);
        EXPECT_EQ(set(key, QString::fromUtf8(row.value)), row.kept != nullptr) << row.key << " = " << row.value;
        EXPECT_EQ(settings_->value(key), row.kept ? QString::fromUtf8(row.kept) : before)
            << row.key << " = " << row.value;
    }
}

TEST_F(JobSettingsTest, RefusesWhatCannotBe)
{
    const std::vector<std::pair<QString, QString>> rows = {
        {u"PageSize"_s, u"A0"_s},   {u"vornMediaType"_s, u"---separator---"_s},
        {u"vornNothing"_s, u"1"_s}, {QString(), u"1"_s},
        {u"PageSize"_s, QString()}, {u"PageSize"_s, QString(u"A4\0x"_s)},
    };
    for (const auto &[key, value] : rows) {
        EXPECT_FALSE(set(key, value)) << key.toStdString() << "=" << value.toStdString();
    }
    EXPECT_TRUE(settings_->ticket().entries().empty());
}

TEST_F(JobSettingsTest, CompletesTheTicketWithEveryOptionAndWhatMustAgree)
{
    set(u"vornMediaType"_s, u"Plain0"_s);
    settings_->setHint(u"ColorModel"_s, u"RGB"_s);
    const JobTicket ticket = settings_->completeTicket();
    EXPECT_EQ(ticket.entries().front().key, u"vornMediaType"_s);
    EXPECT_EQ(ticket.value(u"vornMediaType"_s), u"Plain0"_s);
    EXPECT_EQ(ticket.value(u"PageSize"_s), u"A4"_s);
    EXPECT_EQ(ticket.value(u"media"_s), u"A4"_s);
    EXPECT_EQ(ticket.value(u"copies"_s), u"1"_s);
    EXPECT_EQ(ticket.value(u"print-color-mode"_s), u"color"_s);
    EXPECT_FALSE(ticket.value(u"page-ranges"_s)) << "not set, not sent";
    EXPECT_FALSE(ticket.value(u"sides"_s)) << "the printer has no Duplex";
    for (const QString &key : settings_->optionKeys()) {
        EXPECT_TRUE(ticket.value(key)) << key.toStdString();
    }
}

TEST_F(JobSettingsTest, LetsNoColourAttributeOverruleGreys)
{
    settings_->setHint(u"ColorModel"_s, u"Gray"_s);
    EXPECT_TRUE(settings_->isGrey());
    EXPECT_EQ(settings_->completeTicket().value(u"print-color-mode"_s), u"monochrome"_s);
    EXPECT_FALSE(settings_->setAsWritten({.key = u"print-color-mode"_s, .value = u"color"_s}));
    EXPECT_FALSE(settings_->completeTicket().value(u"ColorModel"_s)) << "a hint is no option";
}

TEST_F(JobSettingsTest, ReadsTheStandardAttributesThatStandForOptions)
{
    EXPECT_TRUE(settings_->setAsWritten({.key = u"media"_s, .value = u"Letter"_s}));
    EXPECT_EQ(settings_->value(u"PageSize"_s), u"Letter"_s);
    EXPECT_FALSE(settings_->setAsWritten({.key = u"media"_s, .value = u"A0"_s}));
    EXPECT_TRUE(settings_->setAsWritten({.key = u"landscape"_s, .value = u"true"_s}));
    EXPECT_EQ(settings_->value(u"orientation-requested"_s), u"4"_s);
    EXPECT_TRUE(settings_->setAsWritten({.key = u"job-sheets"_s, .value = u"none, \"none\""_s}));
    EXPECT_EQ(settings_->completeTicket().value(u"job-sheets"_s), u"none, \"none\""_s);
}

TEST(HostPrinterAgain, ListsNumbersThatAreToBeMarked)
{
    const auto printer = test::minimalPrinter();
    ASSERT_TRUE(printer);
    CupsOptions numbers;
    numbers.add(u"vornBrightness"_s, u"-7"_s);
    numbers.add(u"vornMediaType"_s, u"Unknown"_s);
    const auto again = printer->again(numbers);
    ASSERT_TRUE(again.ok());
    JobSettings settings(again.value());
    EXPECT_NE(settings.value(u"vornBrightness"_s), u"-7"_s);
    EXPECT_TRUE(settings.set(u"vornBrightness"_s, u"-7"_s, ChangeOrigin::Host));
    const ppd_choice_t *marked = ppdFindMarkedChoice(again.value()->ppd(), "vornBrightness");
    ASSERT_TRUE(marked);
    EXPECT_STREQ(marked->choice, "-7");
    EXPECT_FALSE(settings.set(u"vornMediaType"_s, u"Unknown"_s, ChangeOrigin::Host));
    EXPECT_EQ(again.value()->identifier(), printer->identifier());
}

TEST_F(JobSettingsTest, KeepsTheTwoWordsForSortedCopiesTogether)
{
    const auto printer = HostPrinter::fromPpdFile(test::fixture("pages.ppd"));
    ASSERT_TRUE(printer.ok());
    JobSettings settings(printer.value());
    EXPECT_EQ(settings.value(QLatin1String(kCollate)), QLatin1String(kUncollated)) << "the PPD's default is False";
    ASSERT_TRUE(settings.set(u"Collate"_s, u"True"_s, ChangeOrigin::Page));
    EXPECT_EQ(settings.value(QLatin1String(kCollate)), QLatin1String(kCollated));
    ASSERT_TRUE(settings.set(QLatin1String(kCollate), QLatin1String(kUncollated), ChangeOrigin::Page));
    const JobTicket ticket = settings.completeTicket();
    EXPECT_EQ(ticket.value(u"Collate"_s), u"False"_s);
    EXPECT_EQ(ticket.value(QLatin1String(kCollate)), QLatin1String(kUncollated));
}

TEST_F(JobSettingsTest, KnowsEveryWordForGrey)
{
    for (const char *grey :
         {"Gray", "KGray", "CMYGray", "DeviceGray", "FastGray", "Grayscale", "BlackWhite", "Mono"}) {
        settings_->setHint(u"ColorModel"_s, QLatin1String(grey));
        EXPECT_TRUE(settings_->isGrey()) << grey;
        EXPECT_EQ(settings_->completeTicket().value(u"print-color-mode"_s), u"monochrome"_s) << grey;
    }
    for (const char *colour : {"RGB", "CMYK", "CMY", "DeviceN"}) {
        settings_->setHint(u"ColorModel"_s, QLatin1String(colour));
        EXPECT_FALSE(settings_->isGrey()) << colour;
    }
}

} // namespace
} // namespace tessarin::host

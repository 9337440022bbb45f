// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/host_callback.h"

#include "tests/host/host_test_support.h"

#include <gtest/gtest.h>

#include <memory>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class DialogCallbackTest : public testing::Test {
protected:
    void SetUp() override
    {
        const auto printer = test::minimalPrinter();
        ASSERT_TRUE(printer);
        callback_ = std::make_unique<DialogCallback>(printer);
    }

    bool change(const QString &key, const QString &choice)
    {
        return callback_->willChangePPDOptionKeyValue(key, choice);
    }
    QString marked(const char *keyword)
    {
        const ppd_choice_t *choice = ppdFindMarkedChoice(callback_->ppdFile(), keyword);
        return choice ? QString::fromUtf8(choice->choice) : QString();
    }

    std::unique_ptr<DialogCallback> callback_;
};

TEST_F(DialogCallbackTest, OffersThePrinterOfItsSession)
{
    ASSERT_TRUE(callback_->printSession());
    EXPECT_EQ(callback_->printSession()->currentPrinter(), callback_->PMPrinter());
    EXPECT_EQ(callback_->PMPrinter()->identifier(), u"minimal"_s);
    EXPECT_TRUE(callback_->ppdFile());
}

TEST_F(DialogCallbackTest, StartsWithAnEmptyTicketAndThePpdsDefaultsMarked)
{
    EXPECT_TRUE(callback_->ticket().entries().empty());
    EXPECT_EQ(marked("vornMediaType"), u"Photo6"_s);
}

TEST_F(DialogCallbackTest, MarksAListedChoiceAndPutsItIntoTheTicket)
{
    EXPECT_TRUE(change(u"vornMediaType"_s, u"Plain0"_s));
    EXPECT_EQ(marked("vornMediaType"), u"Plain0"_s);
    EXPECT_EQ(callback_->ticket().toLines(), QByteArray("vornMediaType=Plain0\n"));
}

TEST_F(DialogCallbackTest, WritesKeyAndChoiceAsThePpdDoes)
{
    EXPECT_TRUE(change(u"VORNMEDIATYPE"_s, u"plain0"_s));
    EXPECT_EQ(callback_->ticket().toLines(), QByteArray("vornMediaType=Plain0\n"));
}

TEST_F(DialogCallbackTest, TakesANumberThatIsNotListedAsItIsWithoutMarkingIt)
{
    const QString before = marked("vornBrightness");
    for (const char *number : {"-7", "+7", "12345678901234567890"}) {
        EXPECT_TRUE(change(u"vornBrightness"_s, QLatin1String(number))) << number;
        EXPECT_EQ(callback_->ticket().value(u"vornBrightness"_s), QLatin1String(number));
        EXPECT_EQ(marked("vornBrightness"), before);
    }
}

TEST_F(DialogCallbackTest, RefusesWhatIsNeitherListedNorAWholeNumber)
{
    for (const char *choice : {"", "-", "+", "7%", " 7", "1.5", "0x10", "--7", "Nope", "\xd9\xa3"}) {
        EXPECT_FALSE(change(u"vornBrightness"_s, QString::fromUtf8(choice))) << choice;
    }
    EXPECT_FALSE(change(u"vornMediaType"_s, QStringLiteral("Photo6") + QChar(u'\0')));
    EXPECT_TRUE(callback_->ticket().entries().empty());
}

TEST_F(DialogCallbackTest, RefusesTheTextOfASeparator)
{
    EXPECT_FALSE(change(u"vornMediaType"_s, u"---separator---"_s));
    EXPECT_EQ(marked("vornMediaType"), u"Photo6"_s);
}

TEST_F(DialogCallbackTest, RefusesAnOptionThatThePpdDoesNotHave)
{
    EXPECT_FALSE(change(u"vornNothing"_s, u"1"_s));
    EXPECT_FALSE(change(u""_s, u"1"_s));
    EXPECT_FALSE(change(u"*vornMediaType"_s, u"Photo6"_s));
    EXPECT_TRUE(callback_->ticket().entries().empty());
}

TEST_F(DialogCallbackTest, RefusesAbsentTexts)
{
    EXPECT_FALSE(change(QString(), u"Photo6"_s));
    EXPECT_FALSE(change(u"vornMediaType"_s, QString()));
    EXPECT_FALSE(change(u"ColorModel"_s, QString()));
}

TEST_F(DialogCallbackTest, KeepsTheColourModelAsAHint)
{
    EXPECT_TRUE(change(u"ColorModel"_s, u"Gray"_s));
    EXPECT_EQ(callback_->ticket().hint(u"ColorModel"_s), u"Gray"_s);
    EXPECT_TRUE(callback_->ticket().entries().empty());
}

TEST_F(DialogCallbackTest, TellsItsObserverOfAcceptedChangesOnly)
{
    QStringList seen;
    callback_->setChangeObserver([&](const QString &key, const QString &choice) { seen << key + u'=' + choice; });
    change(u"vornMediaType"_s, u"Plain0"_s);
    change(u"vornMediaType"_s, u"Nope"_s);
    change(u"ColorModel"_s, u"RGB"_s);
    callback_->setChangeObserver({});
    change(u"vornMediaType"_s, u"Photo6"_s);
    EXPECT_EQ(seen, (QStringList{u"vornMediaType=Plain0"_s, u"ColorModel=RGB"_s}));
}

TEST(DialogCallbackLife, KeepsThePrinterOpen)
{
    auto printer = test::minimalPrinter();
    ASSERT_TRUE(printer);
    std::weak_ptr<HostPrinter> watched = printer;
    auto callback = std::make_unique<DialogCallback>(std::move(printer));
    EXPECT_FALSE(watched.expired());
    callback.reset();
    EXPECT_TRUE(watched.expired());
}

} // namespace
} // namespace tessarin::host

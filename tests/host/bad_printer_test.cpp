// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the dialog makes of PPD files that are damaged, odd or hostile, given as printers.

#include "settings/conflicts.h"
#include "settings/option_catalogue.h"

#include "tests/host/pages_test_support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

QString badPpd(const char *name)
{
    return QStringLiteral(TESSARIN_FIXTURES "/bad/ppd/") + QLatin1String(name);
}

/// Why a file is refused, without its name; empty when it is not.
QString refusal(const QString &path)
{
    const auto printer = HostPrinter::fromPpdFile(path);
    const QString begin = u"PPD file "_s + path + u": "_s;
    EXPECT_TRUE(printer.ok() || printer.reason().startsWith(begin)) << printer.reason().toStdString();
    return printer.ok() ? QString() : printer.reason().mid(begin.size());
}

/// The choices of an option as "choice/text".
QStringList choicesOf(const JobSettings &settings, const QString &key)
{
    QStringList all;
    for (const CatalogueChoice &one : catalogueOption(settings.printer(), key).choices) {
        all << one.choice + u'/' + one.text;
    }
    return all;
}

TEST(BadPrinter, WithAByteOrderMarkIsRefused)
{
    EXPECT_EQ(refusal(badPpd("bom.ppd")), u"line 1: Missing asterisk in column 1"_s);
}

TEST(BadPrinter, WithAConstraintThatNamesNothingIsRefused)
{
    EXPECT_EQ(refusal(badPpd("bad-constraint.ppd")), u"line 49: Bad UIConstraints"_s);
}

TEST(BadPrinter, WhoseKeysAreNotAsciiIsRefused)
{
    EXPECT_EQ(refusal(badPpd("other-letters.ppd")), u"line 33: Illegal option keyword string"_s);
}

TEST(BadPrinter, IsNoDevice)
{
    EXPECT_EQ(refusal(u"/dev/zero"_s), u"it is not a regular file"_s);
    EXPECT_EQ(refusal(u"/dev/urandom"_s), u"it is not a regular file"_s);
}

TEST(BadPrinter, MayEndItsLinesWithCrOrHoldZeroBytes)
{
    for (const char *name : {"cr-only.ppd", "nul.ppd"}) {
        const auto settings = test::settingsOf(badPpd(name));
        ASSERT_TRUE(settings) << name;
        EXPECT_EQ(settings->value(u"vornMediaType"_s), u"Photo6"_s) << name;
        EXPECT_EQ(conflictReason(settings->printer(), u"vornResolution"_s, u"1200dpi"_s), QString()) << name;
        settings->set(u"vornMediaType"_s, u"Plain1"_s, ChangeOrigin::Page);
        EXPECT_EQ(conflictReason(settings->printer(), u"vornResolution"_s, u"1200dpi"_s),
                  u"not with Media Type: Plain Paper"_s)
            << name;
    }
}

TEST(BadPrinter, LosesWhatFollowsAQuotationWithoutItsEnd)
{
    const auto settings = test::settingsOf(badPpd("unterminated.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_TRUE(settings->hasOption(u"vornMediaType"_s));
    EXPECT_FALSE(settings->hasOption(u"vornResolution"_s));
}

TEST(BadPrinter, MayBeCompressed)
{
    const auto settings = test::settingsOf(badPpd("compressed.ppd.gz"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->printer().displayName(), u"Tessarin Test bad, 1.0"_s);
    settings->set(u"vornMediaType"_s, u"Plain1"_s, ChangeOrigin::Page);
    EXPECT_EQ(conflictReason(settings->printer(), u"vornResolution"_s, u"1200dpi"_s),
              u"not with Media Type: Plain Paper"_s);
}

TEST(BadPrinter, ThatIsCompressedAndCutHasTheOptionsBeforeTheCut)
{
    const auto settings = test::settingsOf(badPpd("compressed-cut.ppd.gz"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->printer().displayName(), u"Tessarin Test bad, 1.0"_s);
    EXPECT_EQ(settings->value(u"PageSize"_s), u"A4"_s);
    EXPECT_FALSE(settings->hasOption(u"vornResolution"_s));
}

TEST(BadPrinter, ThatIsCompressedAndDamagedAnywhereIsReadOrRefused)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"damaged.ppd.gz"_s);
    const QByteArray whole = test::readFile(badPpd("compressed.ppd.gz"));
    for (qsizetype at = 1; at < whole.size(); ++at) {
        test::writeFile(path, whole.left(at));
        refusal(path);
        QByteArray turned = whole;
        turned[at] = static_cast<char>(~turned[at]);
        test::writeFile(path, turned);
        refusal(path);
    }
}

TEST(BadPrinter, TakesTheLastOfSeveralDefaultsAndTellsEveryCopy)
{
    const auto settings = test::settingsOf(badPpd("duplicates.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->value(u"vornMediaType"_s), u"Canvas7"_s);
    EXPECT_EQ(choicesOf(*settings, u"vornMediaType"_s),
              (QStringList{u"Plain1/Plain Paper"_s, u"Photo6/Photo Paper"_s, u"Photo6/Photo Paper once more"_s,
                           u"Canvas7/Canvas"_s, u"Canvas7/Canvas once more"_s}));
}

TEST(BadPrinter, WithConstraintsInACircleTellsThemAndLooksNoFurther)
{
    const auto settings = test::settingsOf(badPpd("circle.ppd"));
    ASSERT_TRUE(settings);
    const HostPrinter &printer = settings->printer();
    EXPECT_EQ(test::listed(presentConflicts(printer)), u"vornMediaType=Photo6 vornResolution=600dpi"_s);
    EXPECT_EQ(resolution(printer, u"vornMediaType"_s, u"Photo6"_s), std::nullopt);
    EXPECT_EQ(resolution(printer, u"vornMediaType"_s, u"Plain1"_s), std::nullopt);
    EXPECT_NE(conflictReason(printer, u"vornResolution"_s, u"600dpi"_s), QString());
}

TEST(BadPrinter, ShowsTextsInHexadecimalDecoded)
{
    const auto settings = test::settingsOf(badPpd("hex-texts.ppd"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(optionText(settings->printer(), u"vornMediaType"_s), u"Media\nType"_s);
    const QStringList choices = choicesOf(*settings, u"vornMediaType"_s);
    EXPECT_EQ(choices.size(), 9);
    EXPECT_EQ(choices.mid(0, 5), (QStringList{u"Lines1/two\nlines"_s, u"Return1/car\rriage"_s, u"Zero1/ze"_s,
                                              u"Quote1/qu\"ote {brace}"_s, u"Word1/Hex"_s}));
}

// The library makes room for each choice anew; under a sanitizer, which then copies all of them, so many take
// minutes.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kManyChoices = 4096;
#else
constexpr int kManyChoices = 65536;
#endif

TEST(BadPrinter, OffersEveryOneOf65536Choices)
{
    QByteArray lines;
    for (int i = 0; i < kManyChoices; ++i) {
        lines += "*vornMediaType X" + QByteArray::number(i) + "/Text: \"\"\n";
    }
    QTemporaryDir folder;
    const QString path = folder.filePath(u"large.ppd"_s);
    const QByteArray close = "*CloseUI: *vornMediaType\n";
    test::writeFile(path, test::readFile(test::fixture("minimal.ppd")).replace(close, lines + close));
    const auto settings = test::settingsOf(path);
    ASSERT_TRUE(settings);
    EXPECT_EQ(catalogueOption(settings->printer(), u"vornMediaType"_s).choices.size(), kManyChoices + 3);
    const QString last = u"X%1"_s.arg(kManyChoices - 1);
    EXPECT_TRUE(settings->set(u"vornMediaType"_s, last, ChangeOrigin::Page));
    EXPECT_EQ(settings->value(u"vornMediaType"_s), last);
}

} // namespace
} // namespace tessarin::host

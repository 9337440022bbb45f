// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/ticket.h"

#include "tests/host/host_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

TEST(JobTicket, StartsEmpty)
{
    EXPECT_TRUE(JobTicket().entries().empty());
    EXPECT_EQ(JobTicket().toLines(), QByteArray());
    EXPECT_EQ(JobTicket().toCupsOptions().count(), 0);
}

TEST(JobTicket, KeepsTheOrderOfFirstSetting)
{
    JobTicket ticket;
    ticket.set(u"b"_s, u"1"_s);
    ticket.set(u"a"_s, u"2"_s);
    ticket.set(u"b"_s, u"3"_s);
    EXPECT_EQ(ticket.toLines(), QByteArray("b=3\na=2\n"));
}

TEST(JobTicket, TakesKeysOfOtherCaseForTheSame)
{
    JobTicket ticket;
    ticket.set(u"vornIntent"_s, u"1"_s);
    ticket.set(u"VORNINTENT"_s, u"2"_s);
    EXPECT_EQ(ticket.toLines(), QByteArray("vornIntent=2\n"));
    EXPECT_EQ(ticket.value(u"vornintent"_s), u"2"_s);
    EXPECT_EQ(ticket.value(u"other"_s), std::nullopt);
}

struct Spelling {
    const char *name;
    QString key;
    QString value;
    QByteArray line;

    friend void PrintTo(const Spelling &row, std::ostream *out) { *out << row.name; }
};

class JobTicketSpelling : public testing::TestWithParam<Spelling> {};

TEST_P(JobTicketSpelling, IsWrittenAsOneLineAndReadBack)
{
    const Spelling &spelling = GetParam();
    JobTicket ticket;
    ticket.set(spelling.key, spelling.value);
    EXPECT_EQ(ticket.toLines(), spelling.line);
    const Outcome<JobTicket> read = JobTicket::fromLines(spelling.line);
    ASSERT_TRUE(read.ok()) << read.reason().toStdString();
    ASSERT_EQ(read.value().entries().size(), 1u);
    EXPECT_EQ(read.value().entries()[0].key, spelling.key);
    EXPECT_EQ(read.value().entries()[0].value, spelling.value);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, JobTicketSpelling,
    testing::Values(Spelling{"plain", u"vornMediaType"_s, u"Photo6"_s, "vornMediaType=Photo6\n"},
                    Spelling{"empty_value", u"a"_s, u""_s, "a=\n"},
                    Spelling{"equals_sign_in_value", u"a"_s, u"b=c"_s, "a=b=c\n"},
                    Spelling{"equals_sign_in_key", u"a=b"_s, u"c"_s, "a\\=b=c\n"},
                    Spelling{"newline", u"a"_s, u"x\ny"_s, "a=x\\ny\n"},
                    Spelling{"carriage_return_at_end", u"a"_s, u"x\r"_s, "a=x\\r\n"},
                    Spelling{"backslashes", u"a\\"_s, u"\\n\\"_s, "a\\\\=\\\\n\\\\\n"},
                    Spelling{"blanks_and_quotes", u"a"_s, u" 'x' \"y\" {z} "_s, "a= 'x' \"y\" {z} \n"},
                    Spelling{"format_text", u"a"_s, u"%n%s<b>&"_s, "a=%n%s<b>&\n"},
                    Spelling{"umlaut", u"a"_s, u"Grün"_s, "a=Gr\xc3\xbcn\n"}),
    [](const testing::TestParamInfo<Spelling> &row) { return std::string(row.param.name); });

TEST(JobTicketReading, AcceptsCrLfEmptyLinesAndAMissingLastNewline)
{
    const Outcome<JobTicket> read = JobTicket::fromLines("a=1\r\n\n\r\nb=2");
    ASSERT_TRUE(read.ok()) << read.reason().toStdString();
    EXPECT_EQ(read.value().toLines(), QByteArray("a=1\nb=2\n"));
}

TEST(JobTicketReading, LetsALaterLineReplaceAnEarlierOne)
{
    const Outcome<JobTicket> read = JobTicket::fromLines("a=1\nb=2\na=3\n");
    ASSERT_TRUE(read.ok());
    EXPECT_EQ(read.value().toLines(), QByteArray("a=3\nb=2\n"));
}

struct WrongText {
    const char *name;
    QByteArray text;
    QString reason;

    friend void PrintTo(const WrongText &row, std::ostream *out) { *out << row.name; }
};

class JobTicketWrongText : public testing::TestWithParam<WrongText> {};

TEST_P(JobTicketWrongText, IsRefusedNamingTheLine)
{
    const Outcome<JobTicket> read = JobTicket::fromLines(GetParam().text);
    EXPECT_FALSE(read.ok());
    EXPECT_EQ(read.reason(), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, JobTicketWrongText,
    testing::Values(
        WrongText{"no_equals_sign", "a=1\nhello\n", u"line 2: there is no \"=\" in it"_s},
        WrongText{"no_key", "=1\n", u"line 1: there is no key before the \"=\""_s},
        WrongText{"unknown_escape", "a=\\x\n", u"line 1: a backslash is not followed by \\, =, n or r"_s},
        WrongText{"backslash_at_end", "a=1\\\n", u"line 1: a backslash is not followed by \\, =, n or r"_s},
        WrongText{"zero_byte", QByteArray("a=1\0\n", 5), u"line 1: it holds a zero byte"_s},
        WrongText{"not_utf8", "\n\na=\xff\n", u"line 3: it is not UTF-8 text"_s}),
    [](const testing::TestParamInfo<WrongText> &row) { return std::string(row.param.name); });

TEST(JobTicket, KeepsHintsOutOfTheJob)
{
    JobTicket ticket;
    ticket.setHint(u"ColorModel"_s, u"RGB"_s);
    ticket.setHint(u"ColorModel"_s, u"Gray"_s);
    EXPECT_EQ(ticket.hint(u"ColorModel"_s), u"Gray"_s);
    EXPECT_EQ(ticket.value(u"ColorModel"_s), std::nullopt);
    EXPECT_EQ(ticket.toLines(), QByteArray());
    EXPECT_EQ(ticket.toCupsOptions().count(), 0);
}

TEST(JobTicket, GivesLibcupsEveryOption)
{
    JobTicket ticket;
    ticket.set(u"z"_s, u"a b"_s);
    ticket.set(u"vornBrightness"_s, u"-15"_s);
    ticket.set(u"empty"_s, u""_s);
    const CupsOptions options = ticket.toCupsOptions();
    EXPECT_EQ(options.count(), 3);
    EXPECT_EQ(options.value(u"z"_s), u"a b"_s);
    EXPECT_EQ(options.value(u"vornBrightness"_s), u"-15"_s);
    EXPECT_EQ(options.value(u"empty"_s), u""_s);
}

} // namespace
} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/options_file.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

struct ValueCase {
    const char *value;
    bool survives;
};

TEST(SurvivesOptionsFile, TellsValuesThatTheFileHolds)
{
    const ValueCase cases[] = {
        {"Photo6", true}, {"a b", true},     {"it's", true},  {"say \"so\"", true}, {"back\\slash", true},
        {"a,b", true},    {"a=b", true},     {"{a b}", true}, {"br{a}ce", true},    {"\u00fc", true},
        {" edge ", true}, {"-5", true},      {"", false},     {"a#b", false},       {"#", false},
        {"a\nb", false},  {"tab\tx", false}, {"{a", false},   {"a\x7f", false},     {"a b\nc", false},
    };
    for (const ValueCase &test : cases) {
        EXPECT_EQ(survivesOptionsFile(u"vornText"_s, QString::fromUtf8(test.value)), test.survives)
            << "value: " << test.value;
    }
}

TEST(SurvivesOptionsFile, TellsNamesThatTheFileDoesNotHold)
{
    for (const QString &name : {u"a b"_s, u"a#b"_s, u"a=b"_s, u"a\nb"_s}) {
        EXPECT_FALSE(survivesOptionsFile(name, u"1"_s)) << name.toStdString();
    }
}

TEST(MergedOptionsFile, TakesOurLineAndNoOther)
{
    EXPECT_EQ(mergedOptionsFile("", "Default generic\nDest photo a=1\nDest generic/of-all b=2\n",
                                QueueName::fromText(u"photo"_s)),
              QByteArray("Dest photo a=1\n"));
}

TEST(MergedOptionsFile, KeepsWhatLibcupsLeavesOut)
{
    const QByteArray before = "# mine\n"
                              "Dest gone x=\"a b\"\n"
                              "Default away/draft y=1\n"
                              "dest\tPhoto a=0\n"
                              "Dest photo/draft\n"
                              "Something else\n";
    EXPECT_EQ(mergedOptionsFile(before, "Dest Photo a=1 b=2\n", QueueName::fromText(u"photo"_s)),
              QByteArray("# mine\n"
                         "Dest gone x=\"a b\"\n"
                         "Default away/draft y=1\n"
                         "Dest Photo a=1 b=2\n"
                         "Dest photo/draft\n"
                         "Something else\n"));
}

TEST(MergedOptionsFile, KeepsTheUsersDefaultQueue)
{
    const QueueName photo = QueueName::fromText(u"photo"_s);
    EXPECT_EQ(mergedOptionsFile("Default photo a=0\n", "Dest photo a=1\n", photo),
              QByteArray("Default photo a=1\n"));
    EXPECT_EQ(mergedOptionsFile("Default photo a=0\n", "", photo), QByteArray("Default photo\n"));
}

TEST(MergedOptionsFile, DropsOurLineWhenNothingIsLeftInIt)
{
    EXPECT_EQ(mergedOptionsFile("Dest photo a=0\n", "", QueueName::fromText(u"photo"_s)), QByteArray());
}

TEST(MergedOptionsFile, KeepsAnInstanceWithoutOptions)
{
    EXPECT_EQ(mergedOptionsFile("Dest photo/draft a=0\n", "", QueueName::fromText(u"photo/draft"_s)),
              QByteArray("Dest photo/draft\n"));
}

TEST(MergedOptionsFile, MakesOneLineOfSeveral)
{
    EXPECT_EQ(mergedOptionsFile("Dest photo a=0\nDest b\nDest photo c=1\n", "Dest photo a=0 c=1\nDest b\n",
                                QueueName::fromText(u"photo"_s)),
              QByteArray("Dest photo a=0 c=1\nDest b\n"));
}

} // namespace
} // namespace tessarin::host

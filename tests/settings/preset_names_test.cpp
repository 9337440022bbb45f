// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which names presets may have, and which files printers get.

#include "tests/settings/preset_test_support.h"

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;
using PresetNamesTest = test::PresetTest;

const QString kEmpty = u"a preset needs a name"_s;
const QString kLong = u"the name of a preset has at most 100 characters"_s;
const QString kTorn = u"the name of a preset is one line, without control characters"_s;
const QString kDefault = u"\"Default settings\" is always there: no other preset can have its name"_s;
const QString kLast = u"\"Last used\" is always there: no other preset can have its name"_s;

struct NameCase {
    const char *what;
    QString name;
    QString problem;
};

class PresetName : public testing::TestWithParam<NameCase> {};

TEST_P(PresetName, IsJudged)
{
    EXPECT_EQ(presetNameProblem(GetParam().name), GetParam().problem);
}

INSTANTIATE_TEST_SUITE_P(
    Names, PresetName,
    testing::Values(
        NameCase{"plain", u"Photos"_s, u""_s}, NameCase{"one_character", u"x"_s, u""_s},
        NameCase{"blanks_around", u"  Photos \t"_s, u""_s}, NameCase{"punctuation", u"../\"a\" = {b}; $c"_s, u""_s},
        NameCase{"joiner_inside", u"\u0646\u200c\u0645"_s, u""_s}, NameCase{"hundred", QString(100, u'ä'), u""_s},
        NameCase{"hundred_in_blanks", u' ' + QString(100, u'a') + u' ', u""_s},
        NameCase{"hundred_of_two_units", u"\U0001F5A8"_s.repeated(100), u""_s},
        NameCase{"hundred_and_one", QString(101, u'a'), kLong},
        NameCase{"hundred_and_one_of_two_units", u"\U0001F5A8"_s.repeated(101), kLong},
        NameCase{"null", QString(), kEmpty}, NameCase{"empty", u""_s, kEmpty},
        NameCase{"blanks", u" \t\u00a0\u3000"_s, kEmpty}, NameCase{"invisible", u"\u200b\u200d\ufeff"_s, kEmpty},
        NameCase{"newline", u"a\nb"_s, kTorn}, NameCase{"tab", u"a\tb"_s, kTorn},
        NameCase{"zero", u"a\0b"_s, kTorn}, NameCase{"delete", u"a\u007f"_s, kTorn},
        NameCase{"c1_control", u"a\u0090b"_s, kTorn}, NameCase{"line_separator", u"a\u2028b"_s, kTorn},
        NameCase{"half_a_character", u"a"_s + QChar(0xd83d), kTorn},
        NameCase{"default", u"Default settings"_s, kDefault},
        NameCase{"default_other_case", u" DEFAULT Settings "_s, kDefault},
        NameCase{"last_used", u"last used"_s, kLast}, NameCase{"nearly_last_used", u"Last used 2"_s, u""_s}),
    [](const testing::TestParamInfo<NameCase> &tested) { return std::string(tested.param.what); });

TEST_F(PresetNamesTest, AreCheckedByAllThatNames)
{
    PresetStore store = opened();
    EXPECT_EQ(store.save({.name = u" \n"_s, .values = {}}, SaveMode::ReplaceExisting), kEmpty);
    ASSERT_EQ(store.save({.name = u"One"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(store.rename(u"One"_s, u"a\nb"_s), kTorn);
    EXPECT_EQ(opened().names(), QStringList(u"One"_s));
}

TEST_F(PresetNamesTest, AreTheSameInAnyCaseAndComposition)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save({.name = u"  Grün "_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(store.names(), QStringList(u"Grün"_s));
    const QString taken = u"there is already a preset \"Grün\""_s;
    EXPECT_EQ(store.save({.name = u"GRÜN"_s, .values = {}}, SaveMode::KeepExisting), taken);
    EXPECT_EQ(store.save({.name = u"gru\u0308n"_s, .values = {}}, SaveMode::KeepExisting), taken);
    EXPECT_EQ(store.save({.name = u"Grun"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
}

TEST_F(PresetNamesTest, OfHandWrittenFilesThatCannotBeAreLeftOutAndKept)
{
    put(R"({"version":1,"presets":[{"name":"Last used"},{"name":" x "},{"name":""},5,{"name":7},
            {"name":"Good","values":{"a":"1"}},{"name":"GOOD","values":{"a":"2"}}]})");
    PresetStore store = opened();
    EXPECT_EQ(store.names(), QStringList(u"Good"_s));
    EXPECT_EQ(store.preset(u"x"_s), std::nullopt);
    EXPECT_EQ(store.preset(u"Good"_s)->values, (PresetValues{{u"a"_s, u"1"_s}}));
    ASSERT_EQ(store.remove(u"Good"_s), u""_s);
    const QJsonArray left = QJsonDocument::fromJson(test::readFile(file())).object().value(u"presets"_s).toArray();
    ASSERT_EQ(left.size(), 6);
    EXPECT_EQ(left[0].toObject().value(u"name"_s).toString(), u"Last used"_s);
    EXPECT_EQ(left[3].toInt(), 5);
    EXPECT_EQ(left[4].toObject().value(u"name"_s).toInt(), 7);
    EXPECT_EQ(store.names(), QStringList(u"GOOD"_s));
}

struct FileCase {
    const char *what;
    QString identity;
    QString fileName;
};

class PresetFileName : public testing::TestWithParam<FileCase> {};

TEST_P(PresetFileName, StaysInItsFolder)
{
    EXPECT_EQ(presetFileName(GetParam().identity), GetParam().fileName);
}

INSTANTIATE_TEST_SUITE_P(
    Identities, PresetFileName,
    testing::Values(
        FileCase{"queue", u"Photo_2-b.x"_s, u"Photo_2-b.x.json"_s},
        FileCase{"instance", u"photo/draft"_s, u"photo%2Fdraft.json"_s},
        FileCase{"path", u"/etc/a b.ppd"_s, u"%2Fetc%2Fa%20b.ppd.json"_s},
        FileCase{"above", u".."_s, u"%2E..json"_s}, FileCase{"out", u"../../x"_s, u"%2E.%2F..%2Fx.json"_s},
        FileCase{"hidden", u".photo"_s, u"%2Ephoto.json"_s}, FileCase{"percent", u"a%2Fb"_s, u"a%252Fb.json"_s},
        FileCase{"tilde", u"a~b"_s, u"a%7Eb.json"_s}, FileCase{"umlaut", u"Büro"_s, u"B%C3%BCro.json"_s},
        FileCase{"newline", u"a\nb"_s, u"a%0Ab.json"_s},
        FileCase{"longest", QString(115, u'a'), QString(115, u'a') + u".json"_s},
        FileCase{"too_long", QString(116, u'a'),
                 QString(50, u'a') + u"~9caaa833c93273f927b4145f86a41791ea6e39a31d118a6aae3dbcdaac5f84ac.json"_s}),
    [](const testing::TestParamInfo<FileCase> &tested) { return std::string(tested.param.what); });

TEST_F(PresetNamesTest, OfLongPathsDoNotMeet)
{
    const QString one = u"/home/somebody/"_s + QString(3000, u'x') + u"/a.ppd"_s;
    const QString two = u"/home/somebody/"_s + QString(3000, u'x') + u"/b.ppd"_s;
    EXPECT_NE(presetFileName(one), presetFileName(two));
    PresetStore store = opened(one);
    ASSERT_EQ(store.save({.name = u"One"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(opened(one).names(), QStringList(u"One"_s));
    EXPECT_EQ(opened(two).names(), QStringList());
}

} // namespace
} // namespace tessarin::host

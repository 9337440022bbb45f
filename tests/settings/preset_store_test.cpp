// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Presets as a dialog uses them: saved, applied, renamed, removed.

#include "tests/settings/preset_test_support.h"

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;
using PresetStoreTest = test::PresetTest;

const Preset kGlossy = {.name = u"Glossy photos"_s,
                        .values = {{u"MediaType"_s, u"Glossy"_s}, {u"vornIntent"_s, u"2"_s}}};

TEST_F(PresetStoreTest, IsEmptyAndWritesNothingForAPrinterWithoutAFile)
{
    const PresetStore store = opened();
    EXPECT_EQ(store.names(), QStringList());
    EXPECT_EQ(store.preset(u"Glossy photos"_s), std::nullopt);
    EXPECT_EQ(store.lastUsed(), PresetValues());
    EXPECT_EQ(store.notice(), u""_s);
    EXPECT_FALSE(store.isReadOnly());
    EXPECT_EQ(store.path(), file());
    EXPECT_FALSE(QFileInfo::exists(config() + u"/tessarin"_s));
}

TEST_F(PresetStoreTest, RefusesAPrinterWithoutAnIdentity)
{
    const auto store = PresetStore::open(u""_s);
    ASSERT_FALSE(store.ok());
    EXPECT_EQ(store.reason(), u"presets: the printer has no name"_s);
}

TEST_F(PresetStoreTest, GivesBackWhatWasSaved)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kGlossy, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(store.saveLastUsed({{u"PageSize"_s, u"A4"_s}}), u""_s);
    for (const PresetStore &each : {store, opened()}) {
        EXPECT_EQ(each.names(), QStringList(u"Glossy photos"_s));
        const std::optional<Preset> preset = each.preset(u"Glossy photos"_s);
        ASSERT_TRUE(preset);
        EXPECT_EQ(preset->name, u"Glossy photos"_s);
        EXPECT_EQ(preset->values, (PresetValues{{u"MediaType"_s, u"Glossy"_s}, {u"vornIntent"_s, u"2"_s}}));
        EXPECT_EQ(each.lastUsed(), (PresetValues{{u"PageSize"_s, u"A4"_s}}));
    }
}

TEST_F(PresetStoreTest, WritesTheFormatThatOthersRead)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kGlossy, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(store.saveLastUsed({{u"PageSize"_s, u"A4"_s}}), u""_s);
    EXPECT_EQ(test::readFile(file()), QByteArray(R"({
    "lastUsed": {
        "values": {
            "PageSize": "A4"
        }
    },
    "presets": [
        {
            "name": "Glossy photos",
            "values": {
                "MediaType": "Glossy",
                "vornIntent": "2"
            }
        }
    ],
    "printer": "photo",
    "version": 1
}
)"));
}

TEST_F(PresetStoreTest, KeepsAnyText)
{
    const PresetValues values = {{u"backslash\\"_s, u"C:\\n"_s},
                                 {u"braces"_s, u"{\"a\": [1]}"_s},
                                 {u"empty"_s, u""_s},
                                 {u"lines"_s, u"one\ntwo\r\n\tthree"_s},
                                 {u"quotes \"'"_s, u"\"Photo\" 'B'"_s},
                                 {u"unicode ä 日本"_s, u"\u00e9\u200f\U0001F5A8"_s}};
    ASSERT_EQ(opened().save({.name = u"\"Büro\" \\ 日本 \U0001F5A8"_s, .values = values}, SaveMode::KeepExisting),
              u""_s);
    const std::optional<Preset> preset = opened().preset(u"\"Büro\" \\ 日本 \U0001F5A8"_s);
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->values, values);
}

TEST_F(PresetStoreTest, NeverKeepsCopies)
{
    const PresetValues values = {{u"COPIES"_s, u"4"_s}, {u"PageSize"_s, u"A4"_s}, {u"copies"_s, u"3"_s}};
    PresetStore store = opened();
    ASSERT_EQ(store.save({.name = u"Many"_s, .values = values}, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(store.saveLastUsed(values), u""_s);
    EXPECT_FALSE(test::readFile(file()).toLower().contains("copies"));
    // Nor is it read from a file that somebody wrote by hand.
    put(R"({"version":1,"presets":[{"name":"Many","values":{"copies":"7","Duplex":"None"}}],
            "lastUsed":{"values":{"Copies":"9"}}})");
    EXPECT_EQ(opened().preset(u"Many"_s)->values, (PresetValues{{u"Duplex"_s, u"None"_s}}));
    EXPECT_EQ(opened().lastUsed(), PresetValues());
}

TEST_F(PresetStoreTest, TakesTheLastOfKeysThatDifferInCase)
{
    const PresetValues values = {
        {u"Duplex"_s, u"None"_s}, {u"PageSize"_s, u"A4"_s}, {u"duplex"_s, u"DuplexTumble"_s}};
    ASSERT_EQ(opened().save({.name = u"One"_s, .values = values}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(opened().preset(u"One"_s)->values,
              (PresetValues{{u"PageSize"_s, u"A4"_s}, {u"duplex"_s, u"DuplexTumble"_s}}));
}

TEST_F(PresetStoreTest, RefusesAValueWithoutAKey)
{
    EXPECT_EQ(opened().save({.name = u"One"_s, .values = {{u""_s, u"x"_s}}}, SaveMode::KeepExisting),
              u"preset \"One\": a value has no key"_s);
    EXPECT_FALSE(QFileInfo::exists(file()));
}

TEST_F(PresetStoreTest, ReplacesOnlyWhenAsked)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kGlossy, SaveMode::KeepExisting), u""_s);
    const Preset other = {.name = u"  GLOSSY photos "_s, .values = {{u"MediaType"_s, u"Canvas"_s}}};
    EXPECT_EQ(store.save(other, SaveMode::KeepExisting), u"there is already a preset \"Glossy photos\""_s);
    EXPECT_EQ(opened().preset(u"Glossy photos"_s)->values, kGlossy.values);

    EXPECT_EQ(store.save(other, SaveMode::ReplaceExisting), u""_s);
    EXPECT_EQ(opened().names(), QStringList(u"GLOSSY photos"_s));
    EXPECT_EQ(opened().preset(u"glossy PHOTOS"_s)->values, (PresetValues{{u"MediaType"_s, u"Canvas"_s}}));
}

TEST_F(PresetStoreTest, Renames)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kGlossy, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(store.save({.name = u"Draft"_s, .values = {}}, SaveMode::KeepExisting), u""_s);

    EXPECT_EQ(store.rename(u"Glossy photos"_s, u" draft "_s), u"there is already a preset \"Draft\""_s);
    EXPECT_EQ(store.rename(u"Matte"_s, u"Other"_s), u"there is no preset \"Matte\""_s);
    EXPECT_EQ(store.rename(u"Draft"_s, u"Last used"_s),
              u"\"Last used\" is always there: no other preset can have its name"_s);
    EXPECT_EQ(opened().names(), QStringList({u"Glossy photos"_s, u"Draft"_s}));

    EXPECT_EQ(store.rename(u"glossy PHOTOS"_s, u" Portraits "_s), u""_s);
    EXPECT_EQ(opened().names(), QStringList({u"Portraits"_s, u"Draft"_s}));
    EXPECT_EQ(opened().preset(u"Portraits"_s)->values, kGlossy.values);
    // Another spelling of its own name is no other preset's.
    EXPECT_EQ(store.rename(u"Draft"_s, u"DRAFT"_s), u""_s);
    EXPECT_EQ(opened().names(), QStringList({u"Portraits"_s, u"DRAFT"_s}));
}

TEST_F(PresetStoreTest, Removes)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kGlossy, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(store.save({.name = u"Draft"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(store.remove(u"Matte"_s), u"there is no preset \"Matte\""_s);
    EXPECT_EQ(store.remove(u"GLOSSY PHOTOS"_s), u""_s);
    EXPECT_EQ(store.names(), QStringList(u"Draft"_s));
    EXPECT_EQ(opened().names(), QStringList(u"Draft"_s));
    EXPECT_EQ(store.remove(u"Glossy photos"_s), u"there is no preset \"Glossy photos\""_s);
}

TEST_F(PresetStoreTest, LastUsedIsReplacedAsAWhole)
{
    PresetStore store = opened();
    ASSERT_EQ(store.saveLastUsed({{u"PageSize"_s, u"A4"_s}, {u"Duplex"_s, u"None"_s}}), u""_s);
    ASSERT_EQ(store.saveLastUsed({{u"PageSize"_s, u"A5"_s}}), u""_s);
    EXPECT_EQ(opened().lastUsed(), (PresetValues{{u"PageSize"_s, u"A5"_s}}));
    ASSERT_EQ(store.saveLastUsed({}), u""_s);
    EXPECT_EQ(opened().lastUsed(), PresetValues());
}

TEST_F(PresetStoreTest, PrintersDoNotSeeEachOthersPresets)
{
    ASSERT_EQ(opened().save(kGlossy, SaveMode::KeepExisting), u""_s);
    PresetStore other = opened(u"/etc/cups/ppd/photo.ppd"_s);
    EXPECT_EQ(other.names(), QStringList());
    ASSERT_EQ(other.save({.name = u"Draft"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(opened().names(), QStringList(u"Glossy photos"_s));
    EXPECT_EQ(entries(), QStringList({u"%2Fetc%2Fcups%2Fppd%2Fphoto.ppd.json"_s, u"photo.json"_s}));
}

TEST_F(PresetStoreTest, HoldsAThousandPresets)
{
    PresetStore store = opened();
    QJsonArray presets;
    for (int i = 0; i < 1000; ++i) {
        QJsonObject values;
        for (int v = 0; v < 50; ++v) {
            values.insert(u"vornOption%1"_s.arg(v), QString::number(i));
        }
        presets.append(QJsonObject{{u"name"_s, u"Preset %1"_s.arg(i)}, {u"values"_s, values}});
    }
    put(QJsonDocument(QJsonObject{{u"version"_s, 1}, {u"presets"_s, presets}}).toJson());

    ASSERT_EQ(store.save({.name = u"The last"_s, .values = {{u"a"_s, u"b"_s}}}, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(store.rename(u"preset 999"_s, u"Renamed"_s), u""_s);
    const QStringList names = opened().names();
    ASSERT_EQ(names.size(), 1001);
    EXPECT_EQ(names[0], u"Preset 0"_s);
    EXPECT_EQ(names[999], u"Renamed"_s);
    EXPECT_EQ(names[1000], u"The last"_s);
    EXPECT_EQ(opened().preset(u"Preset 500"_s)->values.size(), 50U);
    EXPECT_EQ(opened().preset(u"Preset 500"_s)->values[0],
              (std::pair<QString, QString>(u"vornOption0"_s, u"500"_s)));
}

} // namespace
} // namespace tessarin::host

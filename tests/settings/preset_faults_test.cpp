// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Files of presets that are damaged, too new, unreadable or no files.

#include "tests/settings/preset_test_support.h"

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;
using PresetFaultsTest = test::PresetTest;

const Preset kDraft = {.name = u"Draft"_s, .values = {{u"Quality"_s, u"Low"_s}}};

struct DamageCase {
    const char *what;
    QByteArray content;
    QString problem; ///< behind "presets file <path>: "
};

class PresetDamage : public test::PresetTest, public testing::WithParamInterface<DamageCase> {};

TEST_P(PresetDamage, IsToldAndKeptAsideWhenSomethingIsSaved)
{
    put(GetParam().content);
    PresetStore store = opened();
    const QString problem = u"presets file "_s + file() + u": "_s + GetParam().problem;
    EXPECT_EQ(store.notice(), problem);
    EXPECT_FALSE(store.isReadOnly());
    EXPECT_EQ(store.names(), QStringList());
    EXPECT_EQ(store.lastUsed(), PresetValues());
    EXPECT_EQ(entries(), QStringList(u"photo.json"_s));
    EXPECT_EQ(test::readFile(file()), GetParam().content);

    ASSERT_EQ(store.save(kDraft, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(store.notice(), problem + u"; it was kept as "_s + file() + u".damaged-1"_s);
    EXPECT_EQ(test::readFile(file() + u".damaged-1"_s), GetParam().content);
    EXPECT_EQ(test::permissions(file() + u".damaged-1"_s), 0600U);
    EXPECT_EQ(opened().names(), QStringList(u"Draft"_s));
    EXPECT_EQ(opened().notice(), u""_s);
}

INSTANTIATE_TEST_SUITE_P(
    Damages, PresetDamage,
    testing::Values(
        DamageCase{"empty", "", u"line 1, column 1: illegal value"_s},
        DamageCase{"cut", "{\"version\":1,\n \"presets\":[{\"name\":\"A\"}",
                   u"line 2, column 25: unterminated array"_s},
        DamageCase{"garbage", "{\"version\":1}\n\n  x", u"line 3, column 3: garbage at the end of the document"_s},
        DamageCase{"not_utf8", "{\"version\":1,\"a\":\"\xff\"}", u"line 1, column 19: invalid UTF8 string"_s},
        DamageCase{"list", "[1]", u"line 1: not a JSON object"_s},
        DamageCase{"no_version", "{}", u"\"version\" is not a version number"_s},
        DamageCase{"version_text", R"({"version":"1"})", u"\"version\" is not a version number"_s},
        DamageCase{"version_zero", R"({"version":0})", u"\"version\" is not a version number"_s},
        DamageCase{"version_between", R"({"version":0.5})", u"\"version\" is not a version number"_s},
        DamageCase{"presets", R"({"version":1,"presets":{}})", u"\"presets\" is not a list"_s},
        DamageCase{"last_used", R"({"version":1,"lastUsed":[]})", u"\"lastUsed\" is not an object"_s}),
    [](const testing::TestParamInfo<DamageCase> &tested) { return std::string(tested.param.what); });

TEST_F(PresetFaultsTest, EachDamagedFileIsKept)
{
    for (const char *content : {"one", "two", "three"}) {
        put(content);
        EXPECT_EQ(opened().saveLastUsed({{u"a"_s, QString::fromUtf8(content)}}), u""_s);
    }
    EXPECT_EQ(test::readFile(file() + u".damaged-1"_s), QByteArray("one"));
    EXPECT_EQ(test::readFile(file() + u".damaged-2"_s), QByteArray("two"));
    EXPECT_EQ(test::readFile(file() + u".damaged-3"_s), QByteArray("three"));
}

TEST_F(PresetFaultsTest, DamageInTheMeantimeLosesNothing)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kDraft, SaveMode::KeepExisting), u""_s);
    put("{");
    ASSERT_EQ(store.save({.name = u"New"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(opened().names(), QStringList({u"Draft"_s, u"New"_s}));
    EXPECT_EQ(test::readFile(file() + u".damaged-1"_s), QByteArray("{"));
    // Even what changes nothing is a reason to write what is still known.
    put("{");
    ASSERT_EQ(store.save(kDraft, SaveMode::ReplaceExisting), u""_s);
    EXPECT_EQ(opened().names(), QStringList({u"Draft"_s, u"New"_s}));
    // A change that cannot be is none.
    put("{");
    EXPECT_EQ(store.remove(u"Other"_s), u"there is no preset \"Other\""_s);
    EXPECT_EQ(test::readFile(file()), QByteArray("{"));
}

TEST_F(PresetFaultsTest, ALaterVersionsFileIsReadAndNeverWritten)
{
    const QByteArray later =
        R"({"version":2,"presets":[{"name":"Draft","values":{"a":"b"}}],"lastUsed":{"values":{"c":"d"}}})";
    put(later);
    PresetStore store = opened();
    const QString why = u"presets file "_s + file() +
                        u": it was written by a later version of this program (its format is 2, this program "
                        u"knows 1): its presets can be used, not changed"_s;
    EXPECT_TRUE(store.isReadOnly());
    EXPECT_EQ(store.notice(), why);
    EXPECT_EQ(store.names(), QStringList(u"Draft"_s));
    EXPECT_EQ(store.preset(u"Draft"_s)->values, (PresetValues{{u"a"_s, u"b"_s}}));
    EXPECT_EQ(store.lastUsed(), (PresetValues{{u"c"_s, u"d"_s}}));

    const ino_t before = test::inode(file());
    EXPECT_EQ(store.save(kDraft, SaveMode::ReplaceExisting), why);
    EXPECT_EQ(store.rename(u"Draft"_s, u"New"_s), why);
    EXPECT_EQ(store.remove(u"Draft"_s), why);
    EXPECT_EQ(store.saveLastUsed({}), why);
    EXPECT_EQ(test::readFile(file()), later);
    EXPECT_EQ(test::inode(file()), before);
    EXPECT_EQ(entries(), QStringList(u"photo.json"_s));
}

TEST_F(PresetFaultsTest, ALaterVersionMayHaveAnotherForm)
{
    put(R"({"version":1e300,"presets":{"a":1},"lastUsed":"x"})");
    EXPECT_TRUE(opened().isReadOnly());
    EXPECT_EQ(opened().names(), QStringList());
    EXPECT_EQ(opened().lastUsed(), PresetValues());
}

TEST_F(PresetFaultsTest, AFileOfALaterVersionInTheMeantimeIsNotWrittenOver)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kDraft, SaveMode::KeepExisting), u""_s);
    put(R"({"version":3})");
    EXPECT_TRUE(store.saveLastUsed({{u"a"_s, u"b"_s}}).contains(u"its format is 3"_s));
    EXPECT_TRUE(store.isReadOnly());
    EXPECT_EQ(test::readFile(file()), QByteArray(R"({"version":3})"));
}

TEST_F(PresetFaultsTest, APipeIsRefusedAtOnce)
{
    QDir().mkpath(folder());
    PresetStore before = opened();
    ASSERT_EQ(::mkfifo(QFile::encodeName(file()).constData(), 0600), 0);
    const auto store = PresetStore::open(u"photo"_s);
    ASSERT_FALSE(store.ok());
    EXPECT_EQ(store.reason(), u"presets file "_s + file() + u": it is not a regular file"_s);
    EXPECT_EQ(before.save(kDraft, SaveMode::KeepExisting), store.reason());
    EXPECT_EQ(entries(), QStringList(u"photo.json"_s));
}

TEST_F(PresetFaultsTest, AFolderInItsPlaceIsRefused)
{
    QDir().mkpath(file());
    EXPECT_EQ(PresetStore::open(u"photo"_s).reason(), u"presets file "_s + file() + u": it is a directory"_s);
}

TEST_F(PresetFaultsTest, AnEndlessLinkIsRefused)
{
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link(file(), file()));
    EXPECT_EQ(PresetStore::open(u"photo"_s).reason(),
              u"presets file "_s + file() + u": Too many levels of symbolic links"_s);
}

TEST_F(PresetFaultsTest, AHugeFileIsRefusedUnread)
{
    put("{}");
    ASSERT_EQ(::truncate(QFile::encodeName(file()).constData(), 33LL * 1024 * 1024), 0);
    EXPECT_EQ(PresetStore::open(u"photo"_s).reason(), u"presets file "_s + file() + u": it is too large"_s);
}

TEST_F(PresetFaultsTest, AFileNeverBecomesTooLargeToBeRead)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kDraft, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(store.save({.name = u"Big"_s, .values = {{u"a"_s, QString(33 * 1024 * 1024, u'x')}}},
                         SaveMode::KeepExisting),
              u"presets file "_s + file() + u": it would become too large"_s);
    EXPECT_EQ(store.names(), QStringList(u"Draft"_s));
    EXPECT_EQ(opened().names(), QStringList(u"Draft"_s));
}

TEST_F(PresetFaultsTest, AReadOnlyFolderIsTold)
{
    put(R"({"version":1,"presets":[{"name":"Old","values":{}}]})");
    const test::Unprivileged somebody({folder()});
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0500), 0);
    PresetStore store = opened();
    EXPECT_EQ(store.names(), QStringList(u"Old"_s));
    EXPECT_EQ(store.save(kDraft, SaveMode::KeepExisting),
              u"presets folder "_s + folder() + u": Permission denied"_s);
    EXPECT_EQ(store.names(), QStringList(u"Old"_s));
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0700), 0);
    EXPECT_EQ(opened().names(), QStringList(u"Old"_s));
}

TEST_F(PresetFaultsTest, AFileThatMayNotBeReadIsTold)
{
    put("{");
    const test::Unprivileged somebody({file()});
    ASSERT_EQ(::chmod(QFile::encodeName(file()).constData(), 0000), 0);
    EXPECT_EQ(PresetStore::open(u"photo"_s).reason(), u"presets file "_s + file() + u": Permission denied"_s);
}

TEST_F(PresetFaultsTest, AFolderThatCannotBeMadeIsTold)
{
    test::writeFile(config() + u"/tessarin"_s, "a file");
    const auto store = PresetStore::open(u"photo"_s);
    ASSERT_FALSE(store.ok());
    EXPECT_EQ(store.reason(), u"presets file "_s + file() + u": Not a directory"_s);

    const test::Unprivileged somebody({config()});
    ASSERT_TRUE(QFile::remove(config() + u"/tessarin"_s));
    ASSERT_EQ(::chmod(QFile::encodeName(config()).constData(), 0500), 0);
    EXPECT_EQ(opened().save(kDraft, SaveMode::KeepExisting),
              u"presets folder "_s + folder() + u": Permission denied"_s);
    ASSERT_EQ(::chmod(QFile::encodeName(config()).constData(), 0700), 0);
}

TEST_F(PresetFaultsTest, WhatCannotBeWrittenLeavesTheDamagedFileAlone)
{
    // A link to where nothing can be written: the folder of presets itself takes locks and copies.
    const QString locked = config() + u"/locked"_s;
    QDir().mkpath(folder());
    QDir().mkpath(locked);
    test::writeFile(locked + u"/photo.json"_s, "{");
    ASSERT_TRUE(QFile::link(locked + u"/photo.json"_s, file()));
    ASSERT_EQ(::chmod(QFile::encodeName(locked).constData(), 0500), 0);
    const test::Unprivileged somebody({folder(), locked + u"/photo.json"_s});
    PresetStore store = opened();
    EXPECT_TRUE(store.save(kDraft, SaveMode::KeepExisting).startsWith(u"presets file "_s + file() + u": "_s));
    EXPECT_EQ(entries(), QStringList(u"photo.json"_s));
    EXPECT_EQ(test::readFile(file()), QByteArray("{"));
    EXPECT_EQ(store.names(), QStringList());
    ASSERT_EQ(::chmod(QFile::encodeName(locked).constData(), 0700), 0);
    EXPECT_EQ(store.save(kDraft, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(entries(), QStringList({u"photo.json"_s, u"photo.json.damaged-1"_s}));
}

} // namespace
} // namespace tessarin::host

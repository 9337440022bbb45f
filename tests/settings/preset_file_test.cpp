// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The file of presets: what stays in it, who may read it, and when it is written.

#include "tests/settings/preset_test_support.h"

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;
using PresetFileTest = test::PresetTest;

const Preset kDraft = {.name = u"Draft"_s, .values = {{u"Quality"_s, u"Low"_s}}};

QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

TEST_F(PresetFileTest, KeepsUnknownKeysAtEveryLevel)
{
    put(R"({"version":1,"printer":"photo","later":{"a":[1,2.5,null]},"presets":[
            {"name":"Draft","icon":"quill","values":{"Quality":"High","list":["x"],"number":5}},
            {"name":"Other","since":7,"values":{"a":"b"}}, "a word"],
            "lastUsed":{"when":"today","values":{"Quality":"High","flag":true}}})");
    PresetStore store = opened();
    EXPECT_EQ(store.preset(u"Draft"_s)->values, (PresetValues{{u"Quality"_s, u"High"_s}}));
    ASSERT_EQ(store.save(kDraft, SaveMode::ReplaceExisting), u""_s);
    ASSERT_EQ(store.rename(u"Other"_s, u"Another"_s), u""_s);
    ASSERT_EQ(store.saveLastUsed({{u"Quality"_s, u"Low"_s}}), u""_s);
    EXPECT_EQ(object(test::readFile(file())),
              object(R"({"version":1,"printer":"photo","later":{"a":[1,2.5,null]},"presets":[
                         {"name":"Draft","icon":"quill","values":{"Quality":"Low","list":["x"],"number":5}},
                         {"name":"Another","since":7,"values":{"a":"b"}}, "a word"],
                         "lastUsed":{"when":"today","values":{"Quality":"Low","flag":true}}})"));
    ASSERT_EQ(store.remove(u"Draft"_s), u""_s);
    EXPECT_EQ(object(test::readFile(file())),
              object(R"({"version":1,"printer":"photo","later":{"a":[1,2.5,null]},"presets":[
                         {"name":"Another","since":7,"values":{"a":"b"}}, "a word"],
                         "lastUsed":{"when":"today","values":{"Quality":"Low","flag":true}}})"));
}

TEST_F(PresetFileTest, IsForItsOwnerAlone)
{
    const mode_t before = ::umask(0);
    PresetStore store = opened();
    EXPECT_EQ(store.save(kDraft, SaveMode::KeepExisting), u""_s);
    ::umask(before);
    EXPECT_EQ(test::permissions(file()), 0600U);
    EXPECT_EQ(test::permissions(folder()), 0700U);
    EXPECT_EQ(test::permissions(config() + u"/tessarin"_s), 0700U);
    EXPECT_EQ(entries(), QStringList(u"photo.json"_s)); // no lock and no temporary file stays
}

TEST_F(PresetFileTest, BecomesItsOwnersAgainWhenSaved)
{
    put(R"({"version":1})");
    ASSERT_EQ(::chmod(QFile::encodeName(file()).constData(), 0644), 0);
    ASSERT_EQ(opened().save(kDraft, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(test::permissions(file()), 0600U);
}

TEST_F(PresetFileTest, IsNotWrittenWhenNothingChanged)
{
    PresetStore store = opened();
    EXPECT_EQ(store.saveLastUsed({}), u""_s);
    EXPECT_EQ(store.saveLastUsed({{u"copies"_s, u"2"_s}}), u""_s);
    EXPECT_EQ(store.remove(u"Draft"_s), u"there is no preset \"Draft\""_s);
    EXPECT_FALSE(QFileInfo::exists(config() + u"/tessarin"_s));

    const QByteArray odd = R"({"presets":[{"values":{"Quality":"Low"},"name":"Draft"}], "version":1,
        "lastUsed":{"values":{"a":"b"}}})";
    put(odd);
    const ino_t before = test::inode(file());
    // A folder that cannot be written would turn any attempt into a failure.
    const test::Unprivileged somebody({folder()});
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0500), 0);
    EXPECT_EQ(store.save(kDraft, SaveMode::ReplaceExisting), u""_s);
    EXPECT_EQ(store.rename(u"Draft"_s, u"Draft"_s), u""_s);
    EXPECT_EQ(store.saveLastUsed({{u"a"_s, u"b"_s}, {u"copies"_s, u"2"_s}}), u""_s);
    EXPECT_EQ(store.save(kDraft, SaveMode::KeepExisting), u"there is already a preset \"Draft\""_s);
    EXPECT_EQ(test::readFile(file()), odd);
    EXPECT_EQ(test::inode(file()), before);
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0700), 0);
    // Whereas a change replaces the file as a whole.
    EXPECT_EQ(store.saveLastUsed({{u"a"_s, u"c"_s}}), u""_s);
    EXPECT_NE(test::inode(file()), before);
}

TEST_F(PresetFileTest, MayBeASymbolicLink)
{
    const QString target = config() + u"/shared.json"_s;
    QDir().mkpath(folder());
    test::writeFile(target, R"({"version":1,"presets":[{"name":"Shared","values":{}}]})");
    ASSERT_TRUE(QFile::link(target, file()));
    ASSERT_EQ(opened().save(kDraft, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(QFileInfo(file()).symLinkTarget(), target);
    EXPECT_EQ(opened().names(), QStringList({u"Shared"_s, u"Draft"_s}));
    EXPECT_TRUE(test::readFile(target).contains("\"Draft\""));
    EXPECT_EQ(test::permissions(target), 0600U);
}

TEST_F(PresetFileTest, MayBeASymbolicLinkToAFileThatIsToCome)
{
    const QString target = config() + u"/shared.json"_s;
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link(target, file()));
    ASSERT_EQ(opened().save(kDraft, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(QFileInfo(file()).symLinkTarget(), target);
    EXPECT_TRUE(test::readFile(target).contains("\"Draft\""));
}

TEST_F(PresetFileTest, OfTwoPrintersMayBeOneThroughLinks)
{
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link(file(), folder() + u"/other.json"_s));
    PresetStore other = opened(u"other"_s);
    ASSERT_EQ(opened().save(kDraft, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(other.save({.name = u"Mine"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(opened().names(), QStringList({u"Draft"_s, u"Mine"_s}));
}

TEST_F(PresetFileTest, ThatWasDeletedIsMadeAnew)
{
    PresetStore store = opened();
    ASSERT_EQ(store.save(kDraft, SaveMode::KeepExisting), u""_s);
    ASSERT_TRUE(QDir(config() + u"/tessarin"_s).removeRecursively());
    ASSERT_EQ(store.save({.name = u"New"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(opened().names(), QStringList(u"New"_s));
}

TEST_F(PresetFileTest, WithAByteOrderMarkIsRead)
{
    put("\xEF\xBB\xBF{\"version\":1,\"presets\":[{\"name\":\"Draft\"}]}");
    EXPECT_EQ(opened().names(), QStringList(u"Draft"_s));
    EXPECT_EQ(opened().preset(u"Draft"_s)->values, PresetValues());
}

} // namespace
} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Several dialogs and programs that save presets of one printer at the same time.

#include "tests/settings/preset_test_support.h"

#include <QProcess>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;
using PresetProcessesTest = test::PresetTest;

const QString kWriter = QStringLiteral(TESSARIN_PRESET_WRITER);

TEST_F(PresetProcessesTest, TwoDialogsKeepEachOthersPresets)
{
    PresetStore one = opened();
    PresetStore two = opened();
    ASSERT_EQ(one.save({.name = u"One"_s, .values = {{u"a"_s, u"1"_s}}}, SaveMode::KeepExisting), u""_s);
    ASSERT_EQ(two.save({.name = u"Two"_s, .values = {}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(two.names(), QStringList({u"One"_s, u"Two"_s}));
    EXPECT_EQ(one.names(), QStringList(u"One"_s));
    ASSERT_EQ(one.saveLastUsed({{u"b"_s, u"2"_s}}), u""_s);
    EXPECT_EQ(one.names(), QStringList({u"One"_s, u"Two"_s}));

    // A name that the other dialog took meanwhile is not taken from it; the refusal shows it.
    PresetStore three = opened();
    ASSERT_EQ(one.save({.name = u"Three"_s, .values = {{u"c"_s, u"3"_s}}}, SaveMode::KeepExisting), u""_s);
    EXPECT_EQ(three.save({.name = u"three"_s, .values = {}}, SaveMode::KeepExisting),
              u"there is already a preset \"Three\""_s);
    EXPECT_EQ(three.preset(u"three"_s)->values, (PresetValues{{u"c"_s, u"3"_s}}));

    // What the other removed is gone.
    ASSERT_EQ(two.remove(u"One"_s), u""_s);
    EXPECT_EQ(one.rename(u"One"_s, u"Uno"_s), u"there is no preset \"One\""_s);
    EXPECT_EQ(one.names(), QStringList({u"Two"_s, u"Three"_s}));
}

TEST_F(PresetProcessesTest, ProgramsThatSaveAtTheSameTimeLoseNothing)
{
    constexpr int kEach = 20;
    QProcess other;
    QProcess another;
    other.start(kWriter, {u"save"_s, u"b"_s, QString::number(kEach)});
    another.start(kWriter, {u"save"_s, u"c"_s, QString::number(kEach)});
    PresetStore store = opened();
    for (int i = 0; i < kEach; ++i) {
        ASSERT_EQ(store.save({.name = u"a%1"_s.arg(i), .values = {}}, SaveMode::KeepExisting), u""_s);
    }
    for (QProcess *process : {&other, &another}) {
        ASSERT_TRUE(process->waitForFinished());
        EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().toStdString();
    }
    const QStringList names = opened().names();
    EXPECT_EQ(names.size(), 60);
    for (const QString &prefix : {u"a"_s, u"b"_s, u"c"_s}) {
        for (int i = 0; i < kEach; ++i) {
            EXPECT_TRUE(names.contains(prefix + QString::number(i))) << qPrintable(prefix) << i;
        }
    }
    EXPECT_EQ(entries(), QStringList(u"photo.json"_s));
}

TEST_F(PresetProcessesTest, ALockThatIsHeldIsToldAndOneOfADeadProgramIsNone)
{
    QProcess holder;
    holder.start(kWriter, {u"hold"_s, folder()});
    ASSERT_TRUE(holder.waitForReadyRead());
    ASSERT_EQ(holder.readAllStandardOutput(), QByteArray("held\n"));

    PresetStore store = opened(); // reading needs no lock
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(store.saveLastUsed({{u"a"_s, u"b"_s}}),
              u"presets folder "_s + folder() +
                  u": another program is changing presets and does not come to an end"_s);
    EXPECT_LT(timer.elapsed(), 30000);
    EXPECT_FALSE(QFileInfo::exists(file()));

    holder.kill();
    ASSERT_TRUE(holder.waitForFinished());
    EXPECT_EQ(store.saveLastUsed({{u"a"_s, u"b"_s}}), u""_s);
    EXPECT_EQ(opened().lastUsed(), (PresetValues{{u"a"_s, u"b"_s}}));
}

} // namespace
} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A file of presets of any content: read, added to, and read again.

#include "settings/preset_store.h"
#include "tests/fuzz/fuzz_support.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessarin;
using host::Outcome;
using host::PresetStore;

namespace {

QString storePath()
{
    const Outcome<PresetStore> store = PresetStore::open(QStringLiteral("fuzz"));
    return store.ok() ? store.value().path() : QString();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Where there is a disk in memory, replacing a file does not wait for a real one.
    static const QTemporaryDir folder(
        (QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
        QStringLiteral("/tessarin-presets-XXXXXX"));
    static const bool prepared = [] {
        qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
        return QDir().mkpath(host::presetFolder());
    }();
    static const QString path = storePath();
    test::require(prepared && !path.isEmpty(), "there is a folder for presets");
    QFile file(path);
    test::require(file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                      file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) ==
                          static_cast<qint64>(size),
                  "the input is in its file");
    file.close();

    Outcome<PresetStore> opened = PresetStore::open(QStringLiteral("fuzz"));
    test::require(opened.ok(), "a file that can be read opens");
    PresetStore store = opened.take();
    const QStringList before = store.names();
    for (const QString &name : before) {
        test::require(store.preset(name).has_value(), "a preset that is listed is there");
    }
    store.lastUsed();
    const QString name = QStringLiteral("Added");
    const QString failure = store.save({.name = name, .values = {{QStringLiteral("a"), QStringLiteral("b")}}},
                                       host::SaveMode::ReplaceExisting);
    test::require(failure.isEmpty() != store.isReadOnly(), "what may be changed can be changed");
    if (failure.isEmpty()) {
        const Outcome<PresetStore> again = PresetStore::open(QStringLiteral("fuzz"));
        test::require(again.ok() && again.value().preset(name).has_value(), "what was saved is there");
        for (const QString &kept : before) {
            test::require(again.value().preset(kept).has_value(), "saving loses no preset");
        }
    } else {
        QFile unchanged(path);
        test::require(unchanged.open(QIODevice::ReadOnly) &&
                          unchanged.readAll() ==
                              QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)),
                      "what may not be changed is not");
    }
    // Damaged files are kept aside under numbers of their own.
    for (const QString &damaged : QDir(host::presetFolder()).entryList({QStringLiteral("*.damaged-*")})) {
        QFile::remove(QDir(host::presetFolder()).filePath(damaged));
    }
    return 0;
}

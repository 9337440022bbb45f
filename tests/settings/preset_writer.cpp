// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What another program does with the presets of the printer "photo".
//
//   preset_writer save <prefix> <count>    saves <prefix>0, <prefix>1 ... one by one
//   preset_writer hold <folder>            takes the folder's lock, says so and keeps it

#include "settings/preset_store.h"

#include <QCoreApplication>

#include <cstdio>
#include <string_view>

#include <unistd.h>

int main(int argc, char **argv)
{
    using namespace tessarin::host;
    const QCoreApplication application(argc, argv);
    if (argc == 4 && std::string_view(argv[1]) == "save") {
        auto store = PresetStore::open(QStringLiteral("photo"));
        for (int i = 0; store.ok() && i < QByteArray(argv[3]).toInt(); ++i) {
            const Preset preset{.name = QString::fromUtf8(argv[2]) + QString::number(i), .values = {}};
            if (const QString why = store.value().save(preset, SaveMode::KeepExisting); !why.isEmpty()) {
                std::fprintf(stderr, "%s\n", qPrintable(why));
                return 1;
            }
        }
        return store.ok() ? 0 : 1;
    }
    if (argc == 3 && std::string_view(argv[1]) == "hold") {
        const auto lock = lockPresetFolder(QString::fromUtf8(argv[2]) + QStringLiteral("/photo.json"));
        std::puts(lock.ok() ? "held" : qPrintable(lock.reason()));
        std::fflush(stdout);
        for (;;) {
            ::pause();
        }
    }
    return 2;
}

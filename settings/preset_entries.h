// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The content of a file of presets: named values among entries that other versions may have added to.

#ifndef TESSARIN_SETTINGS_PRESET_ENTRIES_H
#define TESSARIN_SETTINGS_PRESET_ENTRIES_H

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <utility>
#include <vector>

namespace tessarin::host {

/// Keys of options and job attributes with their values. Of keys that differ in case alone the last one is saved;
/// read from a file, they are in the order of their keys.
using PresetValues = std::vector<std::pair<QString, QString>>;

struct Preset {
    QString name{};
    PresetValues values{};
};

/// What keeps a text, blanks around it aside, from being a preset's name; an empty text when nothing does. A name
/// has 1 to 100 characters, at least one of them visible and none that controls or breaks lines, and is not that of
/// the two presets that always exist, "Default settings" and "Last used", in English or in the language shown.
QString presetNameProblem(const QString &name);

/// What two names have in common that count as the same: neither case nor the composing of accents is told apart.
QString foldedPresetName(const QString &name);

/// The name under which an entry of the file's list is a preset; empty when it is none that could have been saved.
QString presetNameOf(const QJsonValue &entry);

/// Where the preset of a name, blanks around it aside, is in the file's list; -1 when it is not.
qsizetype presetIndex(const QJsonArray &presets, const QString &name);

/// The values that an entry holds, "copies" left out.
PresetValues presetValuesOf(const QJsonObject &entry);

/// Gives an entry new values, "copies" left out. What among its values is no text was written by a program that
/// knew more, and stays.
void setPresetValues(QJsonObject &entry, const PresetValues &values);

} // namespace tessarin::host

#endif

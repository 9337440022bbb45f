// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The file that keeps the presets of one printer: where it lies, how it is read and how it is replaced.

#ifndef TESSARIN_SETTINGS_PRESET_FILE_H
#define TESSARIN_SETTINGS_PRESET_FILE_H

#include "printing/outcome.h"

#include <QByteArray>
#include <QJsonObject>
#include <QLockFile>
#include <QString>

#include <memory>

namespace tessarin::host {

/// The version of the files that this program writes and understands in full.
inline constexpr int kPresetFileVersion = 1;

/// The user's folder of presets: "tessarin/presets" below $XDG_CONFIG_HOME, else below ~/.config. It need not
/// exist.
QString presetFolder();

/// The name, without folder, of the file for a printer's identity. Letters and digits of ASCII, "_", "-" and a "."
/// that does not come first stand for themselves, every other byte of the UTF-8 text is written as "%" and two
/// hexadecimal digits. What gets too long for a file name is cut, and ends in "~" and a hash of the whole.
QString presetFileName(const QString &identity);

/// What was found under a file's name.
struct PresetFileContent {
    enum class State {
        Missing, ///< no file
        Good,
        Damaged, ///< no JSON, or not of the form of these files
        Newer, ///< written by a later version of the program: to be read as far as it is understood, never written
    };
    State state = State::Missing;
    QJsonObject root{}; ///< empty unless Good or Newer
    QByteArray bytes{}; ///< the file as it is
    QString problem{};  ///< what is wrong with it, naming file and place; empty unless Damaged or Newer
};

/// Reads a file at once, whatever lies there. Fails, naming the file, when it exists and cannot be read, or is no
/// regular file, or larger than any file of presets can be.
Outcome<PresetFileContent> readPresetFile(const QString &path);

/// Makes the folder of a file, readable by its owner alone, where it is missing, and takes the lock that all
/// programs take before they replace a file in it. Waits a short time for another program's lock. The lock ends
/// with the pointer. Fails, naming the folder, when there is no folder or no lock to be had.
Outcome<std::unique_ptr<QLockFile>> lockPresetFolder(const QString &path);

/// Replaces a file as a whole or leaves it as it is; it is readable by its owner alone. A symbolic link stays one.
/// To be called under the lock. Answers why that failed, naming the file; an empty text when it did not.
QString writePresetFile(const QString &path, const QJsonObject &root);

/// Writes what was read from a damaged file beside it, under its name with ".damaged-1" or the next number that is
/// free. The copy's path. To be called under the lock.
Outcome<QString> keepDamagedFile(const QString &path, const QByteArray &bytes);

} // namespace tessarin::host

#endif

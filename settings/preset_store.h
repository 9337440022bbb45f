// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The presets of one printer: named sets of values that a person keeps, and the values last printed with.

#ifndef TESSARIN_SETTINGS_PRESET_STORE_H
#define TESSARIN_SETTINGS_PRESET_STORE_H

#include "settings/preset_entries.h"
#include "settings/preset_file.h"

#include "printing/outcome.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

namespace tessarin::host {

/// What saving under a name that is taken does.
enum class SaveMode {
    KeepExisting,    ///< fails
    ReplaceExisting, ///< the preset gets the new values, and the new spelling of its name
};

/// The presets of one printer, as they were in their file when it was last read: by open() and by every change.
///
/// The file is shared with other programs and with other versions of this one. Every change reads it again under a
/// lock, changes one thing and replaces the whole, so that what others saved meanwhile stays, and so does all that
/// this version does not know. What changes nothing is not written. A file that a later version wrote is never
/// changed. A damaged one is as good as empty until something is saved; then it is kept aside.
///
/// open() and the changes read and write files and may wait some seconds for a lock: they belong into a worker
/// thread where the user's folder may be slow. An object is used by one thread at a time.
class PresetStore {
public:
    /// The presets of the printer with this identity: a queue's name, a PPD file's path or "sample", not empty. A
    /// printer without a file has no presets. Fails, naming the file, when something lies there that cannot be
    /// read; what is damaged or too new is told by notice().
    static Outcome<PresetStore> open(const QString &identity);

    const QString &path() const { return path_; }
    /// What the user should know about the file: that it is damaged, what became of it, or why it cannot be
    /// changed. Empty when there is nothing to say.
    const QString &notice() const { return notice_; }
    /// True when every change will fail, for the reason that notice() gives.
    bool isReadOnly() const { return readOnly_; }

    /// The names in the order in which they were first saved. Entries of the file without a name that could have
    /// been saved are left out.
    QStringList names() const;
    /// The preset of a name, compared like all names without regard to case and to how accents are composed.
    std::optional<Preset> preset(const QString &name) const;
    /// The values last printed with; none when nothing was printed.
    PresetValues lastUsed() const;

    // The changes. Each answers why it failed, naming the file where it is to blame, and an empty text when it did
    // not. After a change that failed because of what another program saved, names() shows that.

    /// Keeps a preset under its name without the blanks around it. "copies" is left out. Fails for a name that
    /// cannot be, a name that is taken (see SaveMode), and values with an empty key.
    QString save(const Preset &preset, SaveMode mode);
    /// Gives a preset another name, or another spelling of the same. Fails when there is no such preset, for a name
    /// that cannot be and one that another preset has.
    QString rename(const QString &name, const QString &newName);
    /// Fails when there is no such preset.
    QString remove(const QString &name);
    /// Keeps the values last printed with, without "copies".
    QString saveLastUsed(const PresetValues &values);

private:
    /// Changes the content of the file; answers why that cannot be.
    using Change = std::function<QString(QJsonObject &root)>;

    PresetStore(QString identity, QString path) : identity_(std::move(identity)), path_(std::move(path)) {}
    QString readAgain(PresetFileContent &content);
    QString apply(const Change &change);
    QString replace(const PresetFileContent &content, QJsonObject root);

    QString identity_;
    QString path_;
    QJsonObject root_{}; ///< the last content of the file that was understood
    QString notice_{};
    bool readOnly_ = false;
};

} // namespace tessarin::host

#endif

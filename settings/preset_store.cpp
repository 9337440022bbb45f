// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/preset_store.h"

#include "printing/text.h"

#include <QFile>
#include <QJsonArray>
#include <QSet>

#include <algorithm>

namespace tessarin::host {

namespace {

using State = PresetFileContent::State;

constexpr QLatin1String kVersion("version");
constexpr QLatin1String kPrinter("printer");
constexpr QLatin1String kPresets("presets");
constexpr QLatin1String kLastUsed("lastUsed");
constexpr QLatin1String kName("name");

QString unknownPreset(const QString &name)
{
    return TessarinPrint::tr("there is no preset \"%1\"").arg(name.trimmed());
}

QString takenName(const QString &name)
{
    return TessarinPrint::tr("there is already a preset \"%1\"").arg(name);
}

} // namespace

Outcome<PresetStore> PresetStore::open(const QString &identity)
{
    if (identity.isEmpty()) {
        return Outcome<PresetStore>::failed(TessarinPrint::tr("presets: the printer has no name"));
    }
    PresetStore store(identity, presetFolder() + u'/' + presetFileName(identity));
    PresetFileContent content;
    if (const QString why = store.readAgain(content); !why.isEmpty()) {
        return Outcome<PresetStore>::failed(why);
    }
    return store;
}

QStringList PresetStore::names() const
{
    QStringList names;
    QSet<QString> seen;
    for (const QJsonValue entry : root_.value(kPresets).toArray()) {
        const QString name = presetNameOf(entry);
        if (!name.isEmpty() && !seen.contains(foldedPresetName(name))) {
            seen.insert(foldedPresetName(name));
            names << name;
        }
    }
    return names;
}

std::optional<Preset> PresetStore::preset(const QString &name) const
{
    const QJsonArray presets = root_.value(kPresets).toArray();
    const qsizetype index = presetIndex(presets, name);
    if (index < 0) {
        return std::nullopt;
    }
    return Preset{.name = presetNameOf(presets.at(index)), .values = presetValuesOf(presets.at(index).toObject())};
}

PresetValues PresetStore::lastUsed() const
{
    return presetValuesOf(root_.value(kLastUsed).toObject());
}

QString PresetStore::save(const Preset &preset, SaveMode mode)
{
    if (QString why = presetNameProblem(preset.name); !why.isEmpty()) {
        return why;
    }
    const QString name = preset.name.trimmed();
    if (std::any_of(preset.values.begin(), preset.values.end(),
                    [](const auto &entry) { return entry.first.isEmpty(); })) {
        return TessarinPrint::tr("preset \"%1\": a value has no key").arg(name);
    }
    return apply([&](QJsonObject &root) {
        QJsonArray presets = root.value(kPresets).toArray();
        const qsizetype index = presetIndex(presets, name);
        if (index >= 0 && mode == SaveMode::KeepExisting) {
            return takenName(presetNameOf(presets.at(index)));
        }
        QJsonObject entry = index < 0 ? QJsonObject() : presets.at(index).toObject();
        entry.insert(kName, name);
        setPresetValues(entry, preset.values);
        if (index < 0) {
            presets.append(entry);
        } else {
            presets.replace(index, entry);
        }
        root.insert(kPresets, presets);
        return QString();
    });
}

QString PresetStore::rename(const QString &name, const QString &newName)
{
    if (QString why = presetNameProblem(newName); !why.isEmpty()) {
        return why;
    }
    return apply([&](QJsonObject &root) {
        QJsonArray presets = root.value(kPresets).toArray();
        const qsizetype index = presetIndex(presets, name);
        if (index < 0) {
            return unknownPreset(name);
        }
        const qsizetype other = presetIndex(presets, newName);
        if (other >= 0 && other != index) {
            return takenName(presetNameOf(presets.at(other)));
        }
        QJsonObject entry = presets.at(index).toObject();
        entry.insert(kName, newName.trimmed());
        presets.replace(index, entry);
        root.insert(kPresets, presets);
        return QString();
    });
}

QString PresetStore::remove(const QString &name)
{
    return apply([&](QJsonObject &root) {
        QJsonArray presets = root.value(kPresets).toArray();
        const qsizetype index = presetIndex(presets, name);
        if (index < 0) {
            return unknownPreset(name);
        }
        presets.removeAt(index);
        root.insert(kPresets, presets);
        return QString();
    });
}

QString PresetStore::saveLastUsed(const PresetValues &values)
{
    return apply([&](QJsonObject &root) {
        QJsonObject lastUsed = root.value(kLastUsed).toObject();
        setPresetValues(lastUsed, values);
        if (root.contains(kLastUsed) || !presetValuesOf(lastUsed).empty()) {
            root.insert(kLastUsed, lastUsed);
        }
        return QString();
    });
}

/// Brings what is known of the file up to date. A damaged file changes nothing of what was understood before, so
/// that presets outlive the damage.
QString PresetStore::readAgain(PresetFileContent &content)
{
    Outcome<PresetFileContent> read = readPresetFile(path_);
    if (!read.ok()) {
        return read.reason();
    }
    content = read.take();
    if (content.state != State::Damaged) {
        root_ = content.root;
    }
    notice_ = content.problem;
    readOnly_ = content.state == State::Newer;
    return {};
}

QString PresetStore::apply(const Change &change)
{
    PresetFileContent content;
    // First without the lock: what changes nothing leaves no trace, not even a folder.
    for (const bool locked : {false, true}) {
        std::unique_ptr<QLockFile> lock;
        if (locked) {
            Outcome<std::unique_ptr<QLockFile>> taken = lockPresetFolder(path_);
            if (!taken.ok()) {
                return taken.reason();
            }
            lock = taken.take();
        }
        if (QString why = readAgain(content); !why.isEmpty()) {
            return why;
        }
        if (readOnly_) {
            return notice_;
        }
        QJsonObject root = root_;
        if (QString why = change(root); !why.isEmpty()) {
            return why;
        }
        if (content.state != State::Damaged && root == root_) {
            return {};
        }
        if (locked) {
            return replace(content, std::move(root));
        }
    }
    return {};
}

QString PresetStore::replace(const PresetFileContent &content, QJsonObject root)
{
    root.insert(kVersion, kPresetFileVersion);
    root.insert(kPrinter, identity_);
    QString aside;
    if (content.state == State::Damaged) {
        Outcome<QString> kept = keepDamagedFile(path_, content.bytes);
        if (!kept.ok()) {
            return kept.reason();
        }
        aside = kept.take();
    }
    if (QString why = writePresetFile(path_, root); !why.isEmpty()) {
        if (!aside.isEmpty()) {
            QFile::remove(aside); // the damaged file is still in its place
        }
        return why;
    }
    root_ = root;
    if (!aside.isEmpty()) {
        notice_ = TessarinPrint::tr("%1; it was kept as %2").arg(content.problem, aside);
    }
    return {};
}

} // namespace tessarin::host

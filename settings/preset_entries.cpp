// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/preset_entries.h"

#include "settings/job_settings.h"

#include "printing/text.h"

#include <QHash>

#include <algorithm>

namespace tessarin::host {

namespace {

constexpr qsizetype kLongestPresetName = 100;
constexpr QLatin1String kName("name");
constexpr QLatin1String kValues("values");

/// How many copies are printed is asked each time.
bool isKept(const QString &key)
{
    return key.compare(QLatin1String(kCopies), Qt::CaseInsensitive) != 0;
}

/// True for a character that shows something.
bool isVisible(uint character)
{
    return !QChar::isSpace(character) && QChar::category(character) != QChar::Other_Format;
}

/// True for a character that would tear a name apart.
bool isForbidden(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

} // namespace

QString presetNameProblem(const QString &name)
{
    const QString trimmed = name.trimmed();
    const QList<uint> characters = trimmed.toUcs4();
    if (std::none_of(characters.begin(), characters.end(), isVisible)) {
        return TessarinPrint::tr("a preset needs a name");
    }
    if (characters.size() > kLongestPresetName) {
        return TessarinPrint::tr("the name of a preset has at most %n characters", nullptr,
                                 static_cast<int>(kLongestPresetName));
    }
    // Half of a surrogate pair would come back from the file as another character.
    if (!trimmed.isValidUtf16() || std::any_of(characters.begin(), characters.end(), isForbidden)) {
        return TessarinPrint::tr("the name of a preset is one line, without control characters");
    }
    const QString wanted = foldedPresetName(trimmed);
    for (const QString &standing : {QStringLiteral("Default settings"), QStringLiteral("Last used"),
                                    TessarinPrint::tr("Default settings"), TessarinPrint::tr("Last used")}) {
        if (foldedPresetName(standing) == wanted) {
            return TessarinPrint::tr("\"%1\" is always there: no other preset can have its name").arg(standing);
        }
    }
    return {};
}

QString foldedPresetName(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QString presetNameOf(const QJsonValue &entry)
{
    const QString name = entry.toObject().value(kName).toString();
    return name == name.trimmed() && presetNameProblem(name).isEmpty() ? name : QString();
}

qsizetype presetIndex(const QJsonArray &presets, const QString &name)
{
    const QString wanted = foldedPresetName(name.trimmed());
    for (qsizetype i = 0; i < presets.size(); ++i) {
        const QString found = presets.at(i).toObject().value(kName).toString();
        if (foldedPresetName(found) == wanted && !presetNameOf(presets.at(i)).isEmpty()) {
            return i;
        }
    }
    return -1;
}

PresetValues presetValuesOf(const QJsonObject &entry)
{
    PresetValues values;
    const QJsonObject object = entry.value(kValues).toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (it.value().isString() && isKept(it.key())) {
            values.emplace_back(it.key(), it.value().toString());
        }
    }
    return values;
}

void setPresetValues(QJsonObject &entry, const PresetValues &values)
{
    QJsonObject object = entry.value(kValues).toObject();
    for (auto it = object.begin(); it != object.end();) {
        it = it.value().isString() ? object.erase(it) : it + 1;
    }
    QHash<QString, QString> spellings; // by lower-case key
    for (const auto &[key, value] : values) {
        if (!isKept(key)) {
            continue;
        }
        const auto earlier = spellings.constFind(key.toLower());
        if (earlier != spellings.constEnd()) {
            object.remove(*earlier);
        }
        spellings.insert(key.toLower(), key);
        object.insert(key, value);
    }
    entry.insert(kValues, object);
}

} // namespace tessarin::host

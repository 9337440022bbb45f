// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/replay_script.h"

#include <QHash>
#include <QJsonDocument>
#include <QList>

#include <cmath>

namespace tessarin::tools {

namespace {

enum class FieldType { Text, TextOrNull, OptionalText, Number, Flag };

struct Field {
    const char *name;
    FieldType type;
};

/// The fields of every command, besides "do".
const QHash<QString, QList<Field>> &commandFields()
{
    static const QHash<QString, QList<Field>> fields{
        {"panels", {{"type", FieldType::OptionalText}}},
        {"newPanel", {}},
        {"use", {{"panel", FieldType::Number}}},
        {"panelName", {}},
        {"panelKind", {}},
        {"supportedPPDOptionKeys", {}},
        {"shouldHide", {}},
        {"shouldPrint", {}},
        {"shouldShowHelp", {}},
        {"willShow", {}},
        {"panelView", {}},
        {"restore", {}},
        {"save", {}},
        {"summaryInfo", {}},
        {"hostChange", {{"key", FieldType::TextOrNull}, {"choice", FieldType::TextOrNull}}},
        {"mark", {{"key", FieldType::Text}, {"choice", FieldType::Text}}},
        {"refuse", {{"key", FieldType::Text}}},
        {"accept", {{"key", FieldType::Text}}},
        {"choose", {{"id", FieldType::Number}, {"item", FieldType::Number}}},
        {"slide", {{"id", FieldType::Number}, {"to", FieldType::Number}}},
        {"check", {{"id", FieldType::Number}, {"on", FieldType::Flag}}},
        {"press", {{"id", FieldType::Number}}},
        {"tab", {{"position", FieldType::Number}}},
        {"event", {{"id", FieldType::Number}}},
        {"inkFile", {{"path", FieldType::Text}}},
        {"state", {}},
        {"dealloc", {}},
    };
    return fields;
}

bool isInteger(const QJsonValue &value)
{
    const double number = value.toDouble(std::nan(""));
    return value.isDouble() && std::trunc(number) == number;
}

bool hasType(const QJsonValue &value, FieldType type)
{
    switch (type) {
    case FieldType::Text:
        return value.isString();
    case FieldType::TextOrNull:
        return value.isString() || value.isNull();
    case FieldType::OptionalText:
        return value.isString() || value.isUndefined();
    case FieldType::Number:
        return isInteger(value);
    case FieldType::Flag:
        return value.isBool();
    }
    return false;
}

} // namespace

bool isSkippedLine(const QByteArray &line)
{
    return line.trimmed().isEmpty() || line.startsWith('#');
}

bool parseReplayLine(const QByteArray &line, ReplayCommand &command, QString &reason)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (!document.isObject()) {
        reason =
            error.error != QJsonParseError::NoError ? error.errorString() : QStringLiteral("not a JSON object");
        return false;
    }
    command = {document.object().value(QStringLiteral("do")).toString(), document.object(), line};
    const auto fields = commandFields().find(command.name);
    if (fields == commandFields().end()) {
        reason = command.name.isEmpty() ? QStringLiteral("no text field \"do\"")
                                        : QStringLiteral("unknown command \"%1\"").arg(command.name);
        return false;
    }
    for (const Field &field : *fields) {
        const QString name = QString::fromLatin1(field.name);
        const QJsonValue value = command.fields.value(name);
        if (!hasType(value, field.type)) {
            reason = (value.isUndefined() ? QStringLiteral("\"%1\" needs the field \"%2\"")
                                          : QStringLiteral("the field \"%2\" of \"%1\" is of the wrong type"))
                         .arg(command.name, name);
            return false;
        }
    }
    return true;
}

} // namespace tessarin::tools

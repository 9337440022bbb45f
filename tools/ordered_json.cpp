// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/ordered_json.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tessarin::tools {

namespace {

void append(std::string &json, const pde::DiagnosticValue &value);

std::string quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2).toStdString();
}

void appendArray(std::string &json, const pde::DiagnosticValue::Array &array)
{
    json += '[';
    const char *separator = "";
    for (const pde::DiagnosticValue &item : array) {
        json += separator;
        append(json, item);
        separator = ",";
    }
    json += ']';
}

void appendObject(std::string &json, const pde::DiagnosticValue::Object &object)
{
    json += '{';
    const char *separator = "";
    for (const auto &[key, item] : object) {
        json += separator + quoted(key) + ':';
        append(json, item);
        separator = ",";
    }
    json += '}';
}

void append(std::string &json, const pde::DiagnosticValue &value)
{
    if (const auto *flag = std::get_if<bool>(&value.value)) {
        json += *flag ? "true" : "false";
    } else if (const auto *number = std::get_if<std::int64_t>(&value.value)) {
        json += std::to_string(*number);
    } else if (const auto *text = std::get_if<QString>(&value.value)) {
        json += quoted(*text);
    } else if (const auto *array = std::get_if<pde::DiagnosticValue::Array>(&value.value)) {
        appendArray(json, *array);
    } else if (const auto *object = std::get_if<pde::DiagnosticValue::Object>(&value.value)) {
        appendObject(json, *object);
    } else {
        json += "null";
    }
}

} // namespace

std::string toJson(const pde::DiagnosticValue &value)
{
    std::string json;
    append(json, value);
    return json;
}

std::string toJsonString(std::string_view utf8)
{
    return quoted(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string compactJson(std::string_view json)
{
    std::string compact;
    bool inString = false;
    for (std::size_t at = 0; at < json.size(); ++at) {
        const char c = json[at];
        if (inString && c == '\\' && at + 1 < json.size()) {
            compact += c;
            compact += json[++at];
            continue;
        }
        if (c == '"') {
            inString = !inString;
        }
        if (inString || (c != ' ' && c != '\t' && c != '\r' && c != '\n')) {
            compact += c;
        }
    }
    return compact;
}

} // namespace tessarin::tools

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/replay_session.h"

#include "tools/ordered_json.h"

#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace tessarin::tools {

namespace {

using Value = pde::DiagnosticValue;

Value textOrNull(const QString &text)
{
    return text.isNull() ? Value() : Value(text);
}

Value textArray(const QStringList &texts)
{
    Value::Array array;
    for (const QString &text : texts) {
        array.emplace_back(text);
    }
    return array;
}

int number(const ReplayCommand &command, const char *field)
{
    // Beyond 32 bits it is the nearest end.
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double greatest = std::numeric_limits<int>::max();
    return static_cast<int>(
        std::clamp(command.fields.value(QString::fromLatin1(field)).toDouble(), least, greatest));
}

QString text(const ReplayCommand &command, const char *field)
{
    return command.fields.value(QString::fromLatin1(field)).toString();
}

QString printerModuleType()
{
    return QString::fromLatin1(pde::kPrinterModulePanelType);
}

} // namespace

void printTraceLine(const std::string &json)
{
    const std::string line = json + "\n";
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fflush(stdout);
}

void traceLog(std::string_view line)
{
    printTraceLine("{\"log\":" + toJsonString(line) + "}");
}

void traceAlert(const pde::DiagnosticAlert &alert)
{
    const Value::Object fields{{"title", alert.title}, {"text", alert.text}, {"buttons", textArray(alert.buttons)}};
    printTraceLine(toJson(Value::Object{{"alert", fields}}));
}

ReplaySession::ReplaySession(pde::PlugIn &plugIn, pde::PanelDiagnostics &diagnostics, const QString &ppdPath,
                             const QString &printerID)
    : plugIn_(plugIn), diagnostics_(diagnostics)
{
    const auto tell = [](const QString &key, const QString &choice, bool accepted) {
        printTraceLine(toJson(Value::Object{{"host", Value::Array{key, choice}}, {"accepted", accepted}}));
    };
    host_ = std::make_shared<ReplayHost>(ppdPath, printerID, tell);
}

void ReplaySession::run(const ReplayCommand &command)
{
    printTraceLine(compactJson(command.text.toStdString()));
    Value value;
    if (!runWithoutPanel(command, value)) {
        if (current_ == nullptr) {
            printTraceLine(toJson(Value::Object{{"result", command.name}, {"error", "no panel"}}));
            return;
        }
        if (command.name == QLatin1String("state")) {
            printTraceLine(toJson(Value::Object{{"state", diagnostics_.state(*current_)}}));
            return;
        }
        value = runOnPanel(command);
    }
    printTraceLine(toJson(Value::Object{{"result", command.name}, {"value", value}}));
}

bool ReplaySession::runWithoutPanel(const ReplayCommand &command, Value &value)
{
    const QString &name = command.name;
    if (name == QLatin1String("panels")) {
        const QJsonValue type = command.fields.value(QStringLiteral("type"));
        value = askPanels(type.isUndefined() ? printerModuleType() : type.toString());
    } else if (name == QLatin1String("newPanel")) {
        value = askPanels(printerModuleType());
    } else if (name == QLatin1String("use")) {
        value = use(number(command, "panel"));
    } else if (name == QLatin1String("mark")) {
        host_->mark(text(command, "key"), text(command, "choice"));
    } else if (name == QLatin1String("refuse")) {
        host_->refuse(text(command, "key"));
    } else if (name == QLatin1String("accept")) {
        host_->accept(text(command, "key"));
    } else {
        return false;
    }
    return true;
}

ReplaySession::Value ReplaySession::runOnPanel(const ReplayCommand &command)
{
    const QString &name = command.name;
    if (name == QLatin1String("panelName")) {
        return textOrNull(current_->panelName());
    }
    if (name == QLatin1String("panelKind")) {
        return textOrNull(current_->panelKind());
    }
    if (name == QLatin1String("supportedPPDOptionKeys")) {
        const auto keys = current_->supportedPPDOptionKeys();
        return keys ? textArray(*keys) : Value();
    }
    if (name == QLatin1String("shouldHide")) {
        return current_->shouldHide();
    }
    if (name == QLatin1String("shouldPrint")) {
        return current_->shouldPrint();
    }
    if (name == QLatin1String("shouldShowHelp")) {
        return current_->shouldShowHelp();
    }
    if (name == QLatin1String("panelView")) {
        return current_->panelView() != nullptr;
    }
    if (name == QLatin1String("restore")) {
        return current_->restoreValuesAndReturnError(nullptr);
    }
    if (name == QLatin1String("save")) {
        return current_->saveValuesAndReturnError(nullptr);
    }
    if (name == QLatin1String("summaryInfo")) {
        return summary();
    }
    return act(command);
}

ReplaySession::Value ReplaySession::act(const ReplayCommand &command)
{
    const QString &name = command.name;
    if (name == QLatin1String("choose")) {
        return diagnostics_.choose(*current_, number(command, "id"), number(command, "item"));
    }
    if (name == QLatin1String("slide")) {
        return diagnostics_.slide(*current_, number(command, "id"), number(command, "to"));
    }
    if (name == QLatin1String("check")) {
        return diagnostics_.check(*current_, number(command, "id"),
                                  command.fields.value(QStringLiteral("on")).toBool());
    }
    if (name == QLatin1String("press")) {
        return diagnostics_.press(*current_, number(command, "id"));
    }
    if (name == QLatin1String("tab")) {
        return diagnostics_.selectTab(*current_, number(command, "position"));
    }
    if (name == QLatin1String("event")) {
        return diagnostics_.event(*current_, number(command, "id"));
    }
    if (name == QLatin1String("willShow")) {
        current_->willShow();
    } else if (name == QLatin1String("hostChange")) {
        hostChange(command.fields.value(QStringLiteral("key")), command.fields.value(QStringLiteral("choice")));
    } else if (name == QLatin1String("inkFile")) {
        diagnostics_.setInkFilePath(*current_, text(command, "path"));
    } else if (name == QLatin1String("dealloc")) {
        release();
    }
    return nullptr;
}

ReplaySession::Value ReplaySession::askPanels(const QString &type)
{
    const std::shared_ptr<pde::PanelArray> array = plugIn_.PDEPanelsForType(type, host_);
    if (!array) {
        return nullptr;
    }
    for (const auto &panel : *array) {
        panels_.push_back({panel.get(), array});
    }
    if (!array->empty()) {
        current_ = array->front().get();
    }
    return static_cast<std::int64_t>(array->size());
}

bool ReplaySession::use(int number)
{
    if (number < 0 || static_cast<std::size_t>(number) >= panels_.size() ||
        panels_[static_cast<std::size_t>(number)].panel == nullptr) {
        return false;
    }
    current_ = panels_[static_cast<std::size_t>(number)].panel;
    return true;
}

void ReplaySession::hostChange(const QJsonValue &key, const QJsonValue &choice)
{
    if (key.isString() && choice.isString()) {
        host_->mark(key.toString(), choice.toString());
    }
    const auto argument = [](const QJsonValue &value) { return value.isString() ? value.toString() : QString(); };
    current_->PPDOptionKeyValueDidChange(argument(key), argument(choice));
}

ReplaySession::Value ReplaySession::summary()
{
    const std::optional<pde::Summary> summary = current_->summaryInfo();
    if (!summary) {
        return nullptr;
    }
    // In display order, then what the order leaves out.
    QStringList labels = summary->displayOrder.value_or(QStringList());
    QStringList others = summary->entries.keys();
    others.sort();
    labels += others;
    labels.removeDuplicates();
    Value::Object entries;
    for (const QString &label : labels) {
        if (summary->entries.contains(label)) {
            entries.emplace_back(label, summary->entries.value(label));
        }
    }
    return Value::Object{{"entries", entries},
                         {"order", summary->displayOrder ? textArray(*summary->displayOrder) : Value()}};
}

void ReplaySession::release()
{
    const auto entry =
        std::find_if(panels_.begin(), panels_.end(), [this](const Entry &e) { return e.panel == current_; });
    entry->panel = nullptr;
    current_ = nullptr;
    entry->array->clear(); // the factory shares the array, and with it the panel
}

} // namespace tessarin::tools

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/random/random_script.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace tessarin::test {

namespace {

constexpr int kSteps = 40;

constexpr std::array<int, 8> kPopUps{4501, 4502, 4503, 4504, 4505, 4506, 4507, 4508};
constexpr std::array<int, 3> kCheckBoxes{4705, 4706, 4707};
constexpr std::array<const char *, 5> kQueries{"shouldHide", "shouldPrint", "supportedPPDOptionKeys", "summaryInfo",
                                               "state"};
constexpr std::array<const char *, 8> kKeys{"vornMediaType",  "vornCartridgeType", "vornColorModel", "vornIntent",
                                            "vornBrightness", "vornTAC",           "vornNoPrint",    "vornUnknown"};
constexpr std::array<const char *, 8> kChoices{"Media0_2", "Key1",  "CMYKproof", "Intent1x",
                                               "10",       "-1000", "1",         "Nowhere"};

std::string line(const char *command, QJsonObject values = {})
{
    values.insert(QStringLiteral("do"), QLatin1String(command));
    return QJsonDocument(values).toJson(QJsonDocument::Compact).toStdString() + "\n";
}

template <class Value, std::size_t count>
Value anyOf(const std::array<Value, count> &values, Dice &dice)
{
    return values[static_cast<std::size_t>(dice.roll(static_cast<int>(count)))];
}

/// Mostly one of the 20 sliders, at times a number that is none.
int anySlider(Dice &dice)
{
    return 4099 + dice.roll(24);
}

std::string hostStep(Dice &dice)
{
    const QString key = QLatin1String(anyOf(kKeys, dice));
    const QString choice = QLatin1String(anyOf(kChoices, dice));
    switch (dice.roll(4)) {
    case 0:
        return line("refuse", {{QStringLiteral("key"), key}});
    case 1:
        return line("accept", {{QStringLiteral("key"), key}});
    case 2:
        return line("mark", {{QStringLiteral("key"), key}, {QStringLiteral("choice"), choice}});
    default:
        return line("hostChange", {{QStringLiteral("key"), key}, {QStringLiteral("choice"), choice}});
    }
}

std::string personStep(Dice &dice)
{
    const QString id = QStringLiteral("id");
    switch (dice.roll(6)) {
    case 0:
        return line("tab", {{QStringLiteral("position"), dice.roll(8) - 1}});
    case 1:
        return line("check", {{id, anyOf(kCheckBoxes, dice)}, {QStringLiteral("on"), dice.oneIn(2)}});
    case 2:
    case 3:
        return line("slide", {{id, anySlider(dice)}, {QStringLiteral("to"), dice.roll(40) - 20}});
    default:
        return line("choose", {{id, anyOf(kPopUps, dice)}, {QStringLiteral("item"), dice.roll(12)}});
    }
}

} // namespace

std::string randomScript(Dice &dice)
{
    std::string script = line("panels");
    if (!dice.oneIn(5)) {
        script += line("panelView");
    }
    for (int step = 0; step < kSteps; ++step) {
        const int kind = dice.roll(20);
        if (kind < 11) {
            script += personStep(dice);
        } else if (kind < 14) {
            script += hostStep(dice);
        } else if (kind < 16) {
            script += line(anyOf(kQueries, dice));
        } else if (kind == 16) {
            script += line(dice.oneIn(2) ? "save" : "restore");
        } else if (kind == 17) {
            script += line("press", {{QStringLiteral("id"), 4003}});
        } else if (kind == 18) {
            script += line("event", {{QStringLiteral("id"), anyOf(kPopUps, dice)}});
        } else {
            script += line(dice.oneIn(6) ? "newPanel" : "panelView");
        }
    }
    return script + line("state") + line("summaryInfo") + line("save") + line("dealloc");
}

} // namespace tessarin::test

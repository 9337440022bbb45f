// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/random/random_ppd.h"

#include <array>
#include <vector>

namespace tessarin::test {

namespace {

constexpr std::array<const char *, 8> kPopUps{"vornCartridgeType", "vornMediaType",  "vornResolution",
                                              "vornIntent",        "vornColorModel", "vornDithering",
                                              "vornColorspace",    "vornCMYKspace"};
constexpr std::array<const char *, 20> kSliders{"vornBrightness", "vornContrast",  "vornRefLight",  "vornGamut",
                                                "vornShadows",    "vornGreyToneA", "vornGreyToneB", "vornUCR",
                                                "vornBrightC",    "vornBrightM",   "vornTAC",       "vornIntensity",
                                                "vornInklimitK",  "vornInklimitC", "vornInklimitM", "vornInklimitY",
                                                "vornColorK",     "vornColorC",    "vornColorM",    "vornColorY"};
constexpr std::array<const char *, 3> kCheckBoxes{"vornNoPrint", "vornColorGamma", "vornPSInterpreter"};

struct Option {
    std::string keyword;
    std::vector<std::string> keys;
};

std::string popUpKey(std::size_t row, int index, Dice &dice)
{
    constexpr std::array<const char *, 8> modes{"RGB",      "CMYKproof", "Gray",   "CMYK",
                                                "RGBphoto", "GrayToned", "CMYK%s", "%n"};
    const std::string number = std::to_string(index);
    switch (row) {
    case 1:
        return (dice.oneIn(4) ? "Custom" : "Media") + number + "_" + std::to_string(dice.roll(10));
    case 3:
        return "Intent" + number + (dice.oneIn(3) ? "x" : std::to_string(dice.roll(10)));
    case 4:
        return index < static_cast<int>(modes.size()) ? modes[static_cast<std::size_t>(index)] : "Mode" + number;
    case 6:
    case 7:
        return std::to_string(dice.oneIn(2) ? 1000 + index : index);
    default:
        return (dice.oneIn(12) ? "*Key" : "Key") + number;
    }
}

void writeOption(std::string &ppd, const Option &option, Dice &dice)
{
    ppd += "*OpenUI *" + option.keyword + "/" + option.keyword + ": PickOne\n";
    if (!option.keys.empty() && !dice.oneIn(8)) {
        const bool known = !dice.oneIn(8);
        const auto place = static_cast<std::size_t>(dice.roll(static_cast<int>(option.keys.size())));
        ppd += "*Default" + option.keyword + ": " + (known ? option.keys[place] : std::string("Nowhere")) + "\n";
    }
    for (const std::string &key : option.keys) {
        ppd += "*" + option.keyword + " " + key + "/Text of " + (dice.oneIn(9) ? "%s & <b>" : key) + ": \"\"\n";
    }
    ppd += "*CloseUI: *" + option.keyword + "\n";
}

void writeConstraint(std::string &ppd, const std::vector<Option> &options, Dice &dice)
{
    const auto pick = [&]() -> const Option & {
        return options[static_cast<std::size_t>(dice.roll(static_cast<int>(options.size())))];
    };
    const auto key = [&](const Option &option) {
        return option.keys.empty() || dice.oneIn(15)
                   ? std::string("Unknown")
                   : option.keys[static_cast<std::size_t>(dice.roll(static_cast<int>(option.keys.size())))];
    };
    const Option &first = pick();
    const Option &second = pick();
    ppd +=
        "*UIConstraints: *" + first.keyword + " " + key(first) + " *" + second.keyword + " " + key(second) + "\n";
}

} // namespace

std::string randomPPD(Dice &dice)
{
    std::string ppd = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                      "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"RANDOM.PPD\"\n"
                      "*Product: \"(Random)\"\n*Manufacturer: \"Tessarin\"\n*ModelName: \"Random\"\n"
                      "*ShortNickName: \"Random\"\n*NickName: \"Random\"\n*PSVersion: \"(3010) 0\"\n";
    std::vector<Option> options;
    for (std::size_t row = 0; row < kPopUps.size(); ++row) {
        if (dice.oneIn(12)) {
            continue;
        }
        Option option{kPopUps[row], {}};
        const int count = dice.oneIn(10) ? 0 : dice.oneIn(12) ? 78 + dice.roll(8) : 1 + dice.roll(8);
        for (int index = 0; index < count; ++index) {
            option.keys.push_back(popUpKey(row, index, dice));
        }
        writeOption(ppd, option, dice);
        options.push_back(option);
    }
    for (const char *keyword : kSliders) {
        if (!dice.oneIn(10)) {
            Option option{keyword, {"0", "10", "-10", "60"}};
            option.keys.push_back(dice.oneIn(8) ? "Auto"
                                                : std::to_string(dice.roll(200) - 100 + 1000 * dice.roll(2)));
            writeOption(ppd, option, dice);
        }
    }
    for (const char *keyword : kCheckBoxes) {
        if (!dice.oneIn(10)) {
            writeOption(ppd, {keyword, {"0", "1"}}, dice);
        }
    }
    const int constraints = dice.oneIn(6) ? 60 : dice.roll(30);
    for (int i = 0; i < constraints && !options.empty(); ++i) {
        writeConstraint(ppd, options, dice);
    }
    return ppd;
}

} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/plugin/panel_log_lines.h"

#include <array>

namespace tessarin::test {

namespace {

const std::vector<PopUp> kPopUps{
    {0, 4507, "vornCartridgeType", {{"PhotoBlack", "Photo Black"}, {"MatteBlack", "Matte Black"}}, 1},
    {1,
     4501,
     "vornMediaType",
     {{"Plain0", "Plain Paper *"},
      {"Photo6", "Photo Paper"},
      {"---separator---", "---separator---"},
      {"Custom10", "Custom Paper 10 *"}},
     2},
    {2, 4502, "vornResolution", {{"600dpi", "600 dpi"}, {"1200dpi", "1200 dpi"}}, 1},
    {3, 4504, "vornIntent", {{"Perceptual0", "Perceptual"}, {"Proof6", "Proof"}}, 1},
    {4, 4505, "vornColorModel", {{"Gray", "Grayscale"}, {"RGB", "RGB Color"}, {"CMYK", "CMYK Color"}}, 2},
    {5, 4506, "vornDithering", {{"Diffusion", "Error Diffusion"}, {"Ordered", "Ordered Screening"}}, 1},
    {6,
     4503,
     "vornColorspace",
     {{"1", "sRGB"}, {"---separator---", "---separator---"}, {"1001", "Custom RGB Profile 1"}},
     1},
    {7,
     4508,
     "vornCMYKspace",
     {{"10", "Offset, Coated Paper"}, {"---separator---", "---separator---"}, {"1001", "Custom CMYK Profile 1"}},
     1},
};

struct Slider {
    std::string keyword;
    int minimum;
    int maximum;
    int position;
    std::string value; ///< in the PPD
};

/// By slider number, as the small PPD sets them.
const std::array<Slider, 20> kSliders{{
    {"vornBrightness", -10, 10, 0, "0"}, {"vornContrast", -10, 10, 0, "0"}, {"vornRefLight", 0, 6, 3, "65"},
    {"vornGamut", -5, 5, 0, "0"},        {"vornShadows", -5, 5, 0, "0"},    {"vornGreyToneA", -10, 10, 0, "0"},
    {"vornGreyToneB", -10, 10, 0, "0"},  {"vornUCR", -5, 5, 0, "0"},        {"vornBrightC", -5, 5, 0, "0"},
    {"vornBrightM", -5, 5, 0, "0"},      {"vornTAC", -5, 5, 0, "0"},        {"vornIntensity", -8, 0, 0, "0"},
    {"vornInklimitK", -5, 5, 0, "0"},    {"vornInklimitC", -5, 5, 0, "0"},  {"vornInklimitM", -5, 5, 0, "0"},
    {"vornInklimitY", -5, 5, 0, "0"},    {"vornColorK", -10, 10, 0, "0"},   {"vornColorC", -10, 10, 0, "0"},
    {"vornColorM", -10, 10, 0, "0"},     {"vornColorY", -10, 10, 0, "0"},
}};

std::string number(int value)
{
    return std::to_string(value);
}

/// Filling of a pop-up that had `former` items.
Lines filled(const PopUp &popup, int former)
{
    Lines lines{"\nFILLPOPUP - active = " + number(popup.selection) + " / '" + popup.selectedText() + "'\n",
                "Remove all Items - count=" + number(former) + "\n"};
    int n = 0;
    for (const auto &[key, text] : popup.pairs) {
        ++n;
        if (key == "---separator---") {
            append(lines, {"Adding separator to popup\n"});
        } else {
            append(lines,
                   {"AppendMenuItem: " + text + "=" + number(n) + "\n", "Adding to PopUpButton: '" + text + "'\n"});
        }
        if (n == popup.selection) {
            append(lines, {"Fillpopup - setactive item to #" + number(n) + "/n"});
        }
    }
    append(lines, {"FillPOPUP -> activeidx = " + number(popup.selection) + "\n",
                   "SetComboControlValue to #" + number(popup.selection) + " of " + number(n) + "\n"});
    return lines;
}

Lines valueShown(std::size_t slider)
{
    const Slider &row = kSliders.at(slider);
    return {"SetScrollValue\n",
            "SetScrollValue - CtrlProperty = 0\n",
            "SetScrollValue - CtrlRef = " + std::to_string(slider) + "\n",
            "min=" + number(row.minimum) + ".000000 max=" + number(row.maximum) + ".000000\n",
            "currentValue = " + number(row.position) + "\n",
            "mark1\n",
            "mark2\n",
            "mark3\n"};
}

/// One page: its pop-ups with the items they had before, and its sliders when they are found.
struct Page {
    int position;
    int mask;
    std::vector<std::size_t> popups;
    std::vector<std::size_t> sliders;
};

const std::vector<Page> kPages{
    {0, 1, {0, 1, 2, 5}, {0, 1}}, {1, 2, {3, 4, 6, 7}, {2, 3, 4, 5, 6}},
    {2, 4, {}, {16, 17, 18, 19}}, {3, 8, {}, {}},
    {4, 16, {}, {7, 8, 9, 10}},   {5, 32, {}, {11, 12, 13, 14, 15}},
};

Lines pageEmbedded(const Page &page, bool first)
{
    Lines lines{"Init Tab #" + number(page.position) + " (0xP) with idx #" + number(page.mask) + "\n",
                "\n!!!MyEmbedControls!!! - idx=" + number(page.mask) + " - window=0\n\n",
                "Init popuplists - pageidx = " + number(page.mask) + "\n", "---- INIT POPUP ----\n"};
    for (const std::size_t row : page.popups) {
        const PopUp &popup = kPopUps.at(row);
        append(lines, {"--- found #" + number(popup.row) + ": controlid=" + number(popup.id) + "\n",
                       "FillPopUp #" + number(popup.row) + " - id = " + number(popup.id) + "\n"});
        append(lines, filled(popup, first ? 0 : popup.count()));
    }
    if (page.mask == 2) {
        append(lines, colourModeShown());
    }
    if (page.mask == 1) {
        append(lines, constraintsChecked());
        append(lines, availabilityChecked(!first));
    }
    if (first) { // once embedded, a slider has no id any more
        for (const std::size_t slider : page.sliders) {
            append(lines, {"SCROLL-TEXT-Ref = " + std::to_string(slider) + "\n"});
            append(lines, valueShown(slider));
        }
    }
    if (page.mask == 16) {
        append(lines, {"iconid_brcyan=0xP photo=0xP magentapane=0xP cyanpane=0xP\n", "colors disabled\n"});
    }
    return lines;
}

} // namespace

const std::vector<PopUp> &popUps()
{
    return kPopUps;
}

void append(Lines &lines, const Lines &more)
{
    lines.insert(lines.end(), more.begin(), more.end());
}

std::string joined(const Lines &lines)
{
    std::string text;
    for (const std::string &line : lines) {
        text += line + "\n";
    }
    return text;
}

Lines constraintsChecked()
{
    Lines lines;
    for (const std::size_t row : {1U, 2U}) {
        const PopUp &popup = kPopUps.at(row);
        append(lines, {"-- check contraints --\n", "Checking menu for *" + popup.keyword + "\n"});
        append(lines, filled(popup, popup.count()));
    }
    return lines;
}

Lines availabilityChecked(bool popUpsThere)
{
    Lines lines;
    for (const std::size_t row : {3U, 4U}) {
        const PopUp &popup = kPopUps.at(row);
        append(lines,
               {"checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=2\n", "got MediaMode: 6 - Photo6\n"});
        if (popUpsThere) {
            append(lines,
                   {"+++ tag of selected item: " + number(popup.selection) + "\n",
                    "Availabilitycheck - Mediamode = 6\n",
                    "SetComboControlValue to #" + number(popup.selection) + " of " + number(popup.count()) + "\n"});
        }
    }
    return lines;
}

Lines selectionsRead()
{
    Lines lines;
    for (const PopUp &popup : kPopUps) {
        append(lines, {"getComboPPDSelection for " + popup.keyword + "\n",
                       "current selection is #" + number(popup.selection) + "\n"});
    }
    append(lines, {"*** create BORDERLESS list***\n"});
    for (const Slider &slider : kSliders) {
        append(lines, {"GetPPDOption for feature: test\n", "GetPPDOption for feature: " + slider.keyword + "\n"});
    }
    return lines;
}

Lines controlsSetUp(bool first)
{
    Lines lines{"Now init Controls\n", "CoCoaEmbedControls - 6 TABS - View=0xP\n"};
    for (const Page &page : kPages) {
        append(lines, pageEmbedded(page, first));
    }
    return lines;
}

Lines colourModeShown()
{
    return {"colmode=2\n", "colmodename=RGB\n", "RGB-Mode - RGB\n"};
}

Lines slidersShown()
{
    Lines lines;
    for (std::size_t slider = 0; slider < kSliders.size(); ++slider) {
        append(lines, valueShown(slider));
    }
    return lines;
}

Lines popUpsMissing()
{
    Lines lines;
    for (const PopUp &popup : kPopUps) {
        append(lines, {"!!! Control not found for ppditem: *" + popup.keyword + "\n"});
    }
    return lines;
}

Lines slidersSent()
{
    Lines lines;
    for (const Slider &slider : kSliders) {
        append(lines, {"Setting Object:" + slider.keyword + " to Selection:" + slider.value + "\n"});
    }
    return lines;
}

} // namespace tessarin::test

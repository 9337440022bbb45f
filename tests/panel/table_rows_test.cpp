// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The control tables row by row, against values typed here, and the interface file that carries their ids.

#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "platform/view_tags.h"
#include "tests/support/panel_session.h"

#include <QFile>
#include <QTabWidget>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tessarin::test {
namespace {

struct SliderRow {
    int page, number, id, textId;
    const char *keyword, *label;
    int halve, minimum, maximum, ppdDefault, offset, step, base;
    float factor;
    const char *format;
    const char *atMinimum, *atMinusOne, *atZero, *atMaximum; ///< shown texts; atMinusOne null: out of range
    int ppdAtMinimum, ppdAtMaximum;
};

// clang-format off
const std::vector<SliderRow> kRows{
    {1, 0, 4101, 4401, "vornBrightness", "Brightness", 1, -10, 10, 0, 0, 5, 100, 10.0F, "%d%%", "50%", "95%", "100%", "200%", -50, 50},
    {1, 1, 4102, 4402, "vornContrast", "Contrast", 1, -10, 10, 0, 0, 5, 100, 10.0F, "%d%%", "50%", "95%", "100%", "200%", -50, 50},
    {2, 2, 4104, 4404, "vornRefLight", "Reference Light", 0, 0, 6, 3, 50, 5, 50, 5.0F, "D%d", "D50", nullptr, "D50", "D80", 50, 80},
    {2, 3, 4105, 4405, "vornGamut", "Color Gamut", 1, -5, 5, 0, 0, 10, 100, 20.0F, "%d%%", "50%", "90%", "100%", "200%", -50, 50},
    {2, 4, 4117, 4417, "vornShadows", "Shadows", 1, -5, 5, 0, 0, 10, 100, 20.0F, "%d%%", "50%", "90%", "100%", "200%", -50, 50},
    {2, 5, 4106, 4406, "vornGreyToneA", "Greytone A", 0, -10, 10, 0, 0, 5, 0, 5.0F, "%+d", "-50", "-5", "+0", "+50", -50, 50},
    {2, 6, 4107, 4407, "vornGreyToneB", "Greytone B", 0, -10, 10, 0, 0, 5, 0, 5.0F, "%+d", "-50", "-5", "+0", "+50", -50, 50},
    {16, 7, 4108, 4408, "vornUCR", "Black Usage (UCR)", 0, -5, 5, 0, 0, 10, 50, 10.0F, "%d%%", "0%", "40%", "50%", "100%", -50, 50},
    {16, 8, 4109, 4409, "vornBrightC", "Usage Bright Cyan", 0, -5, 5, 0, 0, 10, 50, 10.0F, "%d%%", "0%", "40%", "50%", "100%", -50, 50},
    {16, 9, 4110, 4410, "vornBrightM", "Usage Bright Magenta", 0, -5, 5, 0, 0, 10, 50, 10.0F, "%d%%", "0%", "40%", "50%", "100%", -50, 50},
    {16, 10, 4111, 4411, "vornTAC", "Total Ink Maximum", 0, -5, 5, 0, 0, 10, 300, 20.0F, "%d%%", "200%", "280%", "300%", "400%", -50, 50},
    {32, 11, 4112, 4412, "vornIntensity", "Ink-Intensity", 1, -8, 0, 0, 0, 10, 0, -10.0F, "%d%%", "80%", "10%", "0%", "0%", -80, 0},
    {32, 12, 4113, 4413, "vornInklimitK", "Ink-Limit Black", 1, -5, 5, 0, 0, 10, 100, 20.0F, "%d%%", "50%", "90%", "100%", "200%", -50, 50},
    {32, 13, 4114, 4414, "vornInklimitC", "Ink-Limit Cyan", 1, -5, 5, 0, 0, 10, 100, 20.0F, "%d%%", "50%", "90%", "100%", "200%", -50, 50},
    {32, 14, 4115, 4415, "vornInklimitM", "Ink-Limit Magenta", 1, -5, 5, 0, 0, 10, 100, 20.0F, "%d%%", "50%", "90%", "100%", "200%", -50, 50},
    {32, 15, 4116, 4416, "vornInklimitY", "Ink-Limit Yellow", 1, -5, 5, 0, 0, 10, 100, 20.0F, "%d%%", "50%", "90%", "100%", "200%", -50, 50},
    {4, 16, 4131, 4431, "vornColorK", "Black", 0, -10, 10, 0, 0, 5, 0, 5.0F, "%d%%", "-50%", "-5%", "0%", "50%", -50, 50},
    {4, 17, 4132, 4432, "vornColorC", "Cyan", 0, -10, 10, 0, 0, 5, 0, 5.0F, "%d%%", "-50%", "-5%", "0%", "50%", -50, 50},
    {4, 18, 4133, 4433, "vornColorM", "Magenta", 0, -10, 10, 0, 0, 5, 0, 5.0F, "%d%%", "-50%", "-5%", "0%", "50%", -50, 50},
    {4, 19, 4134, 4434, "vornColorY", "Yellow", 0, -10, 10, 0, 0, 5, 0, 5.0F, "%d%%", "-50%", "-5%", "0%", "50%", -50, 50},
};
// clang-format on

TEST(SliderTable, HoldsEveryRowAsTyped)
{
    ASSERT_EQ(kRows.size(), 20U);
    const std::array<ScrollRow, 21> untouched =
        Scrolls; // a restore writes ppdDefault; compare what it may not touch
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const SliderRow &row = kRows[i];
        SCOPED_TRACE(row.keyword);
        EXPECT_EQ(untouched[i].page, row.page);
        EXPECT_EQ(untouched[i].number, row.number);
        EXPECT_EQ(untouched[i].sliderId, row.id);
        EXPECT_EQ(untouched[i].textId, row.textId);
        EXPECT_EQ(row.textId, row.id + 300);
        EXPECT_STREQ(untouched[i].keyword, row.keyword);
        EXPECT_STREQ(untouched[i].label, row.label);
        EXPECT_EQ(untouched[i].halveNegative, row.halve);
        EXPECT_EQ(untouched[i].minimum, row.minimum);
        EXPECT_EQ(untouched[i].maximum, row.maximum);
        EXPECT_EQ(untouched[i].ppdDefault, row.ppdDefault);
        EXPECT_EQ(untouched[i].ppdOffset, row.offset);
        EXPECT_EQ(untouched[i].ppdStep, row.step);
        EXPECT_EQ(untouched[i].shownBase, row.base);
        EXPECT_EQ(untouched[i].shownFactor, row.factor);
        EXPECT_STREQ(untouched[i].format, row.format);
    }
    EXPECT_EQ(untouched[20].number, -1);
    EXPECT_EQ(untouched[20].keyword, nullptr);
}

TEST(SliderTable, ShowsAndWritesTheTypedValues)
{
    const PanelSession session; // makes the format strings
    for (int i = 0; i < 20; ++i) {
        const SliderRow &row = kRows[static_cast<std::size_t>(i)];
        SCOPED_TRACE(row.keyword);
        const auto shown = [i](int position) { return toQString(CreateScrollValueCFString(i, position)); };
        EXPECT_EQ(shown(row.minimum), QLatin1String(row.atMinimum));
        if (row.atMinusOne != nullptr) {
            EXPECT_EQ(shown(-1), QLatin1String(row.atMinusOne));
        }
        EXPECT_EQ(shown(0), QLatin1String(row.atZero));
        EXPECT_EQ(shown(row.maximum), QLatin1String(row.atMaximum));
        EXPECT_EQ(row.minimum * row.step + row.offset, row.ppdAtMinimum);
        EXPECT_EQ(row.maximum * row.step + row.offset, row.ppdAtMaximum);
        for (int position = row.minimum; position <= row.maximum; ++position) {
            const ScrollRow &slider = Scrolls[static_cast<std::size_t>(i)];
            EXPECT_EQ((position * slider.ppdStep + slider.ppdOffset - slider.ppdOffset) / slider.ppdStep, position);
        }
    }
}

TEST(PopUpTable, HoldsEveryRowAsTyped)
{
    struct Row {
        int page;
        const char *keyword, *label;
        int id;
    };
    const std::vector<Row> rows{
        {1, "*vornCartridgeType", "Cartridge", 4507},     {1, "*vornMediaType", "Media Type", 4501},
        {1, "*vornResolution", "Print Resolution", 4502}, {2, "*vornIntent", "Rendering Intent", 4504},
        {2, "*vornColorModel", "Color Mode", 4505},       {1, "*vornDithering", "Dithering", 4506},
        {2, "*vornColorspace", "Color Space", 4503},      {2, "*vornCMYKspace", "CMYK-Colorspace", 4508}};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(pops[i].page, rows[i].page);
        EXPECT_STREQ(pops[i].keyword, rows[i].keyword);
        EXPECT_STREQ(pops[i].label, rows[i].label);
        EXPECT_EQ(pops[i].controlId, rows[i].id);
        EXPECT_EQ(pops[i].defaultIndex, 1);
    }
    EXPECT_EQ(pops[rows.size()].keyword, nullptr);
}

TEST(OtherTables, HoldTheTypedValues)
{
    EXPECT_STREQ(checkboxes[0].keyword, "vornNoPrint");
    EXPECT_STREQ(checkboxes[1].keyword, "vornColorGamma");
    EXPECT_STREQ(checkboxes[2].keyword, "vornPSInterpreter");
    EXPECT_EQ(checkboxes[3].keyword, nullptr);
    EXPECT_EQ(dlgidx, (std::array<std::int32_t, 8>{1, 2, 4, 8, 16, 32, 0, 0}));
    EXPECT_EQ(LastInkBarID, (InkIDs{3011, 3012, 3013, 3014, 3015, 3016, 3017, 3018, 3019, 3020, 3021, 3022, 0}));
    EXPECT_EQ(TotalInkBarID, (InkIDs{2999, 3000, 3001, 3002, 3003, 3004, 3005, 3006, 3007, 3008, 3009, 3010, 0}));
    EXPECT_EQ(LastInkValueID,
              (InkIDs{3111, 3112, 3113, 3114, 3115, 3116, 3117, 3118, 3119, 3120, 3121, 3122, 3139}));
    EXPECT_EQ(TotalInkValueID,
              (InkIDs{3101, 3102, 3103, 3104, 3105, 3106, 3107, 3108, 3109, 3110, 3100, 3099, 3129}));
    EXPECT_EQ(LastInkNameID, (InkIDs{3211, 3212, 3213, 3214, 3215, 3216, 3217, 3218, 3219, 3220, 3221, 3222, 0}));
    EXPECT_EQ(TotalInkNameID, (InkIDs{3201, 3202, 3203, 3204, 3205, 3206, 3207, 3208, 3209, 3210, 3200, 3199, 0}));
}

/// How often each tag stands below a view, controls and bars alone.
std::map<qintptr, int> tagCounts(const QWidget *page)
{
    std::map<qintptr, int> counts;
    for (const QWidget *view : page->findChildren<QWidget *>()) {
        ++counts[tagOf(view)];
    }
    return counts;
}

TEST(InterfaceFile, CarriesEveryIdOnceOnItsPage)
{
    // Measured before the sliders give up their ids: the interface as loaded, without embedding.
    QString reason;
    const auto bundle = buildBundle();
    const std::map<int, std::set<qintptr>> expected{
        {0, {4501, 4502, 4506, 4507, 3556, 4101, 4401, 4102, 4402, 4706}},
        {1, {4503, 4504, 4505, 4508, 4104, 4404, 4105, 4405, 4117, 4417, 4106, 4406, 4107, 4407}},
        {2, {4131, 4431, 4132, 4432, 4133, 4433, 4134, 4434, 4707}},
        {3, {4003, 4705, 3139, 3129}},
        {4, {4108, 4408, 4109, 4409, 4110, 4410, 4111, 4411, 1901, 1935, 3577}},
        {5, {4112, 4412, 4113, 4413, 4114, 4414, 4115, 4415, 4116, 4416}}};
    QFile file(bundle->interfacePath(QStringLiteral("TessarinPDE_C")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    const QStringList pages = text.split(QStringLiteral("<attribute name=\"title\">"));
    ASSERT_EQ(pages.size(), 7);
    const auto count = [](const QString &where, qintptr id) {
        return where.count(QStringLiteral("<number>%1</number>").arg(id));
    };
    for (const auto &[page, ids] : expected) {
        for (const qintptr id : ids) {
            EXPECT_EQ(count(text, id), 1) << id;
            EXPECT_EQ(count(pages[page + 1], id), 1) << id << " on page " << page;
        }
    }
    for (const InkIDs &ids : {LastInkValueID, TotalInkValueID, LastInkNameID, TotalInkNameID}) {
        for (const std::int32_t id : ids) {
            if (id != 0) {
                EXPECT_EQ(count(pages[4], id), 1) << id;
            }
        }
    }
}

TEST(InterfaceFile, GivesEveryBarItsTagFromTheTopDown)
{
    PanelSession session;
    const QWidget *view = session.open();
    const auto *tabs = view->findChild<QTabWidget *>();
    const std::map<qintptr, int> counts = tagCounts(tabs->widget(3));
    for (int row = 0; row < 12; ++row) {
        EXPECT_EQ(counts.at(3011 + row), 1);
        EXPECT_EQ(counts.at(2999 + row), 1);
    }
}

} // namespace
} // namespace tessarin::test

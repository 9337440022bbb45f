// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ink/ink_rows.h"

#include <ostream>

namespace tessarin::test {

namespace {

// In the order in which the rows show the channels.
constexpr std::array<std::size_t, 20> kDisplayOrder{0, 1, 16, 17, 18, 2,  3,  19, 4,  9,
                                                    5, 7, 6,  8,  10, 11, 12, 13, 14, 15};

} // namespace

RowViews::RowViews(int top, int height) : box(std::make_unique<QWidget>())
{
    box->setGeometry(0, 0, 300, 300);
    for (std::size_t row = 0; row < 12; ++row) {
        const int line = top + 20 * static_cast<int>(row);
        names.at(row) = new QLabel(box.get());
        names.at(row)->setGeometry(10, line, 100, height);
        bars.at(row) = new LevelBox(box.get());
        bars.at(row)->setGeometry(120, line + 1, 102, height - 2);
        values.at(row) = new QLabel(box.get());
        values.at(row)->setGeometry(230, line, 60, height);
        names.at(row)->show(); // as the interface has them, before anything is hidden
        bars.at(row)->show();
        values.at(row)->show();
    }
    sum = new QLabel(box.get());
    sum->setGeometry(230, 260, 60, height);
}

std::ostream &operator<<(std::ostream &stream, const Row &row)
{
    return stream << '"' << row.name << "\" \"" << row.value << "\" " << row.level;
}

InkDisplay::InkDisplay()
{
    embed();
    context_->inkFirstLine = -1;
}

void InkDisplay::embed()
{
    ControlsStruct &controls = context_->controls;
    for (std::size_t row = 0; row < 12; ++row) {
        controls.lastInkNames[row] = last_.names[row];
        controls.lastInkBars[row] = last_.bars[row];
        controls.lastInkValues[row] = last_.values[row];
        controls.totalInkNames[row] = total_.names[row];
        controls.totalInkBars[row] = total_.bars[row];
        controls.totalInkValues[row] = total_.values[row];
    }
    controls.lastInkValues[12] = last_.sum;
    controls.totalInkValues[12] = total_.sum;
}

void InkDisplay::showChannel(std::size_t channel, std::int32_t lastCounter, std::int32_t totalCounter)
{
    context_->settings.inkSeen.at(channel) = 1;
    context_->settings.inkLast.at(channel) = lastCounter;
    context_->settings.inkTotal.at(channel) = totalCounter;
}

void InkDisplay::showFirst(std::size_t count)
{
    clearChannels();
    for (std::size_t place = 0; place < count; ++place) {
        context_->settings.inkSeen.at(kDisplayOrder.at(place)) = 1;
    }
}

void InkDisplay::clearChannels()
{
    context_->settings.inkSeen.fill(0);
    context_->settings.inkLast.fill(0);
    context_->settings.inkTotal.fill(0);
}

bool InkDisplay::isShown(const RowViews &rows, std::size_t row)
{
    const bool hidden = rows.values.at(row)->isHidden();
    EXPECT_EQ(rows.names.at(row)->isHidden(), hidden) << row;
    EXPECT_EQ(rows.bars.at(row)->isHidden(), hidden) << row;
    return !hidden;
}

Row InkDisplay::row(const RowViews &rows, std::size_t row)
{
    return {rows.names.at(row)->text().toStdString(), rows.values.at(row)->text().toStdString(),
            rows.bars.at(row)->level()};
}

std::vector<Row> InkDisplay::shownRows(const RowViews &rows)
{
    std::vector<Row> shown;
    for (std::size_t k = 0; k < 12; ++k) {
        if (isShown(rows, k)) {
            shown.push_back(row(rows, k));
        }
    }
    return shown;
}

Lines InkDisplay::shownNames(const RowViews &rows)
{
    Lines names;
    for (const Row &shown : shownRows(rows)) {
        names.push_back(shown.name);
    }
    return names;
}

} // namespace tessarin::test

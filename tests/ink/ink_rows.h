// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Ink boxes of real labels and bars, for tests of the rows without the panel's interface file.

#ifndef TESSARIN_TESTS_INK_INK_ROWS_H
#define TESSARIN_TESTS_INK_INK_ROWS_H

#include "ink/level_box.h"
#include "tests/ppd/ppd_test_support.h"

#include <QLabel>
#include <QWidget>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace tessarin::test {

/// The twelve rows of one box and its sum.
struct RowViews {
    /// Rows of `height`, the first at `top`, one every 20 pixels; bars are 2 lower than the labels.
    explicit RowViews(int top = 10, int height = 16);

    std::unique_ptr<QWidget> box;
    std::array<QLabel *, 12> names{};
    std::array<LevelBox *, 12> bars{};
    std::array<QLabel *, 12> values{};
    QLabel *sum = nullptr;
};

/// What a row shows.
struct Row {
    std::string name;
    std::string value;
    int level;

    bool operator==(const Row &) const = default;
};
std::ostream &operator<<(std::ostream &stream, const Row &row);

/// A context whose ink controls are the views of two boxes, not measured yet.
class InkDisplay : public testing::Test {
protected:
    InkDisplay();

    /// Makes the views of the boxes the context's ink controls, as the embedding does.
    void embed();
    void showChannel(std::size_t channel, std::int32_t lastCounter = 0, std::int32_t totalCounter = 0);
    /// Shows the first `count` channels in display order.
    void showFirst(std::size_t count);
    void clearChannels();

    static bool isShown(const RowViews &rows, std::size_t row);
    static Row row(const RowViews &rows, std::size_t row);
    /// The rows that are visible, from the top.
    static std::vector<Row> shownRows(const RowViews &rows);
    static Lines shownNames(const RowViews &rows);

    TestContext context_;
    RowViews last_;
    RowViews total_;
};

} // namespace tessarin::test

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Texts of the panel and the dialog are legible in light, dark and high-contrast themes, measured on what is drawn.

#include "host/edge_style.h"
#include "host/theme.h"
#include "ink/level_box.h"
#include "tests/screens/dialog_fixture.h"
#include "tests/screens/themes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>
#include <QTabBar>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tessarin::test {
namespace {

constexpr int kIconSpace = 8; // the least between a row's icon and its text, both margins included

QRgb commonestColour(const QImage &picture)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    return std::max_element(counts.begin(), counts.end(),
                            [](const auto &one, const auto &other) { return one.second < other.second; })
        ->first;
}

/// The contrast of a text with its ground, as drawn: of the pixel that differs most from the commonest one.
double drawnContrast(const QImage &picture)
{
    const QColor ground = QColor::fromRgb(commonestColour(picture));
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colours.insert(picture.pixel(x, y));
        }
    }
    double best = 1;
    for (const QRgb colour : colours) {
        best = std::max(best, host::contrast(QColor::fromRgb(colour), ground));
    }
    return best;
}

QModelIndexList allIndexes(const QAbstractItemModel &model, const QModelIndex &parent)
{
    QModelIndexList all;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            all << model.index(row, column, parent);
        }
        all << allIndexes(model, model.index(row, 0, parent));
    }
    return all;
}

/// The places of a view's texts, in its own coordinates, by what they say.
std::vector<std::pair<QString, QRect>> textPlaces(QWidget *view)
{
    const QRect inner = view->rect().adjusted(3, 3, -3, -3); // without a frame, which is no text
    if (const auto *label = qobject_cast<QLabel *>(view)) {
        return {{label->text(), view->rect()}};
    }
    if (const auto *button = qobject_cast<QAbstractButton *>(view)) {
        // A check box has its mark at the left, a push button its frame.
        const int left = button->isCheckable() ? 22 : 4;
        return {{button->text(), inner.adjusted(left, 0, -4, 0)}};
    }
    if (const auto *popup = qobject_cast<QComboBox *>(view)) {
        return {{popup->currentText(), inner.adjusted(4, 0, -22, 0)}};
    }
    if (const auto *line = qobject_cast<QLineEdit *>(view)) {
        return {{line->text() + line->placeholderText(), inner}};
    }
    std::vector<std::pair<QString, QRect>> places;
    if (const auto *bar = qobject_cast<QTabBar *>(view)) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            places.emplace_back(bar->tabText(tab), bar->tabRect(tab).adjusted(6, 6, -6, -4));
        }
    }
    if (const auto *list = qobject_cast<QAbstractItemView *>(view)) {
        for (const QModelIndex &index : allIndexes(*list->model(), {})) {
            const QRect place = list->visualRect(index).intersected(list->viewport()->rect());
            // An icon is a picture, which has rules of its own.
            const int icon = index.data(Qt::DecorationRole).isNull() ? 0 : list->iconSize().width() + kIconSpace;
            places.emplace_back(index.data().toString(),
                                place.adjusted(icon, 0, 0, 0).translated(list->viewport()->pos()));
        }
    }
    return places;
}

class Themes : public testing::TestWithParam<Theme> {
protected:
    Themes() { QApplication::setPalette(paletteOf(GetParam())); }
    ~Themes() override { QApplication::setPalette(QPalette()); }

    /// Looks at all enabled texts that are shown. Answers how many there were.
    int expectLegible(QWidget &window)
    {
        const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
        int texts = 0;
        for (QWidget *view : window.findChildren<QWidget *>()) {
            const bool isPart = view->visibleRegion().isEmpty() || qobject_cast<QHeaderView *>(view) != nullptr;
            if (!view->isEnabled() || !view->isVisibleTo(&window) || view->window() != &window || isPart) {
                continue;
            }
            for (const auto &[text, place] : textPlaces(view)) {
                const QRect seen = place.intersected(view->visibleRegion().boundingRect())
                                       .translated(view->mapTo(&window, QPoint()));
                if (text.trimmed().isEmpty() || seen.width() < 8 || seen.height() < 8) {
                    continue;
                }
                ++texts;
                EXPECT_GE(drawnContrast(picture.copy(seen)), host::kTextContrast)
                    << view->metaObject()->className() << ' ' << view->objectName().toStdString() << ": "
                    << text.toStdString();
            }
        }
        return texts;
    }
};

TEST_P(Themes, LeaveAllTextsLegible)
{
    const host::PlaceholderKeeper placeholders;
    WholeDialog whole("en");
    ASSERT_TRUE(whole.problem.isEmpty()) << whole.problem.toStdString();
    whole.dialog->setAttribute(Qt::WA_DontShowOnScreen); // no screen cuts it short
    whole.dialog->resize(whole.dialog->sizeHint());
    whole.dialog->show();
    whole.changeSome(); // for the summary's third column
    whole.dialog->notice()->tell(QStringLiteral("A notice that says something"), {{QStringLiteral("Undo"), [] {}}});
    whole.eachPage([&](const std::string &page) {
        SCOPED_TRACE(page);
        EXPECT_GT(expectLegible(*whole.dialog), page == "Summary" ? 40 : 10);
    });
}

TEST_P(Themes, MeetHintsThatAreLegible)
{
    const host::PlaceholderKeeper placeholders;
    const QPalette palette = QApplication::palette();
    const QColor base = palette.color(QPalette::Base);
    const QColor hint = palette.color(QPalette::PlaceholderText);
    EXPECT_EQ(hint.alpha(), 255);
    EXPECT_GE(host::contrast(hint, base), host::kTextContrast);
    EXPECT_LT(host::contrast(hint, base), host::contrast(palette.color(QPalette::Text), base))
        << "as pale as a text";
}

TEST_P(Themes, ShowInkBarsAndTheirInksAsTheyAre)
{
    QWidget box;
    box.resize(200, 60);
    LevelBox bar(&box);
    bar.setGeometry(20, 20, 110, 14);
    bar.setLevel(40);
    bar.setColor(QColor(255, 230, 0));
    box.show();
    const QImage picture = box.grab().toImage();
    EXPECT_EQ(picture.pixelColor(100, 27), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(40, 27), QColor(255, 230, 0));
    // The edge shows where the bar ends, on the window's ground as on the bar's own.
    const QColor ground = picture.pixelColor(10, 10);
    const QColor top = picture.pixelColor(100, 20);
    EXPECT_NE(top, QColor(Qt::white));
    EXPECT_NE(top, ground);
    EXPECT_GT(host::contrast(top, ground), 1.5);
    EXPECT_GT(host::contrast(top, Qt::white), 1.5);
}

INSTANTIATE_TEST_SUITE_P(All, Themes, testing::ValuesIn(kThemes),
                         [](const testing::TestParamInfo<Theme> &theme) { return theme.param.name; });

/// How much the line that goes through a view's middle, from its left edge on, differs from the window.
double edgeContrast(QWidget &window, const QWidget &view, int width)
{
    const QImage picture = window.grab().toImage();
    const QPoint corner = view.mapTo(&window, QPoint());
    double best = 1;
    for (int x = 0; x < width; ++x) {
        best = std::max(best, host::contrast(picture.pixelColor(corner + QPoint(x, view.height() / 2)),
                                             view.palette().color(QPalette::Window)));
    }
    return best;
}

TEST(EdgeStyle, ShowsControlsOnBlack)
{
    QApplication::setPalette(paletteOf(kBlackTheme));
    EXPECT_TRUE(host::EdgeStyle::isNeeded(QApplication::palette()));
    const QString before = QApplication::style()->name();
    {
        const host::EdgeKeeper edges;
        QWidget window;
        window.resize(300, 300);
        QCheckBox check(&window);
        QRadioButton radio(&window);
        QComboBox popup(&window);
        QLineEdit line(&window);
        QSlider slider(Qt::Horizontal, &window);
        QPushButton button(&window);
        const std::vector<QWidget *> controls{&check, &radio, &popup, &line, &slider, &button};
        for (std::size_t row = 0; row < controls.size(); ++row) {
            controls[row]->setGeometry(20, 20 + static_cast<int>(row) * 40, 160, 28);
        }
        window.show();
        check.setFocus();
        for (const QWidget *control : controls) {
            EXPECT_GE(edgeContrast(window, *control, 14), host::kShapeContrast)
                << control->metaObject()->className();
        }
    }
    QApplication::setStyle(before);
    QApplication::setPalette(QPalette());
}

TEST(EdgeStyle, IsNotNeededInUsualThemes)
{
    EXPECT_FALSE(host::EdgeStyle::isNeeded(paletteOf(kThemes[0])));
    EXPECT_FALSE(host::EdgeStyle::isNeeded(paletteOf(kThemes[1])));
    EXPECT_FALSE(host::EdgeStyle::isNeeded(paletteOf(kThemes[3])));
}

TEST(EdgeKeeper, FollowsTheTheme)
{
    const QString before = QApplication::style()->name();
    QApplication::setPalette(paletteOf(kThemes[0]));
    {
        const host::EdgeKeeper edges;
        QWidget window;
        window.resize(200, 60);
        QCheckBox check(&window);
        check.setGeometry(20, 20, 160, 28);
        window.show();
        const QImage light = window.grab().toImage();
        QApplication::setPalette(paletteOf(kBlackTheme));
        QApplication::processEvents();
        EXPECT_GE(edgeContrast(window, check, 14), host::kShapeContrast);
        QApplication::setPalette(paletteOf(kThemes[0]));
        QApplication::processEvents();
        EXPECT_EQ(window.grab().toImage(), light) << "edges stay in a theme that has its own";
    }
    QApplication::setStyle(before);
    QApplication::setPalette(QPalette());
}

TEST(PlaceholderKeeper, FollowsTheTheme)
{
    const host::PlaceholderKeeper placeholders;
    QApplication::setPalette(paletteOf(kThemes[0]));
    const QColor light = QApplication::palette().color(QPalette::PlaceholderText);
    QApplication::setPalette(paletteOf(kThemes[1]));
    const QColor dark = QApplication::palette().color(QPalette::PlaceholderText);
    EXPECT_LT(light.lightness(), 128);
    EXPECT_GT(dark.lightness(), 128);
    QApplication::setPalette(QPalette());
}

TEST(Contrast, IsThatOfTheGuidelines)
{
    EXPECT_NEAR(host::contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(host::contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    EXPECT_NEAR(host::contrast(Qt::red, Qt::red), 1, 0.01);
    EXPECT_EQ(host::legibleColor(QColor(0, 0, 0, 128), Qt::white, Qt::black, 4.5), QColor(Qt::black));
    EXPECT_EQ(host::legibleColor(Qt::blue, Qt::white, Qt::black, 4.5), QColor(Qt::blue));
}

} // namespace
} // namespace tessarin::test

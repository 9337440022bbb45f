// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Who uses the keyboard sees where it is: in every theme each control of the dialog and the panel looks clearly
// different when it has the focus, by more than a caret.

#include "host/edge_style.h"
#include "host/theme.h"
#include "tests/screens/dialog_fixture.h"
#include "tests/screens/themes.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStyle>

#include <gtest/gtest.h>

#include <set>

namespace tessarin::test {
namespace {

constexpr double kClearly = 1.5; // contrast of a pixel with what it was before
constexpr int kLeastColumns = 8; // that such pixels are in: a caret is in one or two

class Focus : public testing::TestWithParam<Theme> {
protected:
    Focus() { QApplication::setPalette(paletteOf(GetParam())); }
    ~Focus() override
    {
        QApplication::setStyle(before_);
        QApplication::setPalette(QPalette());
    }

private:
    QString before_ = QApplication::style()->name();
};

/// The columns of pixels in which two pictures differ clearly.
int changedColumns(const QImage &one, const QImage &other)
{
    std::set<int> columns;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const bool isSame = one.pixel(x, y) == other.pixel(x, y);
            if (!isSame && host::contrast(one.pixelColor(x, y), other.pixelColor(x, y)) >= kClearly) {
                columns.insert(x);
            }
        }
    }
    return static_cast<int>(columns.size());
}

bool takesTab(const QWidget &view, const QWidget &window)
{
    return view.isVisibleTo(&window) && view.isEnabled() && (view.focusPolicy() & Qt::TabFocus) != 0 &&
           view.focusProxy() == nullptr && view.window() == &window && !view.visibleRegion().isEmpty();
}

QImage pictureOf(QWidget &window, const QWidget &view)
{
    QApplication::processEvents();
    const QRect place = view.rect().translated(view.mapTo(&window, QPoint())).adjusted(-4, -4, 4, 4);
    return window.grab(place).toImage().convertToFormat(QImage::Format_RGB32);
}

/// Goes to each control that the Tab key reaches. Answers the kinds of controls that there were.
std::set<std::string> expectFocusShows(QWidget &window)
{
    std::set<std::string> kinds;
    QWidget elsewhere(&window);
    elsewhere.setFocusPolicy(Qt::TabFocus);
    elsewhere.show();
    for (QWidget *view : window.findChildren<QWidget *>()) {
        if (view == &elsewhere || !takesTab(*view, window)) {
            continue;
        }
        elsewhere.setFocus(Qt::TabFocusReason);
        const QImage without = pictureOf(window, *view);
        view->setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(view->hasFocus()) << view->objectName().toStdString();
        const QImage with = pictureOf(window, *view);
        EXPECT_GE(changedColumns(without, with), kLeastColumns)
            << view->metaObject()->className() << ' ' << view->objectName().toStdString();
        kinds.insert(view->metaObject()->className());
    }
    return kinds;
}

TEST_P(Focus, ShowsOnEveryControl)
{
    const host::PlaceholderKeeper placeholders;
    const host::EdgeKeeper edges;
    WholeDialog whole("en");
    ASSERT_TRUE(whole.problem.isEmpty()) << whole.problem.toStdString();
    whole.dialog->show();
    whole.dialog->resize(whole.dialog->sizeHint());
    whole.dialog->setAttribute(Qt::WA_KeyboardFocusChange); // as after the first Tab
    whole.dialog->notice()->tell(QStringLiteral("A notice"), {{QStringLiteral("Undo"), [] {}}});
    QApplication::processEvents();
    ASSERT_TRUE(whole.dialog->isActiveWindow());
    std::set<std::string> kinds;
    whole.eachPage([&](const std::string &page) {
        SCOPED_TRACE(page);
        kinds.merge(expectFocusShows(*whole.dialog));
    });
    for (const char *kind : {"QCheckBox", "QComboBox", "QLineEdit", "QListWidget", "QPushButton", "QRadioButton",
                             "QSlider", "QSpinBox", "QToolButton", "QTreeWidget", "tessarin::AskingTabBar",
                             "tessarin::PopUpButton", "tessarin::host::OptionBox", "tessarin::host::PreviewPane"}) {
        EXPECT_TRUE(kinds.contains(kind)) << kind;
    }
}

INSTANTIATE_TEST_SUITE_P(All, Focus, testing::ValuesIn(kThemes),
                         [](const testing::TestParamInfo<Theme> &theme) { return theme.param.name; });

} // namespace
} // namespace tessarin::test

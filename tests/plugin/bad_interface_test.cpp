// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A panel on interface files of another shape than the installed one: views of other classes, other ids, ids twice.

#include "platform/tab_view.h"
#include "plugin/password_pde.h"
#include "tests/plugin/plugin_test_support.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

QByteArray tag(int id)
{
    return "<number>" + QByteArray::number(id) + "</number>";
}

QByteArray replaced(QByteArray text, const QByteArray &what, const QByteArray &instead)
{
    EXPECT_TRUE(text.contains(what)) << what.toStdString();
    return text.replace(what, instead);
}

/// The interface with another class for the view of an id.
QByteArray withClass(int id, const QByteArray &className)
{
    QByteArray text = interfaceText();
    const qsizetype place = text.indexOf(tag(id));
    const QByteArray start = "<widget class=\"";
    const qsizetype begin = text.lastIndexOf(start, place) + start.size();
    return text.replace(begin, text.indexOf('"', begin) - begin, className);
}

class BadInterface : public testing::Test {
protected:
    /// The view of a panel with this interface file, set up, restored and saved.
    QWidget *lived(const QByteArray &interface)
    {
        temporary_.writeInterface(interface);
        panel = makePanel(host, temporary_.open());
        QWidget *view = panel->panelView();
        EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
        host->changes.clear();
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
        return view;
    }
    long saved(const char *key, const char *value) const
    {
        return std::count(host->changes.begin(), host->changes.end(), Change(key, value));
    }
    const ControlsStruct &controls() const { return panel->panelContext()->controls; }

private:
    SharedTables tables_;
    Ghostscript ghostscript_{true};
    TemporaryBundle temporary_;

protected:
    std::shared_ptr<RecordingHost> host = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    std::shared_ptr<PasswordPDE> panel;
};

TEST_F(BadInterface, WithALabelForAPopUpSavesNothingForIt)
{
    ASSERT_NE(lived(withClass(4506, "QLabel")), nullptr);
    EXPECT_EQ(saved("vornDithering", "Diffusion"), 0) << "as for every view that is no pop-up";
    EXPECT_EQ(host->changes.size(), 30U);
}

TEST_F(BadInterface, WithAPopUpForASliderSavesItsPosition)
{
    host->mark("vornBrightness", "50");
    ASSERT_NE(lived(withClass(4101, "PopUpButton")), nullptr);
    EXPECT_EQ(saved("vornBrightness", "0"), 1) << "a view without a position is at 0";
    EXPECT_EQ(host->changes.size(), 31U);
}

TEST_F(BadInterface, WithAButtonForACheckBoxStillSavesTheOthers)
{
    ASSERT_NE(lived(withClass(4705, "QPushButton")), nullptr);
    EXPECT_EQ(saved("vornColorGamma", "0"), 1);
    EXPECT_EQ(saved("vornMediaType", "Photo6"), 1);
}

TEST_F(BadInterface, WithASliderForTheTabViewHasNoControls)
{
    QByteArray text =
        replaced(interfaceText(), "class=\"TabView\" name=\"PDETabView\"", "class=\"QSlider\" name=\"PDETabView\"");
    ASSERT_NE(lived(text), nullptr);
    EXPECT_EQ(controls().popupControls.at(kPopMediaType), nullptr);
    EXPECT_EQ(controls().sliderControls.at(0), nullptr);
    EXPECT_EQ(host->changes.size(), 28U) << "the settings are saved all the same";
}

TEST_F(BadInterface, WithoutAnyKnownIdSavesTheSettings)
{
    QByteArray text = interfaceText();
    const auto ids =
        QRegularExpression(QStringLiteral("(<property name=\"tag\" stdset=\"0\">\\s*<number>)[0-9]+(</number>)"));
    text = QString::fromUtf8(text).replace(ids, QStringLiteral("\\1777777\\2")).toUtf8();
    ASSERT_NE(lived(text), nullptr);
    EXPECT_EQ(controls().popupControls.at(kPopMediaType), nullptr);
    EXPECT_EQ(controls().sliderControls.at(0), nullptr);
    EXPECT_EQ(host->changes.size(), 28U);
    EXPECT_EQ(saved("vornMediaType", "Photo6"), 1);
}

TEST_F(BadInterface, WithAnIdTwiceTakesTheFirstView)
{
    ASSERT_NE(lived(replaced(interfaceText(), tag(4102), tag(4101))), nullptr);
    EXPECT_NE(controls().sliderControls.at(0), nullptr);
    EXPECT_EQ(controls().sliderControls.at(1), nullptr);
    EXPECT_EQ(host->changes.size(), 31U);
}

TEST_F(BadInterface, WithNumbersBeyondEveryIdHasNoSuchControl)
{
    for (const char *number : {"-4101", "4294971397", "99999999999999999999"}) {
        ASSERT_NE(lived(replaced(interfaceText(), tag(4101), "<number>" + QByteArray(number) + "</number>")),
                  nullptr)
            << number;
        EXPECT_EQ(controls().sliderControls.at(0), nullptr) << number;
        EXPECT_EQ(host->changes.size(), 31U) << number;
    }
}

TEST_F(BadInterface, WithAnUnknownClassIsReadWithoutIt)
{
    lived(withClass(4506, "NoSuchView"));
    EXPECT_EQ(controls().popupControls.at(kPopDithering), nullptr);
    EXPECT_EQ(saved("vornDithering", "Diffusion"), 1);
}

} // namespace
} // namespace tessarin::test

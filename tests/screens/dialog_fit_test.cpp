// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// In every language, at the usual font and at a larger one, each text of the dialog has the room that it needs,
// also on a small screen.

#include "printing/text.h"
#include "tests/screens/dialog_fixture.h"
#include "tests/screens/text_fit.h"
#include "tests/screens/variants.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tessarin::test {
namespace {

constexpr QSize kSmallScreen(1024, 600);
constexpr QSize kTinyScreen(683, 400); // the same at one and a half times the size
constexpr QSize kFrame(16, 40);        // what the window manager adds

class DialogTextsFit : public testing::TestWithParam<std::tuple<std::string, int>> {
protected:
    /// `isRoomy`: no row has to be scrolled sideways.
    void expectFit(WholeDialog &whole, bool isRoomy)
    {
        int pages = 0;
        whole.eachPage([&](const std::string &page) {
            ++pages;
            const TextFit fit = textFit(whole.dialog.get());
            EXPECT_GT(fit.texts, 10) << page;
            EXPECT_TRUE(fit.faults.isEmpty()) << page << ":\n" << fit.faults.join(u'\n').toStdString();
            EXPECT_TRUE(!isRoomy || fit.aside.isEmpty()) << page << ":\n" << fit.aside.join(u'\n').toStdString();
        });
        EXPECT_EQ(pages, 9);
    }

    FontScale font_{std::get<1>(GetParam())};
    WholeDialog whole_{std::get<0>(GetParam())};
};

TEST_P(DialogTextsFit, AtItsOwnSize)
{
    ASSERT_TRUE(whole_.problem.isEmpty()) << whole_.problem.toStdString();
    whole_.dialog->setAttribute(Qt::WA_DontShowOnScreen); // no screen cuts it short
    whole_.dialog->resize(whole_.dialog->sizeHint());
    whole_.dialog->show();
    expectFit(whole_, true);
    whole_.changeSome(); // the summary's notes are longer then
    expectFit(whole_, false);
}

TEST_P(DialogTextsFit, OnASmallScreen)
{
    ASSERT_TRUE(whole_.problem.isEmpty()) << whole_.problem.toStdString();
    const QSize room = kSmallScreen - kFrame;
    whole_.dialog->setAttribute(Qt::WA_DontShowOnScreen);
    whole_.dialog->show();
    whole_.changeSome();
    whole_.dialog->notice()->tell(
        host::TessarinPrint::tr("There are no printers. Choose another destination from the list above, or add a "
                                "printer in the system's settings and look again."),
        {{host::TessarinPrint::tr("&Undo"), [] {}}});
    whole_.dialog->resize(whole_.dialog->sizeHint().boundedTo(room));
    expectFit(whole_, false);
    EXPECT_LE(whole_.dialog->width(), room.width());
    EXPECT_LE(whole_.dialog->height(), room.height());
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogTextsFit, languagesAndFonts(), variantName);

class TinyScreen : public testing::TestWithParam<std::string> {};

TEST_P(TinyScreen, HasRoomForTheButtons)
{
    WholeDialog whole(GetParam());
    ASSERT_TRUE(whole.problem.isEmpty()) << whole.problem.toStdString();
    const QSize room = kTinyScreen - kFrame;
    whole.dialog->setAttribute(Qt::WA_DontShowOnScreen);
    whole.dialog->show();
    whole.dialog->notice()->tell(host::TessarinPrint::tr("All settings are at their defaults."),
                                 {{host::TessarinPrint::tr("&Undo"), [] {}}});
    whole.eachPage([&](const std::string &page) {
        SCOPED_TRACE(page);
        whole.dialog->resize(room);
        EXPECT_LE(whole.dialog->width(), room.width());
        EXPECT_LE(whole.dialog->height(), room.height());
        for (const char *name : {"presets", "separateJobs", "print", "cancel", "noticeClose"}) {
            const auto *button = whole.dialog->findChild<QWidget *>(QLatin1String(name));
            ASSERT_NE(button, nullptr) << name;
            EXPECT_EQ(button->visibleRegion(), QRegion(button->rect())) << name;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, TinyScreen, testing::ValuesIn(shippedLanguages()), languageName);

} // namespace
} // namespace tessarin::test

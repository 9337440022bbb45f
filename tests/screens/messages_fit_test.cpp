// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// In every language, at the usual font and at a larger one, each text of the windows that the dialog opens has the
// room that it needs, and the windows fit a small screen.

#include "host/custom_size_dialog.h"
#include "host/save_preset_dialog.h"
#include "printing/text.h"
#include "tests/screens/dialog_fixture.h"
#include "tests/screens/text_fit.h"
#include "tests/screens/variants.h"

#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

#include <tuple>

namespace tessarin::test {
namespace {

constexpr QSize kRoom(1024 - 16, 600 - 40); // of a small screen, without a window's frame

class MessagesFit : public testing::TestWithParam<std::tuple<std::string, int>> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(whole_.problem.isEmpty()) << whole_.problem.toStdString();
        whole_.dialog->show();
    }

    /// `texts`: the least number of texts that the window shows.
    void expectFits(QWidget &window, int texts)
    {
        window.show();
        QApplication::processEvents();
        const TextFit fit = textFit(&window);
        EXPECT_GE(fit.texts, texts);
        EXPECT_TRUE(fit.faults.isEmpty()) << fit.faults.join(u'\n').toStdString();
        EXPECT_LE(window.width(), kRoom.width());
        EXPECT_LE(window.height(), kRoom.height());
    }

    QMessageBox *message(const char *name) const
    {
        return whole_.dialog->findChild<QMessageBox *>(QLatin1String(name));
    }

    FontScale font_{std::get<1>(GetParam())};
    WholeDialog whole_{std::get<0>(GetParam())};
};

TEST_P(MessagesFit, ACustomSize)
{
    host::CustomSizeDialog size(whole_.dialog->openPrinter()->printer(), QSizeF(), whole_.dialog.get());
    expectFits(size, 6);
}

TEST_P(MessagesFit, APresetAndWhatIsWrongWithIt)
{
    const std::shared_ptr<host::OpenPrinter> printer(whole_.dialog->openPrinter(), [](host::OpenPrinter *) {});
    host::SavePresetDialog preset(printer, {QStringLiteral("A")}, whole_.dialog.get());
    expectFits(preset, 7);
    auto *name = preset.findChild<QLineEdit *>(QStringLiteral("presetName"));
    name->setText(QStringLiteral("A"));
    expectFits(preset, 9); // with the name and that it is taken
    name->setText(host::PresetMenu::lastUsedName());
    expectFits(preset, 8);
}

TEST_P(MessagesFit, SettingsThatExcludeEachOther)
{
    ASSERT_EQ(whole_.dialog->applyValues(
                  {{.key = QStringLiteral("vornMediaType"), .value = QStringLiteral("PhotoGloss06")}}),
              QString());
    whole_.dialog->choose(QStringLiteral("vornCartridgeType"), QStringLiteral("MatteBlack"));
    ASSERT_NE(message("conflict"), nullptr);
    expectFits(*message("conflict"), 4);
}

TEST_P(MessagesFit, AFailure)
{
    whole_.dialog->findChild<QPushButton *>(QStringLiteral("print"))->click();
    ASSERT_NE(message("failure"), nullptr);
    expectFits(*message("failure"), 5);
}

INSTANTIATE_TEST_SUITE_P(Languages, MessagesFit, languagesAndFonts(), variantName);

} // namespace
} // namespace tessarin::test

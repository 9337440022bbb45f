// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/offscreen.h"

#include "host/printer_choices.h"

#include "tests/host/fake_panel.h"
#include "tests/host/host_test_support.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class PicturesTest : public testing::Test {
protected:
    void open(test::Offer offer)
    {
        const auto printer = test::minimalPrinter();
        ASSERT_TRUE(printer);
        plugIn_ = std::make_unique<test::FakePlugIn>(offer, std::make_shared<QStringList>());
        dialog_ = std::make_unique<PrintDialog>(DialogParts{
            .plugIn = plugIn_.get(), .printer = printer, .wanted = ppdChoice(test::fixture("minimal.ppd"))});
    }

    QTemporaryDir folder_{};
    std::unique_ptr<test::FakePlugIn> plugIn_{};
    std::unique_ptr<PrintDialog> dialog_{};
};

TEST_F(PicturesTest, ShowEachPageThatCanBeSelected)
{
    open(test::Offer::Panel);
    const QString directory = folder_.filePath(u"new/folder"_s);
    const auto pictures = savePictures(*dialog_, directory);
    ASSERT_TRUE(pictures.ok()) << pictures.reason().toStdString();
    EXPECT_EQ(QDir(directory).entryList(QDir::Files),
              (QStringList{u"tessarin-page-1-General.png"_s, u"tessarin-page-2-Ink-Usage.png"_s}));
    for (const QString &file : pictures.value().files) {
        EXPECT_GE(QImage(file).width(), 480) << file.toStdString();
    }
    ASSERT_EQ(pictures.value().notes.size(), 1);
    EXPECT_TRUE(pictures.value().notes[0].contains(u"Refused"_s));
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(PicturesTest, ShowTheDialogOnceWithoutPages)
{
    open(test::Offer::EmptyArray);
    const auto pictures = savePictures(*dialog_, folder_.path());
    ASSERT_TRUE(pictures.ok()) << pictures.reason().toStdString();
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{u"tessarin-dialog.png"_s});
}

TEST_F(PicturesTest, NeedAFolder)
{
    open(test::Offer::Panel);
    const QString file = folder_.filePath(u"file"_s);
    test::writeFile(file, "x");
    EXPECT_EQ(savePictures(*dialog_, file).reason(), u"folder for pictures %1: it cannot be made"_s.arg(file));
}

TEST(DisplayIsMissing, OnlyWithoutDisplayAndWithoutPlatform)
{
    const std::array<const char *, 1> plain = {"p"};
    const std::array<const char *, 3> platform = {"p", "-platform", "offscreen"};
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        qunsetenv("DISPLAY");
        qunsetenv("WAYLAND_DISPLAY");
        qunsetenv("QT_QPA_PLATFORM");
        EXPECT_TRUE(displayIsMissing(1, plain.data()));
        EXPECT_FALSE(displayIsMissing(3, platform.data()));
        qputenv(name, "x");
        EXPECT_FALSE(displayIsMissing(1, plain.data())) << name;
    }
}

} // namespace
} // namespace tessarin::host

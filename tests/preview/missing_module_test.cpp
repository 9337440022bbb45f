// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A program beside which the module that reads PDF files is missing. This program of tests lies in a folder of its
// own, from where nothing is found.

#include "preview/page_source.h"
#include "tests/host/host_test_support.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

class MissingModule : public testing::Test {
protected:
    QString path(const QString &name) const { return folder_.filePath(name); }

    QString document()
    {
        test::writeFile(path(u"a.pdf"_s), "%PDF-1.4\n");
        return path(u"a.pdf"_s);
    }

    static QString modulePath()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/" TESSARIN_PDF_MODULE_FROM_BIN);
    }

private:
    QTemporaryDir folder_{};
};

TEST_F(MissingModule, IsNamedWithTheDocument)
{
    ASSERT_FALSE(QFileInfo::exists(modulePath()));
    const Outcome<std::unique_ptr<PageSource>> opened = openPages(document());
    ASSERT_FALSE(opened.ok());
    const QString beginning = u"a.pdf: the part of this program that reads PDF files is missing: "_s;
    EXPECT_TRUE(opened.reason().startsWith(beginning)) << opened.reason().toStdString();
    EXPECT_GT(opened.reason().size(), beginning.size()); // with the loader's reason
}

TEST_F(MissingModule, LeavesOtherDocumentsAsTheyAre)
{
    ASSERT_FALSE(openPages(document()).ok());
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(path(u"a.png"_s)));
    EXPECT_TRUE(openPages(path(u"a.png"_s)).ok());
}

} // namespace
} // namespace tessarin::host

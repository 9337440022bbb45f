// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Making a counter file from the extra data of a PPD.

#include "ink/extra_data.h"
#include "tests/ink/ink_test_support.h"
#include "tests/support/captured_log.h"

#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::test {
namespace {

class ExtraDataFile : public testing::Test {
protected:
    std::string pathOf(const char *name) const { return folder_.filePath(QString::fromLatin1(name)).toStdString(); }
    static std::optional<std::string> content(const std::string &path)
    {
        QFile file(QString::fromStdString(path));
        return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll().toStdString()) : std::nullopt;
    }
    Lines process(const std::string &ppdText, const std::string &path)
    {
        const TextFile ppd(ppdText);
        const CapturedLog log;
        processEXData(ppd.path().c_str(), path.c_str());
        return log.lines();
    }

    QTemporaryDir folder_;
    std::string path_ = pathOf("sample.ink");
};

TEST_F(ExtraDataFile, IsMadeWhereThereIsNone)
{
    const std::string text = "LastInk_M=12\nTotalInk_M=900\n";
    EXPECT_EQ(process(ppdTextWithBlock(text), path_),
              logged({"###EXDATA###\n", text, "Writing InkDataFile:", path_, "\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(content(path_), text);
}

TEST_F(ExtraDataFile, HoldsTheBlockWithoutItsFinalNul)
{
    const std::string block("a\0b\0", 4);
    EXPECT_EQ(process(ppdTextWithBlock(block), path_),
              logged({"###EXDATA###\n", "a", "Writing InkDataFile:", path_, "\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(content(path_), block);
}

TEST_F(ExtraDataFile, IsEmptyForAnEmptyBlock)
{
    EXPECT_EQ(process(ppdTextWithBlock(""), path_),
              logged({"###EXDATA###\n", "", "Writing InkDataFile:", path_, "\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(content(path_), "");
}

TEST_F(ExtraDataFile, IsNeverOverwritten)
{
    QFile file(QString::fromStdString(path_));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("LastInk_C=1\n");
    file.close();
    EXPECT_EQ(process(ppdTextWithBlock("LastInk_M=12\n"), path_),
              logged({"###EXDATA###\n", "LastInk_M=12\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(content(path_), "LastInk_C=1\n");
}

TEST_F(ExtraDataFile, IsNotMadeWithoutABlock)
{
    EXPECT_EQ(process(ppdTextWith({}), path_), logged({"###EXDATA###\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(process("no PPD\n", path_), logged({"###EXDATA###\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(content(path_), std::nullopt);
    const CapturedLog log;
    processEXData("/nonexistent.ppd", path_.c_str());
    EXPECT_EQ(log.lines(), logged({"###EXDATA###\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(content(path_), std::nullopt);
}

TEST_F(ExtraDataFile, HoldsConversionsAsText)
{
    const std::string text = "%s%n%d %S 100%\n";
    EXPECT_EQ(process(ppdTextWithBlock(text), path_)[1], "LOG " + text);
    EXPECT_EQ(content(path_), text);
}

TEST_F(ExtraDataFile, MayBeImpossibleToMake)
{
    const std::string path = pathOf("missing/sample.ink");
    EXPECT_EQ(process(ppdTextWithBlock("x"), path),
              logged({"###EXDATA###\n", "x", "Writing InkDataFile:", path, "\n", "###EXDATA-END###\n"}));
    EXPECT_EQ(content(path), std::nullopt);
}

TEST_F(ExtraDataFile, IsNotWrittenIntoAPipe)
{
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    alarm(20); // a wait would end the program
    process(ppdTextWithBlock("x"), path_);
    alarm(0);
    struct stat status = {};
    ASSERT_EQ(lstat(path_.c_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

} // namespace
} // namespace tessarin::test

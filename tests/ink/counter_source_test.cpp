// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the counters come from: the counter file, the extra data of the PPD, or nowhere; and what is logged of it.

#include "ink/counter_reader.h"
#include "ink/level_display.h"
#include "platform/bounded_copy.h"
#include "tests/ink/ink_test_support.h"
#include "tests/support/captured_log.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr char kNoFile[] = "/nonexistent/sample.ink";

class CounterSource : public testing::Test {
protected:
    void setPPD(std::string_view text)
    {
        ppd_.emplace(text);
        ASSERT_LT(ppd_->path().size(), context_->ppdPath.size());
        std::copy_n(ppd_->path().c_str(), ppd_->path().size() + 1, context_->ppdPath.begin());
    }
    const PanelSettings &settings() const { return context_->settings; }
    bool nothingShown() const
    {
        return settings().inkSeen == decltype(settings().inkSeen){} &&
               settings().inkLast == decltype(settings().inkLast){} &&
               settings().inkTotal == decltype(settings().inkTotal){};
    }

    TestContext context_;
    std::optional<TextFile> ppd_;
};

TEST_F(CounterSource, IsTheFile)
{
    const TextFile file("TotalInk_K=5000\nrubbish\nLastInk_KP=30\n");
    const CapturedLog log;
    ParseInkData(file.path().c_str(), context_);
    EXPECT_EQ(log.lines(),
              logged({"Using direct inkfile-data\n", "Start ink-data-Scan\n", "Got Line:TotalInk_K=5000\n\n",
                      "Total Value for 'K' = 5000\n", "Got Line:rubbish\n\n", "Got Line:LastInk_KP=30\n\n",
                      "Last Value for 'KP' = 30\n", "HAVE 1 inkchannels\n"}));
}

TEST_F(CounterSource, IsTheExtraDataWithoutAFile)
{
    setPPD(ppdTextWithBlock("LastInk_M=12\r\n\r\nTotalInk_M=900"));
    const CapturedLog log;
    ParseInkData(kNoFile, context_);
    EXPECT_EQ(log.lines(),
              logged({"Using PPD-EXDATA from ppdfilepath:" + ppd_->path() + "\n", "Start ink-data-Scan\n",
                      "Got Line:LastInk_M=12\n", "Last Value for 'M' = 12\n", "Got Line:TotalInk_M=900\n",
                      "Total Value for 'M' = 900\n", "HAVE 1 inkchannels\n"}));
    EXPECT_EQ(settings().inkLast[5], 12);
    EXPECT_EQ(settings().inkTotal[5], 900);
}

TEST_F(CounterSource, IsTheFileEvenWhereThereIsExtraData)
{
    setPPD(ppdTextWithBlock("LastInk_M=12\nLastInk_C=13\n"));
    const TextFile file("LastInk_M=1\n");
    const CapturedLog log;
    ParseInkData(file.path().c_str(), context_);
    EXPECT_EQ(log.lines(),
              logged({"Using direct inkfile-data\n", "Start ink-data-Scan\n", "Got Line:LastInk_M=1\n\n",
                      "Last Value for 'M' = 1\n", "HAVE 1 inkchannels\n"}));
    EXPECT_EQ(settings().inkLast[5], 1);
    EXPECT_EQ(settings().inkLast[6], 0);
}

TEST_F(CounterSource, IsAnEmptyFileEvenWhereThereIsExtraData)
{
    setPPD(ppdTextWithBlock("LastInk_M=12\n"));
    const TextFile file("");
    const CapturedLog log;
    ParseInkData(file.path().c_str(), context_);
    EXPECT_EQ(log.lines(),
              logged({"Using direct inkfile-data\n", "Start ink-data-Scan\n", "HAVE 0 inkchannels\n"}));
    EXPECT_TRUE(nothingShown());
}

TEST_F(CounterSource, MayBeEmptyExtraData)
{
    setPPD(ppdTextWithBlock(""));
    const CapturedLog log;
    context_->settings.inkChannelCount = 7;
    ParseInkData(kNoFile, context_);
    EXPECT_EQ(log.lines(), logged({"Using PPD-EXDATA from ppdfilepath:" + ppd_->path() + "\n",
                                   "Start ink-data-Scan\n", "HAVE 0 inkchannels\n"}));
    EXPECT_EQ(settings().inkChannelCount, 0);
}

TEST_F(CounterSource, MayBeNowhere)
{
    setPPD(ppdTextWith({}));
    PanelSettings &given = context_->settings;
    given.inkLast[3] = given.inkTotal[4] = given.inkSeen[5] = 9;
    given.inkChannelCount = 7;
    const CapturedLog log;
    ParseInkData(kNoFile, context_);
    EXPECT_EQ(log.lines(), logged({std::string("Inkdata-File not found:") + kNoFile + "\n"}));
    EXPECT_TRUE(nothingShown());
    EXPECT_EQ(settings().inkChannelCount, 7);
}

TEST_F(CounterSource, IsTheFileAloneWithoutAPPD)
{
    const TextFile noPPD("no PPD\n");
    const TextFile file("LastInk_M=1\n");
    for (const std::string &path : {std::string("/nonexistent.ppd"), noPPD.path(), std::string()}) {
        copyBounded(context_->ppdPath, path.c_str());
        ParseInkData(file.path().c_str(), context_);
        EXPECT_EQ(settings().inkLast[5], 1) << path;
        const CapturedLog log;
        ParseInkData(kNoFile, context_);
        EXPECT_EQ(log.lines(), logged({std::string("Inkdata-File not found:") + kNoFile + "\n"})) << path;
    }
}

TEST_F(CounterSource, IsNotTheContextsOwnPath)
{
    const TextFile own("LastInk_C=1\n");
    const TextFile given("LastInk_M=1\n");
    copyBounded(context_->settings.inkFilePath, own.path().c_str());
    ParseInkData(given.path().c_str(), context_);
    EXPECT_EQ(settings().inkLast[5], 1);
    EXPECT_EQ(settings().inkLast[6], 0);
}

// The damaged block is told of on standard error, which shows that it was read although the file was there.
TEST_F(CounterSource, HasTheExtraDataReadBeforeTheFileIsOpened)
{
    setPPD(ppdTextWith({{"EXData0000", "ICAg"}, {"EXData0001", ""}}));
    const TextFile file("LastInk_M=1\n");
    EXPECT_EQ(standardErrorOf([&] { ParseInkData(file.path().c_str(), context_); }),
              "ERROR: inflate returned -3 (incorrect header check)\n");
    EXPECT_EQ(settings().inkLast[5], 1);
}

TEST_F(CounterSource, MayHoldNulsInTheExtraData)
{
    setPPD(ppdTextWithBlock(std::string_view("LastInk_M=1\0LastInk_C=2\0\0\r\n\0LastInk_Y=3", 39)));
    ParseInkData(kNoFile, context_);
    EXPECT_EQ(settings().inkLast[5], 1);
    EXPECT_EQ(settings().inkLast[6], 2);
    EXPECT_EQ(settings().inkLast[4], 3);
}

TEST_F(CounterSource, BeginsWithAnEmptyLineWhereTheExtraDataDoes)
{
    setPPD(ppdTextWithBlock("\r\n\nLastInk_M=1\n"));
    const CapturedLog log;
    ParseInkData(kNoFile, context_);
    EXPECT_EQ(log.countStarting("LOG Got Line:"), 2);
    EXPECT_EQ(log.count("LOG Got Line:\n"), 1);
    EXPECT_EQ(settings().inkLast[5], 1);
}

TEST_F(CounterSource, MayHoldLongLinesInTheExtraData)
{
    setPPD(ppdTextWithBlock(std::string(255, 'x') + "\nLastInk_M=1\n" + std::string(250, 'y') + "LastInk_C=2\n"));
    const CapturedLog log;
    ParseInkData(kNoFile, context_);
    EXPECT_EQ(log.countStarting("LOG Got Line:"), 4);
    EXPECT_EQ(log.count("LOG Got Line:nk_C=2\n"), 1);
    EXPECT_EQ(settings().inkLast[5], 1);
    EXPECT_EQ(settings().inkLast[6], 0);
}

TEST_F(CounterSource, IsReadAgainOnReload)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sample.ink"));
    const auto write = [&path](const char *text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
    };
    copyBounded(context_->settings.inkFilePath, path.toUtf8().constData());
    setPPD(ppdTextWithBlock("LastInk_Y=3\n"));
    write("LastInk_M=1\n");
    ReloadInkCounters(context_);
    EXPECT_EQ(settings().inkLast[5], 1);
    write("LastInk_C=2\n");
    ReloadInkCounters(context_);
    EXPECT_EQ(settings().inkLast[5], 0);
    EXPECT_EQ(settings().inkLast[6], 2);
    EXPECT_EQ(settings().inkChannelCount, 1);
    ASSERT_TRUE(QFile::remove(path));
    ReloadInkCounters(context_);
    EXPECT_EQ(settings().inkLast[6], 0);
    EXPECT_EQ(settings().inkLast[4], 3);
}

TEST_F(CounterSource, IsParsedBeforeTheRowsAreSet)
{
    const TextFile file("LastInk_M=1\n");
    copyBounded(context_->settings.inkFilePath, file.path().c_str());
    const CapturedLog log;
    ReloadInkCounters(context_);
    EXPECT_EQ(log.indexOf("LOG Using direct inkfile-data\n"), 0);
    EXPECT_EQ(log.indexOf("LOG HAVE 1 inkchannels\n") + 1, log.indexOf("LOG Setting inkChannels\n"));
}

} // namespace
} // namespace tessarin::test

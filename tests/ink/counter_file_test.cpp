// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Counter files that are none, cannot be read, or hold anything but counters: nothing hangs, and extra data steps
// in where the file does not open.

#include "ink/counter_reader.h"
#include "platform/bounded_copy.h"
#include "tests/ink/ink_test_support.h"
#include "tests/support/captured_log.h"

#include <QFile>

#include <gtest/gtest.h>

#include <array>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessarin::test {
namespace {

#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
constexpr double kPatience = 1.0;
#else
constexpr double kPatience = 20.0; // code that is not optimised, or instrumented
#endif

class CounterFile : public testing::Test {
protected:
    CounterFile() : ppd_(ppdTextWithBlock("LastInk_Y=3\n")) { copyBounded(context_->ppdPath, ppd_.path()); }
    std::string pathOf(const char *name) const { return folder_.filePath(QString::fromLatin1(name)).toStdString(); }
    void write(const std::string &path, std::string_view text) const
    {
        QFile file(QString::fromStdString(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text.data(), static_cast<qsizetype>(text.size())), static_cast<qint64>(text.size()));
    }
    /// Parses a file that counts as missing: the extra data is read, and at once.
    void expectExtraData(const std::string &path)
    {
        const CapturedLog log;
        EXPECT_LT(processorSeconds([&] { ParseInkData(path.c_str(), context_); }), kPatience);
        EXPECT_EQ(log.indexOf("LOG Using PPD-EXDATA from ppdfilepath:" + ppd_.path() + "\n"), 0);
        EXPECT_EQ(context_->settings.inkLast[4], 3);
    }

    TestContext context_;
    QTemporaryDir folder_;

private:
    TextFile ppd_;
};

TEST_F(CounterFile, ThatIsMissingLeavesTheExtraData)
{
    expectExtraData(pathOf("missing.ink"));
    expectExtraData("");
}

TEST_F(CounterFile, BelowAFileLeavesTheExtraData)
{
    write(pathOf("file"), "LastInk_M=1\n");
    expectExtraData(pathOf("file/sample.ink"));
}

TEST_F(CounterFile, BehindALinkToItselfLeavesTheExtraData)
{
    ASSERT_EQ(symlink("loop.ink", pathOf("loop.ink").c_str()), 0);
    expectExtraData(pathOf("loop.ink"));
}

TEST_F(CounterFile, WithAnEndlessNameLeavesTheExtraData)
{
    expectExtraData(pathOf("x") + std::string(5000, 'x'));
}

TEST_F(CounterFile, ThatIsAPipeNobodyWritesLeavesTheExtraDataAtOnce)
{
    ASSERT_EQ(mkfifo(pathOf("pipe.ink").c_str(), 0600), 0);
    alarm(20); // a wait would end the program
    expectExtraData(pathOf("pipe.ink"));
    alarm(0);
}

TEST_F(CounterFile, ThatIsADeviceLeavesTheExtraData)
{
    alarm(20);
    expectExtraData("/dev/zero");
    alarm(0);
    expectExtraData("/dev/null");
}

TEST_F(CounterFile, ThatIsASocketLeavesTheExtraData)
{
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = pathOf("socket.ink");
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(static_cast<char *>(address.sun_path), path.size());
    ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    expectExtraData(path);
    close(server);
}

TEST_F(CounterFile, ThatIsADirectoryHoldsNoLines)
{
    const CapturedLog log;
    ParseInkData(pathOf("").c_str(), context_);
    EXPECT_EQ(log.lines(),
              logged({"Using direct inkfile-data\n", "Start ink-data-Scan\n", "HAVE 0 inkchannels\n"}));
    EXPECT_EQ(context_->settings.inkLast[4], 0);
    EXPECT_EQ(context_->settings.inkSeen[4], 0);
}

TEST_F(CounterFile, ThatIsBinaryHoldsNoCounters)
{
    write(pathOf("binary.ink"), randomBytes(1 << 20));
    const CapturedLog log;
    ParseInkData(pathOf("binary.ink").c_str(), context_);
    EXPECT_TRUE(log.contains("LOG HAVE 0 inkchannels\n"));
    EXPECT_EQ(context_->settings.inkLast, decltype(context_->settings.inkLast){});
}

TEST_F(CounterFile, MayHoldConversionsWhichAreOnlyText)
{
    write(pathOf("text.ink"), "%s%n%d %S LastInk_M=5 %@\n");
    const CapturedLog log;
    ParseInkData(pathOf("text.ink").c_str(), context_);
    EXPECT_TRUE(log.contains("LOG Got Line:%s%n%d %S LastInk_M=5 %@\n\n"));
    EXPECT_EQ(context_->settings.inkLast[5], 5);
}

TEST_F(CounterFile, MayHoldNuls)
{
    write(pathOf("nul.ink"), std::string_view("LastInk_M=5\0LastInk_C=6\nLastInk_Y=\0"
                                              "7\nLastInk_K=8\n",
                                              49));
    ParseInkData(pathOf("nul.ink").c_str(), context_);
    EXPECT_EQ(context_->settings.inkLast[5], 5);
    EXPECT_EQ(context_->settings.inkLast[6], 0);
    EXPECT_EQ(context_->settings.inkLast[4], 0);
    EXPECT_EQ(context_->settings.inkLast[0], 8);
}

TEST_F(CounterFile, OfAHundredMegabytesWithoutLineEndsIsReadQuickly)
{
    std::string text(100'000'000, 'x');
    text += " LastInk_M=5\n";
    write(pathOf("long.ink"), text);
    text.clear();
    setLogSink([](std::string_view) {});
    EXPECT_LT(processorSeconds([&] { ParseInkData(pathOf("long.ink").c_str(), context_); }), kPatience);
    EXPECT_EQ(context_->settings.inkLast[5], 5);
}

TEST_F(CounterFile, OfAHundredMegabytesOfNulsIsReadQuickly)
{
    const std::string path = pathOf("nuls.ink");
    write(path, "LastInk_M=5\n");
    ASSERT_EQ(truncate(path.c_str(), 100'000'000), 0);
    EXPECT_LT(processorSeconds([&] { ParseInkData(path.c_str(), context_); }), kPatience);
    EXPECT_EQ(context_->settings.inkLast[5], 5);
}

TEST_F(CounterFile, OfManyRecordsIsReadQuickly)
{
    std::string text;
    while (text.size() < 10'000'000) {
        text += "LastInk_M=5\nTotalInk_M=6\n";
    }
    write(pathOf("many.ink"), text);
    EXPECT_LT(processorSeconds([&] { ParseInkData(pathOf("many.ink").c_str(), context_); }), kPatience);
    EXPECT_EQ(context_->settings.inkLast[5], 5);
    EXPECT_EQ(context_->settings.inkTotal[5], 6);
}

} // namespace
} // namespace tessarin::test

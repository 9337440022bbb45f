// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where log lines go. The program has a system log of its own, so that the default can be seen and nothing is
// written to the real one.

#include "platform/log_sink.h"

#include <gtest/gtest.h>

#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

#include <syslog.h>

namespace {

struct SystemLogEntry {
    int priority;
    std::string text;
};
std::vector<SystemLogEntry> systemLog;

} // namespace

extern "C" void syslog(int priority, const char *format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::string text(4096, '\0');
    const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    text.resize(static_cast<std::size_t>(length));
    systemLog.push_back({priority, text});
}

namespace tessarin {
namespace {

class LogSinkTest : public testing::Test {
protected:
    LogSinkTest() { systemLog.clear(); }
    ~LogSinkTest() override
    {
        setLogSink([](std::string_view) {});
    }
};

TEST_F(LogSinkTest, ReceivesEachLineWholeAndOnce)
{
    std::vector<std::string> lines;
    setLogSink([&lines](std::string_view line) { lines.emplace_back(line); });
    writeLogLine("LOG first\n");
    writeLogLine("\n\nsecond");
    writeLogLine("");
    EXPECT_EQ(lines, (std::vector<std::string>{"LOG first\n", "\n\nsecond", ""}));
    EXPECT_TRUE(systemLog.empty());
}

TEST_F(LogSinkTest, IsReplacedByTheNextOne)
{
    std::vector<std::string> first;
    std::vector<std::string> second;
    setLogSink([&first](std::string_view line) { first.emplace_back(line); });
    writeLogLine("one");
    setLogSink([&second](std::string_view line) { second.emplace_back(line); });
    writeLogLine("two");
    EXPECT_EQ(first, std::vector<std::string>{"one"});
    EXPECT_EQ(second, std::vector<std::string>{"two"});
}

TEST_F(LogSinkTest, IsTheSystemLogAtDebugPriorityByDefault)
{
    setLogSink({});
    writeLogLine("LOG Dealloc is called\n");
    ASSERT_EQ(systemLog.size(), 1U);
    EXPECT_EQ(systemLog[0].priority & LOG_PRIMASK, LOG_DEBUG);
    EXPECT_EQ(systemLog[0].priority & LOG_FACMASK, LOG_USER);
    EXPECT_EQ(systemLog[0].text, "LOG Dealloc is called\n");
}

TEST_F(LogSinkTest, NeverTakesALineAsAFormat)
{
    setLogSink({});
    writeLogLine("50% of %d %s %n %@");
    ASSERT_EQ(systemLog.size(), 1U);
    EXPECT_EQ(systemLog[0].text, "50% of %d %s %n %@");
}

TEST_F(LogSinkTest, TakesALineThatIsNotTerminated)
{
    setLogSink({});
    writeLogLine(std::string_view("LOG message").substr(0, 7));
    ASSERT_EQ(systemLog.size(), 1U);
    EXPECT_EQ(systemLog[0].text, "LOG mes");
}

} // namespace
} // namespace tessarin

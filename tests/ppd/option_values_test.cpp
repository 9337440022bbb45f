// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading of an option's current choice: from the parsed PPD, and from a job's dictionary.

#include "ppd/option_access.h"

#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace tessarin::test {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kGreatest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kUntouched = 77;

struct Reading {
    int result;
    std::int32_t value;
    bool operator==(const Reading &) const = default;
};

void PrintTo(const Reading &reading, std::ostream *out)
{
    *out << "result " << reading.result << ", value " << reading.value;
}

/// A host with one option "Num" whose default is its last choice.
class OneOption {
public:
    explicit OneOption(const std::vector<std::string> &choices, const std::string &defaultChoice)
        : file(ppdText({{"Num", defaultChoice, choices}})), host(file.path()), context(host)
    {}

    Reading read(const char *keyword = "Num")
    {
        std::int32_t value = kUntouched;
        const int result = getPPDOptionSelectionValue(context, keyword, &value, nullptr, 0);
        return {result, value};
    }

    TextFile file;
    RecordingHost host;
    TestContext context;
};

TEST(OptionSelectionValue, ReadsTheChoiceNameAsADecimalInteger)
{
    const std::vector<std::pair<std::string, Reading>> table{
        {"1200", {0, 1200}},
        {"0", {0, 0}},
        {"-15", {0, -15}},
        {"+7", {0, 7}},
        {"007", {0, 7}},
        {"1200dpi", {0, 1200}},
        {"3.9", {0, 3}},
        {"0x10", {0, 0}},
        {"Auto", {-1, 0}},
        {"dpi600", {-1, 0}},
        {"-", {-1, 0}},
        {"2147483647", {0, kGreatest}},
        {"2147483648", {0, kGreatest}},
        {"-2147483648", {0, kLeast}},
        {"-2147483649", {0, kLeast}},
        {"99999999999999999999999999999999999999", {0, kGreatest}},
        {"-99999999999999999999999999999999999999", {0, kLeast}},
    };
    for (const auto &[choice, expected] : table) {
        OneOption option({"other/Other", choice + "/Shown 5"}, choice);
        ASSERT_NE(option.host.ppdFile(), nullptr) << choice;
        EXPECT_EQ(option.read(), expected) << choice;
    }
}

TEST(OptionSelectionValue, TakesTheMarkedChoiceBeforeTheDefault)
{
    OneOption option({"1/One", "2/Two", "3/Three"}, "2");
    EXPECT_EQ(option.read(), (Reading{0, 2}));
    option.host.mark("Num", "3");
    EXPECT_EQ(option.read(), (Reading{0, 3}));
}

TEST(OptionSelectionValue, TakesTheDefaultWhenNothingIsMarked)
{
    const TextFile file(ppdText({{"Num", "2", {"1/One", "2/Two"}}}));
    const PPDHandle ppd = openPPD(file.path().c_str());
    ASSERT_NE(ppd, nullptr);
    TestContext context;
    context->ppdFile = ppd.get();
    ASSERT_EQ(ppdFindMarkedChoice(ppd.get(), "Num"), nullptr);
    std::int32_t value = kUntouched;
    EXPECT_EQ(getPPDOptionSelectionValue(context, "Num", &value, nullptr, 0), 0);
    EXPECT_EQ(value, 2);
}

TEST(OptionSelectionValue, FailsAndWritesNothingWithoutOptionOrChoice)
{
    OneOption unknownDefault({"1/One"}, "9");
    OneOption noDefault({"1/One"}, "");
    std::array<char, 8> text{"before"};
    for (const auto &[option, keyword] : {std::pair(&unknownDefault, "Num"), std::pair(&noDefault, "Num"),
                                          std::pair(&unknownDefault, "Absent"), std::pair(&noDefault, "*Num")}) {
        EXPECT_EQ(option->read(keyword), (Reading{-1, kUntouched})) << keyword;
        const CapturedLog log;
        EXPECT_EQ(getPPDOptionSelectionValue(option->context, keyword, nullptr, text.data(), text.size()), -1);
        EXPECT_STREQ(text.data(), "before");
        EXPECT_EQ(log.lines(), Lines{});
    }
    const TestContext without;
    std::int32_t value = kUntouched;
    EXPECT_EQ(getPPDOptionSelectionValue(without, "Num", &value, nullptr, 0), -1);
    EXPECT_EQ(value, kUntouched);
}

TEST(OptionSelectionValue, FindsAnOptionInAnyCaseAsThePrintLibraryDoes)
{
    OneOption option({"1/One", "2/Two"}, "2");
    EXPECT_EQ(option.read("nUM"), (Reading{0, 2}));
}

TEST(OptionSelectionValue, GivesTheChoiceNameNotItsTextAndLogsItsPlace)
{
    OneOption option({"600/Six hundred", "1200/Twelve hundred", "Auto/Automatic"}, "Auto");
    std::array<char, 16> text{};
    std::int32_t value = kUntouched;
    const CapturedLog log;
    EXPECT_EQ(getPPDOptionSelectionValue(option.context, "Num", &value, text.data(), text.size()), 0);
    EXPECT_STREQ(text.data(), "Auto");
    EXPECT_EQ(value, kUntouched) << "with a text buffer no number is read";
    option.host.mark("Num", "600");
    EXPECT_EQ(getPPDOptionSelectionValue(option.context, "Num", nullptr, text.data(), text.size()), 0);
    EXPECT_STREQ(text.data(), "600");
    EXPECT_EQ(log.lines(), logged({"ppdFindChoice returned choice #2\n", "ppdFindChoice returned choice #0\n"}));
}

TEST(OptionSelectionValue, LogsNothingWhenReadingANumber)
{
    OneOption option({"600/Six hundred"}, "600");
    const CapturedLog log;
    option.read();
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(OptionSelectionValue, CutsTheNameToTheBuffer)
{
    OneOption option({"1200dpi/Shown"}, "1200dpi");
    const std::vector<std::pair<std::size_t, std::string>> table{
        {1, ""}, {2, "1"}, {5, "1200"}, {7, "1200dp"}, {8, "1200dpi"}};
    for (const auto &[size, expected] : table) {
        std::array<char, 12> text;
        text.fill('#');
        EXPECT_EQ(getPPDOptionSelectionValue(option.context, "Num", nullptr, text.data(), size), 0);
        EXPECT_EQ(std::string(text.data()), expected) << size;
        EXPECT_TRUE(std::all_of(text.begin() + static_cast<std::ptrdiff_t>(size), text.end(), [](char c) {
            return c == '#';
        })) << size;
    }
}

TEST(OptionSelectionValue, AlwaysEndsTheBufferWithANulByte)
{
    OneOption option({"Auto/Shown"}, "Auto");
    std::array<char, 16> text;
    text.fill('#');
    EXPECT_EQ(getPPDOptionSelectionValue(option.context, "Num", nullptr, text.data(), text.size()), 0);
    EXPECT_STREQ(text.data(), "Auto");
    EXPECT_EQ(text[15], '\0') << "also when the name is shorter than the buffer";
}

TEST(OptionSelectionValue, LeavesABufferOfSizeZeroAlone)
{
    OneOption option({"Auto/Shown"}, "Auto");
    char text = '#';
    EXPECT_EQ(getPPDOptionSelectionValue(option.context, "Num", nullptr, &text, 0), 0);
    EXPECT_EQ(text, '#');
}

class DictionaryValue : public testing::Test {
protected:
    DictionaryValue() { fillRow(table, 1, {{"Plain0", "Plain"}, {"Photo6", "Photo"}, {"Photo6", "Again"}}); }

    int read(const QVariant &value, ChoiceList list)
    {
        const OptionDictionary dictionary{{QStringLiteral("vornX"), value}};
        return GetPPDValue(&dictionary, "vornX", list, -99);
    }

    PPDOptionTable table;
};

TEST_F(DictionaryValue, IsThePairNumberWithAList)
{
    const CapturedLog log;
    EXPECT_EQ(read(QStringLiteral("Photo6"), choiceList(table, 1)), 2);
    EXPECT_EQ(read(QStringLiteral("Plain0"), choiceList(table, 1)), 1);
    EXPECT_EQ(log.lines(), logged({"Key found for vornX: = Photo6\n", "Key found for vornX: 2 = Photo6\n",
                                   "Key found for vornX: = Plain0\n", "Key found for vornX: 1 = Plain0\n"}));
}

TEST_F(DictionaryValue, IsTheDefaultForATextThatTheListDoesNotHave)
{
    const CapturedLog log;
    EXPECT_EQ(read(QStringLiteral("photo6"), choiceList(table, 1)), -99);
    EXPECT_EQ(read(QStringLiteral("Plain"), choiceList(table, 1)), -99);
    EXPECT_EQ(read(QStringLiteral("2"), choiceList(table, 1)), -99);
    EXPECT_EQ(read(QStringLiteral("2"), choiceList(table, 2)), -99) << "an empty list is a list";
    EXPECT_EQ(log.lines(), logged({"Key found for vornX: = photo6\n", "Key found for vornX: = Plain\n",
                                   "Key found for vornX: = 2\n", "Key found for vornX: = 2\n"}));
}

TEST_F(DictionaryValue, IsTheIntegerWithoutAList)
{
    const CapturedLog log;
    EXPECT_EQ(read(QStringLiteral("42"), {}), 42);
    EXPECT_EQ(read(QStringLiteral(" -42 dpi"), {}), -42);
    EXPECT_EQ(read(QStringLiteral("99999999999"), {}), kGreatest);
    EXPECT_EQ(read(QStringLiteral("Auto"), {}), -99);
    EXPECT_EQ(read(QStringLiteral(""), {}), -99);
    EXPECT_EQ(log.lines().size(), 5U);
    EXPECT_EQ(log.lines().front(), "LOG Key found for vornX: = 42\n");
}

TEST_F(DictionaryValue, IsTheDefaultForAnAbsentKeyAndForWhatIsNoText)
{
    const CapturedLog log;
    const OptionDictionary dictionary{{QStringLiteral("vornY"), QStringLiteral("1")}};
    EXPECT_EQ(GetPPDValue(&dictionary, "vornX", choiceList(table, 1), -99), -99);
    EXPECT_EQ(GetPPDValue(&dictionary, "vornx", {}, -98), -98);
    EXPECT_EQ(GetPPDValue(nullptr, "vornX", {}, -97), -97);
    EXPECT_EQ(read(42, {}), -99);
    EXPECT_EQ(read(true, {}), -99);
    EXPECT_EQ(read(QStringList{QStringLiteral("42")}, {}), -99);
    EXPECT_EQ(read(QVariant(), {}), -99);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(DictionaryValue, TakesTextsOfUpTo126Bytes)
{
    EXPECT_EQ(read(QStringLiteral("7") + QString(125, QLatin1Char('x')), {}), 7);
    EXPECT_EQ(read(QStringLiteral("7") + QString(126, QLatin1Char('x')), {}), -99);
    const QChar umlaut(0xE4); // two bytes
    EXPECT_EQ(read(QStringLiteral("71") + QString(62, umlaut), {}), 71);
    EXPECT_EQ(read(QStringLiteral("7") + QString(63, umlaut), {}), -99);
}

TEST(DictionaryEntry, IsSetWhenKeyAndValueArePresent)
{
    OptionDictionary dictionary{{QStringLiteral("b"), QStringLiteral("old")}};
    mySetPPDDictValue(&dictionary, "a", "1");
    mySetPPDDictValue(&dictionary, "b", "Gr\xC3\xBC\xC3\x9F");
    mySetPPDDictValue(&dictionary, nullptr, "2");
    mySetPPDDictValue(&dictionary, "c", nullptr);
    mySetPPDDictValue(nullptr, "a", "1");
    EXPECT_EQ(dictionary, (OptionDictionary{{QStringLiteral("a"), QStringLiteral("1")},
                                            {QStringLiteral("b"), QString::fromUtf8("Gr\xC3\xBC\xC3\x9F")}}));
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/string_helpers.h"

#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace tessarin::test {
namespace {

constexpr std::uint32_t kASCII = 1;
constexpr std::uint32_t kUTF8 = 4;
constexpr std::uint32_t kPrinterUTF8 = 0x08000100;

StringRef text(const char *utf8)
{
    return makeString(std::string(utf8));
}

TEST(StringHelpers, HandTheEncodingNumbersOnAsTheyAre)
{
    EXPECT_EQ(kEncodingASCII, kASCII);
    EXPECT_EQ(kEncodingUTF8, kUTF8);
    EXPECT_EQ(kEncodingPrinterID, kPrinterUTF8);
}

TEST(StringHelpers, MakeAStringFromAZeroTerminatedOne)
{
    for (const std::uint32_t encoding : {kASCII, kUTF8, kPrinterUTF8}) {
        const StringRef made = myCFStringCreateWithCString(nullptr, "%d%%", encoding);
        ASSERT_NE(made, nullptr) << encoding;
        EXPECT_EQ(made->text(), "%d%%");
        EXPECT_EQ(made->releaseCount(), 0);
        EXPECT_EQ(myCFStringCreateWithCString(nullptr, "", encoding)->text(), "");
    }
    const int allocator = 0;
    EXPECT_EQ(myCFStringCreateWithCString(&allocator, "any allocator", kUTF8)->text(), "any allocator");
}

TEST(StringHelpers, MakeNoStringThatTheEncodingDoesNotHave)
{
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, "M\xC3\xBCnze", kASCII), nullptr);
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, "M\xC3\xBCnze", kUTF8)->text(), "M\xC3\xBCnze");
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, "M\xC3\xBCnze", kPrinterUTF8)->text(), "M\xC3\xBCnze");
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, "\x7F", kASCII)->text(), "\x7F");
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, "\x80", kASCII), nullptr);
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, nullptr, kUTF8), nullptr);
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, "text", 2), nullptr) << "no such encoding";
    EXPECT_EQ(myCFStringCreateWithCString(nullptr, "text", 0), nullptr);
}

TEST(StringHelpers, CopyAString)
{
    const StringRef original = text("M\xC3\xBCnze");
    original->release();
    const StringRef copy = myCFStringCreateCopy(nullptr, original);
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, original);
    EXPECT_EQ(copy->text(), "M\xC3\xBCnze");
    EXPECT_EQ(copy->releaseCount(), 0);
    EXPECT_EQ(myCFStringCreateCopy(nullptr, nullptr), nullptr);
}

TEST(StringHelpers, MakeAFormattedString)
{
    EXPECT_EQ(myCFStringCreateWithFormat(nullptr, nullptr, text("%d%%"), 95, 95)->text(), "95%");
    EXPECT_EQ(myCFStringCreateWithFormat(nullptr, nullptr, text("%+d|D%d"), 5, 50)->text(), "+5|D50");
    EXPECT_EQ(myCFStringCreateWithFormat(nullptr, nullptr, text("%@\n\n%@"), text("a"), StringRef())->text(),
              "a\n\n(null)");
    EXPECT_EQ(myCFStringCreateWithFormat(nullptr, nullptr, text("%d %s"))->text(), "%d %s");
    EXPECT_EQ(myCFStringCreateWithFormat(nullptr, nullptr, StringRef(), 1), nullptr);
}

TEST(StringHelpers, ConvertAStringThatFits)
{
    std::array<char, 6> buffer{};
    EXPECT_TRUE(myCFStringGetCString(text("12345"), buffer.data(), buffer.size(), kASCII));
    EXPECT_STREQ(buffer.data(), "12345");
    EXPECT_TRUE(myCFStringGetCString(text(""), buffer.data(), 1, kUTF8));
    EXPECT_STREQ(buffer.data(), "");
}

TEST(StringHelpers, ConvertNothingThatDoesNotFitWithItsEnd)
{
    std::array<char, 8> buffer{};
    std::strcpy(buffer.data(), "former");
    EXPECT_FALSE(myCFStringGetCString(text("123456"), buffer.data(), 6, kASCII));
    EXPECT_FALSE(myCFStringGetCString(text("123456"), buffer.data(), 6, kUTF8));
    EXPECT_FALSE(myCFStringGetCString(text(""), buffer.data(), 0, kUTF8));
    EXPECT_STREQ(buffer.data(), "former") << "and the buffer stays as it is";
}

TEST(StringHelpers, MeasureAStringInBytes)
{
    std::array<char, 8> buffer{};
    EXPECT_FALSE(myCFStringGetCString(text("\xC3\xA4\xC3\xB6\xC3\xBC"), buffer.data(), 6, kUTF8));
    EXPECT_TRUE(myCFStringGetCString(text("\xC3\xA4\xC3\xB6\xC3\xBC"), buffer.data(), 7, kPrinterUTF8));
    EXPECT_STREQ(buffer.data(), "\xC3\xA4\xC3\xB6\xC3\xBC");
}

TEST(StringHelpers, ConvertNothingThatTheEncodingDoesNotHave)
{
    std::array<char, 32> buffer{};
    EXPECT_FALSE(myCFStringGetCString(text("M\xC3\xBCnze"), buffer.data(), buffer.size(), kASCII));
    EXPECT_FALSE(myCFStringGetCString(text("text"), buffer.data(), buffer.size(), 2));
    EXPECT_FALSE(myCFStringGetCString(nullptr, buffer.data(), buffer.size(), kUTF8));
    EXPECT_FALSE(myCFStringGetCString(text("text"), nullptr, 10, kUTF8));
    EXPECT_STREQ(buffer.data(), "");
}

TEST(StringHelpers, ReleaseAString)
{
    const StringRef string = text("text");
    myCFRelease(string);
    EXPECT_EQ(string->releaseCount(), 1);
    myCFRelease(string);
    EXPECT_EQ(string->releaseCount(), 2);
    myCFRelease(nullptr);
}

TEST(LocalizedString, ComesFromThePanelsBundle)
{
    TextBundle bundle({{QStringLiteral("Black"), QStringLiteral("Schwarz")}});
    const TextsFrom texts(&bundle);
    EXPECT_EQ(MyCFCopyLocalizedString(text("Black"), "")->text(), "Schwarz");
    EXPECT_EQ(bundle.asked, std::vector<std::string>{"Black"});
}

TEST(LocalizedString, IgnoresTheComment)
{
    TextBundle bundle({{QStringLiteral("Black"), QStringLiteral("Schwarz")}});
    const TextsFrom texts(&bundle);
    EXPECT_EQ(MyCFCopyLocalizedString(text("Black"), "an ink")->text(), "Schwarz");
    EXPECT_EQ(MyCFCopyLocalizedString(text("Black"), nullptr)->text(), "Schwarz");
}

TEST(LocalizedString, IsTheKeyWhereThereIsNoTranslation)
{
    TextBundle bundle;
    const TextsFrom texts(&bundle);
    EXPECT_EQ(MyCFCopyLocalizedString(text("M\xC3\xBCnze %d"), "")->text(), "M\xC3\xBCnze %d");
    EXPECT_EQ(MyCFCopyLocalizedString(text(""), "")->text(), "");
    EXPECT_EQ(MyCFCopyLocalizedString(nullptr, ""), nullptr);
}

TEST(LocalizedString, IsANewStringThatTheCallerNeedNotRelease)
{
    TextBundle bundle;
    const TextsFrom texts(&bundle);
    const StringRef key = text("Black");
    const StringRef localized = MyCFCopyLocalizedString(key, "");
    EXPECT_NE(localized, key);
    EXPECT_EQ(localized->releaseCount(), 0);
    EXPECT_EQ(key->releaseCount(), 0);
}

TEST(LocalizedString, IsTheKeyBeforeAnyPanel)
{
    const TextsFrom texts(nullptr);
    EXPECT_EQ(MyCFCopyLocalizedString(text("Black"), "")->text(), "Black");
}

TEST(LocalizedString, IsLookedUpInTheTranslationsOfTheBundle)
{
    const std::shared_ptr<DirectoryBundle> german = buildBundle(QStringLiteral("de"));
    const TextsFrom texts(german.get());
    EXPECT_EQ(MyCFCopyLocalizedString(text("Tessarin Settings"), "")->text(), "Tessarin-Einstellungen");
}

} // namespace
} // namespace tessarin::test

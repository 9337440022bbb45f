// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the panel makes of PPD files that are damaged, odd or hostile: its lists, its constraints, its ticket.

#include "cups/ppd_limit.h"
#include "ppd/constraints.h"
#include "ppd/keyword_scanner.h"
#include "ppd/ppd_file.h"
#include "ppd/ticket.h"

#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>

namespace tessarin::test {
namespace {

constexpr int kMedia = kPopMediaType;

/// A panel's data for a PPD that the host has parsed, too.
class Scanned {
public:
    explicit Scanned(const std::string &path) : host(path), context(host)
    {
        ParsePPDFile(path.c_str(), context);
        getPPDOptionSelections(context);
    }
    Pairs media() const { return pairsOf(context.table(), kMedia); }
    Groups groups() const { return groupsOf(context.table()); }

    RecordingHost host;
    TestContext context;
};

/// The same where the host has parsed nothing, so that the scan reads the choices, too.
class ScannedAlone {
public:
    explicit ScannedAlone(const std::string &path)
    {
        context->onTiger = 1;
        ParsePPDFile(path.c_str(), context);
    }
    Pairs media() const { return pairsOf(context.table(), kMedia); }
    Groups groups() const { return groupsOf(context.table()); }

    TestContext context;
};

std::string badPpd(const char *name)
{
    return fixturePath(std::string("bad/ppd/") + name);
}

const Pairs kTwoMedia{{"Plain1", "Plain Paper"}, {"Photo6", "Photo Paper"}};
const Group kPlainWith1200{1, 0, 2, 1};

const std::string kPpdStart = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n";

std::string compressed(const std::string &text)
{
    const TextFile file("");
    gzFile packed = gzopen(file.path().c_str(), "wb1");
    EXPECT_EQ(gzwrite(packed, text.data(), static_cast<unsigned>(text.size())), static_cast<int>(text.size()));
    EXPECT_EQ(gzclose(packed), Z_OK);
    std::ifstream stream(file.path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool isOpened(const std::string &bytes)
{
    return openPPD(TextFile(bytes).path().c_str()) != nullptr;
}

TEST(BadPpdFile, ThatUnfoldsBeyondTheLargestIsNotOpened)
{
    const std::string largest = kPpdStart + std::string(kLargestPPD - kPpdStart.size(), '\n');
    EXPECT_TRUE(isOpened(compressed(largest)));
    EXPECT_FALSE(isOpened(compressed(largest + '\n')));
}

TEST(BadPpdFile, ThatIsCompressedAtFirstAndPlainBeyondTheLargestIsNotOpened)
{
    EXPECT_TRUE(isOpened(compressed(kPpdStart)));
    EXPECT_FALSE(isOpened(compressed(kPpdStart) + std::string(kLargestPPD, '\n')));
}

TEST(BadPpdFile, WithADamagedHeaderOfItsCompressionIsNotOpened)
{
    std::string bytes = compressed(kPpdStart);
    bytes[3] = static_cast<char>(bytes[3] | 2); // a checksum of the header, which is none
    EXPECT_FALSE(isOpened(bytes));
}

TEST(BadPpdScan, WithAByteOrderMarkSeesTheLinesBehindIt)
{
    const Scanned scanned(badPpd("bom.ppd"));
    EXPECT_EQ(scanned.context->ppdFile, nullptr) << "the print library takes none";
    const ScannedAlone alone(badPpd("bom.ppd"));
    EXPECT_EQ(alone.media(), kTwoMedia);
    EXPECT_EQ(alone.groups(), Groups{kPlainWith1200});
}

TEST(BadPpdScan, WithCrAloneTakesTheFileForPiecesOfOneLine)
{
    const Scanned scanned(badPpd("cr-only.ppd"));
    EXPECT_EQ(scanned.media(), kTwoMedia) << "the print library ends its lines at CR";
    EXPECT_EQ(scanned.groups(), Groups{}) << "the constraint lies across two pieces";
}

TEST(BadPpdScan, SeesTheLinesBehindANul)
{
    const Scanned scanned(badPpd("nul.ppd"));
    EXPECT_EQ(scanned.media(), kTwoMedia);
    EXPECT_EQ(scanned.groups(), Groups{kPlainWith1200});
}

TEST(BadPpdScan, FindsNoConstraintsInACompressedFile)
{
    const Scanned scanned(badPpd("compressed.ppd.gz"));
    EXPECT_EQ(scanned.media(), kTwoMedia) << "the print library reads it";
    EXPECT_EQ(scanned.groups(), Groups{});
    EXPECT_EQ(ScannedAlone(badPpd("compressed.ppd.gz")).media(), Pairs{});
}

TEST(BadPpdScan, GoesOnAfterAQuotationWithoutItsEnd)
{
    const Scanned scanned(badPpd("unterminated.ppd"));
    EXPECT_EQ(scanned.media(), kTwoMedia);
    EXPECT_EQ(scanned.groups(), Groups{}) << "the print library lost the resolutions that the constraint names";
    EXPECT_EQ(ScannedAlone(badPpd("unterminated.ppd")).groups(), Groups{kPlainWith1200});
}

TEST(BadPpdScan, KeepsEveryCopyOfAChoice)
{
    const Scanned scanned(badPpd("duplicates.ppd"));
    EXPECT_EQ(scanned.media(), (Pairs{{"Plain1", "Plain Paper"},
                                      {"Photo6", "Photo Paper"},
                                      {"Photo6", "Photo Paper once more"},
                                      {"Canvas7", "Canvas"},
                                      {"Canvas7", "Canvas once more"}}));
    EXPECT_EQ(scanned.context->settings.popupSelections.at(kMedia), 4) << "the first of the copies";
    EXPECT_EQ(scanned.groups(), Groups{kPlainWith1200});
}

TEST(BadPpdScan, EndsWithConstraintsInACircle)
{
    const Scanned scanned(badPpd("circle.ppd"));
    EXPECT_EQ(scanned.groups(), (Groups{{1, 1, 2, 0}, {2, 1, 5, 0}})) << "the others name the later option first";
    for (int row = 0; row < static_cast<int>(kPopUpCount); ++row) {
        checkConstraintsForMenu(scanned.context, row);
    }
    const auto &selections = scanned.context->settings.popupSelections;
    EXPECT_EQ(selections.at(kPopMediaType), 2);
    EXPECT_EQ(selections.at(kPopResolution), 2);
    EXPECT_EQ(selections.at(kPopDithering), 2);
}

TEST(BadPpdScan, ReadsKeysOfOtherLettersByTheirBytes)
{
    const ScannedAlone alone(badPpd("other-letters.ppd"));
    ASSERT_EQ(alone.media().size(), 2U);
    EXPECT_EQ(Scanned(badPpd("other-letters.ppd")).media(), Pairs{}) << "the print library takes none";
}

TEST(BadPpdScan, ShowsTextsInHexadecimalDecoded)
{
    const Pairs media = Scanned(badPpd("hex-texts.ppd")).media();
    ASSERT_EQ(media.size(), 9U);
    EXPECT_EQ(media.at(0), (Pairs::value_type{"Lines1", "two\nlines"}));
    EXPECT_EQ(media.at(1), (Pairs::value_type{"Return1", "car\rriage"}));
    EXPECT_EQ(media.at(2), (Pairs::value_type{"Zero1", "ze"})) << "a zero byte ends a text";
    EXPECT_EQ(media.at(3), (Pairs::value_type{"Quote1", "qu\"ote {brace}"}));
    EXPECT_EQ(media.at(4), (Pairs::value_type{"Word1", "Hex"}));
}

// The library makes room for each choice anew; under a sanitizer, which then copies all of them, so many take
// minutes.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kManyChoices = 4096;
#else
constexpr int kManyChoices = 65536;
#endif

TEST(BadPpdScan, CutsAListOf65536Choices)
{
    const TextFile file(
        ppdText({{"vornMediaType", "M" + std::to_string(kManyChoices) + "x", numberedChoices(kManyChoices, "M")}}));
    const Scanned scanned(file.path());
    ASSERT_NE(scanned.context->ppdFile, nullptr);
    EXPECT_EQ(ppdFindOption(scanned.context->ppdFile, "vornMediaType")->num_choices, kManyChoices);
    EXPECT_EQ(scanned.media().size(), 79U);
    EXPECT_EQ(scanned.context->settings.popupSelections.at(kMedia), 1) << "the default was cut off";
    EXPECT_EQ(ScannedAlone(file.path()).media().size(), 82U);
}

TEST(BadPpdScan, OfADeviceIsRefusedWithoutReadingIt)
{
    for (const char *device : {"/dev/zero", "/dev/urandom"}) {
        const TestContext context;
        context->onTiger = 1;
        const CapturedLog log;
        ParsePPDFile(device, context);
        EXPECT_EQ(log.lines().back(),
                  std::string("LOG PPD-File not found - error = ") + std::strerror(ENXIO) + "\n");
        EXPECT_EQ(groupsOf(context.table()), Groups{});
    }
}

} // namespace
} // namespace tessarin::test

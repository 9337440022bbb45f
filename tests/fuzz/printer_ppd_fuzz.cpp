// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A panel's data on PPD files of any content: choice lists, current values, constraints, and what is handed over.

#include "controls/control_tables.h"
#include "plugin/context_lifecycle.h"
#include "plugin/panel_context.h"
#include "ppd/constraints.h"
#include "ppd/keyword_scanner.h"
#include "ppd/option_access.h"
#include "ppd/option_table.h"
#include "ppd/ticket.h"
#include "tests/fuzz/fuzz_support.h"
#include "tests/support/recording_host.h"

#include <array>

using namespace tessarin;

namespace {

/// What stands in a job's own settings is found again as the pair that it names.
void readBackFromAJob(PanelContext *context, int row)
{
    const char *keyword = withoutStar(pops[static_cast<std::size_t>(row)].keyword);
    const ChoiceList list = choiceList(*context->ppdOptions, row);
    constexpr int kNone = -5;
    constexpr std::size_t kLongest = 126; // bytes of a value that is read
    OptionDictionary job;
    test::require(GetPPDValue(nullptr, keyword, list, kNone) == kNone, "no job has no value");
    test::require(GetPPDValue(&job, keyword, list, kNone) == kNone, "an empty job has no value");
    for (int n = 1; n <= pairCount(list); ++n) {
        const std::string_view key = pairKey(list, n);
        mySetPPDDictValue(&job, keyword, pairKey(list, n));
        const int found = GetPPDValue(&job, keyword, list, kNone);
        const bool isText =
            QString::fromUtf8(key).toUtf8() == QByteArray(key.data(), static_cast<qsizetype>(key.size()));
        test::require(found == kNone || pairKey(list, found) == key, "the pair that is found has the key");
        test::require(found != kNone || !isText || key.size() > kLongest, "a key that is there is found");
    }
    GetPPDValue(&job, keyword, {}, kNone);
}

/// The marked choice's name in a buffer of any size ends within it.
void readIntoBuffer(PanelContext *context, int row, std::size_t size)
{
    std::array<char, 48> text{};
    text.fill('x');
    std::int32_t number = 0;
    const char *keyword = withoutStar(pops[static_cast<std::size_t>(row)].keyword);
    if (getPPDOptionSelectionValue(context, keyword, &number, text.data(), size) == 0 && size > 0) {
        test::require(std::string_view(text.data(), size).find('\0') != std::string_view::npos, "a text ends");
    }
    test::require(text[size] == 'x', "nothing is written behind a buffer");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static test::MemoryFile file;
    file.write(test::textOf(data, size));
    test::RecordingHost host(file.path());
    PanelContext *context = MyCreateCustomContext();
    context->ppdFile = host.ppdFile();
    context->callbackObject = &host;
    ParsePPDFile(file.path().c_str(), context);
    getPPDOptionSelections(context);
    for (int row = 0; row < static_cast<int>(kPopUpCount); ++row) {
        checkConstraintsForMenu(context, row);
        readBackFromAJob(context, row);
        readIntoBuffer(context, row, size % 47);
        MySaveSettingToTicket(context, row, static_cast<int>(size % 5));
    }
    setPPDValue(context, 0, "vornNoPrint", nullptr);
    MySyncTicketFromPane(context);
    for (const auto &[key, value] : host.changes) {
        test::require(!key.empty() && key.front() != '*', "a change names an option without its star");
    }
    myCleanup(context);
    MyReleaseCustomContext(context);
    return 0;
}

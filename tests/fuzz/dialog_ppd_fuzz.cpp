// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A printer's PPD as the dialog opens it, of any content, compressed or not, with numbers that its options do not
// list.

#include "printing/cups_options.h"
#include "printing/ppd_file.h"
#include "tests/fuzz/fuzz_support.h"

using namespace tessarin;
using host::Outcome;
using host::PpdHandle;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static test::MemoryFile file;
    file.write(test::textOf(data, size));
    static const host::CupsOptions numbers = [] {
        host::CupsOptions options;
        options.add(QStringLiteral("vornBrightness"), QStringLiteral("-17"));
        options.add(QStringLiteral("vornMediaType"), QStringLiteral("42"));
        options.add(QStringLiteral("PageSize"), QStringLiteral("999999999999999999999"));
        return options;
    }();
    const Outcome<PpdHandle> opened = host::openPpd(QString::fromStdString(file.path()), numbers);
    test::require(opened.ok() != !opened.reason().isEmpty(), "a PPD that is not opened has its reason");
    if (!opened.ok()) {
        return 0;
    }
    const PpdHandle &ppd = opened.value();
    for (const host::PpdOptionPlace &place : host::optionsOf(*ppd)) {
        test::require(place.group != nullptr && place.option != nullptr, "an option is in a group");
        host::isInstalledGroup(*place.group);
    }
    for (int i = 0; i < numbers.count(); ++i) {
        const cups_option_t &number = numbers.data()[i];
        ppd_option_t *option = ppdFindOption(ppd.get(), number.name);
        test::require(option == nullptr || ppdFindChoice(option, number.value) != nullptr,
                      "a number becomes a choice of its option");
    }
    host::ppdNickname(*ppd);
    return 0;
}

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The keyword scanner, which also reads the choices where the host has no parsed PPD, on files of any content.

#include "plugin/context_lifecycle.h"
#include "plugin/panel_context.h"
#include "ppd/keyword_scanner.h"
#include "ppd/option_table.h"
#include "tests/fuzz/fuzz_support.h"

#include <cstring>

using namespace tessarin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static test::MemoryFile file;
    file.write(test::textOf(data, size));
    PanelContext *context = MyCreateCustomContext();
    context->onTiger = 1;
    ParsePPDFile(size > 0 ? file.path().c_str() : "/nowhere", context);
    getPPDOptionSelections(context);
    for (const ChoiceRow &row : context->ppdOptions->choiceLists) {
        std::size_t length = 0;
        for (const char *text : row) {
            length += text != nullptr ? std::strlen(text) : 0; // every text of a list can be read to its end
        }
        test::require(length <= size + sizeof("---separator---") * row.size(), "texts are no longer than the file");
    }
    myCleanup(context);
    MyReleaseCustomContext(context);
    return 0;
}

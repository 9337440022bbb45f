// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A panel's data on PPD files of any content: choice lists, current values, constraints, and what is handed over.

#include "controls/control_tables.h"
#include "plugin/context_lifecycle.h"
#include "plugin/panel_context.h"
#include "ppd/constraints.h"
#include "ppd/keyword_scanner.h"
#include "ppd/ticket.h"
#include "tests/fuzz/fuzz_support.h"
#include "tests/support/recording_host.h"

using namespace tessarin;

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
    }
    MySyncTicketFromPane(context);
    for (const auto &[key, value] : host.changes) {
        test::require(!key.empty() && key.front() != '*', "a change names an option without its star");
    }
    myCleanup(context);
    MyReleaseCustomContext(context);
    return 0;
}

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/context_lifecycle.h"

#include "controls/control_tables.h"
#include "controls/menu_items.h"
#include "plugin/string_helpers.h"
#include "plugin/survivors.h"
#include "ppd/option_table.h"

#include <new>
#include <utility>

namespace tessarin {

namespace {

constexpr std::size_t kReleasedSliderRows = 20; // fixed, whatever the table holds
constexpr std::size_t kCleanedPopUps = 11;      // the twelfth place keeps its items

} // namespace

PanelContext::PanelContext() = default;
PanelContext::~PanelContext() = default;

PanelContext *MyCreateCustomContext()
{
    std::unique_ptr<PanelContext> context(new (std::nothrow) PanelContext);
    if (!context) {
        return nullptr;
    }
    for (ScrollRow &row : Scrolls) {
        if (row.number < 0) {
            break;
        }
        row.formatString = myCFStringCreateWithCString(nullptr, row.format, kEncodingASCII);
    }
    context->ppdOptions.reset(new (std::nothrow) PPDOptionTable);
    if (!context->ppdOptions) {
        return nullptr;
    }
    rememberContext(context.get());
    return context.release();
}

void MyReleaseCustomContext(PanelContext *context)
{
    for (std::size_t row = 0; row < kReleasedSliderRows; ++row) {
        myCFRelease(Scrolls[row].formatString);
    }
    keepForEver(std::move(context->ppdScanBuffer));
    forgetContext(context);
    delete context;
}

void myCleanup(PanelContext *context)
{
    context->ppdScanBuffer.reset();
    if (context->ppdOptions) {
        clearChoiceLists(*context->ppdOptions);
    }
    for (std::size_t row = 0; row < kCleanedPopUps; ++row) {
        if (QComboBox *menu = comboMenu(context->controls.popupControls[row])) {
            DeleteMenuItems(menu, 0, CountMenuItems(menu));
        }
    }
}

} // namespace tessarin

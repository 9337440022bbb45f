// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/popup_filling.h"

#include "controls/control_layer.h"
#include "controls/menu_items.h"
#include "plugin/log.h"

#include <string_view>

namespace tessarin {

namespace {

void appendEnabledPair(MenuHandle menu, const char *key, const char *text, int n)
{
    if (std::string_view(key) == kSeparatorText) {
        MyAppendSeparatorItem(menu);
        _VERBOSE("Adding separator to popup\n");
        return;
    }
    MyAppendMenuItem(menu, text, n);
    _VERBOSE("Adding to PopUpButton: '%S'\n", text);
    if (key[0] == '*') {
        ChangeMenuItemAttributes(menu, n, kMenuItemDisabled, 0);
    }
}

} // namespace

int FillPopup(QWidget *popup, ChoiceList list, std::span<const int> enabledFlags, int active)
{
    MenuHandle menu = nullptr;
    GetComboMenu(popup, &menu);
    _VERBOSE("\nFILLPOPUP - active = %d / '%S'\n", active, pairText(list, active));
    DeleteMenuItems(menu, 0, CountMenuItems(menu));
    int activeItem = 1;
    const int count = pairCount(list);
    for (int n = 1; n <= count; ++n) {
        const char *key = pairKey(list, n);
        const char *text = pairText(list, n);
        const auto place = static_cast<std::size_t>(n) - 1;
        if (place >= enabledFlags.size() || enabledFlags[place] != 0) {
            appendEnabledPair(menu, key, text, n);
        } else {
            // A forbidden separator becomes an ordinary disabled item, so that item n stays pair n.
            MyAppendDisabledMenuItem(menu, text, n);
            _VERBOSE("--- INVISIBLE --- '%S'\n", text);
        }
        if (n == active) {
            activeItem = n;
            _VERBOSE("Fillpopup - setactive item to #%d/n",
                     activeItem); // the "/n" is what readers of the log expect
        }
    }
    _VERBOSE("FillPOPUP -> activeidx = %d\n", activeItem);
    return SetComboControlValue(popup, activeItem);
}

} // namespace tessarin

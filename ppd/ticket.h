// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Ticket synchronisation: the panel's state into the job, and the host's changes into the panel.

#ifndef TESSARIN_PPD_TICKET_H
#define TESSARIN_PPD_TICKET_H

#include "platform/string_object.h"
#include "plugin/panel_context.h"

namespace tessarin {

/// Reads every control into the settings and sends all check boxes, pop-ups and sliders to the host. A missing
/// check box sends nothing; for a missing pop-up or slider the stored value is sent. Always 0.
int MySyncTicketFromPane(PanelContext *context);

/// Sends the choice that a person just made in a pop-up; `selection` is its 1-based pair number. True when the host
/// accepted it, which stores it; false when it was refused or there is no such pair.
bool MySaveSettingToTicket(PanelContext *context, int row, int selection);

/// The host reports a choice made elsewhere; the matching pop-up follows. A null argument, an option that is no
/// pop-up's and an unknown choice change nothing. Nothing is sent back.
void MyPPDOptionHasChanged(PanelContext *context, const StringRef &optionKey, const StringRef &choiceKey);

} // namespace tessarin

#endif

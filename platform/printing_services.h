// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The printing-session calls, answered by the host's callback.

#ifndef TESSARIN_PLATFORM_PRINTING_SERVICES_H
#define TESSARIN_PLATFORM_PRINTING_SERVICES_H

#include "pde/print_dialog_extension.h"
#include "platform/string_object.h"

namespace tessarin {

/// Stores the session's current printer in `printer` (borrowed). 0; -1 without a session or a printer.
int PMSessionGetCurrentPrinter(pde::PrintSession *session, pde::Printer **printer);

/// Stores the location of the printer's description of the type ("PMPPDDescriptionType") in `url`. 0; -1 when it
/// has none.
int PMPrinterCopyDescriptionURL(pde::Printer *printer, const char *descriptionType, StringRef *url);

/// The path of a description's location; null for null.
StringRef CFURLCopyPath(const StringRef &url);

/// The printer's identifier; null for a null printer or one without identifier.
StringRef PMPrinterGetID(pde::Printer *printer);

} // namespace tessarin

#endif

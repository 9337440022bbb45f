// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The restore cycle: from the printer's PPD into the panel's record and controls.

#ifndef TESSARIN_PLUGIN_RESTORE_H
#define TESSARIN_PLUGIN_RESTORE_H

#include "pde/print_dialog_extension.h"
#include "plugin/panel_context.h"
#include "ppd/option_access.h"

#include <cstddef>

namespace tessarin {

inline constexpr std::size_t kPrinterNameSize = 128; ///< bytes, terminator included

/// Where drivers keep their ink counter files, one per printer.
inline constexpr char kInkFilePrefix[] = "/var/log/tessarin/";
inline constexpr char kInkFileSuffix[] = ".ink";

/// Whether the host has a parsed PPD and a print session of its own: always true. Logs.
bool RunningOn105OrLater();

/// The job's PPD option dictionary of an old host: always null.
OptionDictionary *myGetPPDDict();

/// Copies at most 255 characters of the path into the context.
void enterPPDPathIntoContext(PanelContext *context, const char *path);

/// Sets the context up for a printer: references, ink counter path, choice lists and constraints from the PPD at
/// `ppdPath`. `hostPPD` is replaced by the callback's own. `callback` may be null; `bundle` becomes the
/// process-wide source of localised texts.
void processPPDFile(PanelContext *context, ppd_file_s *hostPPD, const char *ppdPath, const char *printerName,
                    pde::HostCallback *callback, pde::Bundle *bundle, unsigned char onTiger);

/// Reads the current values from the PPD and shows them.
void MyRestoreValues(PanelContext *context);

/// The restore from an old host's ticket. No host of today needs it: 0, and nothing is done.
int MySyncPaneFromTigerTicket(PanelContext *context);

/// Shows the settings in the controls that exist.
void MyUpdatePaneFromSettings(PanelContext *context);

/// The path of the current printer's PPD as an ASCII string in `path` (kPPDPathSize characters), empty when it is
/// not known, too long or not ASCII. Logs the path when the printer has one.
void findPPDPath(pde::HostCallback *callback, char *path);

/// The printer's identifier in `name` (kPrinterNameSize bytes), empty when it has none or it is too long.
void findPrinterName(pde::HostCallback *callback, char *name);

} // namespace tessarin

#endif

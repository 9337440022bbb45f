// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// libcups' PPD interface, included here and nowhere else, so that a later library with the same calls can take its
// place in one line. CUPS marks these calls as deprecated since it moves to driverless printing; a panel for a
// driver with private PPD options has no other source, so the marks of these declarations are taken off.
//
// Two habits of the library to keep in mind: look-ups of options, choices and attributes ignore case, and a choice
// named "Custom" or "Custom.<anything>" comes back as "_Custom...".

#ifndef TESSARIN_CUPS_PPD_LIBRARY_H
#define TESSARIN_CUPS_PPD_LIBRARY_H

#include <cups/versioning.h>
#undef _CUPS_DEPRECATED_1_6_MSG
#define _CUPS_DEPRECATED_1_6_MSG(message) _CUPS_PUBLIC // NOLINT(bugprone-reserved-identifier): the library's name
#include <cups/ppd.h>

#endif

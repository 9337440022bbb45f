// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog's own texts: TessarinPrint::tr("...") looks a text up in the context "TessarinPrint". The class bears
// the context's name, so that the tools that collect the texts find the same one whether or not they see this
// header.

#ifndef TESSARIN_PRINTING_TEXT_H
#define TESSARIN_PRINTING_TEXT_H

#include <QCoreApplication>

namespace tessarin::host {

class TessarinPrint {
    Q_DECLARE_TR_FUNCTIONS(TessarinPrint)
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/printing_services.h"

namespace tessarin {

int PMSessionGetCurrentPrinter(pde::PrintSession *session, pde::Printer **printer)
{
    *printer = session != nullptr ? session->currentPrinter() : nullptr;
    return *printer != nullptr ? 0 : -1;
}

int PMPrinterCopyDescriptionURL(pde::Printer *printer, const char *descriptionType, StringRef *url)
{
    *url = nullptr;
    if (printer == nullptr) {
        return -1;
    }
    const std::optional<QString> path = printer->descriptionPath(QString::fromLatin1(descriptionType));
    if (!path) {
        return -1;
    }
    *url = makeString(path->toStdString());
    return 0;
}

StringRef CFURLCopyPath(const StringRef &url)
{
    // Hosts on this platform describe a file by its path: location and path are the same text.
    return url ? makeString(url->text()) : nullptr;
}

StringRef PMPrinterGetID(pde::Printer *printer)
{
    const std::optional<QString> identifier = printer != nullptr ? printer->identifier() : std::nullopt;
    return identifier ? makeString(identifier->toStdString()) : nullptr;
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Loading of interface files (Qt Designer's format) at run time.

#ifndef TESSARIN_PLATFORM_INTERFACE_LOADER_H
#define TESSARIN_PLATFORM_INTERFACE_LOADER_H

#include <QHash>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace tessarin {

/// Makes a view of one class for the interface loader; the parent owns it.
using ViewMaker = std::function<QWidget *(QWidget *parent)>;

/// Loads the interface file at `path`. The classes "PopUpButton" and "TabView" are known; `makers` adds more by
/// class name. Texts stay as the file gives them; places are scaled for the font (interface_scale.h). The caller
/// owns the result; on failure it is null, with the reason (file and line where there is one) in `reason`.
std::unique_ptr<QWidget> loadInterfaceFile(const QString &path, const QHash<QString, ViewMaker> &makers,
                                           QString *reason);

} // namespace tessarin

#endif

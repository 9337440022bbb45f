// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/supported_options.h"

#include "controls/control_tables.h"
#include "plugin/log.h"

#include <new>

namespace tessarin {

namespace {

constexpr int kKeyRoom = 50;

} // namespace

std::shared_ptr<const QStringList> MyGetSupportedOptions()
{
    std::unique_ptr<QStringList> keys(new (std::nothrow) QStringList);
    if (!keys) {
        _VERBOSE("ERROR: cannot create Array\n");
        return nullptr;
    }
    keys->reserve(kKeyRoom);
    _VERBOSE("Create suppOptKeys 1\n");
    for (const PopRow &row : pops) {
        if (row.keyword == nullptr) {
            break;
        }
        keys->append(QString::fromUtf8(keywordWithoutStar(row)));
    }
    _VERBOSE("Create suppOptKeys 2\n");
    for (const ScrollRow &row : Scrolls) {
        if (row.keyword == nullptr) {
            break;
        }
        keys->append(QString::fromUtf8(row.keyword));
    }
    _VERBOSE("Create suppOptKeys3\n");
    for (const CheckBoxRow &row : checkboxes) {
        if (row.keyword == nullptr) {
            break;
        }
        keys->append(QString::fromUtf8(row.keyword));
    }
    _VERBOSE("Create suppOptKeys 4\n");
    return std::shared_ptr<const QStringList>(std::move(keys));
}

} // namespace tessarin

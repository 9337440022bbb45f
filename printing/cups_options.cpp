// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/cups_options.h"

#include <cstring>
#include <string_view>
#include <utility>

namespace tessarin::host {

CupsOptions::~CupsOptions()
{
    cupsFreeOptions(count_, options_);
}

CupsOptions::CupsOptions(CupsOptions &&other) noexcept
    : count_(std::exchange(other.count_, 0)), options_(std::exchange(other.options_, nullptr))
{}

CupsOptions &CupsOptions::operator=(CupsOptions &&other) noexcept
{
    std::swap(count_, other.count_);
    std::swap(options_, other.options_);
    return *this;
}

void CupsOptions::add(const QString &name, const QString &value)
{
    if (name.isEmpty()) {
        return;
    }
    count_ = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), count_, &options_);
}

void CupsOptions::addAll(const CupsOptions &other)
{
    for (int i = 0; i < other.count_; ++i) {
        count_ = cupsAddOption(other.options_[i].name, other.options_[i].value, count_, &options_);
    }
}

void CupsOptions::remove(const QString &name)
{
    count_ = cupsRemoveOption(name.toUtf8().constData(), count_, &options_);
}

std::optional<QString> CupsOptions::value(const QString &name) const
{
    const char *found = cupsGetOption(name.toUtf8().constData(), count_, options_);
    return found ? std::optional(QString::fromUtf8(found)) : std::nullopt;
}

CupsOptions jobOptionsOf(int count, const cups_option_t *options)
{
    CupsOptions result;
    for (int i = 0; i < count; ++i) {
        const std::string_view name = options[i].name;
        const bool describes = name.starts_with("printer-") || name.starts_with("marker-") ||
                               name == "device-uri" || name == "auth-info-required";
        if (!describes) {
            result.add(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
        }
    }
    return result;
}

} // namespace tessarin::host

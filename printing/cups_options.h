// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The option lists of libcups with an owner.

#ifndef TESSARIN_PRINTING_CUPS_OPTIONS_H
#define TESSARIN_PRINTING_CUPS_OPTIONS_H

#include <QString>

#include <optional>

#include <cups/cups.h>

namespace tessarin::host {

/// A list of job options as libcups wants it. Names are compared without regard to case, as libcups does; a later
/// value of a name replaces the earlier one. Moves, and frees what it holds.
class CupsOptions {
public:
    CupsOptions() = default;
    ~CupsOptions();
    CupsOptions(CupsOptions &&other) noexcept;
    CupsOptions &operator=(CupsOptions &&other) noexcept;
    CupsOptions(const CupsOptions &) = delete;
    CupsOptions &operator=(const CupsOptions &) = delete;

    /// Sets an option. Names and values are UTF-8 in libcups; an empty name is not an option and is left out.
    void add(const QString &name, const QString &value);
    /// Sets every option of another list.
    void addAll(const CupsOptions &other);
    /// Takes an option out, if it is there.
    void remove(const QString &name);
    /// The value of an option; nothing when it is not set.
    std::optional<QString> value(const QString &name) const;

    int count() const { return count_; }
    /// The list itself, `count()` entries, for calls that do not write it. Owned by this object.
    cups_option_t *data() const { return options_; }

private:
    int count_ = 0;
    cups_option_t *options_ = nullptr; ///< owned
};

/// The options of a destination that say how to print, without what merely describes the destination (its state,
/// its supplies, its address), which libcups keeps in the same list.
CupsOptions jobOptionsOf(int count, const cups_option_t *options);

} // namespace tessarin::host

#endif

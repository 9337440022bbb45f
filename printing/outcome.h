// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The result of a step that can fail for a reason the user has to be told.

#ifndef TESSARIN_PRINTING_OUTCOME_H
#define TESSARIN_PRINTING_OUTCOME_H

#include <QString>

#include <optional>
#include <utility>

namespace tessarin::host {

/// A value, or the reason why there is none: a text for the user that names what failed and why.
template <typename T>
class Outcome {
public:
    Outcome(T value) : value_(std::move(value)) {}
    static Outcome failed(QString reason) { return Outcome(std::nullopt, std::move(reason)); }

    bool ok() const { return value_.has_value(); }
    /// The reason; empty when there is a value.
    const QString &reason() const { return reason_; }
    /// The value. Only when ok().
    T &value() { return *value_; }
    const T &value() const { return *value_; }
    /// The value, moved out. Only when ok(), and once.
    T take() { return std::move(*value_); }

private:
    Outcome(std::nullopt_t, QString reason) : reason_(std::move(reason)) {}

    std::optional<T> value_{};
    QString reason_{};
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Comparing the trace of a session with an expected one.

#ifndef TESSARIN_TESTS_SESSIONS_TRACE_MATCH_H
#define TESSARIN_TESTS_SESSIONS_TRACE_MATCH_H

#include <QString>
#include <QStringList>

namespace tessarin::test {

/// Compares a trace, line by line, with the expected lines. Expected lines:
/// - empty ones and remarks ("#") are skipped;
/// - "..." stands for any number of trace lines, up to the first that the next expected line matches;
/// - {"state":{...}} names the part of the state that matters: an object matches when each of its fields does, and
/// an
///   object beside an array names elements by their 0-based places; all else is compared whole;
/// - {"log":{"start":"..."}} matches a log line by its beginning;
/// - any other line is compared as it stands.
/// Answers an empty text when all lines match, else what was expected, what came, and the lines around it.
QString compareTrace(const QStringList &trace, const QStringList &expected);

} // namespace tessarin::test

#endif

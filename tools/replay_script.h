// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The script of a replayed session: one command a line, each a JSON object.

#ifndef TESSARIN_TOOLS_REPLAY_SCRIPT_H
#define TESSARIN_TOOLS_REPLAY_SCRIPT_H

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace tessarin::tools {

/// One understood command.
struct ReplayCommand {
    QString name;       ///< what is to be done
    QJsonObject fields; ///< the line's fields, checked to be there and of their types
    QByteArray text;    ///< the line as given
};

/// Whether a line of the script holds no command: it is empty or a remark ("#").
bool isSkippedLine(const QByteArray &line);

/// Reads one line. False with the reason when it is not understood: no JSON object, an unknown command, a missing
/// field or one of a wrong type.
bool parseReplayLine(const QByteArray &line, ReplayCommand &command, QString &reason);

} // namespace tessarin::tools

#endif

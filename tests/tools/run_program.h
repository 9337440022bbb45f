// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Running the tools as programs.

#ifndef TESSARIN_TESTS_TOOLS_RUN_PROGRAM_H
#define TESSARIN_TESTS_TOOLS_RUN_PROGRAM_H

#include <QProcess>
#include <QString>
#include <QStringList>

#include <string>

namespace tessarin::test {

struct ProgramRun {
    int status = -1; ///< exit status; -1: it crashed or did not end
    std::string output;
    std::string errors;
};

/// Runs a program of the build tree with the input on its standard input.
inline ProgramRun runProgram(const QString &name, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess program;
    program.start(QStringLiteral(TESSARIN_TEST_BIN "/") + name, arguments);
    program.write(input);
    program.closeWriteChannel();
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit) {
        return {-1, {}, program.errorString().toStdString()};
    }
    return {program.exitCode(), program.readAllStandardOutput().toStdString(),
            program.readAllStandardError().toStdString()};
}

} // namespace tessarin::test

#endif

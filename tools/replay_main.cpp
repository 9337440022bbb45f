// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// tessarin-replay: drives the installed plug-in through a scripted session and prints everything that can be
// observed.

#include "host/installation.h"
#include "host/plugin_loader.h"
#include "pde/panel_diagnostics.h"
#include "tools/replay_script.h"
#include "tools/replay_session.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>

#include <clocale>
#include <cstdio>
#include <memory>

namespace {

using namespace tessarin;

constexpr int kScriptRan = 0;
constexpr int kUnusable = 2;

struct ReplayArguments {
    QString ppd;
    QString printerID;
    QString language;
    QString bundle;
    QString script;
    bool quietLog = false;
    bool stable = false;
};

void complain(const QString &text)
{
    std::fprintf(stderr, "tessarin-replay: %s\n", qPrintable(text));
}

bool readArguments(const QStringList &given, ReplayArguments &arguments)
{
    const QCommandLineOption ppd(QStringLiteral("ppd"), QStringLiteral("The printer's PPD."),
                                 QStringLiteral("FILE"));
    const QCommandLineOption printerID(QStringLiteral("printer-id"), QStringLiteral("The printer's identifier."),
                                       QStringLiteral("ID"), QStringLiteral("sample"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Language of the panel's texts; English without it."),
                                      QStringLiteral("CODE"), QStringLiteral("en"));
    const QCommandLineOption bundle(QStringLiteral("bundle"), QStringLiteral("The plug-in's bundle."),
                                    QStringLiteral("DIR"));
    const QCommandLineOption quietLog(QStringLiteral("quiet-log"), QStringLiteral("Leave out the log lines."));
    const QCommandLineOption stable(QStringLiteral("stable"),
                                    QStringLiteral("Print pointers and handles alike in every run."));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Drives the panel through a scripted session and prints what can be observed.\n"
                       "Exit status: 0 the script ran to its end; 2 unusable arguments, plug-in or script line."));
    parser.addOptions({ppd, printerID, language, bundle, quietLog, stable});
    parser.addPositionalArgument(QStringLiteral("SCRIPT"),
                                 QStringLiteral("One JSON object per line; - or nothing: standard input."),
                                 QStringLiteral("[SCRIPT]"));
    const QCommandLineOption help = parser.addHelpOption();
    if (!parser.parse(given)) {
        complain(parser.errorText());
        return false;
    }
    if (parser.isSet(help)) {
        parser.showHelp(kScriptRan);
    }
    if (!parser.isSet(ppd) || parser.positionalArguments().size() > 1) {
        complain(parser.isSet(ppd) ? QStringLiteral("more than one script")
                                   : QStringLiteral("--ppd FILE is missing"));
        return false;
    }
    arguments = {.ppd = parser.value(ppd),
                 .printerID = parser.value(printerID),
                 .language = parser.value(language),
                 .bundle = parser.value(bundle),
                 .script = parser.positionalArguments().value(0, QStringLiteral("-")),
                 .quietLog = parser.isSet(quietLog),
                 .stable = parser.isSet(stable)};
    if (arguments.language.isEmpty()) {
        complain(QStringLiteral("--language needs a language code"));
        return false;
    }
    return true;
}

bool openScript(const QString &name, QFile &file)
{
    if (name == QLatin1String("-")) {
        return file.open(stdin, QIODevice::ReadOnly);
    }
    file.setFileName(name);
    if (!file.open(QIODevice::ReadOnly)) {
        complain(name + QStringLiteral(": ") + file.errorString());
        return false;
    }
    return true;
}

int runScript(QFile &script, tools::ReplaySession &session)
{
    for (int number = 1;; ++number) {
        QByteArray line = script.readLine();
        if (line.isEmpty()) {
            return kScriptRan;
        }
        if (line.endsWith('\n')) {
            line.chop(1);
        }
        if (number == 1 && line.startsWith("\xEF\xBB\xBF")) {
            line.remove(0, 3); // the mark that some editors put before UTF-8
        }
        if (tools::isSkippedLine(line)) {
            continue;
        }
        tools::ReplayCommand command;
        QString reason;
        if (!tools::parseReplayLine(line, command, reason)) {
            complain(QStringLiteral("line %1: %2").arg(number).arg(reason));
            return kUnusable;
        }
        session.run(command);
    }
}

int replay(const ReplayArguments &arguments)
{
    pde::PanelDiagnostics *diagnostics = nullptr;
    const auto prepare = [&](QObject &instance) {
        diagnostics = qobject_cast<pde::PanelDiagnostics *>(&instance);
        if (diagnostics != nullptr) {
            diagnostics->setStableAddresses(arguments.stable);
            diagnostics->setAlertObserver(tools::traceAlert);
        }
    };
    pde::LogSink nowhere = [](std::string_view) {};
    host::PlugInRequest request{.directory = host::bundleDirectory(arguments.bundle),
                                .language = arguments.language,
                                .logSink = arguments.quietLog ? nowhere : pde::LogSink(tools::traceLog),
                                .prepare = prepare};
    host::Outcome<host::LoadedPlugIn> loaded = host::loadPlugIn(request);
    if (!loaded.ok() || diagnostics == nullptr) {
        complain(loaded.ok() ? QStringLiteral("the plug-in has no diagnostics") : loaded.reason());
        return kUnusable;
    }
    int status = kUnusable;
    {
        QFile script;
        tools::ReplaySession session(*loaded.value().plugIn, *diagnostics, arguments.ppd, arguments.printerID);
        if (openScript(arguments.script, script)) {
            status = runScript(script, session);
        }
        // What the end of the process releases is not part of the session.
        loaded.value().entry->setLogSink(nowhere);
    }
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    // The toolkit has taken the environment's language over; the system's error texts in a trace stay English.
    std::setlocale(LC_MESSAGES, "C");
    ReplayArguments arguments;
    return readArguments(QCoreApplication::arguments(), arguments) ? replay(arguments) : kUnusable;
}

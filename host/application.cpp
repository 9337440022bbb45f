// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/application.h"

#include "host/command_line.h"
#include "host/dialog.h"
#include "host/edge_style.h"
#include "host/installation.h"
#include "host/log_output.h"
#include "host/no_dialog.h"
#include "host/offscreen.h"
#include "host/plugin_loader.h"
#include "host/printer_choices.h"
#include "host/theme.h"
#include "host/translation.h"
#include "printing/delivery.h"
#include "printing/destinations.h"
#include "printing/documents.h"
#include "printing/host_printer.h"
#include "printing/text.h"
#include "printing/ticket_output.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

#include <atomic>
#include <csignal>
#include <cstdio>

#include <unistd.h>

namespace tessarin::host {

namespace {

void say(const QString &text)
{
    std::fprintf(stderr, "tessarin-print: %s\n", text.toLocal8Bit().constData());
}

/// False when the arguments ask for something that opens no window, not even for a message: a script waits.
bool opensWindows = true;

/// True when there are windows that somebody can see.
bool hasScreen()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

/// Reports what ends the program before there is a dialog. Started from a desktop there is nobody to read standard
/// error, so that the message also gets a window.
int fail(ExitCode code, const QString &reason)
{
    say(reason);
    if (opensWindows && hasScreen() && ::isatty(STDERR_FILENO) == 0) {
        QMessageBox box(QMessageBox::Critical, TessarinPrint::tr("Print"), reason);
        box.setTextFormat(Qt::PlainText);
        box.setInformativeText(TessarinPrint::tr("The print dialog cannot be opened."));
        box.exec();
    }
    return static_cast<int>(code);
}

/// The printer that the arguments name; one without name when they name none.
PrinterChoice wantedPrinter(const CommandLine &line)
{
    if (!line.queue.isEmpty()) {
        return queueChoice(QueueName::fromText(line.queue));
    }
    if (!line.ppdFile.isEmpty()) {
        return ppdChoice(line.ppdFile);
    }
    return line.sample ? sampleChoice() : PrinterChoice();
}

/// Opens a printer at once, for what has no window to wait in.
Outcome<std::shared_ptr<HostPrinter>> openPrinter(PrinterChoice &wanted)
{
    using Result = Outcome<std::shared_ptr<HostPrinter>>;
    if (wanted.name.isEmpty()) {
        const std::atomic<bool> never = false;
        const Outcome<QList<Destination>> destinations = listDestinations(never);
        if (!destinations.ok()) {
            return Result::failed(destinations.reason());
        }
        const auto preferred = preferredChoice(choicesOf(destinations.value()), QString(), destinations.value());
        if (!preferred) {
            return Result::failed(
                TessarinPrint::tr("there is no printer: name one with --printer, --ppd or --sample"));
        }
        wanted = *preferred;
    }
    return wanted.kind == PrinterKind::Queue ? HostPrinter::fromQueue(wanted.queue) : openLocalPrinter(wanted);
}

/// Pictures in place of a window. Nothing is submitted.
int takePictures(PrintDialog &dialog, const CommandLine &line)
{
    const Outcome<Pictures> pictures = savePictures(dialog, line.picturesDirectory);
    const JobTicket ticket = dialog.completeTicket();
    QString failure = writeTicket(ticket, QString());
    if (failure.isEmpty() && !line.ticketFile.isEmpty() && line.ticketFile != QLatin1String("-")) {
        failure = writeTicket(ticket, line.ticketFile);
    }
    if (!dialog.panelProblem().isEmpty()) {
        say(dialog.panelProblem());
    }
    for (const QString &problem : {failure, pictures.reason()}) {
        if (!problem.isEmpty()) {
            return fail(ExitCode::Usage, problem);
        }
    }
    for (const QString &note : pictures.value().notes) {
        say(note);
    }
    say(TessarinPrint::tr(
            "nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are "
            "on standard output")
            .arg(QString::number(pictures.value().files.size()), line.picturesDirectory));
    return static_cast<int>(ExitCode::Printed);
}

/// The panel's summary in place of a window. Nothing is submitted.
int printSummary(PrintDialog &dialog, SummaryForm form)
{
    const std::optional<QList<SummaryLine>> lines = dialog.currentSummary();
    if (!lines) {
        return fail(ExitCode::PlugIn, dialog.panelProblem().isEmpty()
                                          ? TessarinPrint::tr("the panel gives no summary")
                                          : dialog.panelProblem());
    }
    const QString text = form == SummaryForm::Json ? summaryJson(*lines) : summaryText(*lines);
    if (std::fputs(text.toUtf8().constData(), stdout) < 0 || std::fflush(stdout) != 0) {
        return fail(ExitCode::Usage, TessarinPrint::tr("standard output: the summary cannot be written"));
    }
    return static_cast<int>(ExitCode::Printed);
}

std::unique_ptr<Delivery> makeDelivery(const CommandLine &line, const HostPrinter &printer,
                                       const Documents &documents, bool separateJobs)
{
    if (printer.kind() != PrinterKind::Queue) {
        return std::make_unique<TicketDelivery>(line.ticketFile);
    }
    auto delivery = std::make_unique<QueueDelivery>(printer.queueName(), documents.list, line.ticketFile);
    delivery->setSeparateJobs(separateJobs);
    return delivery;
}

bool writeOut(const QString &text)
{
    return std::fputs(text.toLocal8Bit().constData(), stdout) >= 0 && std::fflush(stdout) == 0;
}

int listPresets(const PrinterChoice &wanted)
{
    PresetMenu presets;
    presets.setPrinter(wanted.identity(), wanted.queue);
    if (!presets.problem().isEmpty()) {
        return fail(ExitCode::Usage, presets.problem());
    }
    const QStringList names = QStringList{PresetMenu::defaultsName(), PresetMenu::lastUsedName()} + presets.names();
    const bool written = writeOut(names.join(u'\n') + u'\n');
    return static_cast<int>(written ? ExitCode::Printed : ExitCode::Usage);
}

/// What is done in place of a window, once all parts are there.
int runWithoutWindow(const CommandLine &line, const DialogParts &parts)
{
    if (line.noDialog) {
        const RunResult result = printWithoutDialog(parts);
        if (result.code != ExitCode::Printed) {
            return fail(result.code, result.reason);
        }
        return writeOut(result.output)
                   ? static_cast<int>(ExitCode::Printed)
                   : fail(ExitCode::Usage, TessarinPrint::tr("standard output: it cannot be written"));
    }
    DialogParts filled = parts;
    if (!parts.preset.isEmpty() || !parts.values.isEmpty()) {
        const Outcome<std::shared_ptr<OpenPrinter>> opened = openWithValues(parts);
        if (!opened.ok()) {
            return fail(ExitCode::Usage, opened.reason());
        }
    }
    PrintDialog dialog(filled);
    return line.summary != SummaryForm::None ? printSummary(dialog, line.summary) : takePictures(dialog, line);
}

/// Opens everything that is needed, in an order that checks the user's own files before the network.
int runProgram(const CommandLine &line)
{
    const Outcome<std::optional<pde::LogSink>> logSink = logSinkFor(line.log);
    if (!logSink.ok()) {
        return fail(ExitCode::Usage, logSink.reason());
    }
    const Outcome<Documents> documents = prepareDocuments(line.documents);
    if (!documents.ok()) {
        return fail(ExitCode::Document, documents.reason());
    }
    const bool withoutWindow =
        line.noDialog || line.listPresets || line.summary != SummaryForm::None || !line.picturesDirectory.isEmpty();
    DialogParts parts{.wanted = wantedPrinter(line), .values = line.options, .preset = line.preset};
    if (withoutWindow || (!parts.wanted.name.isEmpty() && parts.wanted.kind != PrinterKind::Queue)) {
        Outcome<std::shared_ptr<HostPrinter>> printer = openPrinter(parts.wanted);
        if (!printer.ok()) {
            return fail(ExitCode::Printer, printer.reason());
        }
        parts.printer = printer.take();
    }
    if (line.listPresets) {
        return listPresets(parts.wanted);
    }
    const Outcome<LoadedPlugIn> plugIn = loadPlugIn(
        {.directory = bundleDirectory(line.bundle), .language = line.language, .logSink = logSink.value()});
    if (!plugIn.ok() && withoutWindow) {
        return fail(ExitCode::PlugIn, plugIn.reason());
    }
    parts.plugIn = plugIn.ok() ? plugIn.value().plugIn.get() : nullptr;
    parts.panelProblem = plugIn.reason();
    for (const JobDocument &document : documents.value().list) {
        parts.documentPaths << document.path;
        parts.documentNames << document.name;
    }
    parts.separateJobs = line.separateJobs;
    parts.makeDelivery = [&](const HostPrinter &printer, bool separateJobs) {
        return makeDelivery(line, printer, documents.value(), separateJobs);
    };
    if (withoutWindow) {
        return runWithoutWindow(line, parts);
    }
    parts.discover = parts.wanted.kind == PrinterKind::Queue || parts.wanted.name.isEmpty();
    parts.offered = {pdfChoice()};
    PrintDialog dialog(parts);
    const bool printed = dialog.exec() == QDialog::Accepted;
    return static_cast<int>(printed ? ExitCode::Printed : ExitCode::Cancelled);
}

int answerAndLeave(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Translation translation(askedLanguage(argc, argv));
    const QString text = asksForHelp(argc, argv)
                             ? helpText()
                             : QStringLiteral("tessarin-print %1\n").arg(QLatin1String(TESSARIN_VERSION));
    return static_cast<int>(writeOut(text) ? ExitCode::Printed : ExitCode::Usage);
}

} // namespace

int runApplication(int argc, char **argv)
{
    // A reader of standard output that goes away becomes an error message, not the end of the dialog.
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication::setOrganizationName(QStringLiteral("Tessarin"));
    QCoreApplication::setApplicationName(QStringLiteral("tessarin-print"));
    QCoreApplication::setApplicationVersion(QLatin1String(TESSARIN_VERSION));
    if (asksForHelp(argc, argv) || asksForVersion(argc, argv)) {
        return answerAndLeave(argc, argv);
    }
    const bool noDisplay = displayIsMissing(argc, argv);
    const bool needsWindow = !asksForNoWindow(argc, argv);
    opensWindows = needsWindow;
    if (noDisplay || (!needsWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))) {
        chooseOffscreenPlatform();
    }
    const QString language = askedLanguage(argc, argv); // before the application takes its own arguments away
    const QApplication application(argc, argv);
    const Translation translation(language);
    const PlaceholderKeeper placeholders;
    const EdgeKeeper edges;
    // By this name the desktop finds the program's entry, and so its icon in lists of windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessarin.Print"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.tessarin.Print")));
    QStringList arguments = QCoreApplication::arguments();
    if (noDisplay && needsWindow) {
        arguments.insert(1, QStringLiteral("--pictures=") + defaultPicturesDirectory());
    }
    const Outcome<CommandLine> line = parseCommandLine(arguments);
    if (!line.ok()) {
        return fail(ExitCode::Usage, line.reason());
    }
    const int code = runProgram(line.value());
    if (noDisplay && needsWindow && code == static_cast<int>(ExitCode::Printed)) {
        say(TessarinPrint::tr("there is no display: to get a window, run this in a desktop session, set DISPLAY or "
                              "WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print"));
    }
    return code;
}

} // namespace tessarin::host

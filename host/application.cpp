// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/application.h"

#include "host/command_line.h"
#include "printing/delivery.h"
#include "host/dialog.h"
#include "printing/documents.h"
#include "settings/host_callback.h"
#include "printing/host_printer.h"
#include "host/installation.h"
#include "host/log_output.h"
#include "host/offscreen.h"
#include "host/plugin_loader.h"
#include "printing/text.h"
#include "printing/ticket_output.h"

#include <QApplication>
#include <QMessageBox>

#include <csignal>
#include <cstdio>

#include <unistd.h>

namespace tessarin::host {

namespace {

void say(const QString &text)
{
    std::fprintf(stderr, "tessarin-print: %s\n", text.toLocal8Bit().constData());
}

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
    if (hasScreen() && ::isatty(STDERR_FILENO) == 0) {
        QMessageBox box(QMessageBox::Critical, TessarinPrint::tr("Print"), reason);
        box.setTextFormat(Qt::PlainText);
        box.setInformativeText(TessarinPrint::tr("The print dialog cannot be opened."));
        box.exec();
    }
    return static_cast<int>(code);
}

Outcome<std::shared_ptr<HostPrinter>> openPrinter(const CommandLine &line)
{
    if (!line.queue.isEmpty()) {
        return HostPrinter::fromQueue(QueueName::fromText(line.queue));
    }
    return line.ppdFile.isEmpty() ? HostPrinter::sample(samplePpdPath()) : HostPrinter::fromPpdFile(line.ppdFile);
}

/// Pictures in place of a window. Nothing is submitted.
int takePictures(PrintDialog &dialog, const DialogCallback &callback, const CommandLine &line)
{
    const Outcome<Pictures> pictures = savePictures(dialog, line.picturesDirectory);
    dialog.saveSettings();
    QString failure = writeTicket(callback.ticket(), QString());
    if (failure.isEmpty() && !line.ticketFile.isEmpty() && line.ticketFile != QLatin1String("-")) {
        failure = writeTicket(callback.ticket(), line.ticketFile);
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
                                       const Documents &documents)
{
    if (printer.kind() == PrinterKind::Queue) {
        return std::make_unique<QueueDelivery>(printer.queueName(), documents.list, line.ticketFile);
    }
    return std::make_unique<TicketDelivery>(line.ticketFile);
}

/// Opens everything the dialog needs, in an order that checks the user's own files before the network.
int runDialog(const CommandLine &line)
{
    const Outcome<std::optional<pde::LogSink>> logSink = logSinkFor(line.log);
    if (!logSink.ok()) {
        return fail(ExitCode::Usage, logSink.reason());
    }
    const Outcome<Documents> documents = prepareDocuments(line.documents);
    if (!documents.ok()) {
        return fail(ExitCode::Document, documents.reason());
    }
    Outcome<std::shared_ptr<HostPrinter>> printer = openPrinter(line);
    if (!printer.ok()) {
        return fail(ExitCode::Printer, printer.reason());
    }
    const Outcome<LoadedPlugIn> plugIn = loadPlugIn(
        {.directory = bundleDirectory(line.bundle), .language = line.language, .logSink = logSink.value()});
    if (!plugIn.ok()) {
        return fail(ExitCode::PlugIn, plugIn.reason());
    }
    const auto callback = std::make_shared<DialogCallback>(printer.value());
    const std::unique_ptr<Delivery> delivery = makeDelivery(line, *printer.value(), documents.value());
    QStringList names;
    for (const JobDocument &document : documents.value().list) {
        names << document.name;
    }
    PrintDialog dialog({.printer = printer.value(),
                        .callback = callback,
                        .plugIn = plugIn.value().plugIn.get(),
                        .delivery = delivery.get(),
                        .documentNames = names});
    if (line.summary != SummaryForm::None) {
        return printSummary(dialog, line.summary);
    }
    if (!line.picturesDirectory.isEmpty()) {
        return takePictures(dialog, *callback, line);
    }
    const bool printed = dialog.exec() == QDialog::Accepted;
    return static_cast<int>(printed ? ExitCode::Printed : ExitCode::Cancelled);
}

int answerAndLeave(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString text = asksForHelp(argc, argv)
                             ? helpText()
                             : QStringLiteral("tessarin-print %1\n").arg(QLatin1String(TESSARIN_VERSION));
    const bool written = std::fputs(text.toLocal8Bit().constData(), stdout) >= 0 && std::fflush(stdout) == 0;
    return static_cast<int>(written ? ExitCode::Printed : ExitCode::Usage);
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
    if (noDisplay) {
        chooseOffscreenPlatform();
    }
    const QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    const bool needsWindow = !asksForSummary(argc, argv);
    if (noDisplay && needsWindow) {
        arguments.insert(1, QStringLiteral("--pictures=") + defaultPicturesDirectory());
    }
    const Outcome<CommandLine> line = parseCommandLine(arguments);
    if (!line.ok()) {
        return fail(ExitCode::Usage, line.reason());
    }
    const int code = runDialog(line.value());
    if (noDisplay && needsWindow && code == static_cast<int>(ExitCode::Printed)) {
        say(TessarinPrint::tr("there is no display: to get a window, run this in a desktop session, set DISPLAY or "
                              "WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print"));
    }
    return code;
}

} // namespace tessarin::host

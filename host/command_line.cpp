// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/command_line.h"

#include "printing/text.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <string_view>

namespace tessarin::host {

namespace {

/// The options that take a value, under the names by which they are read.
struct Options {
    QCommandLineOption ppd{QStringLiteral("ppd"), TessarinPrint::tr("Show the printer that a PPD file describes."),
                           TessarinPrint::tr("file")};
    QCommandLineOption printer{{QStringLiteral("d"), QStringLiteral("printer")},
                               TessarinPrint::tr("Print on a queue of the print server."),
                               TessarinPrint::tr("queue")};
    QCommandLineOption ticket{
        QStringLiteral("ticket"),
        TessarinPrint::tr("Write the job's options to a file, one key=value per line (\"-\": to standard "
                          "output, which is the default without a queue)."),
        TessarinPrint::tr("file")};
    QCommandLineOption log{
        QStringLiteral("log"),
        TessarinPrint::tr("Send the panel's diagnostic log to stderr, none, syslog (default) or a file."),
        TessarinPrint::tr("where")};
    QCommandLineOption bundle{
        QStringLiteral("bundle"),
        TessarinPrint::tr("Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one "
                          "installed with the program)."),
        TessarinPrint::tr("folder")};
    QCommandLineOption language{QStringLiteral("language"),
                                TessarinPrint::tr("Show the panel in this language, such as de or pt_BR."),
                                TessarinPrint::tr("code")};
    QCommandLineOption pictures{
        QStringLiteral("pictures"),
        TessarinPrint::tr("Print nothing: save a picture of each page in this folder and list the "
                          "job's options on standard output. Without a display this happens anyway, "
                          "in ./tessarin-pages."),
        TessarinPrint::tr("folder")};
    QCommandLineOption summary{
        QStringLiteral("summary"),
        TessarinPrint::tr("Print nothing and open no window: list the settings on standard output, as text or, "
                          "with \"json\", as JSON."),
        TessarinPrint::tr("[json]")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, TessarinPrint::tr("Show this text.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               TessarinPrint::tr("Show the version.")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addOptions({ppd, printer, ticket, log, bundle, language, pictures, summary, help, version});
        parser.addPositionalArgument(QStringLiteral("document"),
                                     TessarinPrint::tr("The documents to print (\"-\": standard input)."),
                                     QStringLiteral("[document...]"));
    }
};

bool mentions(int argc, const char *const *argv, std::string_view brief, std::string_view full)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--") {
            return false;
        }
        if (argument == brief || argument == full) {
            return true;
        }
    }
    return false;
}

/// What is wrong with arguments that could be read; an empty text when nothing is.
QString contradiction(const CommandLine &line)
{
    if (!line.ppdFile.isEmpty() && !line.queue.isEmpty()) {
        return TessarinPrint::tr("usage: --ppd and --printer cannot be given together: one printer at a time");
    }
    const bool opensWindow = line.picturesDirectory.isEmpty() && line.summary == SummaryForm::None;
    if (!line.queue.isEmpty() && line.documents.isEmpty() && opensWindow) {
        return TessarinPrint::tr("usage: no document: there is nothing to print on queue %1").arg(line.queue);
    }
    if (line.documents.count(QStringLiteral("-")) > 1) {
        return TessarinPrint::tr("usage: standard input (\"-\") can be printed only once");
    }
    if (line.documents.contains(QString())) {
        return TessarinPrint::tr("usage: a document has an empty name");
    }
    // The code becomes a part of file names.
    static const QRegularExpression code(QStringLiteral("^[A-Za-z]{1,8}([_@.-][A-Za-z0-9]+)*$"));
    if (!line.language.isEmpty() && !code.match(line.language).hasMatch()) {
        return TessarinPrint::tr("usage: --language %1: not a language code such as de or pt_BR")
            .arg(line.language);
    }
    return {};
}

/// The arguments with a form behind every --summary, which people give as a word of its own or leave out.
QStringList withSummaryForm(const QStringList &arguments)
{
    QStringList result;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--")) {
            return result + arguments.mid(i);
        }
        if (arguments[i] != QLatin1String("--summary")) {
            result << arguments[i];
            continue;
        }
        const QString next = arguments.value(i + 1);
        const bool named = next == QLatin1String("json") || next == QLatin1String("text");
        result << QStringLiteral("--summary=") + (named ? next : QStringLiteral("text"));
        i += named ? 1 : 0;
    }
    return result;
}

Outcome<SummaryForm> summaryForm(const QCommandLineParser &parser, const QCommandLineOption &option)
{
    const QString form = parser.value(option);
    if (!parser.isSet(option)) {
        return SummaryForm::None;
    }
    if (form != QLatin1String("text") && form != QLatin1String("json")) {
        return Outcome<SummaryForm>::failed(
            TessarinPrint::tr("usage: --summary %1: not a form, which is text or json").arg(form));
    }
    return form == QLatin1String("json") ? SummaryForm::Json : SummaryForm::Text;
}

} // namespace

Outcome<CommandLine> parseCommandLine(const QStringList &arguments)
{
    using Result = Outcome<CommandLine>;
    const Options options;
    QCommandLineParser parser;
    options.addTo(parser);
    if (!parser.parse(withSummaryForm(arguments))) {
        return Result::failed(TessarinPrint::tr("usage: %1").arg(parser.errorText()));
    }
    for (const QCommandLineOption &option : {options.ppd, options.printer, options.ticket, options.log,
                                             options.bundle, options.language, options.pictures}) {
        if (parser.isSet(option) && parser.value(option).isEmpty()) {
            return Result::failed(
                TessarinPrint::tr("usage: --%1: the value is empty").arg(option.names().constLast()));
        }
    }
    const Outcome<SummaryForm> summary = summaryForm(parser, options.summary);
    if (!summary.ok()) {
        return Result::failed(summary.reason());
    }
    const CommandLine line{.ppdFile = parser.value(options.ppd),
                           .queue = parser.value(options.printer),
                           .ticketFile = parser.value(options.ticket),
                           .log = parser.value(options.log),
                           .bundle = parser.value(options.bundle),
                           .language = parser.value(options.language),
                           .picturesDirectory = parser.value(options.pictures),
                           .summary = summary.value(),
                           .documents = parser.positionalArguments()};
    const QString wrong = contradiction(line);
    return wrong.isEmpty() ? Result(line) : Result::failed(wrong);
}

bool asksForHelp(int argc, const char *const *argv)
{
    return mentions(argc, argv, "-h", "--help");
}

bool asksForVersion(int argc, const char *const *argv)
{
    return mentions(argc, argv, "-v", "--version");
}

bool asksForSummary(int argc, const char *const *argv)
{
    return mentions(argc, argv, "--summary", "--summary=json") || mentions(argc, argv, "--summary=text", "");
}

QString helpText()
{
    QCommandLineParser parser;
    Options().addTo(parser);
    parser.setApplicationDescription(TessarinPrint::tr(
        "A print dialog with the panel of printer settings. Without --ppd or --printer it shows the sample "
        "printer."));
    return parser.helpText() +
           TessarinPrint::tr(
               "\nExit codes: 0 printed (or pictures made), 1 cancelled, 2 usage or a file that cannot be "
               "written, 3 printer, 4 document, 5 plug-in.\n");
}

} // namespace tessarin::host

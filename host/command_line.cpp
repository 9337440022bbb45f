// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/command_line.h"

#include "printing/text.h"
#include "settings/page_ranges.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>
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
    QCommandLineOption sample{QStringLiteral("sample"),
                              TessarinPrint::tr("Show the sample printer that comes with the program.")};
    QCommandLineOption option{
        QStringLiteral("o"),
        TessarinPrint::tr("Set an option of the printer or the job; may be given more than once."),
        TessarinPrint::tr("key=value")};
    QCommandLineOption copies{QStringLiteral("n"), TessarinPrint::tr("Print this many copies."),
                              TessarinPrint::tr("copies")};
    QCommandLineOption pages{QStringLiteral("P"), TessarinPrint::tr("Print these pages, such as 1-3,5,8-."),
                             TessarinPrint::tr("ranges")};
    QCommandLineOption preset{QStringLiteral("preset"),
                              TessarinPrint::tr("Start from a preset of the printer; -o, -n and -P go over it."),
                              TessarinPrint::tr("name")};
    QCommandLineOption noDialog{
        QStringLiteral("no-dialog"),
        TessarinPrint::tr("Print at once, without a window; the panel's rules apply all the same.")};
    QCommandLineOption listPresets{QStringLiteral("list-presets"),
                                   TessarinPrint::tr("Print nothing: list the printer's presets, one a line.")};
    QCommandLineOption separateJobs{QStringLiteral("separate-jobs"),
                                    TessarinPrint::tr("Print each document as a job of its own.")};
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
                                TessarinPrint::tr("Show the dialog in this language, such as de or pt_BR."),
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
        parser.addOptions({printer, ppd, sample, option, copies, pages, preset, noDialog, separateJobs, listPresets,
                           ticket, log, bundle, language, pictures, summary, help, version});
        parser.addPositionalArgument(QStringLiteral("document"),
                                     TessarinPrint::tr("The documents to print (\"-\": standard input)."),
                                     QStringLiteral("[document...]"));
    }
};

bool mentions(int argc, const char *const *argv, std::initializer_list<std::string_view> names)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--") {
            return false;
        }
        if (std::find(names.begin(), names.end(), argument) != names.end()) {
            return true;
        }
    }
    return false;
}

/// The settings of -o, -n and -P. The reason of a failure says which of them is none.
Outcome<KeyValues> settingsOf(const QCommandLineParser &parser, const Options &options)
{
    using Result = Outcome<KeyValues>;
    KeyValues settings;
    for (const QString &text : parser.values(options.option)) {
        const qsizetype equals = text.indexOf(u'=');
        if (equals == 0 || text.isEmpty()) {
            return Result::failed(TessarinPrint::tr("usage: -o %1: there is no key before the \"=\"").arg(text));
        }
        // As everywhere in printing, an option without a value is switched on, and off with "no" before it.
        const bool negated = equals < 0 && text.startsWith(QLatin1String("no"));
        settings << (equals > 0 ? KeyValue{.key = text.left(equals), .value = text.mid(equals + 1)}
                     : negated  ? KeyValue{.key = text.mid(2), .value = QStringLiteral("false")}
                                : KeyValue{.key = text, .value = QStringLiteral("true")});
    }
    if (parser.isSet(options.copies)) {
        settings << KeyValue{.key = QLatin1String(kCopies), .value = parser.value(options.copies)};
        if (!isPossibleAttribute(kCopies, settings.back().value)) {
            return Result::failed(TessarinPrint::tr("usage: -n %1: not a number of copies from 1 to 9999")
                                      .arg(settings.back().value));
        }
    }
    if (parser.isSet(options.pages)) {
        const QString ranges = parser.value(options.pages);
        if (const auto parsed = parsePageRanges(ranges); !parsed.ok()) {
            return Result::failed(TessarinPrint::tr("usage: -P %1: %2").arg(ranges, parsed.reason()));
        }
        settings << KeyValue{.key = QLatin1String(kPageRanges), .value = ranges};
    }
    return settings;
}

/// What is wrong with arguments that could be read; an empty text when nothing is.
QString contradiction(const CommandLine &line)
{
    if (!line.ppdFile.isEmpty() && !line.queue.isEmpty()) {
        return TessarinPrint::tr("usage: --ppd and --printer cannot be given together: one printer at a time");
    }
    if (line.queue.startsWith(u'/')) {
        return TessarinPrint::tr("usage: --printer %1: no name of a queue").arg(line.queue);
    }
    if (line.sample && (!line.ppdFile.isEmpty() || !line.queue.isEmpty())) {
        return TessarinPrint::tr("usage: --sample cannot be given with --ppd or --printer: one printer at a time");
    }
    const bool prints = line.picturesDirectory.isEmpty() && line.summary == SummaryForm::None && !line.listPresets;
    if (line.noDialog && !prints) {
        return TessarinPrint::tr(
            "usage: --no-dialog prints, which --pictures, --summary and --list-presets do not");
    }
    const bool needsDocument = !line.queue.isEmpty() || (line.noDialog && line.ppdFile.isEmpty() && !line.sample);
    if (needsDocument && line.documents.isEmpty() && prints) {
        return TessarinPrint::tr("usage: no document: there is nothing to print on queue %1")
            .arg(line.queue.isEmpty() ? TessarinPrint::tr("(the default)") : line.queue);
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
                                             options.bundle, options.language, options.pictures, options.preset}) {
        if (parser.isSet(option) && parser.value(option).isEmpty()) {
            return Result::failed(
                TessarinPrint::tr("usage: --%1: the value is empty").arg(option.names().constLast()));
        }
    }
    const Outcome<SummaryForm> summary = summaryForm(parser, options.summary);
    if (!summary.ok()) {
        return Result::failed(summary.reason());
    }
    const Outcome<KeyValues> settings = settingsOf(parser, options);
    if (!settings.ok()) {
        return Result::failed(settings.reason());
    }
    const CommandLine line{.ppdFile = parser.value(options.ppd),
                           .queue = parser.value(options.printer),
                           .sample = parser.isSet(options.sample),
                           .options = settings.value(),
                           .preset = parser.value(options.preset),
                           .noDialog = parser.isSet(options.noDialog),
                           .listPresets = parser.isSet(options.listPresets),
                           .separateJobs = parser.isSet(options.separateJobs),
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
    return mentions(argc, argv, {"-h", "--help"});
}

bool asksForVersion(int argc, const char *const *argv)
{
    return mentions(argc, argv, {"-v", "--version"});
}

bool asksForNoWindow(int argc, const char *const *argv)
{
    return mentions(argc, argv, {"--summary", "--summary=json", "--summary=text", "--no-dialog", "--list-presets"});
}

QString helpText()
{
    QCommandLineParser parser;
    Options().addTo(parser);
    parser.setApplicationDescription(TessarinPrint::tr("A print dialog with the panel of printer settings. Without "
                                                       "--printer, --ppd or --sample it starts with the "
                                                       "printer that was used last, or the default one."));
    return parser.helpText() +
           TessarinPrint::tr(
               "\nExit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, "
               "settings that are not possible or a file that cannot be written, 3 printer, 4 document, "
               "5 plug-in.\n");
}

} // namespace tessarin::host

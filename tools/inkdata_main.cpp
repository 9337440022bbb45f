// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// tessarin-inkdata: writes, reads and shows the ink counters that a driver keeps for the panel.

#include "ink/extra_data.h"
#include "platform/files.h"
#include "ppd/ppd_file.h"
#include "tools/inkdata_table.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>

namespace {

using namespace tessarin;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

constexpr char kDescription[] =
    "Writes, reads and shows the ink counters that a printer driver keeps for Tessarin Settings.\n"
    "\n"
    "Commands:\n"
    "  write FILE               write FILE's bytes (- : standard input) as \"PPD:\" lines to standard\n"
    "                           error, as a filter does for the scheduler\n"
    "  read PPD                 print the counter text that a PPD carries\n"
    "  show PPD-or-counter-file print a table: channel, name, last job, total\n"
    "\n"
    "Examples:\n"
    "  tessarin-inkdata write counters.ink\n"
    "  tessarin-inkdata read /etc/cups/ppd/photo.ppd\n"
    "  tessarin-inkdata show --json /var/log/tessarin/photo.ink\n"
    "\n"
    "Exit status: 0 done; 1 the file cannot be read or holds no counters; 2 wrong usage.";

int complain(const QString &text, int status)
{
    std::fprintf(stderr, "tessarin-inkdata: %s\n", qPrintable(text));
    return status;
}

/// All bytes of a file; nothing, with a complaint, when it cannot be read or is too large for extra data.
std::optional<std::string> readFile(const QString &path)
{
    const bool standardInput = path == QLatin1String("-");
    const FileHandle file = standardInput ? nullptr : openForReading(path.toLocal8Bit().constData());
    if (!standardInput && !file) {
        complain(path + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno)), kFailed);
        return std::nullopt;
    }
    std::FILE *stream = standardInput ? stdin : file.get();
    std::string text;
    std::array<char, 65536> part{};
    for (std::size_t size = 0; (size = std::fread(part.data(), 1, part.size(), stream)) > 0;) {
        text.append(part.data(), size);
        if (text.size() > kLargestExtraData) {
            complain(path + QStringLiteral(": larger than 16 MiB"), kFailed);
            return std::nullopt;
        }
    }
    if (std::ferror(stream) != 0) {
        complain(path + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno)), kFailed);
        return std::nullopt;
    }
    return text;
}

/// The counter text of a PPD; nothing when it is no PPD or carries none.
std::optional<std::string> readExtraData(const QString &path, bool &isPPD)
{
    const PPDHandle ppd = openPPD(path.toLocal8Bit().constData());
    isPPD = ppd != nullptr;
    std::size_t length = 0;
    const ExtraData data(ppdxReadData(ppd.get(), kInkExtraDataName, &length));
    return data ? std::optional(std::string(data.get(), length)) : std::nullopt;
}

int writeData(const QString &path)
{
    const std::optional<std::string> text = readFile(path);
    if (!text) {
        return kFailed;
    }
    ppdxWriteData(kInkExtraDataName, text->data(), text->size());
    return kDone;
}

int readData(const QString &path)
{
    bool isPPD = false;
    const std::optional<std::string> text = readExtraData(path, isPPD);
    if (!text) {
        return complain(path + (isPPD ? QStringLiteral(": the PPD carries no ink counters")
                                      : QStringLiteral(": not a PPD that can be read")),
                        kFailed);
    }
    std::fwrite(text->data(), 1, text->size(), stdout);
    return kDone;
}

int showData(const QString &path, bool json)
{
    bool isPPD = false;
    std::optional<std::string> text = readExtraData(path, isPPD);
    if (!text && isPPD) {
        return complain(path + QStringLiteral(": the PPD carries no ink counters"), kFailed);
    }
    if (!text) {
        text = readFile(path);
    }
    if (!text) {
        return kFailed;
    }
    const auto rows = tools::readInkTable(*text);
    std::fputs((json ? tools::inkTableJson(rows) : tools::inkTableText(rows)).c_str(), stdout);
    return kDone;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromLatin1(kDescription));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("show: print JSON."));
    parser.addOption(json);
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("write, read or show"));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("the file"));
    const QCommandLineOption help = parser.addHelpOption();
    if (!parser.parse(QCoreApplication::arguments())) {
        return complain(parser.errorText(), kUsage);
    }
    if (parser.isSet(help)) {
        parser.showHelp(kDone);
    }
    const QStringList words = parser.positionalArguments();
    const QString command = words.value(0);
    const bool known =
        command == QLatin1String("write") || command == QLatin1String("read") || command == QLatin1String("show");
    if (words.size() != 2 || !known || (parser.isSet(json) && command != QLatin1String("show"))) {
        return complain(QStringLiteral("usage: tessarin-inkdata write FILE | read PPD | show [--json] FILE "
                                       "(--help tells more)"),
                        kUsage);
    }
    if (command == QLatin1String("write")) {
        return writeData(words[1]);
    }
    return command == QLatin1String("read") ? readData(words[1]) : showData(words[1], parser.isSet(json));
}

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/ppd_file.h"

#include "cups/ppd_limit.h"
#include "printing/text.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::host {

namespace {

/// Why an open file cannot be a PPD; an empty text when it may be one.
QString unusable(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0) {
        return qt_error_string(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        return TessarinPrint::tr("it is a directory, not a PPD file");
    }
    if (!S_ISREG(status.st_mode)) {
        return TessarinPrint::tr("it is not a regular file");
    }
    if (exceedsLargestPPD(descriptor)) {
        return TessarinPrint::tr("it is larger than %1 MiB, or damaged").arg(kLargestPPD / (1024UL * 1024));
    }
    return status.st_size == 0 ? TessarinPrint::tr("the file is empty") : QString();
}

/// Adds a choice to an option of a PPD in which nothing is marked yet: marks point into the list that grows here.
/// Left out when there is no memory for it, which the marking then shows.
void addChoice(ppd_option_t &option, const QByteArray &name)
{
    const auto count = static_cast<std::size_t>(option.num_choices);
    // The list is libcups', which makes and frees it with the C library's functions.
    void *grown = std::realloc(option.choices, (count + 1) * sizeof(ppd_choice_t));
    if (!grown) {
        return;
    }
    option.choices = static_cast<ppd_choice_t *>(grown);
    option.num_choices++;
    ppd_choice_t &choice = option.choices[count];
    choice = {};
    qstrncpy(choice.choice, name.constData(), sizeof choice.choice);
    qstrncpy(choice.text, name.constData(), sizeof choice.text);
    choice.option = &option;
}

void listNumbers(ppd_file_t *ppd, const CupsOptions &numbers)
{
    for (int i = 0; i < numbers.count(); ++i) {
        const cups_option_t &number = numbers.data()[i];
        ppd_option_t *option = ppdFindOption(ppd, number.name);
        const bool fits = std::strlen(number.value) < sizeof(ppd_choice_t::choice);
        if (option && fits && isWholeNumber(QString::fromUtf8(number.value)) &&
            !ppdFindChoice(option, number.value)) {
            addChoice(*option, number.value);
        }
    }
}

} // namespace

bool isWholeNumber(const QString &text)
{
    const qsizetype sign = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
    return text.size() > sign && std::all_of(text.begin() + sign, text.end(), [](QChar character) {
               return character >= u'0' && character <= u'9';
           });
}

Outcome<PpdHandle> openPpd(const QString &path, const CupsOptions &numbers)
{
    const auto failed = [&path](const QString &why) {
        return Outcome<PpdHandle>::failed(TessarinPrint::tr("PPD file %1: %2").arg(path, why));
    };
    // Without O_NONBLOCK a pipe without a writer would hold the dialog back for ever.
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return failed(qt_error_string(errno));
    }
    if (const QString why = unusable(descriptor); !why.isEmpty()) {
        ::close(descriptor);
        return failed(why);
    }
    PpdHandle ppd(ppdOpenFd(descriptor)); // closes the descriptor
    if (!ppd) {
        int line = 0;
        const QString why = QString::fromUtf8(ppdErrorString(ppdLastError(&line)));
        return failed(TessarinPrint::tr("line %1: %2").arg(QString::number(line), why));
    }
    listNumbers(ppd.get(), numbers);
    ppdMarkDefaults(ppd.get());
    return ppd;
}

namespace {

void addOptions(std::vector<PpdOptionPlace> &all, const ppd_group_t &outer, const ppd_group_t &group)
{
    for (int i = 0; i < group.num_options; ++i) {
        all.push_back({.group = &outer, .option = &group.options[i]});
    }
    for (int i = 0; i < group.num_subgroups; ++i) {
        addOptions(all, outer, group.subgroups[i]);
    }
}

} // namespace

std::vector<PpdOptionPlace> optionsOf(const ppd_file_t &ppd)
{
    std::vector<PpdOptionPlace> all;
    for (int i = 0; i < ppd.num_groups; ++i) {
        addOptions(all, ppd.groups[i], ppd.groups[i]);
    }
    return all;
}

bool isInstalledGroup(const ppd_group_t &group)
{
    return qstricmp(group.name, "InstallableOptions") == 0;
}

QString ppdNickname(const ppd_file_t &ppd)
{
    const char *name = ppd.nickname ? ppd.nickname : ppd.modelname;
    if (!name) {
        return {};
    }
    // libcups hands the text on as it stands in the file, which is often Latin-1.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(QByteArrayView(name));
    return (decoder.hasError() ? QString::fromLatin1(name) : text).simplified();
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/ppd_translations.h"

#include "printing/text_languages.h"

#include <QFile>
#include <QLocale>

#include <cups/file.h>

#include <array>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace tessarin::host {

namespace {

struct FileCloser {
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

/// The languages that come before the PPD's own or are that one: whoever reads the PPD's own wants no further one.
QStringList upToOwn(const QStringList &languages, const char *own)
{
    const QString name = QString::fromLatin1(own);
    for (qsizetype i = languages.size() - 1; i >= 0; --i) {
        const QLocale locale(languages[i]);
        if (locale != QLocale::c() &&
            name.startsWith(QLocale::languageToString(locale.language()), Qt::CaseInsensitive)) {
            return languages.first(i + 1);
        }
    }
    return languages;
}

/// A PPD may write any byte of a text as two hexadecimal digits within "<>".
QByteArray withoutHex(const QByteArray &text)
{
    QByteArray plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype end = text[i] == '<' ? text.indexOf('>', i) : -1;
        if (end < 0) {
            plain += text[i];
        } else {
            plain += QByteArray::fromHex(text.mid(i + 1, end - i - 1));
            i = end;
        }
    }
    return plain;
}

QByteArray keyOf(const QByteArray &language, const QByteArray &keyword, const QByteArray &name)
{
    return language + '.' + keyword + ' ' + name;
}

} // namespace

PpdTranslations::PpdTranslations(ppd_file_t &ppd, const QString &path)
    : languages_(upToOwn(textLanguages(), ppd.lang_version))
{
    if (ppdFindAttr(&ppd, "cupsLanguages", nullptr)) {
        read(path);
    }
}

void PpdTranslations::read(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return;
    }
    const std::unique_ptr<cups_file_t, FileCloser> file(cupsFileOpenFd(descriptor, "r")); // unfolds it, too
    if (!file) {
        ::close(descriptor);
        return;
    }
    std::array<char, 1024> line{};
    while (cupsFileGets(file.get(), line.data(), line.size())) {
        if (line[0] == '*') {
            take(line.data());
        }
    }
}

void PpdTranslations::take(const QByteArray &line)
{
    const qsizetype dot = line.indexOf('.');
    const qsizetype space = line.indexOf(' ', dot);
    const qsizetype slash = line.indexOf('/', space);
    const qsizetype colon = line.indexOf(':', slash);
    const bool isWhole = dot > 0 && space > 0 && slash > 0 && colon > 0 && line.indexOf(':') == colon;
    if (!isWhole || !languages_.contains(QLatin1String(line.constData() + 1, dot - 1))) {
        return;
    }
    const QByteArray name = line.mid(space, slash - space).trimmed();
    const QByteArray key = keyOf(line.mid(1, dot - 1), line.mid(dot + 1, space - dot - 1), name);
    if (!texts_.contains(key)) {
        texts_.insert(key, withoutHex(line.mid(slash + 1, colon - slash - 1).trimmed()));
    }
}

QByteArray PpdTranslations::text(ppd_file_t *ppd, const char *keyword, const char *name) const
{
    for (const QString &language : languages_) {
        // What libcups has taken in, it has taken out of the file's encoding, of which it knows more.
        const QByteArray key = language.toLatin1() + '.' + keyword;
        const ppd_attr_t *known = ppdFindAttr(ppd, key.constData(), name);
        if (known && known->text[0] != '\0') {
            return known->text;
        }
        QByteArray found = texts_.value(keyOf(language.toLatin1(), keyword, name));
        if (!found.isEmpty()) {
            return found;
        }
    }
    return {};
}

} // namespace tessarin::host

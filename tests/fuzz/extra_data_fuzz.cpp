// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Extra data on attributes of any content: values as they stand, any stream in well-made chunks, and a block that
// is written and read back.

#include "ink/extra_data.h"
#include "ppd/ppd_file.h"
#include "tests/fuzz/fuzz_support.h"

#include <QByteArray>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include <unistd.h>

using namespace tessarin;

namespace {

using namespace Qt::StringLiterals;

constexpr std::string_view kPPDStart = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n";
constexpr std::size_t kChunk = 158;
constexpr qsizetype kEncodedChunk = 211;

void addAttribute(std::string &ppd, std::size_t number, std::string_view value)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "*EXData%04zx: \"", number);
    ppd += name.data();
    ppd += value;
    ppd += "\"\n";
}

/// What the writer says on standard error, as attributes of a PPD.
class WrittenLines {
public:
    WrittenLines() : kept_(dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        test::require(kept_ >= 0 && dup2(file_.descriptor(), STDERR_FILENO) >= 0, "standard error is caught");
    }

    std::string attributes()
    {
        std::fflush(stderr);
        dup2(kept_, STDERR_FILENO);
        close(kept_);
        std::string text;
        const QStringList entries = QString::fromStdString(file_.read())
                                        .remove(u"PPD:"_s)
                                        .split(QRegularExpression(u"[ \n]+"_s), Qt::SkipEmptyParts);
        for (const QString &entry : entries) {
            const qsizetype equal = entry.indexOf(u'=');
            test::require(equal > 0, "an entry is a name and a value");
            const QString value = entry.mid(equal + 1) == u"\"\""_s ? QString() : entry.mid(equal + 1);
            text += "*" + entry.left(equal).toStdString() + ": \"" + value.toStdString() + "\"\n";
        }
        return text;
    }

private:
    test::MemoryFile file_;
    int kept_;
};

/// A block that is written comes back as it was, also through the file that a panel makes of it.
void writeAndReadBack(std::string_view content)
{
    WrittenLines lines;
    ppdxWriteData(kInkExtraDataName, content.data(), content.size());
    ppdxWriteData(nullptr, content.data(), content.size());
    static test::MemoryFile file;
    file.write(std::string(kPPDStart) + lines.attributes());
    const PPDHandle ppd = openPPD(file.path().c_str());
    std::size_t length = 0;
    const ExtraData block(ppdxReadData(ppd.get(), kInkExtraDataName, &length));
    test::require(block != nullptr && std::string_view(block.get(), length) == content, "a block comes back");
    static const QTemporaryDir folder;
    const QString target = folder.filePath(u"counters"_s);
    processEXData(file.path().c_str(), target.toUtf8().constData());
    QFile counters(target);
    test::require(counters.open(QIODevice::ReadOnly) &&
                      counters.readAll() == QByteArray(content.data(), static_cast<qsizetype>(content.size())),
                  "the counter file holds the block");
    processEXData(file.path().c_str(), target.toUtf8().constData()); // the second time it is there
    counters.remove();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::string text(kPPDStart);
    test::InputReader input({data, size});
    std::size_t number = 0;
    const unsigned kind = input.byte();
    if ((kind & 2U) != 0) {
        writeAndReadBack(input.rest());
        return 0;
    }
    if ((kind & 1U) != 0) {
        const std::string_view stream = input.rest();
        for (std::size_t at = 0; at < stream.size(); at += kChunk) {
            const std::string_view chunk = stream.substr(at, kChunk);
            const QByteArray encoded =
                QByteArray(chunk.data(), static_cast<qsizetype>(chunk.size())).toBase64().left(kEncodedChunk);
            addAttribute(text, number++, {encoded.data(), static_cast<std::size_t>(encoded.size())});
        }
        addAttribute(text, number, {});
    } else {
        while (!input.atEnd()) {
            std::string value = input.text();
            std::replace(value.begin(), value.end(), '"', '\'');
            addAttribute(text, number++, value);
        }
    }
    static test::MemoryFile file;
    file.write(text);
    const PPDHandle ppd = openPPD(file.path().c_str());
    std::size_t length = 0;
    const ExtraData block(ppdxReadData(ppd.get(), kInkExtraDataName, &length));
    test::require(block != nullptr || length == 0, "without a block there is no length");
    test::require(block == nullptr || block.get()[length] == '\0', "a block ends in a zero");
    return 0;
}

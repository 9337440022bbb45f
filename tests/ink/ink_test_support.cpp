// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ink/ink_test_support.h"

#include "ink/extra_data.h"

#include <QByteArray>
#include <QFile>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <ctime>
#include <random>

#include <unistd.h>
#include <zlib.h>

namespace tessarin::test {

namespace {

std::string contentOf(const std::string &path)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", path.c_str());
    }
    return file.readAll().toStdString();
}

} // namespace

std::string standardErrorOf(const std::function<void()> &action)
{
    std::fflush(stderr);
    const int saved = dup(STDERR_FILENO);
    std::FILE *file = std::tmpfile();
    dup2(fileno(file), STDERR_FILENO);
    action();
    std::fflush(stderr);
    dup2(saved, STDERR_FILENO);
    close(saved);
    std::rewind(file);
    std::string text;
    std::array<char, 65536> block{};
    for (std::size_t size = 1; size > 0;) {
        size = std::fread(block.data(), 1, block.size(), file);
        text.append(block.data(), size);
    }
    std::fclose(file);
    return text;
}

double processorSeconds(const std::function<void()> &action)
{
    const std::clock_t start = std::clock();
    action();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

std::string writtenBlock(std::string_view block, const char *name)
{
    return standardErrorOf([block, name] { ppdxWriteData(name, block.data(), block.size()); });
}

Lines linesOf(const std::string &output)
{
    Lines lines;
    std::size_t start = 0;
    for (std::size_t end = output.find('\n'); end != std::string::npos; end = output.find('\n', start)) {
        lines.push_back(output.substr(start, end - start));
        start = end + 1;
    }
    EXPECT_EQ(start, output.size()) << "the last line does not end";
    return lines;
}

Entries storedEntries(const std::string &output)
{
    Entries entries;
    for (const std::string &line : linesOf(output)) {
        if (!line.starts_with("PPD: ")) {
            ADD_FAILURE() << "not an attribute line: " << line;
            continue;
        }
        std::size_t blank = 4;
        while (blank < line.size()) {
            const std::size_t next = std::min(line.find(' ', blank + 1), line.size());
            const std::string text = line.substr(blank + 1, next - blank - 1);
            const std::size_t equals = text.find('=');
            const std::string value = text.substr(equals + 1);
            entries.push_back({text.substr(0, equals), value == "\"\"" ? "" : value});
            blank = next;
        }
    }
    return entries;
}

std::string zlibStream(std::string_view bytes)
{
    uLongf size = compressBound(static_cast<uLong>(bytes.size()));
    std::string stream(size, '\0');
    const int code = compress2(reinterpret_cast<Bytef *>(stream.data()), &size,
                               reinterpret_cast<const Bytef *>(bytes.data()), static_cast<uLong>(bytes.size()), 9);
    EXPECT_EQ(code, Z_OK);
    stream.resize(size);
    return stream;
}

Entries chunkedEntries(std::string_view stream, std::size_t chunkSize)
{
    Entries entries;
    const auto add = [&entries](const std::string &value) {
        std::array<char, 32> number{};
        std::snprintf(number.data(), number.size(), "%04zx", entries.size());
        entries.push_back({std::string("EXData") + number.data(), value});
    };
    for (std::size_t at = 0; at < stream.size(); at += chunkSize) {
        const std::string_view chunk = stream.substr(at, chunkSize);
        const QByteArray text = QByteArray(chunk.data(), static_cast<qsizetype>(chunk.size())).toBase64();
        add(text.first(std::min<qsizetype>(text.size(), 211)).toStdString());
    }
    add("");
    return entries;
}

std::string ppdTextWith(const Entries &entries)
{
    std::string text = contentOf(ppdFixture("minimal"));
    for (const Entry &entry : entries) {
        text += "*" + entry.name + ": \"" + entry.value + "\"\n";
    }
    return text;
}

std::string ppdTextWithBlock(std::string_view block)
{
    return ppdTextWith(storedEntries(writtenBlock(block)));
}

std::optional<std::string> readEntries(const Entries &entries, const char *name)
{
    const TextFile file(ppdTextWith(entries));
    const PPDHandle ppd = openPPD(file.path().c_str());
    EXPECT_NE(ppd, nullptr);
    std::size_t length = 99;
    const ExtraData data(ppdxReadData(ppd.get(), name, &length));
    if (!data) {
        EXPECT_EQ(length, 0U);
        return std::nullopt;
    }
    EXPECT_EQ(data.get()[length], '\0');
    return std::string(data.get(), length);
}

std::optional<std::string> roundTrip(std::string_view block)
{
    return readEntries(storedEntries(writtenBlock(block)));
}

std::string randomBytes(std::size_t count)
{
    std::mt19937 numbers(20260101);
    std::string bytes(count, '\0');
    for (char &byte : bytes) {
        byte = static_cast<char>(numbers() & 0xFFU);
    }
    return bytes;
}

std::string bytesWithStreamOf(std::size_t size)
{
    const std::string bytes = randomBytes(size);
    for (std::size_t count = size > 64 ? size - 64 : 0; count < size; ++count) {
        if (zlibStream(std::string_view(bytes).substr(0, count)).size() == size) {
            return bytes.substr(0, count);
        }
    }
    ADD_FAILURE() << "no block with a stream of " << size << " bytes";
    return {};
}

BracketBundle::BracketBundle(std::map<QString, QString> texts) : texts_(std::move(texts)), previous_(mybundle)
{
    mybundle = this;
}

BracketBundle::~BracketBundle()
{
    mybundle = previous_;
}

QString BracketBundle::localizedString(const QString &key) const
{
    const auto found = texts_.find(key);
    return found != texts_.end() ? found->second : QLatin1Char('<') + key + QLatin1Char('>');
}

} // namespace tessarin::test

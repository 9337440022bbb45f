// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/documents.h"

#include "tests/host/host_test_support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

/// Puts a pipe with the given content in the place of standard input for its own life.
class StandardInput {
public:
    explicit StandardInput(const QByteArray &content) : saved_(::dup(STDIN_FILENO))
    {
        std::array<int, 2> ends = {-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0 ||
            ::write(ends[1], content.constData(), static_cast<size_t>(content.size())) != content.size()) {
            qFatal("pipe: %s", qPrintable(qt_error_string(errno)));
        }
        ::close(ends[1]);
        ::dup2(ends[0], STDIN_FILENO);
        ::close(ends[0]);
    }
    ~StandardInput()
    {
        ::dup2(saved_, STDIN_FILENO);
        ::close(saved_);
    }
    StandardInput(const StandardInput &) = delete;
    StandardInput &operator=(const StandardInput &) = delete;

private:
    int saved_;
};

TEST(Documents, MayBeNone)
{
    const auto documents = prepareDocuments({});
    ASSERT_TRUE(documents.ok());
    EXPECT_TRUE(documents.value().list.empty());
}

TEST(Documents, AreNamedWithoutTheirFolder)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a b.pdf"_s);
    test::writeFile(path, "%PDF");
    const auto documents = prepareDocuments({path});
    ASSERT_TRUE(documents.ok()) << documents.reason().toStdString();
    ASSERT_EQ(documents.value().list.size(), 1u);
    EXPECT_EQ(documents.value().list[0].path, path);
    EXPECT_EQ(documents.value().list[0].name, u"a b.pdf"_s);
}

TEST(Documents, ThatCannotBePrintedAreRefusedByNameAndReason)
{
    QTemporaryDir folder;
    const QString empty = folder.filePath(u"empty.pdf"_s);
    test::writeFile(empty, "");
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    const QString missing = folder.filePath(u"missing.pdf"_s);
    EXPECT_EQ(prepareDocuments({empty}).reason(), u"document %1: the file is empty"_s.arg(empty));
    EXPECT_EQ(prepareDocuments({pipe}).reason(), u"document %1: it is not a regular file"_s.arg(pipe));
    EXPECT_EQ(prepareDocuments({folder.path()}).reason(), u"document %1: it is a directory"_s.arg(folder.path()));
    EXPECT_EQ(prepareDocuments({missing}).reason(), u"document %1: %2"_s.arg(missing, qt_error_string(ENOENT)));
}

TEST(Documents, KeepWhatCameFromStandardInput)
{
    const StandardInput input("hello");
    const auto documents = prepareDocuments({u"-"_s});
    ASSERT_TRUE(documents.ok()) << documents.reason().toStdString();
    ASSERT_EQ(documents.value().list.size(), 1u);
    EXPECT_EQ(test::readFile(documents.value().list[0].path), QByteArray("hello"));
}

TEST(Documents, RefuseAnEmptyStandardInput)
{
    const StandardInput input("");
    const auto documents = prepareDocuments({u"-"_s});
    EXPECT_EQ(documents.reason(), u"document standard input: there is nothing in it"_s);
}

} // namespace
} // namespace tessarin::host

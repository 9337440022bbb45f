// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/files.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessarin {
namespace {

class Files : public testing::Test {
protected:
    std::string path(const char *name) const { return folder_.filePath(QString::fromUtf8(name)).toStdString(); }

    std::string makeFile(const char *name, const QByteArray &text) const
    {
        QFile file(QString::fromStdString(path(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
        return path(name);
    }

    static long openDescriptors()
    {
        const std::filesystem::directory_iterator all("/proc/self/fd");
        return std::distance(begin(all), end(all));
    }

    /// The error with which a path is refused; 0 when it opens.
    static int refusal(const std::string &path)
    {
        errno = 0;
        const FileHandle file = openForReading(path.c_str());
        return file ? 0 : errno;
    }

private:
    QTemporaryDir folder_;
};

TEST_F(Files, OpenForReadingFromTheStart)
{
    const FileHandle file = openForReading(makeFile("text", "first\nsecond").c_str());
    ASSERT_NE(file, nullptr);
    std::array<char, 32> line{};
    EXPECT_STREQ(std::fgets(line.data(), line.size(), file.get()), "first\n");
    EXPECT_STREQ(std::fgets(line.data(), line.size(), file.get()), "second");
    EXPECT_EQ(std::fgets(line.data(), line.size(), file.get()), nullptr);
    EXPECT_EQ(std::fputc('x', file.get()), EOF) << "not for writing";
}

TEST_F(Files, AreFollowedThroughASymbolicLink)
{
    ASSERT_EQ(symlink(makeFile("text", "x").c_str(), path("link").c_str()), 0);
    EXPECT_NE(openForReading(path("link").c_str()), nullptr);
}

TEST_F(Files, ThatAreMissingGiveTheReason)
{
    EXPECT_EQ(refusal(path("missing")), ENOENT);
    EXPECT_EQ(refusal(""), ENOENT);
    EXPECT_EQ(refusal(makeFile("text", "x") + "/below"), ENOTDIR);
}

TEST_F(Files, WithoutPermissionGiveTheReason)
{
    const std::string file = makeFile("secret", "x");
    ASSERT_EQ(chmod(file.c_str(), 0), 0);
    if (access(file.c_str(), R_OK) == 0) {
        GTEST_SKIP() << "this user may read everything";
    }
    EXPECT_EQ(refusal(file), EACCES);
}

TEST_F(Files, OfADirectoryOpenAndHoldNoLines)
{
    const FileHandle file = openForReading(std::filesystem::path(path("x")).parent_path().c_str());
    ASSERT_NE(file, nullptr);
    std::array<char, 32> line{};
    EXPECT_EQ(std::fgets(line.data(), line.size(), file.get()), nullptr);
}

TEST_F(Files, AreNoPipes)
{
    const std::string pipe = path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(refusal(pipe), ENXIO) << "nobody writes: an open that waits would hang the dialog";
    const int writer = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(writer, 0);
    EXPECT_EQ(refusal(pipe), ENXIO) << "somebody could write: reading would hang";
    close(writer);
}

TEST_F(Files, AreNoDevices)
{
    EXPECT_EQ(refusal("/dev/zero"), ENXIO) << "it would never end";
    EXPECT_EQ(refusal("/dev/null"), ENXIO);
}

TEST_F(Files, AreNoSockets)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name = path("socket");
    ASSERT_LT(name.size(), sizeof address.sun_path);
    std::memcpy(address.sun_path, name.c_str(), name.size() + 1);
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_GE(listener, 0);
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    EXPECT_EQ(refusal(name), ENXIO);
    close(listener);
}

TEST_F(Files, AreClosedWithTheirHandleAndOnRefusal)
{
    const std::string text = makeFile("text", "x");
    const long before = openDescriptors();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(refusal(text), 0);
        EXPECT_EQ(refusal("/dev/zero"), ENXIO);
        EXPECT_EQ(refusal(path("missing")), ENOENT);
    }
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(Files, AreNotHandedToOtherPrograms)
{
    const FileHandle file = openForReading(makeFile("text", "x").c_str());
    ASSERT_NE(file, nullptr);
    EXPECT_NE(fcntl(fileno(file.get()), F_GETFD) & FD_CLOEXEC, 0);
}

} // namespace
} // namespace tessarin

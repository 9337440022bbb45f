// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the tests of presets need: a configuration folder of the test's own, and files in it.

#ifndef TESSARIN_TESTS_SETTINGS_PRESET_TEST_SUPPORT_H
#define TESSARIN_TESTS_SETTINGS_PRESET_TEST_SUPPORT_H

#include "settings/preset_store.h"

#include "tests/host/host_test_support.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::test {

/// Has $XDG_CONFIG_HOME point to an empty folder.
class PresetTest : public testing::Test {
protected:
    PresetTest() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(config_.path())); }
    ~PresetTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    QString config() const { return config_.path(); }
    QString folder() const { return config_.path() + QStringLiteral("/tessarin/presets"); }
    /// The file of the printer "photo".
    QString file() const { return folder() + QStringLiteral("/photo.json"); }

    /// Puts a file in the place of the printer "photo"'s.
    void put(const QByteArray &content) const
    {
        QDir().mkpath(folder());
        writeFile(file(), content);
    }

    /// The presets of the printer "photo"; a failed test and the program's end when there are none.
    static host::PresetStore opened(const QString &identity = QStringLiteral("photo"))
    {
        auto store = host::PresetStore::open(identity);
        if (!store.ok()) {
            qFatal("presets of %s: %s", qPrintable(identity), qPrintable(store.reason()));
        }
        return store.take();
    }

    /// All that is in the folder of presets, by name.
    QStringList entries() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                        QDir::Name);
    }

private:
    QTemporaryDir config_{};
};

inline mode_t permissions(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// Which file it is: a replaced one is another.
inline ino_t inode(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

/// For its lifetime a superuser, whom no permission holds back, is somebody else, to whom these files or folders,
/// and all above them up to the folder of temporary ones, then belong.
class Unprivileged {
public:
    explicit Unprivileged(const QStringList &paths)
    {
        if (::geteuid() != 0) {
            return;
        }
        constexpr uid_t kNobody = 65534;
        isSuperuser_ = true;
        for (QString path : paths) {
            for (; path.startsWith(QDir::tempPath() + u'/'); path = QFileInfo(path).path()) {
                if (::lchown(QFile::encodeName(path).constData(), kNobody, kNobody) != 0) {
                    qFatal("%s: cannot be given away", qPrintable(path));
                }
            }
        }
        if (::seteuid(kNobody) != 0) {
            qFatal("cannot become another user");
        }
    }
    ~Unprivileged()
    {
        if (isSuperuser_ && ::seteuid(0) != 0) {
            qFatal("cannot become the superuser again");
        }
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    bool isSuperuser_ = false;
};

} // namespace tessarin::test

#endif

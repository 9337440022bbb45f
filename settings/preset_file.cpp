// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/preset_file.h"

#include "printing/text.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::host {

namespace {

// Encrypting file systems take names of 143 bytes, to which a temporary file adds 7 and a damaged one up to 13.
constexpr qsizetype kLongestName = 115;
constexpr qsizetype kKeptOfLongName = 50;
// Thousands of presets of hundreds of options each take a fraction of it.
constexpr qint64 kLargestFile = 32LL * 1024 * 1024;
constexpr int kLockWaitMs = 2000;
constexpr int kMostDamagedFiles = 9999;

QString because(const QString &path, const QString &why)
{
    return TessarinPrint::tr("presets file %1: %2").arg(path, why);
}

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ >= 0) {
            ::close(number_);
        }
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int number() const { return number_; }

private:
    int number_;
};

/// Why an open file cannot hold presets; an empty text when it may.
QString unusable(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0) {
        return qt_error_string(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        return TessarinPrint::tr("it is a directory");
    }
    if (!S_ISREG(status.st_mode)) {
        return TessarinPrint::tr("it is not a regular file");
    }
    return status.st_size > kLargestFile ? TessarinPrint::tr("it is too large") : QString();
}

QString place(const QByteArray &bytes, qsizetype offset)
{
    const QByteArrayView before = QByteArrayView(bytes).first(qBound<qsizetype>(0, offset, bytes.size()));
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    return TessarinPrint::tr("line %1, column %2")
        .arg(QString::number(before.count('\n') + 1), QString::number(before.size() - lineStart + 1));
}

/// What is wrong with the form of a file of this version; an empty text when nothing is.
QString formProblem(const QJsonObject &root)
{
    const QJsonValue presets = root.value(QLatin1String("presets"));
    if (!presets.isUndefined() && !presets.isArray()) {
        return TessarinPrint::tr("\"presets\" is not a list");
    }
    const QJsonValue lastUsed = root.value(QLatin1String("lastUsed"));
    if (!lastUsed.isUndefined() && !lastUsed.isObject()) {
        return TessarinPrint::tr("\"lastUsed\" is not an object");
    }
    return {};
}

PresetFileContent damaged(const QString &path, const QByteArray &bytes, const QString &why)
{
    return {.state = PresetFileContent::State::Damaged, .root = {}, .bytes = bytes, .problem = because(path, why)};
}

PresetFileContent understood(const QString &path, const QByteArray &bytes)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        return damaged(path, bytes,
                       TessarinPrint::tr("%1: %2").arg(place(bytes, error.offset), error.errorString()));
    }
    if (!document.isObject()) {
        return damaged(path, bytes, TessarinPrint::tr("line 1: not a JSON object"));
    }
    const QJsonObject root = document.object();
    const double version = root.value(QLatin1String("version")).toDouble(0); // 0 for all that is no number
    if (version < 1) {
        return damaged(path, bytes, TessarinPrint::tr("\"version\" is not a version number"));
    }
    if (version > kPresetFileVersion) {
        const QString why =
            TessarinPrint::tr("it was written by a later version of this program (its format is %1, "
                              "this program knows %2): its presets can be used, not changed")
                .arg(QString::number(version), QString::number(kPresetFileVersion));
        return {
            .state = PresetFileContent::State::Newer, .root = root, .bytes = bytes, .problem = because(path, why)};
    }
    if (const QString why = formProblem(root); !why.isEmpty()) {
        return damaged(path, bytes, why);
    }
    return {.state = PresetFileContent::State::Good, .root = root, .bytes = bytes, .problem = {}};
}

/// Makes a folder and those above it. Answers why that failed; an empty text when it did not.
QString makeFolder(const QString &folder)
{
    if (QFileInfo(folder).isDir()) {
        return {};
    }
    if (const QString above = QFileInfo(folder).path(); above != folder) {
        if (QString why = makeFolder(above); !why.isEmpty()) {
            return why;
        }
    }
    // Another program may have made it meanwhile.
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST) {
        return qt_error_string(errno);
    }
    return QFileInfo(folder).isDir() ? QString() : qt_error_string(ENOTDIR);
}

} // namespace

QString presetFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/tessarin/presets");
}

QString presetFileName(const QString &identity)
{
    const QByteArray text = identity.toUtf8();
    QString name;
    for (const char byte : text) {
        const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                           (byte >= '0' && byte <= '9') || byte == '_' || byte == '-' ||
                           (byte == '.' && !name.isEmpty());
        if (plain) {
            name += QLatin1Char(byte);
        } else {
            name += u'%' + QString::fromLatin1(QByteArray(1, byte).toHex().toUpper());
        }
    }
    if (name.size() > kLongestName) {
        const QByteArray hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
        name = name.left(kKeptOfLongName) + u'~' + QString::fromLatin1(hash);
    }
    return name + QStringLiteral(".json");
}

Outcome<PresetFileContent> readPresetFile(const QString &path)
{
    using Result = Outcome<PresetFileContent>;
    // Without O_NONBLOCK a pipe without a writer would hold the dialog back for ever.
    const Descriptor descriptor(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (descriptor.number() < 0) {
        return errno == ENOENT ? Result(PresetFileContent())
                               : Result::failed(because(path, qt_error_string(errno)));
    }
    if (const QString why = unusable(descriptor.number()); !why.isEmpty()) {
        return Result::failed(because(path, why));
    }
    QFile file;
    if (!file.open(descriptor.number(), QIODevice::ReadOnly, QFile::DontCloseHandle)) {
        return Result::failed(because(path, file.errorString()));
    }
    const QByteArray bytes = file.read(kLargestFile + 1);
    if (file.error() != QFile::NoError) {
        return Result::failed(because(path, file.errorString()));
    }
    if (bytes.size() > kLargestFile) {
        return Result::failed(because(path, TessarinPrint::tr("it is too large")));
    }
    return understood(path, bytes);
}

Outcome<std::unique_ptr<QLockFile>> lockPresetFolder(const QString &path)
{
    using Result = Outcome<std::unique_ptr<QLockFile>>;
    const QString folder = QFileInfo(path).path();
    const auto failed = [&folder](const QString &why) {
        return Result::failed(TessarinPrint::tr("presets folder %1: %2").arg(folder, why));
    };
    if (const QString why = makeFolder(folder); !why.isEmpty()) {
        return failed(why);
    }
    // One lock for the folder, not one for each file: two names may be links to the same file.
    auto lock = std::make_unique<QLockFile>(folder + QStringLiteral("/.lock"));
    if (lock->tryLock(kLockWaitMs)) {
        return lock;
    }
    switch (lock->error()) {
    case QLockFile::LockFailedError:
        return failed(TessarinPrint::tr("another program is changing presets and does not come to an end"));
    case QLockFile::PermissionError:
        return failed(qt_error_string(EACCES));
    default:
        return failed(TessarinPrint::tr("it cannot be locked"));
    }
}

QString writePresetFile(const QString &path, const QJsonObject &root)
{
    const QByteArray text = QJsonDocument(root).toJson(QJsonDocument::Indented);
    if (text.size() > kLargestFile) {
        return because(path, TessarinPrint::tr("it would become too large"));
    }
    QSaveFile file(path);
    // The permissions come first: not even for a moment may another user read what is in it.
    if (!file.open(QIODevice::WriteOnly) ||
        !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) || file.write(text) != text.size() ||
        !file.commit()) {
        return because(path, file.errorString());
    }
    return {};
}

Outcome<QString> keepDamagedFile(const QString &path, const QByteArray &bytes)
{
    for (int number = 1; number <= kMostDamagedFiles; ++number) {
        const QString aside = QStringLiteral("%1.damaged-%2").arg(path).arg(number);
        const Descriptor descriptor(
            ::open(QFile::encodeName(aside).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (descriptor.number() < 0 && errno == EEXIST) {
            continue;
        }
        if (descriptor.number() < 0) {
            return Outcome<QString>::failed(because(aside, qt_error_string(errno)));
        }
        QFile file;
        if (!file.open(descriptor.number(), QIODevice::WriteOnly, QFile::DontCloseHandle) ||
            file.write(bytes) != bytes.size() || !file.flush() || ::fsync(descriptor.number()) != 0) {
            const QString why = file.error() == QFile::NoError ? qt_error_string(errno) : file.errorString();
            QFile::remove(aside);
            return Outcome<QString>::failed(because(aside, why));
        }
        return aside;
    }
    return Outcome<QString>::failed(because(path, TessarinPrint::tr("too many damaged files beside it")));
}

} // namespace tessarin::host

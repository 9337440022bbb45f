// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Bundles whose metadata or translations are damaged, of another kind, or larger than they have any reason to be.

#include "platform/bundle.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

namespace tessarin {
namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class BadBundle : public testing::Test {
protected:
    BadBundle()
    {
        QDir(folder_.path()).mkdir(QStringLiteral("translations"));
        write(QStringLiteral("bundle.json"), R"({"identifier": "org.example.panel"})");
    }

    QString translation() const { return path(QStringLiteral("translations/TessarinPDE_de.qm")); }
    QString path(const QString &name) const { return folder_.filePath(name); }
    static QString fixture(const char *name)
    {
        return QStringLiteral(TESSARIN_FIXTURES "/bad/") + QLatin1String(name);
    }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }
    void translate(const QByteArray &text) const { write(QStringLiteral("translations/TessarinPDE_de.qm"), text); }
    /// What the bundle calls its language in German; "(refused)" when it cannot be opened so.
    std::string language() const
    {
        QString reason;
        const auto bundle = DirectoryBundle::open(folder_.path(), QStringLiteral("de"), &reason);
        EXPECT_EQ(bundle == nullptr, !reason.isEmpty()) << reason.toStdString();
        return bundle ? bundle->localizedString(QStringLiteral("Language")).toStdString() : "(refused)";
    }

private:
    QTemporaryDir folder_;
};

TEST_F(BadBundle, WithATranslationCutAnywhereIsRefusedOrSpeaksEnglish)
{
    const QByteArray whole = contentOf(QStringLiteral(TESSARIN_TEST_TRANSLATIONS "/TessarinPDE_de.qm"));
    translate(whole);
    ASSERT_EQ(language(), "de");
    for (qsizetype size = 0; size < whole.size(); ++size) {
        translate(whole.left(size));
        const std::string answer = language();
        EXPECT_TRUE(answer == "(refused)" || answer == "Language" || answer == "de") << size << ": " << answer;
    }
}

TEST_F(BadBundle, WithAByteChangedInATranslationWithItsSumIsRefused)
{
    QByteArray content = contentOf(QStringLiteral(TESSARIN_TEST_TRANSLATIONS "/TessarinPDE_de.qm"));
    write(QStringLiteral("translations/TessarinPDE_de.qm.sha256"),
          QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() + "  TessarinPDE_de.qm\n");
    translate(content);
    ASSERT_EQ(language(), "de");
    for (char &byte : content) {
        const char right = byte;
        byte = static_cast<char>(~byte);
        translate(content);
        EXPECT_EQ(language(), "(refused)");
        byte = right;
    }
}

TEST(InstalledTranslations, HaveTheirSums)
{
    const QDir folder(QStringLiteral(TESSARIN_TEST_BUNDLE "/translations"));
    const QStringList translations = folder.entryList({QStringLiteral("*.qm")});
    ASSERT_FALSE(translations.isEmpty());
    for (const QString &name : translations) {
        EXPECT_EQ(contentOf(folder.filePath(name + QStringLiteral(".sha256"))).left(64),
                  QCryptographicHash::hash(contentOf(folder.filePath(name)), QCryptographicHash::Sha256).toHex());
    }
}

TEST_F(BadBundle, WithATextForATranslationIsRefused)
{
    ASSERT_TRUE(QFile::copy(fixture("translations/source-text.qm"), translation()));
    EXPECT_EQ(language(), "(refused)");
}

TEST_F(BadBundle, WithAFolderForATranslationIsRefused)
{
    ASSERT_TRUE(QDir().mkpath(translation()));
    EXPECT_EQ(language(), "(refused)");
}

TEST_F(BadBundle, WithOddMetadataTakesWhatItKnows)
{
    const std::array kept = {"bundle/unknown-keys.json", "bundle/identifier-twice.json"};
    for (const char *name : kept) {
        QFile::remove(path(QStringLiteral("bundle.json")));
        ASSERT_TRUE(QFile::copy(fixture(name), path(QStringLiteral("bundle.json"))));
        QString reason;
        const auto bundle = DirectoryBundle::open(path({}), QStringLiteral("en"), &reason);
        ASSERT_NE(bundle, nullptr) << name << ": " << reason.toStdString();
        EXPECT_EQ(bundle->identifier(), QStringLiteral("org.example.panel")) << name;
    }
}

TEST_F(BadBundle, WithNestedMetadataIsRefused)
{
    write(QStringLiteral("bundle.json"), "{\"identifier\":" + QByteArray(100'000, '['));
    QString reason;
    EXPECT_EQ(DirectoryBundle::open(path({}), QStringLiteral("en"), &reason), nullptr);
    EXPECT_EQ(reason, path(QStringLiteral("bundle.json")) + QStringLiteral(": too deeply nested document"));
}

} // namespace
} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessarin {
namespace {

/// A bundle directory with translations into German, Portuguese and Brazilian Portuguese, each of which calls
/// "Language" by its own code.
class Bundle : public testing::Test {
protected:
    Bundle() { writeMetadata(R"({"identifier": "org.example.panel", "name": "Panel"})"); }
    ~Bundle() override { QLocale::setDefault(locale_); }

    QString path(const QString &name) const { return folder_.filePath(name); }

    void writeMetadata(const QByteArray &text) const { write(QStringLiteral("bundle.json"), text); }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }

    void addTranslations() const
    {
        QDir().mkpath(path(QStringLiteral("translations")));
        for (const char *code : {"de", "pt", "pt_BR"}) {
            const QString name = QStringLiteral("/TessarinPDE_%1.qm").arg(QLatin1String(code));
            ASSERT_TRUE(QFile::copy(QStringLiteral(TESSARIN_TEST_TRANSLATIONS) + name,
                                    path(QStringLiteral("translations")) + name));
        }
    }

    std::shared_ptr<DirectoryBundle> open(const char *language)
    {
        reason_.clear();
        return DirectoryBundle::open(folder_.path(), QString::fromLatin1(language), &reason_);
    }

    /// What the bundle calls its language; the key itself when it has no translation.
    std::string language(const char *wanted)
    {
        const auto bundle = open(wanted);
        return bundle ? bundle->localizedString(QStringLiteral("Language")).toStdString() : reason();
    }

    std::string reason() const { return reason_.toStdString(); }
    std::string metadataPath() const { return path(QStringLiteral("bundle.json")).toStdString(); }
    std::string folder() const { return folder_.path().toStdString(); }

private:
    QTemporaryDir folder_;
    QString reason_;
    QLocale locale_;
};

TEST_F(Bundle, KnowsItsIdentifierAndItsDirectory)
{
    const auto bundle = open("en");
    ASSERT_NE(bundle, nullptr) << reason();
    EXPECT_EQ(bundle->identifier(), QStringLiteral("org.example.panel"));
    EXPECT_EQ(bundle->directory().toStdString(), folder());
    EXPECT_EQ(reason(), "");
}

TEST_F(Bundle, NamesItsInterfaceFilesWhetherOrNotTheyExist)
{
    const auto bundle = open("en");
    ASSERT_NE(bundle, nullptr);
    EXPECT_EQ(bundle->interfacePath(QStringLiteral("Main")).toStdString(), folder() + "/Main.ui");
}

TEST_F(Bundle, ThatIsMissingIsRefusedWithTheReason)
{
    QString reason;
    EXPECT_EQ(DirectoryBundle::open(path(QStringLiteral("missing")), QStringLiteral("en"), &reason), nullptr);
    EXPECT_EQ(reason, path(QStringLiteral("missing/bundle.json: No such file or directory")));
    EXPECT_EQ(DirectoryBundle::open(path(QStringLiteral("bundle.json")), QStringLiteral("en"), &reason), nullptr)
        << "a file is no bundle";
    EXPECT_TRUE(reason.startsWith(path(QStringLiteral("bundle.json/bundle.json: ")))) << reason.toStdString();
}

TEST_F(Bundle, WithoutMetadataIsRefusedWithTheReason)
{
    ASSERT_TRUE(QFile::remove(path(QStringLiteral("bundle.json"))));
    EXPECT_EQ(open("en"), nullptr);
    EXPECT_EQ(reason(), metadataPath() + ": No such file or directory");
}

TEST_F(Bundle, WhoseMetadataIsNoRegularFileIsRefused)
{
    ASSERT_TRUE(QFile::remove(path(QStringLiteral("bundle.json"))));
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral("bundle.json"))));
    EXPECT_EQ(open("en"), nullptr);
    EXPECT_EQ(reason(), metadataPath() + ": not a regular file");

    ASSERT_TRUE(QDir().rmdir(path(QStringLiteral("bundle.json"))));
    ASSERT_EQ(mkfifo(metadataPath().c_str(), 0600), 0);
    EXPECT_EQ(open("en"), nullptr) << "and opening it must not wait for a writer";
    EXPECT_EQ(reason(), metadataPath() + ": not a regular file");
}

TEST_F(Bundle, WithDamagedMetadataIsRefusedWithTheReason)
{
    struct Case {
        const char *metadata;
        const char *complaint;
    };
    constexpr Case cases[] = {
        {"", "illegal value"},
        {"{\"identifier\": \"org.example", "unterminated string"},
        {"{\"identifier\" \"a\"}", "missing name separator"},
        {"{\"name\": \"Panel\"}", "no \"identifier\" in it"},
        {"{\"identifier\": \"\"}", "no \"identifier\" in it"},
        {"{\"identifier\": 7}", "no \"identifier\" in it"},
        {"[\"identifier\"]", "no \"identifier\" in it"},
    };
    for (const Case &entry : cases) {
        writeMetadata(entry.metadata);
        EXPECT_EQ(open("en"), nullptr) << entry.metadata;
        EXPECT_EQ(reason(), metadataPath() + ": " + entry.complaint) << entry.metadata;
    }
}

TEST_F(Bundle, TranslatesIntoTheLanguageAskedFor)
{
    addTranslations();
    EXPECT_EQ(language("de"), "de");
    EXPECT_EQ(language("pt"), "pt");
    EXPECT_EQ(language("pt_BR"), "pt_BR");
}

TEST_F(Bundle, InEnglishGivesTheTextsAsWritten)
{
    addTranslations();
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    EXPECT_EQ(language("en"), "Language") << "whatever the environment's language";
}

TEST_F(Bundle, WithoutTheLanguageAskedForIsRefused)
{
    EXPECT_EQ(open("de"), nullptr) << "no translations at all";
    EXPECT_EQ(reason(), folder() + ": no translation into \"de\"");
    addTranslations();
    EXPECT_EQ(open("xx"), nullptr);
    EXPECT_EQ(reason(), folder() + ": no translation into \"xx\"");
}

TEST_F(Bundle, TakesNoPathForALanguage)
{
    addTranslations();
    for (const char *language : {"/de", "x/../de", "../translations/TessarinPDE_de", "de.qm", "."}) {
        EXPECT_EQ(open(language), nullptr) << language;
        EXPECT_EQ(reason(), folder() + ": no translation into \"" + language + "\"");
    }
}

TEST_F(Bundle, WithADamagedTranslationIsRefused)
{
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("translations"))));
    write(QStringLiteral("translations/TessarinPDE_de.qm"), "not a translation");
    EXPECT_EQ(open("de"), nullptr);
    EXPECT_EQ(reason(), folder() + ": no translation into \"de\"");
}

TEST_F(Bundle, FollowsTheLanguageOfTheEnvironment)
{
    addTranslations();
    struct Case {
        const char *locale;
        const char *language;
    };
    constexpr Case cases[] = {
        {"de_DE", "de"},       {"de_AT", "de"},       {"pt_PT", "pt"},   {"en_US", "Language"},
        {"en_GB", "Language"}, {"fr_FR", "Language"}, {"C", "Language"},
    };
    for (const Case &entry : cases) {
        QLocale::setDefault(QLocale(QString::fromLatin1(entry.locale)));
        EXPECT_EQ(language(""), entry.language) << entry.locale;
    }
}

TEST_F(Bundle, PrefersTheTranslationForTheCountry)
{
    addTranslations();
    QLocale::setDefault(QLocale(QStringLiteral("pt_BR")));
    EXPECT_EQ(language(""), "pt_BR");
}

TEST_F(Bundle, WithoutTranslationsOpensInAnyEnvironment)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    EXPECT_EQ(language(""), "Language");
}

TEST_F(Bundle, GivesTheKeyWhereThereIsNoTranslation)
{
    addTranslations();
    const auto bundle = open("de");
    ASSERT_NE(bundle, nullptr);
    for (const char *key : {"Unknown", "language", "Unfinished", "Foreign", "%d%% %s", "", "  "}) {
        EXPECT_EQ(bundle->localizedString(QString::fromUtf8(key)).toStdString(), key);
    }
}

TEST_F(Bundle, TranslatesTextsWithLineEndsAndAmpersands)
{
    addTranslations();
    const auto bundle = open("de");
    ASSERT_NE(bundle, nullptr);
    EXPECT_EQ(bundle->localizedString(QStringLiteral("Two\nlines:")), QStringLiteral("Zwei\nZeilen: de"));
    EXPECT_EQ(bundle->localizedString(QStringLiteral("Cancel & go")), QStringLiteral("Abbrechen & los \u2013 de"));
}

TEST_F(Bundle, AndTheApplicationsTranslatorsStayApart)
{
    addTranslations();
    const auto bundle = open("de");
    ASSERT_NE(bundle, nullptr);
    EXPECT_EQ(QCoreApplication::translate("TessarinPDE", "Language"), QStringLiteral("Language"))
        << "the bundle's texts are not the host's";

    QTranslator hosts;
    ASSERT_TRUE(hosts.load(path(QStringLiteral("translations/TessarinPDE_pt.qm"))));
    ASSERT_TRUE(QCoreApplication::installTranslator(&hosts));
    EXPECT_EQ(bundle->localizedString(QStringLiteral("Language")), QStringLiteral("de"));
    EXPECT_EQ(language("en"), "Language");
    QCoreApplication::removeTranslator(&hosts);
}

} // namespace
} // namespace tessarin

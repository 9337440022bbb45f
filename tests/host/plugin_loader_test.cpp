// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/plugin_loader.h"

#include "host/installation.h"

#include "tests/host/host_test_support.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

/// A bundle folder of the test's own.
class PlugInLoaderTest : public testing::Test {
protected:
    void describe(const QByteArray &json) { test::writeFile(folder_.filePath(u"bundle.json"_s), json); }
    /// Puts one of the fake libraries, by its target's name, into a complete bundle.
    void install(const char *library)
    {
        describe(R"({"identifier": "org.tessarin.test.fake", "library": "panel.so"})");
        const QString built = QStringLiteral(TESSARIN_FAKE_PLUGINS "/lib%1.so").arg(QLatin1String(library));
        ASSERT_TRUE(QFile::copy(built, libraryPath())) << built.toStdString();
    }
    QString libraryPath() const { return folder_.filePath(u"panel.so"_s); }
    Outcome<LoadedPlugIn> load() { return loadPlugIn({.directory = folder_.path()}); }
    void expectRefused(const QString &file, const QString &why)
    {
        const auto loaded = load();
        EXPECT_FALSE(loaded.ok());
        EXPECT_EQ(loaded.reason(), u"plug-in %1: %2"_s.arg(file, why));
    }

    QTemporaryDir folder_{};
};

TEST_F(PlugInLoaderTest, LoadsAPlugInOfThisProtocol)
{
    install("tessarin_fake_good");
    std::string logged;
    const auto loaded = loadPlugIn({.directory = folder_.path(),
                                    .language = u"de"_s,
                                    .logSink = pde::LogSink([&](std::string_view line) { logged += line; })});
    ASSERT_TRUE(loaded.ok()) << loaded.reason().toStdString();
    EXPECT_TRUE(loaded.value().entry);
    EXPECT_TRUE(loaded.value().plugIn);
    EXPECT_EQ(loaded.value().bundle->identifier(), u"org.tessarin.test.fake"_s);
    EXPECT_EQ(logged, "openBundle\n");
    loaded.value().entry->setLogSink({});
}

TEST_F(PlugInLoaderTest, PassesOnWhyABundleCannotBeOpened)
{
    install("tessarin_fake_good");
    const auto loaded = loadPlugIn({.directory = folder_.path(), .language = u"xx"_s});
    EXPECT_EQ(loaded.reason(), u"plug-in %1: no texts for xx"_s.arg(folder_.path()));
}

TEST_F(PlugInLoaderTest, RefusesAnotherProtocolVersion)
{
    install("tessarin_fake_newer");
    expectRefused(libraryPath(), u"it was made for version 2 of the panel protocol; this dialog has version 1"_s);
}

TEST_F(PlugInLoaderTest, RefusesAMissingProtocolVersion)
{
    install("tessarin_fake_unversioned");
    expectRefused(libraryPath(), u"it does not say for which version of the panel protocol it was made"_s);
}

TEST_F(PlugInLoaderTest, RefusesAPlugInForSomethingElse)
{
    install("tessarin_fake_foreign");
    expectRefused(libraryPath(),
                  u"it is a plug-in for something else (org.example.SomethingElse), not a print dialog panel"_s);
}

TEST_F(PlugInLoaderTest, RefusesAFileThatIsNoPlugIn)
{
    describe(R"({"identifier": "org.tessarin.test.fake", "library": "panel.so"})");
    test::writeFile(libraryPath(), "not a library");
    const auto loaded = load();
    EXPECT_FALSE(loaded.ok());
    EXPECT_TRUE(loaded.reason().startsWith(u"plug-in %1: it is not a plug-in ("_s.arg(libraryPath())))
        << loaded.reason().toStdString();
}

TEST_F(PlugInLoaderTest, RefusesAMissingLibrary)
{
    describe(R"({"identifier": "org.tessarin.test.fake", "library": "panel.so"})");
    expectRefused(libraryPath(), u"the bundle's library is missing"_s);
}

TEST_F(PlugInLoaderTest, RefusesALibraryOutsideTheBundle)
{
    describe(R"({"identifier": "org.tessarin.test.fake", "library": "../panel.so"})");
    expectRefused(folder_.filePath(u"bundle.json"_s),
                  u"the library \"../panel.so\" is not a file of the bundle's folder"_s);
}

TEST_F(PlugInLoaderTest, RefusesABundleWithoutDescription)
{
    expectRefused(folder_.filePath(u"bundle.json"_s), u"the bundle's description is missing"_s);
}

TEST_F(PlugInLoaderTest, RefusesADescriptionWithoutIdentifierOrLibrary)
{
    describe(R"({"library": "panel.so"})");
    expectRefused(folder_.filePath(u"bundle.json"_s), u"it does not give \"identifier\""_s);
    describe(R"({"identifier": "x", "library": 3})");
    expectRefused(folder_.filePath(u"bundle.json"_s), u"it does not give \"library\""_s);
    describe("[]");
    expectRefused(folder_.filePath(u"bundle.json"_s), u"it does not give \"identifier\""_s);
}

TEST_F(PlugInLoaderTest, SaysWhereADescriptionIsBroken)
{
    describe("{\"identifier\": ");
    const auto loaded = load();
    EXPECT_TRUE(loaded.reason().startsWith(u"plug-in %1: at byte "_s.arg(folder_.filePath(u"bundle.json"_s))))
        << loaded.reason().toStdString();
}

TEST_F(PlugInLoaderTest, RefusesAMissingFolderAndAFileInItsPlace)
{
    const QString missing = folder_.filePath(u"missing"_s);
    EXPECT_EQ(loadPlugIn({.directory = missing}).reason(), u"plug-in %1: there is no such folder"_s.arg(missing));
    describe("{}");
    const QString file = folder_.filePath(u"bundle.json"_s);
    EXPECT_EQ(loadPlugIn({.directory = file}).reason(), u"plug-in %1: it is not a folder"_s.arg(file));
}

TEST(BundleDirectory, ComesFromTheCommandLineThenTheEnvironmentThenTheInstallation)
{
    qputenv("TESSARIN_BUNDLE", "/from/environment");
    EXPECT_EQ(bundleDirectory(u"/asked"_s), u"/asked"_s);
    EXPECT_EQ(bundleDirectory({}), u"/from/environment"_s);
    qputenv("TESSARIN_BUNDLE", "");
    EXPECT_TRUE(bundleDirectory({}).endsWith(u"TessarinPDE.bundle"_s));
    qunsetenv("TESSARIN_BUNDLE");
    EXPECT_TRUE(QDir::isAbsolutePath(bundleDirectory({})));
}

} // namespace
} // namespace tessarin::host

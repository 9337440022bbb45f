// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the printer's PPD file and identifier come from, and how long they may be.

#include "plugin/restore.h"

#include "plugin/context_lifecycle.h"
#include "tests/plugin/plugin_test_support.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

namespace tessarin::test {
namespace {

constexpr char kNoSuchFile[] = "LOG PPD-File not found - error = No such file or directory\n";
constexpr char kScanned[] = "LOG End PPD-Scan\n";

class PrinterPaths : public testing::Test {
protected:
    /// A copy of the small PPD at a path of exactly `length` bytes.
    std::string ppdAtPathOf(std::size_t length) const
    {
        std::string path = folder_.path().toStdString() + "/";
        while (length - path.size() > 210) { // a file name has 255 bytes at most
            path += std::string(100, 'd') + "/";
        }
        EXPECT_TRUE(QDir().mkpath(QString::fromStdString(path)));
        path += std::string(length - path.size() - 4, 'p') + ".ppd";
        EXPECT_EQ(path.size(), length);
        EXPECT_TRUE(QFile::copy(QString::fromStdString(ppdFixture("minimal")), QString::fromStdString(path)));
        return path;
    }

    /// Restores a new panel of the host; the lines of that are in log_.
    PanelContext *restore()
    {
        log_.clear();
        panel_ = makePanel(host_);
        EXPECT_NE(panel_->panelContext(), nullptr);
        EXPECT_EQ(log_.count(panelLine("END", panel_.get(), "restoreValuesAndReturnError:=BOOL(YES)")), 1);
        return panel_->panelContext();
    }

    PanelContext *restoreWithPath(const std::string &path)
    {
        host_->path = QString::fromStdString(path);
        return restore();
    }

    PanelContext *restoreWithIdentifier(const std::string &identifier)
    {
        host_->printerIdentifier = QString::fromStdString(identifier);
        return restore();
    }

    static std::string pathLine(const std::string &path) { return "LOG *****parse PPD-File: " + path + "\n"; }
    long pathLines() const { return log_.countStarting("LOG *****parse PPD-File: "); }

    QTemporaryDir folder_;
    SharedTables tables_;
    std::shared_ptr<RecordingHost> host_ = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    CapturedLog log_;
    std::shared_ptr<PasswordPDE> panel_;
};

TEST_F(PrinterPaths, ThePPDPathIsTheDescriptionOfTheSessionsPrinter)
{
    const PanelContext *context = restore();
    EXPECT_EQ(context->ppdPath.data(), ppdFixture("minimal"));
    EXPECT_EQ(log_.count(pathLine(ppdFixture("minimal").substr(0, 200))), 1);
    EXPECT_EQ(log_.count(kScanned), 1);
    EXPECT_EQ(host_->askedTypes, std::vector<QString>{QStringLiteral("PMPPDDescriptionType")});
}

TEST_F(PrinterPaths, APPDPathOf254BytesIsUsed)
{
    const std::string path = ppdAtPathOf(254);
    EXPECT_EQ(restoreWithPath(path)->ppdPath.data(), path);
    EXPECT_EQ(log_.count(kScanned), 1);
}

TEST_F(PrinterPaths, APPDPathOf255BytesOrMoreIsNotUsed)
{
    for (const std::size_t length : {255U, 256U, 300U}) {
        const PanelContext *context = restoreWithPath(ppdAtPathOf(length));
        EXPECT_STREQ(context->ppdPath.data(), "") << length;
        EXPECT_EQ(log_.count(pathLine("")), 1) << length << ": logged empty, since the printer has a path";
        EXPECT_EQ(log_.count(kNoSuchFile), 1) << length;
        EXPECT_EQ(log_.count(kScanned), 0) << length;
        EXPECT_EQ(context->settings.popupSelections.at(1), 2) << length << ": the host's own PPD is still there";
    }
}

TEST_F(PrinterPaths, APPDPathThatIsNotASCIIIsNotUsed)
{
    const std::string path = folder_.path().toStdString() + "/M\xC3\xBCnze.ppd";
    ASSERT_TRUE(QFile::copy(QString::fromStdString(ppdFixture("minimal")), QString::fromStdString(path)));
    EXPECT_STREQ(restoreWithPath(path)->ppdPath.data(), "");
    EXPECT_EQ(log_.count(pathLine("")), 1);
    EXPECT_EQ(log_.count(kNoSuchFile), 1);
}

TEST_F(PrinterPaths, TheLogShows200CharactersOfThePPDPath)
{
    const std::string path = ppdAtPathOf(220);
    EXPECT_EQ(restoreWithPath(path)->ppdPath.data(), path) << "the path itself is whole";
    EXPECT_EQ(log_.count(pathLine(path.substr(0, 200))), 1);
    EXPECT_EQ(pathLines(), 1);
}

TEST_F(PrinterPaths, APercentSignInThePPDPathIsText)
{
    const std::string path = folder_.path().toStdString() + "/50%d%s%n.ppd";
    ASSERT_TRUE(QFile::copy(QString::fromStdString(ppdFixture("minimal")), QString::fromStdString(path)));
    EXPECT_EQ(restoreWithPath(path)->ppdPath.data(), path);
    EXPECT_EQ(log_.count(pathLine(path)), 1);
    EXPECT_EQ(log_.count(kScanned), 1);
}

TEST_F(PrinterPaths, WithoutASessionThePPDPathStaysEmptyAndIsNotLogged)
{
    host_->hasSession = false;
    EXPECT_STREQ(restore()->ppdPath.data(), "");
    EXPECT_EQ(pathLines(), 0);
    EXPECT_EQ(log_.count(kNoSuchFile), 1);
    EXPECT_TRUE(host_->askedTypes.empty());
}

TEST_F(PrinterPaths, WithoutACurrentPrinterThePPDPathStaysEmptyAndIsNotLogged)
{
    host_->hasCurrentPrinter = false;
    const PanelContext *context = restore();
    EXPECT_STREQ(context->ppdPath.data(), "");
    EXPECT_EQ(pathLines(), 0);
    EXPECT_EQ(log_.count(kNoSuchFile), 1);
    EXPECT_STREQ(context->settings.inkFilePath.data(), "/var/log/tessarin/sample.ink")
        << "the identifier is another printer's";
}

TEST_F(PrinterPaths, WithoutADescriptionThePPDPathStaysEmptyAndIsNotLogged)
{
    host_->path = std::nullopt;
    EXPECT_STREQ(restore()->ppdPath.data(), "");
    EXPECT_EQ(pathLines(), 0);
    EXPECT_EQ(log_.count(kNoSuchFile), 1);
}

TEST_F(PrinterPaths, AnEmptyDescriptionPathIsLogged)
{
    EXPECT_STREQ(restoreWithPath("")->ppdPath.data(), "");
    EXPECT_EQ(log_.count(pathLine("")), 1);
    EXPECT_EQ(log_.count(kNoSuchFile), 1);
}

TEST_F(PrinterPaths, AMissingPPDFileIsReported)
{
    restoreWithPath("/nonexistent/printer.ppd");
    EXPECT_EQ(log_.count(pathLine("/nonexistent/printer.ppd")), 1);
    EXPECT_EQ(log_.count(kNoSuchFile), 1);
}

TEST_F(PrinterPaths, APipeInsteadOfAPPDFileDoesNotHang)
{
    const std::string pipe = folder_.path().toStdString() + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    restoreWithPath(pipe);
    EXPECT_EQ(log_.count("LOG PPD-File not found - error = No such device or address\n"), 1);
}

TEST_F(PrinterPaths, ADirectoryInsteadOfAPPDFileHoldsNothing)
{
    const PanelContext *context = restoreWithPath(folder_.path().toStdString());
    EXPECT_EQ(log_.count(kScanned), 1);
    EXPECT_EQ(context->ppdOptions->constraints.at(0), -1);
}

TEST_F(PrinterPaths, TheInkFileIsNamedAfterThePrintersIdentifier)
{
    EXPECT_STREQ(restoreWithIdentifier("Studio_2")->settings.inkFilePath.data(), "/var/log/tessarin/Studio_2.ink");
    EXPECT_EQ(log_.count("LOG PRINTERNAME:    'Studio_2'\n"), 1);
}

TEST_F(PrinterPaths, AnIdentifierOf127BytesGivesTheLongestInkPath)
{
    const std::string identifier(127, 'i');
    const PanelContext *context = restoreWithIdentifier(identifier);
    EXPECT_EQ(context->settings.inkFilePath.data(), "/var/log/tessarin/" + identifier + ".ink");
    EXPECT_EQ(std::string_view(context->settings.inkFilePath.data()).size(), 149U);
    EXPECT_EQ(log_.count("LOG PRINTERNAME:    '" + identifier + "'\n"), 1);
}

TEST_F(PrinterPaths, AnIdentifierOf128BytesOrMoreIsNotUsed)
{
    for (const std::size_t length : {128U, 129U, 300U}) {
        const PanelContext *context = restoreWithIdentifier(std::string(length, 'i'));
        EXPECT_STREQ(context->settings.inkFilePath.data(), "/var/log/tessarin/.ink") << length;
        EXPECT_EQ(log_.count("LOG PRINTERNAME:    ''\n"), 1) << length;
    }
}

TEST_F(PrinterPaths, AnIdentifierIsMeasuredInBytesOfUTF8)
{
    std::string identifier;
    for (int i = 0; i < 63; ++i) {
        identifier += "\xC3\xA4";
    }
    EXPECT_EQ(restoreWithIdentifier(identifier + "x")->settings.inkFilePath.data(),
              "/var/log/tessarin/" + identifier + "x.ink");
    EXPECT_STREQ(restoreWithIdentifier(identifier + "\xC3\xA4")->settings.inkFilePath.data(),
                 "/var/log/tessarin/.ink");
}

TEST_F(PrinterPaths, WithoutAnIdentifierTheInkPathHasNoName)
{
    EXPECT_STREQ(restoreWithIdentifier("")->settings.inkFilePath.data(), "/var/log/tessarin/.ink");
    EXPECT_EQ(log_.count("LOG PRINTERNAME:    ''\n"), 1);
    host_->printerIdentifier = std::nullopt;
    EXPECT_STREQ(restore()->settings.inkFilePath.data(), "/var/log/tessarin/.ink");
    EXPECT_EQ(log_.count("LOG PRINTERNAME:    ''\n"), 1);
}

TEST_F(PrinterPaths, WithoutAPrinterTheInkPathHasNoName)
{
    host_->hasPrinter = false;
    const PanelContext *context = restore();
    EXPECT_STREQ(context->settings.inkFilePath.data(), "/var/log/tessarin/.ink");
    EXPECT_EQ(log_.count("LOG PRINTERNAME:    ''\n"), 1);
    EXPECT_EQ(context->ppdPath.data(), ppdFixture("minimal")) << "the path is the session's printer's";
}

TEST_F(PrinterPaths, WithoutAHostNothingIsKnown)
{
    const auto panel = makePanel(nullptr);
    const PanelContext *context = panel->panelContext();
    ASSERT_NE(context, nullptr);
    EXPECT_STREQ(context->ppdPath.data(), "");
    EXPECT_STREQ(context->settings.inkFilePath.data(), "/var/log/tessarin/.ink");
    EXPECT_EQ(context->ppdFile, nullptr);
    EXPECT_EQ(context->callbackObject, nullptr);
    EXPECT_EQ(pathLines(), 0);
    EXPECT_EQ(log_.count("LOG PRINTERNAME:    ''\n"), 1);
    EXPECT_EQ(log_.count(kNoSuchFile), 1);
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
}

TEST_F(PrinterPaths, WithoutAParsedPPDEverySettingIsEmpty)
{
    host_ = std::make_shared<RecordingHost>();
    host_->path = QString::fromStdString(ppdFixture("minimal"));
    const PanelContext *context = restore();
    EXPECT_EQ(context->ppdFile, nullptr);
    EXPECT_EQ(log_.count(kScanned), 1) << "although the file can be read";
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(pairsOf(*context->ppdOptions, row), Pairs{}) << row;
        EXPECT_EQ(context->settings.popupSelections.at(static_cast<std::size_t>(row)), 0) << row;
    }
    for (std::size_t number = 0; number < 20; ++number) {
        EXPECT_EQ(context->settings.sliderValues.at(number), number == 2 ? -10 : 0) << number;
    }
    EXPECT_EQ(context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{0, 1, 0, 0}));
}

TEST_F(PrinterPaths, AParsedPPDWithoutAFileHasNoConstraints)
{
    host_->path = std::nullopt;
    const PanelContext *context = restore();
    EXPECT_EQ(pairsOf(*context->ppdOptions, 0).size(), 2U);
    EXPECT_EQ(context->settings.popupSelections.at(1), 2);
    EXPECT_EQ(context->ppdOptions->constraints.at(0), -1);
}

} // namespace
} // namespace tessarin::test

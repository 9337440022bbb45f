// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The summary: its lines, the command line that asks for it, and the dialog's page with the real panel.

#include "host/command_line.h"
#include "host/dialog.h"
#include "host/plugin_loader.h"
#include "host/printer_choices.h"
#include "host/summary_lines.h"
#include "tests/host/host_test_support.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSlider>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

Outcome<CommandLine> parse(const QStringList &arguments)
{
    return parseCommandLine(QStringList{u"tessarin-print"_s} + arguments);
}

TEST(SummaryLines, FollowTheOrderAndNameEachLabelOnce)
{
    const pde::Summary summary{.entries = {{u"b"_s, u"2"_s}, {u"a"_s, u"1"_s}, {u"c"_s, u"3"_s}},
                               .displayOrder = QStringList{u"c"_s, u"a"_s, u"c"_s, u"missing"_s}};
    const QList<SummaryLine> lines = summaryLines(summary);
    EXPECT_EQ(summaryText(lines), u"c: 3\na: 1\nb: 2\n"_s);
}

TEST(SummaryLines, AreSortedWithoutAnOrder)
{
    const pde::Summary summary{.entries = {{u"b"_s, u"2"_s}, {u"a"_s, u"1"_s}}};
    EXPECT_EQ(summaryText(summaryLines(summary)), u"a: 1\nb: 2\n"_s);
}

TEST(SummaryLines, KeepALabelsOwnColon)
{
    EXPECT_EQ(summaryText({{.label = u"Usage:"_s, .value = u"50%"_s}}), u"Usage: 50%\n"_s);
}

TEST(SummaryLines, KeepQuotesAndNewlinesInJson)
{
    const QString json = summaryJson({{.label = u"a \"b\""_s, .value = u"x\ny"_s}});
    const QJsonObject line = QJsonDocument::fromJson(json.toUtf8()).array().first().toObject();
    EXPECT_EQ(line, (QJsonObject{{u"label"_s, u"a \"b\""_s}, {u"value"_s, u"x\ny"_s}}));
}

TEST(SummaryOption, TakesTheFormAsAWordOfItsOwnOrNone)
{
    EXPECT_EQ(parse({}).value().summary, SummaryForm::None);
    EXPECT_EQ(parse({u"--summary"_s}).value().summary, SummaryForm::Text);
    EXPECT_EQ(parse({u"--summary"_s, u"text"_s}).value().summary, SummaryForm::Text);
    EXPECT_EQ(parse({u"--summary"_s, u"json"_s}).value().summary, SummaryForm::Json);
    EXPECT_EQ(parse({u"--summary=json"_s}).value().summary, SummaryForm::Json);
    const auto line = parse({u"--summary"_s, u"a.pdf"_s});
    EXPECT_EQ(line.value().summary, SummaryForm::Text);
    EXPECT_EQ(line.value().documents, QStringList{u"a.pdf"_s});
}

TEST(SummaryOption, LeavesWhatFollowsTwoDashesAlone)
{
    const auto line = parse({u"--"_s, u"--summary"_s, u"json"_s});
    EXPECT_EQ(line.value().summary, SummaryForm::None);
    EXPECT_EQ(line.value().documents, (QStringList{u"--summary"_s, u"json"_s}));
}

TEST(SummaryOption, RefusesAnotherForm)
{
    EXPECT_EQ(parse({u"--summary=xml"_s}).reason(), u"usage: --summary xml: not a form, which is text or json"_s);
}

TEST(SummaryOption, NeedsNoDocumentForAQueue)
{
    EXPECT_TRUE(parse({u"--printer"_s, u"office"_s, u"--summary"_s}).ok());
}

class SummaryDialog : public testing::Test {
protected:
    void SetUp() override
    {
        Outcome<LoadedPlugIn> loaded = loadPlugIn({.directory = QStringLiteral(TESSARIN_TEST_BUNDLE),
                                                   .language = u"en"_s,
                                                   .logSink = [](std::string_view) {}});
        ASSERT_TRUE(loaded.ok()) << loaded.reason().toStdString();
        plugIn_ = loaded.take();
        Outcome<std::shared_ptr<HostPrinter>> printer = HostPrinter::sample(QStringLiteral(TESSARIN_SAMPLE_PPD));
        ASSERT_TRUE(printer.ok()) << printer.reason().toStdString();
        dialog_ = std::make_unique<PrintDialog>(
            DialogParts{.plugIn = plugIn_.plugIn.get(), .printer = printer.value(), .wanted = sampleChoice()});
        dialog_->show();
    }

    /// The value that the summary page shows for a label; a null text when it has no such line.
    QString shown(const QString &label)
    {
        const auto *tree = dialog_->findChild<QTreeWidget *>(u"summary"_s);
        for (const QTreeWidgetItem *item : tree->findItems(label, Qt::MatchExactly | Qt::MatchRecursive)) {
            return item->text(1);
        }
        return {};
    }

    LoadedPlugIn plugIn_;
    std::unique_ptr<PrintDialog> dialog_;
};

TEST_F(SummaryDialog, ShowsTheSettingsAsTheyStandWhenItIsOpened)
{
    dialog_->pages()->showPage(Page::Summary);
    EXPECT_EQ(shown(u"Media Type"_s), u"Photo Pearl 290 g"_s);
    EXPECT_EQ(shown(u"Brightness"_s), u"100%"_s);
    dialog_->pages()->showPage(Page::Panel);
    // The first slider of the panel's first page is Brightness.
    auto *brightness = dialog_->panelView()->findChild<QTabWidget *>()->widget(0)->findChild<QSlider *>();
    brightness->setValue(-1);
    dialog_->pages()->showPage(Page::Summary);
    EXPECT_EQ(shown(u"Brightness"_s), u"95%"_s);
}

TEST_F(SummaryDialog, GoesBackToThePanel)
{
    dialog_->pages()->showPage(Page::Summary);
    EXPECT_FALSE(dialog_->panelView()->isVisible());
    dialog_->pages()->showPage(Page::Panel);
    EXPECT_TRUE(dialog_->panelView()->isVisible());
}

TEST_F(SummaryDialog, ResetsASliderToItsDefaultAndBack)
{
    auto *tabs = dialog_->panelView()->findChild<QTabWidget *>();
    tabs->widget(0)->findChild<QSlider *>()->setValue(-3);
    dialog_->saveSettings();
    EXPECT_EQ(dialog_->openPrinter()->settings().value(u"vornBrightness"_s), u"-15"_s);
    emit dialog_->pages()->resetRequested({u"vornBrightness"_s});
    QCoreApplication::processEvents();
    dialog_->saveSettings();
    EXPECT_EQ(dialog_->openPrinter()->settings().value(u"vornBrightness"_s), u"0"_s);
    auto *undo = dialog_->notice()->findChild<QPushButton *>();
    ASSERT_TRUE(undo);
    undo->click();
    dialog_->saveSettings();
    EXPECT_EQ(dialog_->openPrinter()->settings().value(u"vornBrightness"_s), u"-15"_s)
        << "the panel shows it again";
}

TEST(SummaryProgram, ListsTheSettingsWithoutADisplay)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QLatin1String(name));
    }
    const auto run = [&](const QStringList &arguments) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(TESSARIN_TEST_BIN "/tessarin-print"),
                      QStringList{u"--sample"_s, u"--log"_s, u"none"_s, u"--language"_s, u"en"_s} + arguments);
        EXPECT_TRUE(program.waitForFinished(60000));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
        return program.readAllStandardOutput();
    };
    const QByteArray text = run({u"--summary"_s});
    EXPECT_EQ(text.count('\n'), 31);
    EXPECT_TRUE(text.startsWith("Print Simulation: OFF - printing is enabled\nCartridge: Photo Black\n"));
    const QJsonArray lines = QJsonDocument::fromJson(run({u"--summary"_s, u"json"_s})).array();
    ASSERT_EQ(lines.size(), 31);
    EXPECT_EQ(lines[9].toObject(),
              (QJsonObject{{u"label"_s, u"Postscript-Processor"_s}, {u"value"_s, u"Mac OS"_s}}));
}

} // namespace
} // namespace tessarin::host

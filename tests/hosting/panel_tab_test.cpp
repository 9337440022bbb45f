// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hosting/panel_tab.h"

#include "tests/host/host_test_support.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QTabWidget>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin {
namespace {

using namespace Qt::StringLiterals;

class PanelTabTest : public testing::Test {
protected:
    std::unique_ptr<PanelTab> add(const PanelTabRequest &request, const QList<QWidget *> &others = {})
    {
        return PanelTab::addTo(dialog_, request, others);
    }
    PanelTabRequest sample() const
    {
        return {.ppdFile = QStringLiteral(TESSARIN_SAMPLE_PPD),
                .bundle = QStringLiteral(TESSARIN_TEST_BUNDLE),
                .language = u"en"_s};
    }
    /// The titles of all tabs in the dialog.
    QStringList tabs()
    {
        QStringList titles;
        for (const QTabWidget *widget : dialog_.findChildren<QTabWidget *>()) {
            for (int i = 0; i < widget->count(); ++i) {
                titles << widget->tabText(i);
            }
        }
        return titles;
    }
    static QString value(const PanelTab &tab, const QString &wanted)
    {
        for (const auto &[key, text] : tab.options()) {
            if (key == wanted) {
                return text;
            }
        }
        return {};
    }

    QPrinter printer_{};
    QPrintDialog dialog_{&printer_};
};

TEST_F(PanelTabTest, ScrollsOnASmallScreenWithALargeFont)
{
    const QFont before = QApplication::font();
    QFont larger = before;
    larger.setPointSizeF(before.pointSizeF() * 1.5);
    QApplication::setFont(larger);
    {
        QPrinter printer;
        QPrintDialog dialog(&printer);
        dialog.ensurePolished();
        const QSize without = dialog.minimumSizeHint();
        const auto tab = PanelTab::addTo(dialog, sample());
        EXPECT_TRUE(tab->isOpen()) << tab->problem().toStdString();
        int looked = 0;
        for (const QTabWidget *widget : dialog.findChildren<QTabWidget *>()) {
            if (widget->objectName() != u"PDETabView"_s) { // the panel's own tabs, which scroll
                ++looked;
                EXPECT_LE(widget->minimumSizeHint().width(), 1000);
                EXPECT_LE(widget->minimumSizeHint().height(), 400);
            }
        }
        EXPECT_GT(looked, 0);
        EXPECT_LE(dialog.minimumSizeHint().width(), std::max(1000, without.width()));
    }
    QApplication::setFont(before);
}

TEST_F(PanelTabTest, AddsThePanelUnderItsTitle)
{
    const auto tab = add(sample());
    ASSERT_TRUE(tab->isOpen()) << tab->problem().toStdString();
    EXPECT_EQ(tab->title(), u"Tessarin Settings"_s);
    EXPECT_TRUE(tabs().contains(u"Tessarin Settings"_s));
}

TEST_F(PanelTabTest, KeepsTheApplicationsOwnTabs)
{
    QWidget own;
    own.setWindowTitle(u"Own"_s);
    const auto tab = add(sample(), {&own});
    EXPECT_TRUE(tabs().contains(u"Own"_s));
    own.setParent(nullptr);
}

TEST_F(PanelTabTest, GivesAllSettingsBackInThePanelsOrder)
{
    const auto tab = add(sample());
    const auto options = tab->options();
    ASSERT_EQ(options.size(), 31);
    EXPECT_EQ(value(*tab, u"vornMediaType"_s), u"PhotoPearl07"_s);
    EXPECT_EQ(value(*tab, u"vornPSInterpreter"_s), u"1"_s);
}

TEST_F(PanelTabTest, TakesAnOptionFromOutside)
{
    const auto tab = add(sample());
    EXPECT_TRUE(tab->setOption(u"vornMediaType"_s, u"PhotoSatin06"_s));
    EXPECT_EQ(value(*tab, u"vornMediaType"_s), u"PhotoSatin06"_s);
    EXPECT_FALSE(tab->setOption(u"vornMediaType"_s, u"Unheard"_s));
    EXPECT_EQ(value(*tab, u"vornMediaType"_s), u"PhotoSatin06"_s);
}

TEST_F(PanelTabTest, SaysWhyThereIsNoPanel)
{
    const auto noFile = add({.ppdFile = u"/no/such.ppd"_s});
    EXPECT_FALSE(noFile->isOpen());
    EXPECT_TRUE(noFile->problem().startsWith(u"PPD file /no/such.ppd: "_s)) << noFile->problem().toStdString();
    EXPECT_TRUE(noFile->options().isEmpty());
    PanelTabRequest request = sample();
    request.bundle = u"/no/such"_s;
    EXPECT_TRUE(add(request)->problem().startsWith(u"plug-in /no/such: "_s));
    request.bundle.clear();
    EXPECT_FALSE(tabs().contains(u"Tessarin Settings"_s));
}

TEST(PanelTabLife, MayEndAfterItsDialog)
{
    std::unique_ptr<PanelTab> tab;
    {
        QPrinter printer;
        QPrintDialog dialog(&printer);
        tab = PanelTab::addTo(dialog, {.ppdFile = QStringLiteral(TESSARIN_SAMPLE_PPD),
                                       .bundle = QStringLiteral(TESSARIN_TEST_BUNDLE)});
        ASSERT_TRUE(tab->isOpen());
    }
    EXPECT_EQ(tab->options().size(), 31) << "the panel and its settings are still there";
}

TEST(PrintWithPanel, ListsTheOptionsOfAnAcceptedDialog)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TESSARIN_BUNDLE"_s, QStringLiteral(TESSARIN_TEST_BUNDLE));
    environment.insert(u"CUPS_SERVER"_s, u"localhost:1"_s);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(PRINT_WITH_PANEL), {QStringLiteral(TESSARIN_SAMPLE_PPD), u"--accept"_s});
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    const QByteArray lines = program.readAllStandardOutput();
    EXPECT_EQ(lines.count('\n'), 31);
    EXPECT_TRUE(lines.contains("vornMediaType=PhotoPearl07\n")) << lines.toStdString();
}

} // namespace
} // namespace tessarin

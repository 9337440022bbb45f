// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The print dialog with the panel as assistive technology and the keyboard meet it.

#include "host/custom_size_dialog.h"
#include "host/dialog.h"
#include "host/notice_bar.h"
#include "host/pages_area.h"
#include "host/plugin_loader.h"
#include "host/printer_choices.h"
#include "host/save_preset_dialog.h"
#include "tests/accessibility/accessible_support.h"

#include <QStackedWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using test::describe;
using test::tabStops;

/// Everything that Tab reaches has a role and a name; a pop-up of the toolkit is named by its choice, and its
/// caption is told as its label.
void expectAllNamed(const QWidget &window, const std::string &where)
{
    for (QWidget *control : window.findChildren<QWidget *>()) {
        if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisible() || control->focusProxy()) {
            continue;
        }
        const QAccessibleInterface *read = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(read, nullptr) << where << describe(control);
        EXPECT_NE(read->role(), QAccessible::NoRole) << where << describe(control);
        EXPECT_FALSE(read->text(QAccessible::Name).isEmpty()) << where << describe(control);
        if (read->role() == QAccessible::ComboBox &&
            read->text(QAccessible::Name) == read->text(QAccessible::Value)) {
            EXPECT_FALSE(read->relations(QAccessible::Label).isEmpty()) << where << describe(control);
        }
    }
}

class DialogReading : public testing::Test {
protected:
    void SetUp() override
    {
        Outcome<LoadedPlugIn> loaded = loadPlugIn({.directory = QStringLiteral(TESSARIN_TEST_BUNDLE),
                                                   .language = QStringLiteral("en"),
                                                   .logSink = pde::LogSink([](std::string_view) {})});
        ASSERT_TRUE(loaded.ok()) << loaded.reason().toStdString();
        plugIn_ = loaded.take();
        const auto printer = HostPrinter::fromPpdFile(QStringLiteral(TESSARIN_SAMPLE_PPD));
        ASSERT_TRUE(printer.ok());
        dialog_ = std::make_unique<PrintDialog>(
            DialogParts{.plugIn = plugIn_.plugIn.get(),
                        .printer = printer.value(),
                        .wanted = ppdChoice(QStringLiteral(TESSARIN_SAMPLE_PPD)),
                        .documentPaths = {QStringLiteral("/dev/null/a.pdf"), QStringLiteral("/dev/null/b.pdf")},
                        .documentNames = {QStringLiteral("a.pdf"), QStringLiteral("b.pdf")}});
        dialog_->show();
    }
    void TearDown() override { dialog_.reset(); }

    /// The part of the window that a control is in.
    std::string placeOf(const QWidget *control) const
    {
        const auto *preview = dialog_->findChild<QWidget *>(QStringLiteral("preview"));
        if (preview == control || preview->isAncestorOf(control)) {
            return "preview";
        }
        const QWidget *page = dialog_->pages()->findChild<QStackedWidget *>()->currentWidget();
        const QWidget *part = control;
        while (part != page && part->parentWidget() != dialog_.get() && part->parentWidget() != dialog_->pages()) {
            part = part->parentWidget();
        }
        const bool isNamed =
            part->objectName() == QLatin1String("separateJobs") || dialog_->pages()->isAncestorOf(part);
        return isNamed ? part->objectName().toStdString() : part->metaObject()->className();
    }

    LoadedPlugIn plugIn_;
    std::unique_ptr<PrintDialog> dialog_;
};

TEST_F(DialogReading, NamesEveryControl)
{
    dialog_->notice()->tell(QStringLiteral("A notice"), {{QStringLiteral("&Undo"), [] {}}});
    EXPECT_EQ(test::nameOf(dialog_->notice()), "A notice");
    for (const Page page : {Page::General, Page::Panel, Page::Features, Page::Summary}) {
        dialog_->pages()->showPage(page);
        expectAllNamed(*dialog_, "page " + std::to_string(static_cast<int>(page)) + ": ");
    }
}

TEST_F(DialogReading, NamesTheControlsOfItsDialogs)
{
    CustomSizeDialog size(dialog_->openPrinter()->settings().printer(), QSizeF(100, 200), nullptr);
    size.show();
    expectAllNamed(size, "custom size: ");
    const std::shared_ptr<OpenPrinter> printer(dialog_->openPrinter(), [](OpenPrinter *) {}); // the dialog's
    SavePresetDialog preset(printer, {}, nullptr);
    preset.show();
    expectAllNamed(preset, "preset: ");
}

TEST_F(DialogReading, LetsTabGoThroughTheWindowAsItIsRead)
{
    for (const Page page : {Page::General, Page::Panel, Page::Features, Page::Summary}) {
        dialog_->pages()->showPage(page);
        dialog_->notice()->tell(QStringLiteral("A notice"), {{QStringLiteral("&Undo"), [] {}}});
        std::vector<std::string> places;
        for (const QWidget *stop : tabStops(dialog_->findChild<QWidget *>(QStringLiteral("printers")))) {
            const std::string place = placeOf(stop);
            if (places.empty() || places.back() != place) {
                places.push_back(place);
            }
        }
        std::vector<std::string> expected{"tessarin::host::PrinterPicker", "tessarin::host::NoticeBar", "pages"};
        const std::vector<std::string> names{"generalPage", "panelPage", "featuresPage", "summaryPage"};
        expected.push_back(names.at(static_cast<std::size_t>(page)));
        if (page == Page::General) {
            expected.emplace_back("preview");
        }
        expected.insert(expected.end(), {"tessarin::host::PresetMenu", "separateJobs", "QDialogButtonBox"});
        EXPECT_EQ(places, expected);
    }
}

TEST_F(DialogReading, PutsTheActionsOfANoticeBeforeItsEnd)
{
    dialog_->notice()->tell(QStringLiteral("A notice"),
                            {{QStringLiteral("One"), [] {}}, {QStringLiteral("Two"), [] {}}});
    std::vector<std::string> names;
    for (QWidget *stop : tabStops(dialog_->findChild<QWidget *>(QStringLiteral("printers")))) {
        if (dialog_->notice()->isAncestorOf(stop)) {
            names.push_back(test::nameOf(stop));
        }
    }
    EXPECT_EQ(names, (std::vector<std::string>{"One", "Two", "Close the notice"}));
}

} // namespace
} // namespace tessarin::host

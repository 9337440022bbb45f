// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Choices on the dialog's pages from the click to the ticket: conflicts, undo, presets, what is not printed.

#include "host/dialog.h"
#include "host/plugin_loader.h"
#include "host/printer_choices.h"
#include "settings/preset_store.h"

#include "tests/host/host_test_support.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

/// Notes what it is given, and says that it went well.
class NotedDelivery final : public Delivery {
public:
    explicit NotedDelivery(QList<JobTicket> &tickets) : tickets_(tickets) {}
    void start(const JobTicket &ticket, DeliveryFinished finished) override
    {
        tickets_ << ticket;
        finished({});
    }
    void cancel() override {}

private:
    QList<JobTicket> &tickets_;
};

class DialogChangesTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(config_.isValid());
        qputenv("XDG_CONFIG_HOME", config_.path().toUtf8());
    }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    /// Opens the dialog on a PPD, with the real panel where `withPanel`.
    void open(const QString &ppd, bool withPanel = false, const KeyValues &values = {}, const QString &preset = {})
    {
        if (withPanel) {
            Outcome<LoadedPlugIn> loaded = loadPlugIn({.directory = QStringLiteral(TESSARIN_TEST_BUNDLE),
                                                       .language = u"en"_s,
                                                       .logSink = [](std::string_view) {}});
            ASSERT_TRUE(loaded.ok()) << loaded.reason().toStdString();
            plugIn_ = loaded.take();
        }
        const auto printer = HostPrinter::fromPpdFile(ppd);
        ASSERT_TRUE(printer.ok()) << printer.reason().toStdString();
        dialog_ = std::make_unique<PrintDialog>(
            DialogParts{.plugIn = plugIn_.plugIn.get(),
                        .panelProblem = u"no panel in this test"_s,
                        .printer = printer.value(),
                        .wanted = ppdChoice(ppd),
                        .values = values,
                        .preset = preset,
                        .makeDelivery = [this](const HostPrinter &, bool /*separateJobs*/) {
                            return std::make_unique<NotedDelivery>(tickets_);
                        }});
        dialog_->show();
    }
    QString value(const QString &key) { return dialog_->openPrinter()->settings().value(key); }
    QMessageBox *question() { return dialog_->findChild<QMessageBox *>(u"conflict"_s); }
    static QPushButton *acceptOf(const QMessageBox &box)
    {
        for (QAbstractButton *button : box.buttons()) {
            if (box.buttonRole(button) == QMessageBox::AcceptRole) {
                return qobject_cast<QPushButton *>(button);
            }
        }
        return nullptr;
    }
    QPushButton *noticeAction() { return dialog_->notice()->findChild<QPushButton *>(); }
    QPushButton *print() { return dialog_->findChild<QPushButton *>(u"print"_s); }

    QTemporaryDir config_{};
    LoadedPlugIn plugIn_{};
    QList<JobTicket> tickets_{};
    std::unique_ptr<PrintDialog> dialog_{};
};

TEST_F(DialogChangesTest, SetsAtOnceWhatIsInNobodysWay)
{
    open(test::fixture("pages.ppd"));
    dialog_->choose(u"Quality"_s, u"Draft"_s);
    EXPECT_EQ(value(u"Quality"_s), u"Draft"_s);
    EXPECT_FALSE(question());
}

TEST_F(DialogChangesTest, OffersWhatMustChangeAndTakesItBack)
{
    open(test::fixture("pages.ppd"));
    dialog_->choose(u"Quality"_s, u"Draft"_s);
    dialog_->choose(u"MediaType"_s, u"Canvas"_s);
    ASSERT_TRUE(question());
    EXPECT_TRUE(question()->text().contains(u"not with Quality: Draft"_s)) << question()->text().toStdString();
    EXPECT_NE(value(u"MediaType"_s), u"Canvas"_s) << "not before consent";
    const QString mediaBefore = value(u"MediaType"_s);
    ASSERT_TRUE(acceptOf(*question()));
    acceptOf(*question())->click();
    EXPECT_EQ(value(u"MediaType"_s), u"Canvas"_s);
    EXPECT_NE(value(u"Quality"_s), u"Draft"_s);
    ASSERT_TRUE(noticeAction());
    noticeAction()->click();
    EXPECT_EQ(value(u"MediaType"_s), mediaBefore);
    EXPECT_EQ(value(u"Quality"_s), u"Draft"_s);
}

TEST_F(DialogChangesTest, ChangesNothingWithoutConsent)
{
    open(test::fixture("pages.ppd"));
    dialog_->choose(u"Quality"_s, u"Draft"_s);
    const QString mediaBefore = value(u"MediaType"_s);
    dialog_->choose(u"MediaType"_s, u"Canvas"_s);
    ASSERT_TRUE(question());
    question()->reject();
    EXPECT_EQ(value(u"MediaType"_s), mediaBefore);
    EXPECT_EQ(value(u"Quality"_s), u"Draft"_s);
}

TEST_F(DialogChangesTest, OffersNothingWhereThereIsNoWay)
{
    open(test::fixture("pages.ppd"));
    dialog_->choose(u"Seal"_s, u"Wax"_s);
    ASSERT_TRUE(question());
    EXPECT_FALSE(acceptOf(*question()));
    EXPECT_NE(value(u"Seal"_s), u"Wax"_s);
}

TEST_F(DialogChangesTest, NeverPrintsWhatIsInConflict)
{
    open(test::fixture("pages.ppd"));
    // Past the pages, as a panel would do it.
    dialog_->openPrinter()->settings().set(u"Quality"_s, u"Draft"_s, ChangeOrigin::Panel);
    dialog_->openPrinter()->settings().set(u"MediaType"_s, u"Canvas"_s, ChangeOrigin::Panel);
    print()->click();
    EXPECT_TRUE(tickets_.isEmpty());
    ASSERT_TRUE(question());
    acceptOf(*question())->click();
    print()->click();
    ASSERT_EQ(tickets_.size(), 1);
    EXPECT_FALSE(tickets_[0].value(u"Quality"_s) == u"Draft"_s && tickets_[0].value(u"MediaType"_s) == u"Canvas"_s);
}

TEST_F(DialogChangesTest, DoesNotPrintWithPagesThatCannotBeRead)
{
    open(test::fixture("pages.ppd"));
    auto *ranges = dialog_->findChild<QLineEdit *>(u"page-ranges"_s);
    ASSERT_TRUE(ranges);
    ranges->setText(u"5-2"_s);
    emit ranges->textEdited(u"5-2"_s);
    print()->click();
    EXPECT_TRUE(tickets_.isEmpty());
    EXPECT_TRUE(dialog_->notice()->text().contains(u"5-2"_s)) << dialog_->notice()->text().toStdString();
    EXPECT_EQ(dialog_->pages()->page(), Page::General);
}

TEST_F(DialogChangesTest, ShowsAPresetInThePanelAndTakesItBack)
{
    const QString ppd = test::fixture("minimal.ppd");
    {
        auto store = PresetStore::open(ppdChoice(ppd).identity());
        ASSERT_TRUE(store.ok());
        EXPECT_EQ(store.value().save({.name = u"Dark & matte"_s,
                                      .values = {{u"vornBrightness"_s, u"-15"_s},
                                                 {u"vornMediaType"_s, u"Plain0"_s},
                                                 {u"PageSize"_s, u"Letter"_s}}},
                                     SaveMode::KeepExisting),
                  QString());
    }
    open(ppd, true);
    dialog_->choose(u"copies"_s, u"3"_s);
    dialog_->applyPreset(u"Dark & matte"_s);
    dialog_->saveSettings(); // what the panel itself shows
    EXPECT_EQ(value(u"vornBrightness"_s), u"-15"_s);
    EXPECT_EQ(value(u"vornMediaType"_s), u"Plain0"_s);
    EXPECT_EQ(value(u"PageSize"_s), u"Letter"_s);
    EXPECT_EQ(value(u"copies"_s), u"3"_s) << "a preset changes only what it keeps";
    ASSERT_TRUE(noticeAction());
    noticeAction()->click();
    dialog_->saveSettings();
    EXPECT_EQ(value(u"vornBrightness"_s), u"0"_s);
    EXPECT_EQ(value(u"vornMediaType"_s), u"Photo6"_s);
    EXPECT_EQ(value(u"PageSize"_s), u"A4"_s);
    EXPECT_EQ(value(u"copies"_s), u"3"_s);
}

TEST_F(DialogChangesTest, SaysWhatOfAPresetIsNotPossible)
{
    const QString ppd = test::fixture("minimal.ppd");
    {
        auto store = PresetStore::open(ppdChoice(ppd).identity());
        ASSERT_TRUE(store.ok());
        EXPECT_EQ(store.value().save({.name = u"Elsewhere"_s, .values = {{u"vornMediaType"_s, u"Vellum"_s}}},
                                     SaveMode::KeepExisting),
                  QString());
    }
    open(ppd, true);
    dialog_->applyPreset(u"Elsewhere"_s);
    EXPECT_TRUE(dialog_->notice()->text().contains(u"Vellum"_s)) << dialog_->notice()->text().toStdString();
    EXPECT_EQ(value(u"vornMediaType"_s), u"Photo6"_s);
    dialog_->applyPreset(u"Nobody's"_s);
    EXPECT_TRUE(dialog_->notice()->text().contains(u"Nobody's"_s));
}

TEST_F(DialogChangesTest, StartsWithThePresetAndTheCommandLinesSettingsOverIt)
{
    const QString ppd = test::fixture("minimal.ppd");
    {
        auto store = PresetStore::open(ppdChoice(ppd).identity());
        ASSERT_TRUE(store.ok());
        EXPECT_EQ(store.value().save({.name = u"Mine"_s,
                                      .values = {{u"vornBrightness"_s, u"-15"_s}, {u"PageSize"_s, u"Letter"_s}}},
                                     SaveMode::KeepExisting),
                  QString());
    }
    open(ppd, true, {{.key = u"PageSize"_s, .value = u"A4"_s}, {.key = u"copies"_s, .value = u"2"_s}}, u"Mine"_s);
    const JobTicket ticket = dialog_->completeTicket();
    EXPECT_EQ(ticket.value(u"vornBrightness"_s), u"-15"_s);
    EXPECT_EQ(ticket.value(u"PageSize"_s), u"A4"_s);
    EXPECT_EQ(ticket.value(u"copies"_s), u"2"_s);
}

TEST_F(DialogChangesTest, RemembersWhatWasPrintedButNotTheCopies)
{
    const QString ppd = test::fixture("minimal.ppd");
    open(ppd, true);
    dialog_->choose(u"copies"_s, u"7"_s);
    dialog_->choose(u"PageSize"_s, u"Letter"_s);
    print()->click();
    ASSERT_EQ(tickets_.size(), 1);
    EXPECT_EQ(tickets_[0].value(u"copies"_s), u"7"_s);
    const auto store = PresetStore::open(ppdChoice(ppd).identity());
    ASSERT_TRUE(store.ok());
    QStringList keys;
    for (const auto &[key, text] : store.value().lastUsed()) {
        keys << key + u'=' + text;
    }
    EXPECT_TRUE(keys.contains(u"PageSize=Letter"_s)) << keys.join(u' ').toStdString();
    EXPECT_TRUE(keys.filter(u"copies="_s).isEmpty());
}

TEST_F(DialogChangesTest, KeepsCopiesAndPagesWhenAllElseIsReset)
{
    open(test::fixture("minimal.ppd"), true);
    dialog_->choose(u"copies"_s, u"4"_s);
    dialog_->choose(u"page-ranges"_s, u"2-3"_s);
    dialog_->choose(u"PageSize"_s, u"Letter"_s);
    emit dialog_->pages()->resetAllRequested();
    QCoreApplication::processEvents();
    EXPECT_EQ(value(u"copies"_s), u"4"_s);
    EXPECT_EQ(value(u"page-ranges"_s), u"2-3"_s);
    EXPECT_EQ(value(u"PageSize"_s), u"A4"_s);
}

} // namespace
} // namespace tessarin::host

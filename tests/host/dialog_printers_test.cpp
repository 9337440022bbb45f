// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Changing the printer under the dialog: while one opens, after one failed, and while there is none.

#include "host/dialog.h"
#include "host/printer_choices.h"

#include "tests/host/host_test_support.h"
#include "tests/host/pages_test_support.h"
#include "tests/printing/silent_server.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMessageBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

/// Fails as often as it is told to, then succeeds.
class FailingDelivery final : public Delivery {
public:
    FailingDelivery(int &starts, int &failures) : starts_(starts), failures_(failures) {}
    void start(const JobTicket &, DeliveryFinished finished) override
    {
        ++starts_;
        finished(failures_-- > 0 ? u"the cable is cut"_s : QString());
    }
    void cancel() override {}

private:
    int &starts_;
    int &failures_;
};

class DialogPrintersTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(config_.isValid());
        qputenv("XDG_CONFIG_HOME", config_.path().toUtf8());
        ASSERT_NE(silent_.port(), 0);
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(silent_.port()));
    }
    void TearDown() override
    {
        dialog_.reset();
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("CUPS_SERVER");
    }
    void open(const QString &ppd, const KeyValues &values = {})
    {
        std::shared_ptr<HostPrinter> printer;
        if (!ppd.isEmpty()) {
            const auto opened = HostPrinter::fromPpdFile(ppd);
            ASSERT_TRUE(opened.ok()) << opened.reason().toStdString();
            printer = opened.value();
        }
        dialog_ = std::make_unique<PrintDialog>(
            DialogParts{.panelProblem = u"no panel in this test"_s,
                        .printer = printer,
                        .wanted = ppd.isEmpty() ? PrinterChoice() : ppdChoice(ppd),
                        .offered = {ppdChoice(test::fixture("pages.ppd")), ppdChoice(u"/nowhere.ppd"_s),
                                    queueChoice({.queue = u"slow"_s})},
                        .values = values,
                        .makeDelivery = [this](const HostPrinter &, bool separate) {
                            separate_ << separate;
                            return std::make_unique<FailingDelivery>(starts_, failures_);
                        }});
        dialog_->show();
    }
    void pick(const QString &name)
    {
        auto *list = dialog_->findChild<QComboBox *>(u"printers"_s);
        const int index = list->findText(name);
        ASSERT_GE(index, 0) << name.toStdString();
        list->setCurrentIndex(index);
        emit list->activated(index);
    }
    QString shown() { return dialog_->findChild<QComboBox *>(u"printers"_s)->currentText(); }
    bool isEnabled(const QString &name) { return dialog_->findChild<QWidget *>(name)->isEnabled(); }
    QString nickname() { return dialog_->openPrinter()->printer().identifier().value_or(QString()); }
    QString value(const QString &key) { return dialog_->openPrinter()->settings().value(key); }

    QTemporaryDir config_{};
    SilentServer silent_{};
    int starts_ = 0;
    int failures_ = 0;
    QList<bool> separate_{};
    std::unique_ptr<PrintDialog> dialog_{};
};

TEST_F(DialogPrintersTest, DoesNothingToAPrinterThatIsNotThere)
{
    open({});
    EXPECT_FALSE(isEnabled(u"print"_s));
    EXPECT_FALSE(isEnabled(u"presets"_s));
    dialog_->applyPreset(u"Last used"_s);
    dialog_->choose(u"copies"_s, u"2"_s);
    emit dialog_->findChild<PresetMenu *>()->resetRequested();
    EXPECT_FALSE(dialog_->openPrinter());
    EXPECT_EQ(starts_, 0);
}

TEST_F(DialogPrintersTest, WaitsForAPrinterAndGoesBackOnCancel)
{
    open(test::fixture("minimal.ppd"));
    pick(u"slow"_s);
    EXPECT_FALSE(isEnabled(u"print"_s)) << "it would print on a printer that is not the one shown";
    EXPECT_FALSE(isEnabled(u"presets"_s));
    EXPECT_FALSE(dialog_->pages()->isEnabled());
    test::pressKey(*dialog_, Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(shown(), u"minimal.ppd"_s);
    EXPECT_TRUE(isEnabled(u"print"_s));
    EXPECT_TRUE(isEnabled(u"presets"_s));
    EXPECT_TRUE(dialog_->pages()->isEnabled());
    test::pressKey(*dialog_, Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(DialogPrintersTest, GoesBackToTheOpenPrinterWhenItIsPickedAgain)
{
    open(test::fixture("minimal.ppd"));
    dialog_->choose(u"copies"_s, u"3"_s);
    pick(u"slow"_s);
    pick(u"minimal.ppd"_s);
    EXPECT_TRUE(isEnabled(u"print"_s));
    EXPECT_EQ(value(u"copies"_s), u"3"_s) << "nothing is opened anew";
}

TEST_F(DialogPrintersTest, KeepsTheOpenPrinterWhenAnotherFails)
{
    open(test::fixture("minimal.ppd"));
    pick(u"nowhere.ppd"_s);
    EXPECT_TRUE(dialog_->notice()->text().contains(u"/nowhere.ppd"_s)) << dialog_->notice()->text().toStdString();
    EXPECT_EQ(shown(), u"minimal.ppd"_s);
    EXPECT_EQ(nickname(), u"minimal"_s);
    EXPECT_TRUE(isEnabled(u"print"_s));
    pick(u"pages.ppd"_s);
    EXPECT_EQ(nickname(), u"pages"_s);
    EXPECT_TRUE(dialog_->notice()->isHidden());
}

TEST_F(DialogPrintersTest, TakesTheCommandLinesWordsForWhatTheyMean)
{
    open(test::fixture("pages.ppd"), {{.key = u"PageSize"_s, .value = u"A4"_s},
                                      {.key = u"media"_s, .value = u"Letter"_s},
                                      {.key = u"page-ranges"_s, .value = u"1-3, 4-"_s},
                                      {.key = u"landscape"_s, .value = u"true"_s}});
    EXPECT_TRUE(dialog_->notice()->isHidden()) << dialog_->notice()->text().toStdString();
    EXPECT_EQ(value(u"PageSize"_s), u"Letter"_s) << "the last word holds";
    EXPECT_EQ(value(u"orientation-requested"_s), u"4"_s);
}

TEST_F(DialogPrintersTest, SaysWhatOfTheCommandLineIsNotPossible)
{
    open(test::fixture("pages.ppd"), {{.key = u"media"_s, .value = u"Vellum"_s}});
    EXPECT_TRUE(dialog_->notice()->text().contains(u"Vellum"_s)) << dialog_->notice()->text().toStdString();
}

TEST_F(DialogPrintersTest, TriesTheJobAgainTheWayThatIsChosenThen)
{
    failures_ = 2;
    open(test::fixture("pages.ppd"));
    dialog_->findChild<QPushButton *>(u"print"_s)->click();
    EXPECT_EQ(starts_, 1);
    EXPECT_TRUE(dialog_->isVisible());
    delete dialog_->findChild<QMessageBox *>(u"failure"_s);
    dialog_->findChild<QCheckBox *>(u"separateJobs"_s)->setChecked(true);
    dialog_->findChild<QPushButton *>(u"print"_s)->click();
    EXPECT_EQ(starts_, 2);
    EXPECT_EQ(separate_, (QList<bool>{false, true})) << "nothing was sent yet that would be sent twice";
    delete dialog_->findChild<QMessageBox *>(u"failure"_s);
    dialog_->findChild<QPushButton *>(u"print"_s)->click();
    EXPECT_EQ(starts_, 3);
    EXPECT_EQ(separate_.size(), 2);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(DialogPrintersTest, PrintsWhatWasChosenInTheSameMoment)
{
    open(test::fixture("pages.ppd"));
    auto *sizes = dialog_->findChild<QComboBox *>(u"PageSize"_s);
    sizes->setCurrentIndex(sizes->findData(u"Letter"_s));
    emit sizes->activated(sizes->currentIndex());
    emit dialog_->pages()->chosen(u"copies"_s, u"5"_s);
    dialog_->findChild<QPushButton *>(u"print"_s)->click();
    EXPECT_EQ(starts_, 1);
    EXPECT_EQ(value(u"copies"_s), u"5"_s);
    EXPECT_EQ(value(u"PageSize"_s), u"Letter"_s);
}

TEST_F(DialogPrintersTest, PrintsOnAPaperOfAnySizeThatThePrinterTakes)
{
    open(QStringLiteral(TESSARIN_SAMPLE_PPD));
    auto *sizes = dialog_->findChild<QComboBox *>(u"PageSize"_s);
    ASSERT_TRUE(sizes);
    const int last = sizes->count() - 1;
    EXPECT_EQ(sizes->itemText(last), u"Custom Size…"_s);
    sizes->setCurrentIndex(last);
    emit sizes->activated(last);
    EXPECT_EQ(sizes->currentData().toString(), value(u"PageSize"_s)) << "until there is a size";
    ASSERT_TRUE(test::waitFor([&] { return dialog_->findChild<QDialog *>(u"customSize"_s) != nullptr; }));
    auto *width = dialog_->findChild<QDoubleSpinBox *>(u"customWidth"_s);
    auto *height = dialog_->findChild<QDoubleSpinBox *>(u"customHeight"_s);
    EXPECT_EQ(width->minimum(), 88.9) << "252 points";
    EXPECT_EQ(width->maximum(), 609.6) << "1728 points";
    EXPECT_EQ(height->maximum(), 5080.0) << "14400 points";
    EXPECT_NEAR(width->value(), 210, 0.2) << "A4, which is set";
    width->setValue(305);
    height->setValue(1200.5);
    dialog_->findChild<QDialog *>(u"customSize"_s)->accept();
    ASSERT_TRUE(test::waitFor([&] { return value(u"PageSize"_s).startsWith(u"Custom."_s); }));
    EXPECT_EQ(value(u"PageSize"_s), u"Custom.305x1200.5mm"_s);
    EXPECT_EQ(dialog_->completeTicket().value(u"media"_s), u"Custom.305x1200.5mm"_s);
    sizes = dialog_->findChild<QComboBox *>(u"PageSize"_s);
    EXPECT_EQ(sizes->currentData().toString(), u"Custom.305x1200.5mm"_s);
    EXPECT_EQ(sizes->count(), last + 2) << "the size and the entry for another";
    dialog_->choose(u"PageSize"_s, u"A4"_s);
    EXPECT_EQ(sizes->count(), last + 1);
    const PageLayout layout = layoutOf(dialog_->openPrinter()->settings());
    EXPECT_NEAR(layout.paper.width(), 595, 1);
}

TEST_F(DialogPrintersTest, AsksBeforeItPrintsAChoiceThatDoesNotFit)
{
    open(test::fixture("pages.ppd"));
    dialog_->choose(u"Quality"_s, u"Draft"_s);
    emit dialog_->pages()->chosen(u"MediaType"_s, u"Canvas"_s);
    dialog_->findChild<QPushButton *>(u"print"_s)->click();
    EXPECT_EQ(starts_, 0);
    EXPECT_TRUE(dialog_->findChild<QMessageBox *>(u"conflict"_s));
}

TEST_F(DialogPrintersTest, UndoKeepsWhatWasEditedAfterwards)
{
    open(test::fixture("pages.ppd"));
    dialog_->choose(u"PageSize"_s, u"Letter"_s);
    dialog_->choose(u"MediaType"_s, u"Photo"_s);
    emit dialog_->pages()->resetAllRequested();
    QCoreApplication::processEvents();
    EXPECT_EQ(value(u"PageSize"_s), u"A4"_s);
    dialog_->openPrinter()->settings().set(u"copies"_s, u"6"_s, ChangeOrigin::Page);
    ASSERT_TRUE(dialog_->openPrinter()->settings().set(u"MediaType"_s, u"Canvas"_s, ChangeOrigin::Page));
    auto *undo = dialog_->notice()->findChild<QPushButton *>();
    ASSERT_TRUE(undo);
    undo->click();
    EXPECT_EQ(value(u"PageSize"_s), u"Letter"_s);
    EXPECT_EQ(value(u"copies"_s), u"6"_s);
    EXPECT_EQ(value(u"MediaType"_s), u"Canvas"_s) << "edited since";
}

TEST_F(DialogPrintersTest, AShortcutThatIsNotPossibleChoosesNoPrinter)
{
    open(test::fixture("minimal.ppd"));
    auto *list = dialog_->findChild<QComboBox *>(u"printers"_s);
    list->setFocus();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_P, Qt::AltModifier, u"p"_s);
    QCoreApplication::sendEvent(list, &press);
    EXPECT_EQ(nickname(), u"minimal"_s);
    QKeyEvent typed(QEvent::KeyPress, Qt::Key_P, Qt::NoModifier, u"p"_s);
    QCoreApplication::sendEvent(list, &typed);
    EXPECT_EQ(nickname(), u"pages"_s) << "without Alt it is the beginning of a name";
}

} // namespace
} // namespace tessarin::host

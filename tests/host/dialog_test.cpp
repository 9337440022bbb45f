// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/dialog.h"
#include "host/printer_choices.h"

#include "tests/host/fake_panel.h"
#include "tests/host/host_test_support.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

using test::FakePlugIn;
using test::Offer;

/// A delivery that ends when the test says so.
class HeldDelivery final : public Delivery {
public:
    void start(const JobTicket &ticket, DeliveryFinished finished) override
    {
        ++starts;
        lines = ticket.toLines();
        finished_ = std::move(finished);
    }
    void cancel() override { ++cancels; }
    void end(const QString &failure) { finished_(failure); }

    int starts = 0;
    int cancels = 0;
    QByteArray lines{};

private:
    DeliveryFinished finished_{};
};

void pressKey(QWidget &widget, Qt::Key key)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

/// A double click as a mouse sends it: two presses and releases, the second press marked as double.
void doubleClick(QWidget &widget)
{
    const QPointF middle = widget.rect().center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, middle, widget.mapToGlobal(middle), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

/// Hands a delivery of the test's own to the dialog, which owns what it is given.
class LentDelivery final : public Delivery {
public:
    explicit LentDelivery(HeldDelivery &held) : held_(held) {}
    void start(const JobTicket &ticket, DeliveryFinished finished) override
    {
        held_.start(ticket, std::move(finished));
    }
    void cancel() override { held_.cancel(); }

private:
    HeldDelivery &held_;
};

class PrintDialogTest : public testing::Test {
protected:
    void open(Offer offer)
    {
        const auto printer = test::minimalPrinter();
        ASSERT_TRUE(printer);
        plugIn_ = std::make_unique<FakePlugIn>(offer, calls_);
        dialog_ = std::make_unique<PrintDialog>(
            DialogParts{.plugIn = plugIn_.get(),
                        .printer = printer,
                        .wanted = ppdChoice(test::fixture("minimal.ppd")),
                        .documentNames = {u"a.pdf"_s, u"b.pdf"_s},
                        .makeDelivery = [this](const HostPrinter &, bool /*separateJobs*/) {
                            return std::make_unique<LentDelivery>(delivery_);
                        }});
        dialog_->show();
    }
    QPushButton *button(const char *name) { return dialog_->findChild<QPushButton *>(QLatin1String(name)); }
    QString text(const char *label)
    {
        const auto *found = dialog_->findChild<QLabel *>(QLatin1String(label));
        return found ? found->text() : u"(no such label)"_s;
    }

    test::Calls calls_ = std::make_shared<QStringList>();
    HeldDelivery delivery_{};
    std::unique_ptr<FakePlugIn> plugIn_{};
    std::unique_ptr<PrintDialog> dialog_{};
};

TEST_F(PrintDialogTest, DrivesThePanelInTheUsualOrder)
{
    open(Offer::Panel);
    EXPECT_EQ(*calls_, (QStringList{u"PDEPanelsForType BDB091F4-E57F-11D3-B5CC-0050E4603277"_s, u"panelName"_s,
                                    u"panelKind"_s, u"supportedPPDOptionKeys"_s, u"panelView"_s, u"willShow"_s,
                                    u"restore"_s}));
    EXPECT_TRUE(dialog_->panelView()->isVisible());
    EXPECT_EQ(dialog_->openPrinter()->panel().kind, u"org.tessarin.test.fake"_s);
    EXPECT_EQ(*dialog_->openPrinter()->panel().supportedKeys, QStringList{u"vornMediaType"_s});
}

TEST_F(PrintDialogTest, NamesPrinterDocumentsAndPanelInPlainText)
{
    open(Offer::Panel);
    const auto *printers = dialog_->findChild<QComboBox *>(u"printers"_s);
    ASSERT_TRUE(printers);
    EXPECT_EQ(printers->currentText(), u"minimal.ppd"_s);
    EXPECT_TRUE(text("printerDetail").contains(u"a.pdf, b.pdf"_s));
    EXPECT_EQ(text("panelName"), u"Fake <b>Settings</b>"_s);
    EXPECT_EQ(dialog_->findChild<QLabel *>(u"panelName"_s)->textFormat(), Qt::PlainText);
}

TEST_F(PrintDialogTest, DeliversWhatThePanelSavesAndCloses)
{
    open(Offer::Panel);
    pressKey(*dialog_, Qt::Key_Return);
    EXPECT_EQ(delivery_.starts, 1);
    EXPECT_TRUE(delivery_.lines.startsWith("vornMediaType=Photo6\nvornBrightness=-7\nvornNoPrint=0\n"))
        << delivery_.lines.toStdString();
    EXPECT_TRUE(delivery_.lines.contains("\nPageSize=A4\n")) << delivery_.lines.toStdString();
    EXPECT_TRUE(dialog_->isVisible());
    delivery_.end({});
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
}

TEST_F(PrintDialogTest, PrintsOnceForADoubleClick)
{
    open(Offer::Panel);
    doubleClick(*button("print"));
    pressKey(*dialog_, Qt::Key_Return);
    EXPECT_EQ(delivery_.starts, 1);
    EXPECT_FALSE(button("print")->isEnabled());
}

TEST_F(PrintDialogTest, DoesNotTakeASecondEnterForCancel)
{
    open(Offer::Panel);
    button("print")->setFocus();
    for (int press = 0; press < 2; ++press) {
        QWidget *focused = dialog_->focusWidget();
        pressKey(focused ? *focused : *dialog_, Qt::Key_Return);
    }
    EXPECT_EQ(delivery_.starts, 1);
    EXPECT_EQ(delivery_.cancels, 0);
}

TEST_F(PrintDialogTest, StaysOpenAndSaysWhatFailed)
{
    open(Offer::Panel);
    button("print")->click();
    delivery_.end(u"queue <b>x</b>: no"_s);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_TRUE(button("print")->isEnabled());
    auto *box = dialog_->findChild<QMessageBox *>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), u"queue <b>x</b>: no"_s);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    box->accept();
    button("print")->click();
    EXPECT_EQ(delivery_.starts, 2);
}

TEST_F(PrintDialogTest, IsCancelledByEscape)
{
    open(Offer::Panel);
    pressKey(*dialog_, Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(dialog_->result(), QDialog::Rejected);
    EXPECT_EQ(delivery_.starts, 0);
}

TEST_F(PrintDialogTest, StopsARunningDeliveryBeforeItCloses)
{
    open(Offer::Panel);
    button("print")->click();
    button("cancel")->click();
    EXPECT_EQ(delivery_.cancels, 1);
    EXPECT_TRUE(dialog_->isVisible());
    delivery_.end(u"cancelled"_s);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_FALSE(dialog_->findChild<QMessageBox *>());
    EXPECT_EQ(text("status"), u"Not printed: cancelled"_s);
    button("cancel")->click();
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(PrintDialogTest, GivesTheViewBackToAPanelThatOutlivesIt)
{
    open(Offer::Panel);
    const QPointer<QWidget> view = dialog_->panelView();
    dialog_.reset();
    EXPECT_TRUE(view);
    EXPECT_EQ(calls_->count(u"dealloc"_s) + calls_->count(u"dealloc with view"_s), 0);
    plugIn_.reset();
    EXPECT_FALSE(view);
    EXPECT_EQ(calls_->back(), u"dealloc with view"_s);
}

struct WithoutPanel {
    const char *name;
    Offer offer;
    QByteArray lines; ///< what Print delivers

    friend void PrintTo(const WithoutPanel &row, std::ostream *out) { *out << row.name; }
};

class PrintDialogWithoutPanel : public PrintDialogTest, public testing::WithParamInterface<WithoutPanel> {};

TEST_P(PrintDialogWithoutPanel, SaysSoAndStillPrints)
{
    open(GetParam().offer);
    EXPECT_FALSE(dialog_->panelView());
    EXPECT_FALSE(dialog_->panelProblem().isEmpty());
    EXPECT_EQ(text("panelProblem"), dialog_->panelProblem());
    button("print")->click();
    EXPECT_EQ(delivery_.starts, 1);
    EXPECT_TRUE(delivery_.lines.contains(GetParam().lines)) << delivery_.lines.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Offers, PrintDialogWithoutPanel,
                         testing::Values(WithoutPanel{"null_array", Offer::NullArray, "vornBrightness=0\n"},
                                         WithoutPanel{"empty_array", Offer::EmptyArray, "vornBrightness=0\n"},
                                         WithoutPanel{"no_view", Offer::PanelWithoutView,
                                                      "vornMediaType=Photo6\nvornBrightness=-7\nvornNoPrint=0\n"}),
                         [](const testing::TestParamInfo<WithoutPanel> &row) {
                             return std::string(row.param.name);
                         });

} // namespace
} // namespace tessarin::host

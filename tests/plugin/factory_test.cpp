// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/plugin_factory.h"

#include "plugin/restore.h"
#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

#include <memory>

namespace tessarin::test {
namespace {

const QString kPanelType = QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");
constexpr char k105Line[] = "LOG (64-bit) Mac OS X 10.5 or later";

class Factory : public testing::Test {
protected:
    Factory() { factory_->initWithBundle(bundle_); }

    std::string line(const std::string &tag, const std::string &message) const
    {
        return tag + " self(" + described("TessarinPDEPlugIn", factory_.get()) + ") " + message;
    }

    SharedTables tables_;
    std::shared_ptr<pde::Bundle> bundle_ = buildBundle();
    std::shared_ptr<RecordingHost> host_ = std::make_shared<RecordingHost>(ppdFixture("minimal"));
    std::unique_ptr<TessarinPDEPlugIn> factory_ = std::make_unique<TessarinPDEPlugIn>();
};

TEST_F(Factory, TakesItsBundleAndAnswersYes)
{
    const CapturedLog log;
    EXPECT_TRUE(factory_->initWithBundle(bundle_));
    EXPECT_EQ(log.lines(), (Lines{line("BEGIN", "initWithBundle:(" + described("Bundle", bundle_.get()) + ", " +
                                                    address(bundle_.get()) + ")"),
                                  line("END", "initWithBundle:=BOOL(YES)")}));
}

TEST_F(Factory, AnswersYesEvenWithoutABundle)
{
    const CapturedLog log;
    EXPECT_TRUE(factory_->initWithBundle(nullptr));
    EXPECT_EQ(log.lines(),
              (Lines{line("BEGIN", "initWithBundle:((null), 0x0)"), line("END", "initWithBundle:=BOOL(YES)")}));
}

TEST_F(Factory, DoesNotRetainItsBundle)
{
    auto texts = std::make_shared<TextBundle>();
    const std::weak_ptr<TextBundle> watch = texts;
    factory_->initWithBundle(texts);
    EXPECT_EQ(texts.use_count(), 1);
    texts.reset();
    EXPECT_TRUE(watch.expired());
    const auto panels = factory_->PDEPanelsForType(kPanelType, host_);
    ASSERT_EQ(panels->size(), 1U);
    EXPECT_EQ(panels->front()->panelName(), QStringLiteral("Tessarin Settings")) << "without a bundle: the key";
}

TEST_F(Factory, OffersOnePanelForThePrinterModuleType)
{
    const auto panels = factory_->PDEPanelsForType(kPanelType, host_);
    ASSERT_NE(panels, nullptr);
    ASSERT_EQ(panels->size(), 1U);
    const auto *panel = dynamic_cast<const PasswordPDE *>(panels->front().get());
    ASSERT_NE(panel, nullptr);
    EXPECT_NE(panel->panelContext(), nullptr) << "it has restored itself";
}

TEST_F(Factory, OffersAnEmptyArrayForAForeignType)
{
    for (const QString &type : {QStringLiteral(""), QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603278"),
                                QStringLiteral("bdb091f4-e57f-11d3-b5cc-0050e4603277"),
                                kPanelType + QLatin1Char(' '), QStringLiteral("A%d%s")}) {
        const CapturedLog log;
        const auto panels = factory_->PDEPanelsForType(type, host_);
        ASSERT_NE(panels, nullptr) << type.toStdString();
        EXPECT_TRUE(panels->empty()) << type.toStdString();
        EXPECT_EQ(log.lines(), (Lines{line("BEGIN", "PDEPanelsForType:(" + type.toStdString() + ") withHostInfo:(" +
                                                        described("HostCallback", host_.get()) + ")"),
                                      k105Line, line("END", "PDEPanelsForType:withHostInfo:=NSArray(())")}))
            << "with an epilog, unlike an array that is null";
    }
    EXPECT_TRUE(host_->askedTypes.empty()) << "the host is asked nothing";
}

TEST_F(Factory, TakesAnAbsentTypeForAForeignOne)
{
    const CapturedLog log;
    const auto panels = factory_->PDEPanelsForType(QString(), nullptr);
    ASSERT_NE(panels, nullptr);
    EXPECT_TRUE(panels->empty());
    EXPECT_EQ(log.lines().front(), line("BEGIN", "PDEPanelsForType:((null)) withHostInfo:((null))"));
}

TEST_F(Factory, MakesANewArrayAtEveryCall)
{
    const auto first = factory_->PDEPanelsForType(QStringLiteral("foreign"), host_);
    const auto second = factory_->PDEPanelsForType(QStringLiteral("foreign"), host_);
    EXPECT_NE(first, second);
    const auto third = factory_->PDEPanelsForType(kPanelType, host_);
    const auto fourth = factory_->PDEPanelsForType(kPanelType, host_);
    EXPECT_NE(third->front(), fourth->front());
    EXPECT_EQ(third->size(), 1U);
    EXPECT_EQ(fourth->size(), 1U);
}

TEST_F(Factory, NeverReleasesTheArrayOfAnEarlierCall)
{
    std::weak_ptr<pde::Panel> early = factory_->PDEPanelsForType(kPanelType, host_)->front();
    EXPECT_FALSE(early.expired()) << "the factory has it";
    const std::weak_ptr<pde::Panel> late = factory_->PDEPanelsForType(kPanelType, host_)->front();
    EXPECT_FALSE(early.expired()) << "although it was replaced";
    factory_.reset();
    EXPECT_FALSE(early.expired());
    EXPECT_TRUE(late.expired()) << "the last array is released with the factory";
    ASSERT_NE(early.lock(), nullptr);
    EXPECT_TRUE(early.lock()->saveValuesAndReturnError(nullptr)) << "and is usable";
}

TEST_F(Factory, ReplacesItsArrayByOneForAForeignTypeToo)
{
    const std::weak_ptr<pde::Panel> panel = factory_->PDEPanelsForType(kPanelType, host_)->front();
    factory_->PDEPanelsForType(QStringLiteral("foreign"), host_);
    EXPECT_FALSE(panel.expired());
}

TEST_F(Factory, GoesWithoutALine)
{
    factory_->PDEPanelsForType(QStringLiteral("foreign"), host_);
    const CapturedLog log;
    factory_.reset();
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(Factory, ReleasesItsPanelWhenItGoes)
{
    factory_->PDEPanelsForType(kPanelType, host_);
    const CapturedLog log;
    factory_.reset();
    EXPECT_EQ(log.lines(), Lines{"LOG Dealloc is called\n"});
}

TEST_F(Factory, LeavesThePanelToAHostThatKeepsIt)
{
    auto panels = factory_->PDEPanelsForType(kPanelType, host_);
    const CapturedLog log;
    factory_.reset();
    EXPECT_EQ(log.lines(), Lines{});
    EXPECT_TRUE(panels->front()->saveValuesAndReturnError(nullptr));
    panels.reset();
    EXPECT_EQ(log.lines().back(), "LOG Dealloc is called\n");
}

TEST_F(Factory, TellsOfTheCreationInOrder)
{
    const CapturedLog log;
    const auto panels = factory_->PDEPanelsForType(kPanelType, host_);
    const pde::Panel *panel = panels->front().get();
    const std::string host = described("HostCallback", host_.get());
    const std::string bundle = described("Bundle", bundle_.get());
    Lines outer;
    for (const std::string &logged : log.lines()) {
        if (logged.find(" self(") != std::string::npos || logged == k105Line) {
            outer.push_back(logged);
        }
    }
    EXPECT_EQ(
        outer,
        (Lines{line("BEGIN", "PDEPanelsForType:(BDB091F4-E57F-11D3-B5CC-0050E4603277) withHostInfo:(" + host + ")"),
               panelLine("BEGIN", panel,
                         "initWithCallback:(" + host + ", " + address(host_.get()) + ") andBundle:(" + bundle +
                             " " + address(bundle_.get()) + ")"),
               panelLine("BEGIN", panel, "restoreValuesAndReturnError:(0x0)"), k105Line, k105Line,
               panelLine("END", panel, "restoreValuesAndReturnError:=BOOL(YES)"),
               panelLine("END", panel, "initWithCallback:=id(self)"),
               line("LOG", "Creating PDE of type kPrinterModuleTypeIDStr(BDB091F4-E57F-11D3-B5CC-0050E4603277)"
                           " PasswordPDE (" +
                               address(panel) + ")"),
               k105Line,
               line("END", "PDEPanelsForType:withHostInfo:=NSArray((" + described("PasswordPDE", panel) + "))")}));
    EXPECT_EQ(log.lines().back(), outer.back());
}

TEST_F(Factory, OffersAPanelWithoutAHostToo)
{
    const auto panels = factory_->PDEPanelsForType(kPanelType, nullptr);
    ASSERT_NE(panels, nullptr);
    ASSERT_EQ(panels->size(), 1U);
    const auto *panel = dynamic_cast<const PasswordPDE *>(panels->front().get());
    ASSERT_NE(panel->panelContext(), nullptr);
    EXPECT_EQ(panel->panelContext()->callbackObject, nullptr);
}

} // namespace
} // namespace tessarin::test

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink page of the panel: from the counters' source to the rows on the screen.

#include "controls/event_dispatch.h"
#include "ink/level_box.h"
#include "platform/bounded_copy.h"
#include "platform/view_tags.h"
#include "tests/ink/ink_test_support.h"
#include "tests/support/captured_log.h"
#include "tests/support/panel_session.h"

#include <QFile>
#include <QImage>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class InkPage : public testing::Test {
protected:
    void open(const std::string &ppd, const std::string &counters)
    {
        session_ = std::make_unique<PanelSession>(ppd);
        if (!counters.empty()) {
            writeCounters(counters);
        }
        copyBounded(session_->settings().inkFilePath, path_);
        view_ = session_->open();
        ASSERT_NE(view_, nullptr);
    }
    void writeCounters(const std::string &text) const
    {
        QFile file(QString::fromStdString(path_));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text.data(), static_cast<qsizetype>(text.size()));
    }
    void reload()
    {
        auto *button = qobject_cast<QPushButton *>(viewWithTag(view_, 4003));
        ASSERT_NE(button, nullptr);
        button->click();
    }
    std::string text(int tag) const
    {
        const auto *label = qobject_cast<const QLabel *>(viewWithTag(view_, tag));
        return label != nullptr ? label->text().toStdString() : "(no label)";
    }
    /// Names of the visible rows of a box by the ids of its names.
    Lines names(const std::vector<int> &ids) const
    {
        Lines shown;
        for (const int id : ids) {
            const QWidget *label = viewWithTag(view_, id);
            if (label != nullptr && !label->isHidden()) {
                shown.push_back(text(id));
            }
        }
        return shown;
    }
    Lines lastNames() const
    {
        return names({3211, 3212, 3213, 3214, 3215, 3216, 3217, 3218, 3219, 3220, 3221, 3222});
    }
    Lines totalNames() const
    {
        return names({3201, 3202, 3203, 3204, 3205, 3206, 3207, 3208, 3209, 3210, 3200, 3199});
    }
    int level(int tag) const
    {
        const auto *bar = dynamic_cast<const LevelBox *>(viewWithTag(view_, tag));
        return bar != nullptr ? bar->level() : -9999;
    }

    std::unique_ptr<PanelSession> session_;
    QWidget *view_ = nullptr;
    QTemporaryDir folder_;
    std::string path_ = folder_.filePath(QStringLiteral("sample.ink")).toStdString();
};

TEST_F(InkPage, ShowsTheCounterFile)
{
    open(samplePPD(), "TotalInk_C=12345\nLastInk_C=149\nTotalInk_Y=1000000\nLastInk_Y=298\n");
    EXPECT_THAT(lastNames(), ElementsAre("Yellow", "Cyan"));
    EXPECT_THAT(totalNames(), ElementsAre("Yellow", "Cyan"));
    EXPECT_EQ(text(3111), "3");
    EXPECT_EQ(text(3112), "1");
    EXPECT_EQ(level(3011), 100);
    EXPECT_EQ(level(3012), 50);
    EXPECT_EQ(text(3101), "1000");
    EXPECT_EQ(text(3102), "12");
    EXPECT_EQ(level(2999), 100);
    EXPECT_EQ(level(3000), 1);
    EXPECT_EQ(text(3139), "4");
    EXPECT_EQ(text(3129), "1012");
}

TEST_F(InkPage, ShowsTheExtraDataWithoutAFile)
{
    const TextFile ppd(ppdTextWithBlock("TotalInk_M=25000\r\nLastInk_M=300\r\n"));
    open(ppd.path(), "");
    EXPECT_THAT(lastNames(), ElementsAre("Magenta"));
    EXPECT_EQ(text(3111), "3");
    EXPECT_EQ(text(3101), "25");
    EXPECT_EQ(level(2999), 3);
}

TEST_F(InkPage, ShowsNoRowWithoutCounters)
{
    open(ppdFixture("minimal"), "");
    EXPECT_THAT(lastNames(), IsEmpty());
    EXPECT_THAT(totalNames(), IsEmpty());
    EXPECT_EQ(text(3139), "0");
    EXPECT_EQ(text(3129), "0");
}

TEST_F(InkPage, ReadsTheCountersAgainOnReload)
{
    open(ppdFixture("minimal"), "LastInk_C=100\n");
    EXPECT_THAT(lastNames(), ElementsAre("Cyan"));
    writeCounters("LastInk_M=200\nLastInk_Y=100\n");
    reload();
    EXPECT_THAT(lastNames(), ElementsAre("Yellow", "Magenta"));
    EXPECT_EQ(text(3139), "3");
    EXPECT_TRUE(session_->host->changes.empty());
}

TEST_F(InkPage, HidesAllRowsWhenTheFileIsGone)
{
    open(ppdFixture("minimal"), "LastInk_C=100\nTotalInk_C=5000\n");
    ASSERT_TRUE(QFile::remove(QString::fromStdString(path_)));
    const CapturedLog log;
    reload();
    EXPECT_THAT(lastNames(), IsEmpty());
    EXPECT_THAT(totalNames(), IsEmpty());
    EXPECT_EQ(text(3139), "0");
    EXPECT_EQ(text(3129), "0");
    EXPECT_TRUE(log.contains("LOG Inkdata-File not found:" + path_ + "\n"));
    EXPECT_EQ(log.countStarting("LOG Got Line:"), 0);
}

TEST_F(InkPage, TurnsToTheExtraDataWhenTheFileIsGone)
{
    const TextFile ppd(ppdTextWithBlock("LastInk_M=300\n"));
    open(ppd.path(), "LastInk_C=100\n");
    EXPECT_THAT(lastNames(), ElementsAre("Cyan"));
    ASSERT_TRUE(QFile::remove(QString::fromStdString(path_)));
    reload();
    EXPECT_THAT(lastNames(), ElementsAre("Magenta"));
}

TEST_F(InkPage, KeepsItsMeasureOnReload)
{
    open(ppdFixture("minimal"), "LastInk_C=100\n");
    const QRect before = viewWithTag(view_, 3211)->geometry();
    for (int k = 0; k < 3; ++k) {
        reload();
        EXPECT_EQ(viewWithTag(view_, 3211)->geometry(), before);
    }
}

TEST_F(InkPage, KeepsTwelveRowsInsideTheirBoxes)
{
    std::string text;
    for (const char *code : {"K", "Y", "M", "C", "M2", "C2", "Y2", "R", "G", "B", "O", "OR"}) {
        text += std::string("LastInk_") + code + "=100\n";
    }
    open(ppdFixture("minimal"), text);
    ASSERT_EQ(lastNames().size(), 12U);
    ASSERT_EQ(totalNames().size(), 12U);
    for (const int firstTag : {3011, 2999}) {
        for (int k = 0; k < 12; ++k) {
            const QWidget *bar = viewWithTag(view_, firstTag + k);
            EXPECT_TRUE(bar->parentWidget()->rect().contains(bar->geometry())) << firstTag + k;
        }
        for (int k = 1; k < 12; ++k) {
            EXPECT_GE(viewWithTag(view_, firstTag + k)->y(),
                      viewWithTag(view_, firstTag + k - 1)->geometry().bottom());
        }
    }
}

TEST_F(InkPage, CentresTheRowsBetweenFirstAndLast)
{
    open(ppdFixture("minimal"), "LastInk_C=100\n");
    const PanelContext *context = session_->context();
    const QRect only = viewWithTag(view_, 3211)->geometry();
    EXPECT_EQ(only.height(), context->inkRowHeight);
    const int above = only.top() - context->inkFirstLine;
    const int below = context->inkLastLine + context->inkRowHeight - (only.bottom() + 1);
    EXPECT_NEAR(above, below, 1);
    EXPECT_GT(above, 0);
}

TEST_F(InkPage, HasEachRowsNameBarAndValueOnOneLine)
{
    open(ppdFixture("minimal"), "LastInk_C=100\nLastInk_Y=100\nLastInk_M=100\n");
    for (int k = 0; k < 12; ++k) {
        const QRect name = viewWithTag(view_, 3211 + k)->geometry();
        const QRect bar = viewWithTag(view_, 3011 + k)->geometry();
        const QRect value = viewWithTag(view_, 3111 + k)->geometry();
        EXPECT_EQ(value.top(), name.top());
        EXPECT_EQ(bar.top(), name.top() + 1);
        EXPECT_EQ(bar.height(), name.height() - 2);
        EXPECT_LE(name.right(), bar.left());
        EXPECT_LE(bar.right(), value.left());
    }
}

TEST_F(InkPage, PaintsBarsInTheirChannelsColours)
{
    open(ppdFixture("minimal"), "LastInk_C=100\nLastInk_Y=50\n");
    for (const auto &[tag, colour] : {std::pair{3011, qRgb(255, 255, 0)}, {3012, qRgb(0, 255, 255)}}) {
        QWidget *bar = viewWithTag(view_, tag);
        QImage image(bar->size(), QImage::Format_ARGB32);
        bar->render(&image);
        EXPECT_EQ(image.pixel(1, 1), colour);
        EXPECT_EQ(image.pixel(bar->width() - 2, 1), tag == 3012 ? colour : qRgb(255, 255, 255));
    }
}

TEST_F(InkPage, ShowsNamesInGerman)
{
    session_ = std::make_unique<PanelSession>(ppdFixture("minimal"), "sample", buildBundle(QStringLiteral("de")));
    writeCounters("LastInk_K=100\n");
    copyBounded(session_->settings().inkFilePath, path_);
    view_ = session_->open();
    ASSERT_NE(view_, nullptr);
    EXPECT_EQ(text(3211), session_->bundle->localizedString(QStringLiteral("Black")).toStdString());
    EXPECT_NE(text(3211), "Black");
}

TEST_F(InkPage, TakesAnInkEventBeforeThereIsAView)
{
    session_ = std::make_unique<PanelSession>(ppdFixture("minimal"));
    writeCounters("LastInk_K=100\n");
    copyBounded(session_->settings().inkFilePath, path_);
    const CapturedLog log;
    EXPECT_EQ(processEvent(session_->context(), 1, 4003), 0);
    EXPECT_EQ(log.count("LOG Control missing!\n"), 24);
    EXPECT_EQ(session_->settings().inkLast[0], 100);
}

} // namespace
} // namespace tessarin::test

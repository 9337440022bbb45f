// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Drawing in the background: answers, supersession, bounds, and documents that hang.

#include "preview/preview_renderer.h"
#include "tests/preview/preview_test_support.h"

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using test::colourAt;
using test::waitFor;
using namespace std::chrono_literals;

/// A gate that drawing waits at, and what came to it. Outlives everything, as a thread may still be at it.
struct Gate {
    std::mutex mutex{};
    std::condition_variable changed{};
    bool isOpen = false;
    std::vector<int> begun{}; ///< pages

    void open()
    {
        const std::lock_guard lock(mutex);
        isOpen = true;
        changed.notify_all();
    }
    std::vector<int> pages()
    {
        const std::lock_guard lock(mutex);
        return begun;
    }
};

/// Pages that are drawn when the gate is open; heeds the cancellation.
class GatedPages final : public PageSource {
public:
    explicit GatedPages(std::shared_ptr<Gate> gate) : gate_(std::move(gate)) {}
    int pageCount() const override { return 100; }
    QSizeF pageSize(int /*page*/) const override { return {595, 842}; }
    QImage render(int page, const QSize &pixels, const std::atomic<bool> &cancelled) const override
    {
        std::unique_lock lock(gate_->mutex);
        gate_->begun.push_back(page);
        while (!gate_->isOpen && !cancelled) {
            gate_->changed.wait_for(lock, 5ms);
        }
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::blue);
        return cancelled ? QImage() : image;
    }
    bool paint(int /*page*/, QPainter & /*painter*/, const QRectF & /*area*/) const override { return false; }

private:
    std::shared_ptr<Gate> gate_;
};

PreviewRenderer::OpenPages gated(const std::shared_ptr<Gate> &gate)
{
    return [gate](const QString &) -> Outcome<std::unique_ptr<PageSource>> {
        return std::unique_ptr<PageSource>(std::make_unique<GatedPages>(gate));
    };
}

/// What a renderer said.
struct Heard {
    explicit Heard(PreviewRenderer &renderer)
    {
        QObject::connect(&renderer, &PreviewRenderer::ready, &renderer, [this](int sheet, const QImage &image) {
            ready.push_back(sheet);
            last = image;
        });
        QObject::connect(&renderer, &PreviewRenderer::failed, &renderer,
                         [this](int, const QString &reason) { failed << reason; });
        QObject::connect(&renderer, &PreviewRenderer::changed, &renderer, [this] { ++changed; });
        QObject::connect(&renderer, &PreviewRenderer::documentsOpened, &renderer, [this] { ++opened; });
    }

    std::vector<int> ready{}; ///< sheets
    QImage last{};
    QStringList failed{};
    int changed = 0;
    int opened = 0;
};

class Renderer : public testing::Test {
protected:
    QString pdf(const char *name, const QList<test::TestPage> &pages)
    {
        const QString path = folder_.filePath(QLatin1String(name));
        test::writePdfFile(path, pages);
        return path;
    }
    static bool open(PreviewRenderer &renderer, const QStringList &paths)
    {
        renderer.setDocuments(paths);
        return waitFor([&] { return renderer.isOpen(); });
    }

    QTemporaryDir folder_{};
    std::shared_ptr<Gate> gate_ = std::make_shared<Gate>();
};

TEST_F(Renderer, SheetsOfSeveralDocumentsComeInOrder)
{
    test::writeFile(folder_.filePath("bad.ps"), "%!PS\n");
    PreviewRenderer renderer;
    EXPECT_FALSE(renderer.isOpen());
    ASSERT_TRUE(open(renderer, {pdf("a.pdf", {{.corner = Qt::red}, {.corner = Qt::green}}),
                                folder_.filePath("bad.ps"), pdf("b.pdf", {{.corner = Qt::blue}})}));
    EXPECT_EQ(renderer.pageCount(), 3);
    EXPECT_EQ(renderer.sheets(), 3);
    EXPECT_EQ(renderer.problems(),
              QStringList{QStringLiteral("bad.ps: there is no preview of this kind of document")});
    QStringList seen;
    QObject::connect(&renderer, &PreviewRenderer::ready, &renderer, [&](int sheet, const QImage &image) {
        seen << QStringLiteral("%1 %2").arg(sheet).arg(QString::fromStdString(colourAt(image, 0.25, 0.25)));
    });
    for (int sheet = 0; sheet < 3; ++sheet) {
        renderer.request(sheet, QSize(60, 60));
        ASSERT_TRUE(waitFor([&] { return seen.size() > sheet; }));
    }
    EXPECT_EQ(seen, (QStringList{"0 red", "1 green", "2 blue"}));
}

TEST_F(Renderer, RemarksNameTheDocument)
{
    test::writeFile(folder_.filePath("notes.txt"), QByteArray("x\n").repeated(1000));
    PreviewRenderer renderer;
    ASSERT_TRUE(open(renderer, {folder_.filePath("notes.txt")}));
    EXPECT_EQ(renderer.remarks(),
              QStringList{QStringLiteral("notes.txt: only the first page is shown here; all pages are printed")});
}

TEST_F(Renderer, SelectionAndPagesOnASideMakeTheSheets)
{
    PreviewRenderer renderer;
    ASSERT_TRUE(open(renderer, {pdf("a.pdf", QList<test::TestPage>(7))}));
    const Heard heard(renderer);
    renderer.setPages([](int page) { return page >= 3; });
    EXPECT_EQ(renderer.sheets(), 5);
    EXPECT_EQ(heard.changed, 1);
    renderer.setPages([](int page) { return page > 2; });
    EXPECT_EQ(heard.changed, 1); // the same pages
    renderer.setLayout({.numberUp = 4});
    EXPECT_EQ(renderer.sheets(), 2);
    renderer.setLayout({.numberUp = 4});
    EXPECT_EQ(heard.changed, 2);
    renderer.setPages([](int) { return false; });
    EXPECT_EQ(renderer.sheets(), 0);
}

TEST_F(Renderer, NewerRequestsTakeThePlaceOfOlderOnes)
{
    PreviewRenderer renderer(gated(gate_));
    ASSERT_TRUE(open(renderer, {QStringLiteral("gated")}));
    const Heard heard(renderer);
    renderer.request(0, QSize(60, 60));
    ASSERT_TRUE(waitFor([&] { return gate_->pages().size() == 1; }));
    for (int sheet = 1; sheet <= 50; ++sheet) {
        renderer.request(sheet, QSize(60, 60));
    }
    ASSERT_TRUE(waitFor([&] { return gate_->pages().back() == 50; }));
    gate_->open();
    ASSERT_TRUE(waitFor([&] { return !heard.ready.empty(); }));
    QApplication::processEvents();
    ASSERT_EQ(heard.ready.size(), 1U);
    EXPECT_EQ(heard.ready.front(), 50);
    EXPECT_TRUE(heard.failed.isEmpty());
    EXPECT_LT(gate_->pages().size(), 50U); // most were dropped before they began
}

TEST_F(Renderer, NewLayoutMakesRunningDrawingVoid)
{
    PreviewRenderer renderer(gated(gate_));
    ASSERT_TRUE(open(renderer, {QStringLiteral("gated")}));
    const Heard heard(renderer);
    renderer.request(0, QSize(60, 60));
    ASSERT_TRUE(waitFor([&] { return gate_->pages().size() == 1; }));
    renderer.setLayout({.grey = true});
    gate_->open();
    renderer.request(1, QSize(60, 60));
    ASSERT_TRUE(waitFor([&] { return !heard.ready.empty(); }));
    ASSERT_EQ(heard.ready.size(), 1U);
    EXPECT_EQ(heard.ready.front(), 1);
    EXPECT_TRUE(heard.last.allGray());
}

TEST_F(Renderer, KnownSheetsComeAtOnceAndFromMemory)
{
    gate_->open();
    PreviewRenderer renderer(gated(gate_));
    ASSERT_TRUE(open(renderer, {QStringLiteral("gated")}));
    const Heard heard(renderer);
    renderer.request(3, QSize(60, 60));
    ASSERT_TRUE(waitFor([&] { return heard.ready.size() == 1; }));
    renderer.request(3, QSize(60, 60));
    EXPECT_EQ(heard.ready.size(), 2U);
    EXPECT_EQ(gate_->pages().size(), 1U);
    renderer.request(3, QSize(61, 60)); // another size is another picture
    ASSERT_TRUE(waitFor([&] { return heard.ready.size() == 3; }));
    EXPECT_EQ(gate_->pages().size(), 2U);
}

TEST_F(Renderer, MemoryOfSheetsIsBounded)
{
    gate_->open();
    PreviewRenderer renderer(gated(gate_));
    ASSERT_TRUE(open(renderer, {QStringLiteral("gated")}));
    int answers = 0;
    qsizetype largest = 0;
    QObject::connect(&renderer, &PreviewRenderer::ready, &renderer, [&](int, const QImage &image) {
        ++answers;
        largest = std::max(largest, image.sizeInBytes());
    });
    for (int sheet = 0; sheet < 20; ++sheet) {
        renderer.request(sheet, QSize(1000, 1414)); // 5.6 MB each
        ASSERT_TRUE(waitFor([&] { return answers > sheet; }));
    }
    EXPECT_LE(renderer.cachedBytes(), 64 * 1024 * 1024);
    EXPECT_GT(renderer.cachedBytes(), 50 * 1024 * 1024);
    renderer.request(0, QSize(30000, 30000));
    ASSERT_TRUE(waitFor([&] { return answers > 20; }));
    EXPECT_LE(largest, 24 * 1024 * 1024);
    renderer.setLayout({.numberUp = 2});
    EXPECT_EQ(renderer.cachedBytes(), 0);
}

TEST_F(Renderer, FailuresNameDocumentAndPage)
{
    test::writeCutImage(folder_.filePath("cut.png"));
    PreviewRenderer renderer;
    ASSERT_TRUE(open(renderer, {folder_.filePath("cut.png")}));
    const Heard heard(renderer);
    renderer.request(0, QSize(60, 60));
    ASSERT_TRUE(waitFor([&] { return !heard.failed.isEmpty(); }));
    EXPECT_EQ(heard.failed.front(), QStringLiteral("cut.png: page 1 cannot be drawn"));
}

TEST_F(Renderer, TheLastDocumentsCount)
{
    PreviewRenderer renderer;
    const Heard heard(renderer);
    const QString one = pdf("one.pdf", {{}});
    const QString two = pdf("two.pdf", {{}, {}});
    renderer.setDocuments({one});
    renderer.setDocuments({two});
    EXPECT_TRUE(renderer.isOpening());
    ASSERT_TRUE(waitFor([&] { return renderer.isOpen(); }));
    QApplication::processEvents();
    EXPECT_EQ(heard.opened, 1);
    EXPECT_EQ(renderer.pageCount(), 2);
    EXPECT_FALSE(renderer.isOpening());
}

TEST_F(Renderer, RequestsOutOfRangeAreNotAnswered)
{
    gate_->open();
    PreviewRenderer renderer(gated(gate_));
    renderer.request(0, QSize(60, 60)); // nothing is open yet
    ASSERT_TRUE(open(renderer, {QStringLiteral("gated")}));
    renderer.request(-1, QSize(60, 60));
    renderer.request(100, QSize(60, 60));
    renderer.request(0, QSize(0, 60));
    EXPECT_TRUE(gate_->pages().empty());
}

TEST_F(Renderer, GoesWhileDrawing) // which would not come to an end by itself
{
    {
        PreviewRenderer renderer(gated(gate_));
        ASSERT_TRUE(open(renderer, {QStringLiteral("gated")}));
        renderer.request(0, QSize(60, 60));
        ASSERT_TRUE(waitFor([&] { return gate_->pages().size() == 1; }));
    }
}

TEST_F(Renderer, GoesWhileAFileHangs)
{
    const auto opened = std::make_shared<std::atomic<bool>>(false);
    const auto left = std::make_shared<std::atomic<bool>>(false);
    {
        PreviewRenderer renderer(
            [gate = gate_, opened, left](const QString &) -> Outcome<std::unique_ptr<PageSource>> {
                *opened = true;
                std::unique_lock lock(gate->mutex);
                gate->changed.wait(lock, [&] { return gate->isOpen; });
                *left = true;
                return Outcome<std::unique_ptr<PageSource>>::failed(QStringLiteral("late"));
            });
        renderer.setDocuments({QStringLiteral("hangs")});
        ASSERT_TRUE(waitFor([&] { return opened->load(); }));
    }
    EXPECT_FALSE(*left);
    gate_->open();
    EXPECT_TRUE(waitFor([&] { return left->load(); }));
    std::this_thread::sleep_for(50ms); // the thread ends without touching what is gone
}

} // namespace
} // namespace tessarin::host

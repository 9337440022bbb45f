// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Sheets drawn in the background.

#ifndef TESSARIN_PREVIEW_PREVIEW_RENDERER_H
#define TESSARIN_PREVIEW_PREVIEW_RENDERER_H

#include "preview/page_painter.h"
#include "preview/page_source.h"
#include "preview/worker_thread.h"
#include "printing/outcome.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace tessarin::host {

/// Opens documents and draws their sheets on a thread of its own. A newer request takes the place of one that is
/// not done. Keeps at most kCacheBytes of drawn sheets; of the documents only the page at work is in memory.
class PreviewRenderer final : public QObject {
    Q_OBJECT

public:
    using OpenPages = std::function<Outcome<std::unique_ptr<PageSource>>(const QString &path)>;

    static constexpr int kCacheBytes = 64 * 1024 * 1024;
    static constexpr int kMostPixels = 6 * 1024 * 1024; // of one picture; a larger request gets a smaller one

    /// `open` opens a document, on the thread of its own.
    explicit PreviewRenderer(OpenPages open = [](const QString &path) { return openPages(path); });
    /// Cancels what is being drawn. Returns within a second, whatever the documents' file system does.
    ~PreviewRenderer() override;

    /// The documents, one after the other. Answered by documentsOpened(), of several calls the last only.
    void setDocuments(const QStringList &paths);
    void setLayout(const PageLayout &layout);
    /// Which pages are printed: numbers from 1 within each document, as the print server counts them; null: all.
    void setPages(std::function<bool(int page)> isSelected);

    const PageLayout &layout() const { return layout_; }
    /// Whether documents are being opened.
    bool isOpening() const { return opening_ && !isOpen_; }
    /// False until the documents are open.
    bool isOpen() const { return isOpen_; }
    /// Pages of all documents that can be shown.
    int pageCount() const { return pageCount_; }
    /// Sheets' sides that the selected pages make.
    int sheets() const { return static_cast<int>(selected_.size()); }
    /// Why documents cannot be shown, one text each.
    const QStringList &problems() const { return problems_; }
    /// What else is to be known of the documents, such as that a text is shown in part.
    const QStringList &remarks() const { return remarks_; }
    /// The bytes of all sheets that are kept.
    qsizetype cachedBytes() const { return cache_.totalCost(); }

    /// Asks for a picture of a sheet (from 0) that fits into `pixels`, answered by ready() or failed(), at once
    /// when it is known. Answers to earlier requests come no more.
    void request(int sheet, const QSize &pixels);

signals:
    void documentsOpened();
    /// What sheets() or their looks are, is another now.
    void changed();
    void ready(int sheet, const QImage &image);
    void failed(int sheet, const QString &reason);

private:
    /// What the thread works with; nobody else touches the sources.
    struct Documents {
        std::vector<std::unique_ptr<PageSource>> sources{};
        QStringList names{};
        std::vector<int> pageCounts{};
        QStringList problems{};
        QStringList remarks{};
    };
    using Flag = std::shared_ptr<std::atomic<bool>>;

    static void openAll(const QStringList &paths, const OpenPages &open, const PageLayout &layout,
                        const std::atomic<bool> &cancelled, Documents &documents);
    static Outcome<QImage> draw(const Documents &documents, const Sheet &sheet, const PageLayout &layout,
                                const QSize &pixels, const std::atomic<bool> &cancelled);
    void select();

    OpenPages open_;
    std::shared_ptr<Documents> documents_{}; ///< null until they are open
    Flag opening_{};                         ///< true: the opening that runs is no longer wanted
    Flag drawing_{};                         ///< the same of the drawing
    PageLayout layout_{};
    std::function<bool(int)> isSelected_{};
    bool isOpen_ = false;
    int pageCount_ = 0;
    std::vector<Sheet> selected_{};
    QStringList problems_{};
    QStringList remarks_{};
    QCache<QString, QImage> cache_{kCacheBytes};
    WorkerThread thread_; ///< the first to go
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Sheets drawn in the background.

#ifndef TESSARIN_PREVIEW_PREVIEW_RENDERER_H
#define TESSARIN_PREVIEW_PREVIEW_RENDERER_H

#include "preview/page_painter.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace tessarin::host {

/// Opens documents and draws their sheets on one thread of its own. A newer request takes the place of one that is
/// not done. Keeps at most kCacheBytes of drawn sheets; of the documents only the page at work is in memory.
class PreviewRenderer final : public QObject {
    Q_OBJECT

public:
    static constexpr int kCacheBytes = 64 * 1024 * 1024;

    PreviewRenderer();
    /// Cancels what is being drawn and waits for the thread to notice.
    ~PreviewRenderer() override;

    /// The documents, one after the other. Answered by documentsOpened(), of several calls the last only.
    void setDocuments(const QStringList &paths);
    void setLayout(const PageLayout &layout);
    /// Which pages are printed, from 1, counted through all documents.
    void setPages(std::function<bool(int page)> isSelected);

    const PageLayout &layout() const { return layout_; }
    /// False until the documents are open.
    bool isOpen() const { return isOpen_; }
    /// Pages of all documents that can be shown.
    int pageCount() const { return pageCount_; }
    /// Sheets' sides that the selected pages make.
    int sheets() const { return static_cast<int>(selected_.size()); }
    /// Why documents cannot be shown, one text each.
    const QStringList &problems() const { return problems_; }

    /// Asks for a sheet's picture, answered by ready(), at once when it is known.
    void request(int sheet, const QSize &pixels);

signals:
    void documentsOpened();
    /// What sheets() or their looks are, is another now.
    void changed();
    void ready(int sheet, const QImage &image);

private:
    /// What the thread works with; nobody else touches the sources.
    struct Documents {
        std::vector<std::unique_ptr<PageSource>> sources{};
        std::vector<int> pageCounts{};
        QStringList problems{};
    };

    void select();
    void cancelDrawing();

    QThreadPool thread_{};
    std::shared_ptr<Documents> documents_{};
    std::shared_ptr<std::atomic<bool>> opening_{}; ///< true: the opening that runs is no longer wanted
    std::shared_ptr<std::atomic<bool>> drawing_{}; ///< the same of the drawing
    PageLayout layout_{};
    std::function<bool(int)> isSelected_{};
    bool isOpen_ = false;
    int pageCount_ = 0;
    std::vector<Sheet> selected_{};
    QStringList problems_{};
    QCache<QString, QImage> cache_{kCacheBytes};
};

} // namespace tessarin::host

#endif

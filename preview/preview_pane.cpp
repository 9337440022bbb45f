// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/preview_pane.h"

#include "printing/text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace tessarin::host {

namespace {

constexpr int kMargin = 10;
constexpr int kShadow = 3;
constexpr int kWheelStep = 120; // eighths of a degree that a notch of a wheel turns

} // namespace

PreviewPane::PreviewPane(QWidget *parent)
    : QWidget(parent), bar_(new QWidget(this)),
      first_(addButton("firstPage", TessarinPrint::tr("First page"), QStyle::SP_MediaSkipBackward)),
      previous_(addButton("previousPage", TessarinPrint::tr("Previous page"), QStyle::SP_MediaSeekBackward)),
      position_(new QLabel(bar_)),
      next_(addButton("nextPage", TessarinPrint::tr("Next page"), QStyle::SP_MediaSeekForward)),
      last_(addButton("lastPage", TessarinPrint::tr("Last page"), QStyle::SP_MediaSkipForward))
{
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(TessarinPrint::tr("Preview"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(180, 220);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    position_->setObjectName(QStringLiteral("previewPosition"));
    position_->setAlignment(Qt::AlignCenter);
    auto *row = new QHBoxLayout(bar_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    for (QWidget *widget :
         {static_cast<QWidget *>(first_), static_cast<QWidget *>(previous_), static_cast<QWidget *>(position_),
          static_cast<QWidget *>(next_), static_cast<QWidget *>(last_)}) {
        row->addWidget(widget);
    }
    row->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->addStretch(1);
    column->addWidget(bar_);
    connect(first_, &QToolButton::clicked, this, [this] { showSheet(0); });
    connect(previous_, &QToolButton::clicked, this, [this] { showSheet(sheet_ - 1); });
    connect(next_, &QToolButton::clicked, this, [this] { showSheet(sheet_ + 1); });
    connect(last_, &QToolButton::clicked, this, [this] { showSheet(renderer_ ? renderer_->sheets() - 1 : 0); });
    showPosition();
}

QToolButton *PreviewPane::addButton(const char *name, const QString &text, QStyle::StandardPixmap icon)
{
    auto *button = new QToolButton(bar_);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setIcon(style()->standardIcon(icon));
    button->setToolTip(text);
    button->setAccessibleName(text);
    return button;
}

void PreviewPane::setRenderer(PreviewRenderer *renderer)
{
    if (renderer_) {
        renderer_->disconnect(this);
    }
    renderer_ = renderer;
    image_ = {};
    if (renderer_) {
        connect(renderer_, &PreviewRenderer::documentsOpened, this, [this] { showSheet(0); });
        connect(renderer_, &PreviewRenderer::changed, this, [this] { showSheet(sheet_); });
        connect(renderer_, &PreviewRenderer::ready, this, &PreviewPane::take);
    }
    showSheet(0);
}

QString PreviewPane::message() const
{
    if (!renderer_ || (renderer_->isOpen() && renderer_->pageCount() == 0 && renderer_->problems().isEmpty())) {
        return TessarinPrint::tr("There is no document.");
    }
    if (!renderer_->isOpen()) {
        return TessarinPrint::tr("Opening…");
    }
    if (renderer_->pageCount() == 0) {
        return renderer_->problems().join(QStringLiteral("\n\n"));
    }
    if (renderer_->sheets() == 0) {
        return TessarinPrint::tr("None of the document's %1 pages is selected.").arg(renderer_->pageCount());
    }
    return image_.isNull() ? TessarinPrint::tr("Drawing…") : QString();
}

QSize PreviewPane::sizeHint() const
{
    return {260, 340};
}

QRect PreviewPane::paperArea() const
{
    return rect().adjusted(kMargin, kMargin, -kMargin, -kMargin - bar_->height());
}

void PreviewPane::showSheet(int sheet)
{
    const int sheets = renderer_ ? renderer_->sheets() : 0;
    const int wanted = std::clamp(sheet, 0, std::max(0, sheets - 1));
    if (wanted != sheet_ || sheets == 0) {
        image_ = {}; // else the old picture stays until the new one is there
    }
    sheet_ = wanted;
    showPosition();
    start();
    update();
}

void PreviewPane::start()
{
    if (renderer_ && isVisible()) {
        renderer_->request(sheet_, paperArea().size() * devicePixelRatioF());
    }
}

void PreviewPane::take(int sheet, const QImage &image)
{
    if (sheet == sheet_) {
        image_ = image;
        image_.setDevicePixelRatio(devicePixelRatioF());
        update();
    }
}

void PreviewPane::showPosition()
{
    const int sheets = renderer_ ? renderer_->sheets() : 0;
    position_->setText(
        sheets == 0 ? QString()
                    : TessarinPrint::tr("Page %1 of %2").arg(QString::number(sheet_ + 1), QString::number(sheets)));
    setAccessibleDescription(position_->text());
    first_->setEnabled(sheet_ > 0);
    previous_->setEnabled(sheet_ > 0);
    next_->setEnabled(sheet_ + 1 < sheets);
    last_->setEnabled(sheet_ + 1 < sheets);
    bar_->setVisible(sheets > 1);
}

void PreviewPane::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect area = paperArea();
    if (const QString text = message(); !text.isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, text);
        return;
    }
    QRectF place(QPointF(), image_.deviceIndependentSize().scaled(area.size(), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(area).center());
    painter.fillRect(place.translated(kShadow, kShadow), palette().color(QPalette::Shadow));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, image_);
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid));
    painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
}

void PreviewPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    start();
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showPosition();
    start();
}

void PreviewPane::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        showSheet(sheet_ - 1);
        break;
    case Qt::Key_PageDown:
        showSheet(sheet_ + 1);
        break;
    case Qt::Key_Home:
        showSheet(0);
        break;
    case Qt::Key_End:
        showSheet(renderer_ ? renderer_->sheets() - 1 : 0);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PreviewPane::wheelEvent(QWheelEvent *event)
{
    wheel_ += event->angleDelta().y();
    if (const int notches = wheel_ / kWheelStep; notches != 0) {
        wheel_ -= notches * kWheelStep;
        showSheet(sheet_ - notches);
    }
    event->accept();
}

} // namespace tessarin::host

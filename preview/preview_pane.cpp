// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/preview_pane.h"

#include "printing/text.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTextOption>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>

namespace tessarin::host {

namespace {

constexpr QSize kLeastSize(180, 220);
constexpr QSize kUsualSize(260, 340);
constexpr std::chrono::milliseconds kSettling(40);
constexpr std::chrono::milliseconds kPatience(250);
constexpr int kMargin = 8;
constexpr int kShadow = 4;
constexpr int kShadowAlpha = 40;
constexpr int kWheelStep = 120; // eighths of a degree that a notch of a wheel turns

} // namespace

PreviewPane::PreviewPane(QWidget *parent) : QWidget(parent), remark_(new QLabel(this)), bar_(new TurnBar(this))
{
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(TessarinPrint::tr("Preview"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kLeastSize);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    remark_->setObjectName(QStringLiteral("previewRemark"));
    remark_->setTextFormat(Qt::PlainText);
    remark_->setWordWrap(true);
    remark_->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch(1);
    column->addWidget(remark_);
    column->addWidget(bar_);
    connect(bar_, &TurnBar::turned, this, &PreviewPane::turnTo);
    asking_.setSingleShot(true);
    asking_.setInterval(kSettling);
    connect(&asking_, &QTimer::timeout, this, &PreviewPane::ask);
    patience_.setSingleShot(true);
    patience_.setInterval(kPatience);
    connect(&patience_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    showPosition();
}

void PreviewPane::turnTo(Turn turn)
{
    switch (turn) {
    case Turn::First:
        showSheet(0);
        break;
    case Turn::Previous:
        showSheet(sheet_ - 1);
        break;
    case Turn::Next:
        showSheet(sheet_ + 1);
        break;
    case Turn::Last:
        showSheet(renderer_ ? renderer_->sheets() - 1 : 0);
        break;
    }
}

void PreviewPane::setRenderer(PreviewRenderer *renderer)
{
    if (renderer_) {
        renderer_->disconnect(this);
    }
    renderer_ = renderer;
    forget();
    if (renderer_) {
        connect(renderer_, &PreviewRenderer::documentsOpened, this, [this] {
            forget();
            showSheet(0);
        });
        connect(renderer_, &PreviewRenderer::changed, this, [this] {
            failure_.clear();
            showSheet(sheet_);
        });
        connect(renderer_, &PreviewRenderer::ready, this, &PreviewPane::take);
        connect(renderer_, &PreviewRenderer::failed, this, &PreviewPane::fail);
    }
    showSheet(0);
}

QString PreviewPane::message() const
{
    if (!renderer_) {
        return TessarinPrint::tr("There is no document.");
    }
    if (!renderer_->isOpen()) {
        return renderer_->isOpening() ? TessarinPrint::tr("Opening…") : TessarinPrint::tr("There is no document.");
    }
    if (renderer_->pageCount() == 0) {
        return renderer_->problems().isEmpty() ? TessarinPrint::tr("There is no document.")
                                               : renderer_->problems().join(QStringLiteral("\n\n"));
    }
    if (renderer_->sheets() == 0) {
        return TessarinPrint::tr("None of the document's %n pages is selected.", nullptr, renderer_->pageCount());
    }
    if (!failure_.isEmpty()) {
        return failure_;
    }
    return image_.isNull() ? TessarinPrint::tr("Drawing…") : QString();
}

QSize PreviewPane::sizeHint() const
{
    return kUsualSize;
}

QRect PreviewPane::paperArea() const
{
    int bottom = height();
    for (const QWidget *below : {static_cast<const QWidget *>(remark_), static_cast<const QWidget *>(bar_)}) {
        if (!below->isHidden()) {
            bottom = std::min(bottom, below->geometry().top());
        }
    }
    return QRect(0, 0, width(), bottom).adjusted(kMargin, kMargin, -kMargin - kShadow, -kMargin - kShadow);
}

void PreviewPane::forget()
{
    image_ = {};
    failure_.clear();
}

void PreviewPane::showSheet(int sheet)
{
    const int sheets = renderer_ ? renderer_->sheets() : 0;
    sheet_ = std::clamp(sheet, 0, std::max(0, sheets - 1));
    failure_.clear(); // the old picture stays until the new one is there
    if (sheets == 0) {
        forget();
    }
    patience_.start();
    showPosition();
    ask();
    update();
}

void PreviewPane::ask()
{
    asking_.stop();
    if (renderer_ && isVisible()) {
        // Cut, not rounded: a picture that is a fraction of a pixel too large would be scaled.
        renderer_->request(sheet_, (QSizeF(paperArea().size()) * devicePixelRatioF() - QSizeF(0.5, 0.5)).toSize());
    }
}

void PreviewPane::take(int sheet, const QImage &image)
{
    if (sheet == sheet_) {
        image_ = image;
        image_.setDevicePixelRatio(devicePixelRatioF());
        failure_.clear();
        showPosition();
        update();
    }
}

void PreviewPane::fail(int sheet, const QString &reason)
{
    if (sheet == sheet_) {
        image_ = {};
        failure_ = reason;
        patience_.stop();
        showPosition();
        update();
    }
}

void PreviewPane::showPosition()
{
    const int sheets = renderer_ ? renderer_->sheets() : 0;
    const QString number = QString::number(sheet_ + 1);
    const QString all = QString::number(sheets);
    const QString place = sheets == 0                        ? QString()
                          : renderer_->layout().numberUp > 1 ? TessarinPrint::tr("Sheet %1 of %2").arg(number, all)
                                                             : TessarinPrint::tr("Page %1 of %2").arg(number, all);
    bar_->setPosition(sheet_, sheets, place);
    QStringList description = {place, failure_.isEmpty() && sheets > 0 ? QString() : message()};
    description.removeAll(QString());
    setAccessibleDescription(description.join(QStringLiteral(": ")));
    const bool hasSheets = renderer_ && renderer_->isOpen() && sheets > 0;
    const QStringList remarks = hasSheets ? renderer_->problems() + renderer_->remarks() : QStringList();
    remark_->setText(remarks.join(u'\n'));
    remark_->setVisible(!remarks.isEmpty());
    bar_->setVisible(sheets > 1);
}

QPen PreviewPane::focusPen() const
{
    return {palette().color(QPalette::Highlight), 2};
}

void PreviewPane::drawPaper(QPainter &painter, const QRect &area) const
{
    QSizeF size = image_.deviceIndependentSize();
    if (size.width() > area.width() || size.height() > area.height() ||
        (size.width() < area.width() - 1 && size.height() < area.height() - 1)) {
        size.scale(area.size(), Qt::KeepAspectRatio); // it was drawn for another size, and a new one is on its way
    }
    const QPointF corner = QRectF(area).center() - QPointF(size.width() / 2, size.height() / 2);
    // Between the screen's own pixels, which only the window knows, the picture would be blurred.
    const QTransform toDevice = painter.deviceTransform();
    const QRectF place(toDevice.inverted().map(QPointF(toDevice.map(corner).toPoint())), size);
    QColor shadow = palette().color(QPalette::Shadow);
    shadow.setAlpha(kShadowAlpha);
    for (int distance = 1; distance <= kShadow; ++distance) {
        painter.fillRect(place.translated(distance, distance), shadow);
    }
    // Pixel by pixel where it was drawn for this size: a filter would blur it a little.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, size != image_.deviceIndependentSize());
    painter.drawImage(place, image_);
    painter.setPen(hasFocus() ? focusPen() : QPen(palette().color(QPalette::Mid)));
    painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
}

void PreviewPane::paintEvent(QPaintEvent * /*event*/)
{
    if (!image_.isNull() && image_.devicePixelRatio() != devicePixelRatioF()) {
        asking_.start(); // the window went to a screen of another density
    }
    QPainter painter(this);
    const QRect area = paperArea();
    const QString text = message();
    if (text.isEmpty()) {
        drawPaper(painter, area);
        return;
    }
    if (hasFocus()) {
        painter.setPen(focusPen());
        painter.drawRect(area.adjusted(1, 1, -1, -1));
    }
    if (!patience_.isActive()) {
        painter.setPen(palette().color(QPalette::WindowText));
        QTextOption option(Qt::AlignCenter);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere); // a file's name may be one long word
        painter.drawText(QRectF(area), text, option);
    }
}

bool PreviewPane::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && renderer_) {
        asking_.start(); // the room for the paper may be another
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
    }
    return QWidget::event(event);
}

void PreviewPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    asking_.start();
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showPosition();
    patience_.start();
    ask();
}

void PreviewPane::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        turnTo(Turn::Previous);
        break;
    case Qt::Key_PageDown:
        turnTo(Turn::Next);
        break;
    case Qt::Key_Home:
        turnTo(Turn::First);
        break;
    case Qt::Key_End:
        turnTo(Turn::Last);
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

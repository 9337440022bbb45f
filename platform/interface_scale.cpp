// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/interface_scale.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QLayout>
#include <QTabWidget>

#include <algorithm>
#include <cmath>

namespace tessarin {

namespace {

constexpr qreal kReferenceHeight = 14; // pixels
constexpr qreal kReferenceWidth = 361; // of the sample
constexpr qreal kTolerance = 1.02;     // a font's pixels are rounded
constexpr qreal kRowSpace = 1.04; // rows of whole pixels do not get narrower than their texts when they are many
constexpr qreal kSteps = 16;
constexpr qreal kMost = 8;

QString sample()
{
    return QStringLiteral("The quick brown fox jumps over the lazy dog 0123456789%");
}

qreal nextStep(qreal ratio, qreal space)
{
    return ratio <= kTolerance ? 1 : std::min(std::ceil(ratio * space * kSteps) / kSteps, kMost);
}

int scaledSize(int size, qreal scale)
{
    // A place rounds and a size is cut, so that what lies side by side never overlaps, and equal sizes stay equal.
    return static_cast<int>(std::floor(size * scale));
}

QSize scaledSize(const QSize &size, const InterfaceScale &scale)
{
    return {scaledSize(size.width(), scale.across), scaledSize(size.height(), scale.down)};
}

QSize scaledLimit(const QSize &size, const InterfaceScale &scale)
{
    return scaledSize(size, scale).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

QRect scaledPlace(const QRect &place, const InterfaceScale &scale)
{
    return {QPoint(qRound(place.x() * scale.across), qRound(place.y() * scale.down)),
            scaledSize(place.size(), scale)};
}

/// A picture's place grows by as much in both directions, in the middle of the room that it would have.
QRect scaledPicture(const QRect &place, const InterfaceScale &scale)
{
    const qreal both = std::min(scale.across, scale.down);
    QRect picture(QPoint(), scaledSize(place.size(), {.across = both, .down = both}));
    picture.moveCenter(scaledPlace(place, scale).center());
    return picture;
}

bool isPlacedByLayout(const QWidget &view)
{
    const QWidget *parent = view.parentWidget();
    return parent != nullptr && parent->layout() != nullptr &&
           parent->layout()->indexOf(const_cast<QWidget *>(&view)) >= 0;
}

void scaleViews(QWidget *view, const InterfaceScale &scale);

void scaleView(QWidget *view, const InterfaceScale &scale)
{
    const QRect place = view->geometry();
    // The largest size first: it must not stand in the way of the others.
    if (view->maximumSize() != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)) {
        view->setMaximumSize(scaledLimit(view->maximumSize(), scale));
    }
    if (!view->minimumSize().isNull()) {
        view->setMinimumSize(scaledLimit(view->minimumSize(), scale));
    }
    if (view->testAttribute(Qt::WA_Resized) && !isPlacedByLayout(*view)) {
        const auto *label = qobject_cast<QLabel *>(view);
        const bool isPicture = label != nullptr && label->hasScaledContents();
        view->setGeometry(isPicture ? scaledPicture(place, scale) : scaledPlace(place, scale));
    }
    scaleViews(view, scale);
}

void scaleViews(QWidget *view, const InterfaceScale &scale)
{
    if (const auto *tabs = qobject_cast<QTabWidget *>(view)) { // its other parts are the toolkit's
        for (int position = 0; position < tabs->count(); ++position) {
            scaleView(tabs->widget(position), scale);
        }
        return;
    }
    for (QObject *child : view->children()) {
        if (child->isWidgetType() && !child->objectName().startsWith(QLatin1String("qt_"))) {
            scaleView(static_cast<QWidget *>(child), scale);
        }
    }
}

} // namespace

InterfaceScale interfaceScale(const QFont &font)
{
    const QFontMetricsF metrics(font);
    return {.across = nextStep(metrics.horizontalAdvance(sample()) / kReferenceWidth, 1),
            .down = nextStep(std::ceil(metrics.height()) / kReferenceHeight, kRowSpace)};
}

void scaleInterface(QWidget *root, const InterfaceScale &scale)
{
    if (!scale.isOne()) {
        scaleView(root, scale);
    }
}

} // namespace tessarin

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/edge_style.h"

#include "host/theme.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

namespace tessarin::host {

namespace {

constexpr double kLeastEdge = 1.1; // contrast of the style's own edges with the window
constexpr int kEdgeDarkness = 140; // percent, of the style's edges
constexpr int kTitleGap = 3;       // pixels between a group's title and its frame
constexpr int kGroove = 4;         // height of a slider's line, in pixels

/// Of a group's title, below which the style begins the group's frame.
int titleHeight(const QStyleOption *option, const QWidget *widget)
{
    const auto *group = qobject_cast<const QGroupBox *>(widget);
    return group != nullptr && !group->title().isEmpty() ? option->fontMetrics.height() + kTitleGap : 0;
}

/// Draws with the colour of texts, within the rectangle.
class EdgePainter {
public:
    EdgePainter(QPainter *painter, const QStyleOption *option) : painter_(painter)
    {
        painter_->save();
        painter_->setPen(QPen(option->palette.color(QPalette::WindowText), 1));
        painter_->setBrush(Qt::NoBrush);
    }
    ~EdgePainter() { painter_->restore(); }
    EdgePainter(const EdgePainter &) = delete;
    EdgePainter &operator=(const EdgePainter &) = delete;

    void rectangle(const QRect &place) { painter_->drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5)); }
    void circle(const QRect &place)
    {
        painter_->setRenderHint(QPainter::Antialiasing);
        painter_->drawEllipse(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
    }

private:
    QPainter *painter_;
};

} // namespace

bool EdgeStyle::isNeeded(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    return contrast(window, window.darker(kEdgeDarkness)) < kLeastEdge;
}

void EdgeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    EdgePainter edge(painter, option);
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_PanelButtonCommand:
    case PE_FrameLineEdit:
    case PE_Frame:
        edge.rectangle(option->rect);
        break;
    case PE_FrameGroupBox:
        edge.rectangle(option->rect.adjusted(0, titleHeight(option, widget), 0, 0));
        break;
    case PE_IndicatorRadioButton:
        edge.circle(option->rect);
        break;
    default:
        break;
    }
}

void EdgeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                   const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox) {
        EdgePainter(painter, option).rectangle(option->rect);
    } else if (control == CC_Slider) {
        drawSlider(option, painter, widget);
    }
}

void EdgeStyle::drawSlider(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    const QRect handle = proxy()->subControlRect(CC_Slider, option, SC_SliderHandle, widget);
    QRect groove = proxy()->subControlRect(CC_Slider, option, SC_SliderGroove, widget);
    const bool isUpright = groove.height() > groove.width();
    const QPoint middle = handle.center();
    groove = isUpright ? QRect(middle.x() - kGroove / 2, groove.y(), kGroove, groove.height())
                       : QRect(groove.x(), middle.y() - kGroove / 2, groove.width(), kGroove);
    EdgePainter edge(painter, option);
    edge.rectangle(handle);
    painter->setClipRegion(QRegion(option->rect).subtracted(handle));
    edge.rectangle(groove);
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/edge_style.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

namespace tessarin::host {

namespace {

constexpr double kLeastEdge = 1.1;     // contrast of the style's own edges with the window
constexpr int kEdgeDarkness = 140;     // percent, of the style's edges
constexpr int kTitleGap = 3;           // pixels between a group's title and its frame
constexpr int kGroove = 4;             // height of a slider's line, in pixels
constexpr QMargins kInset(4, 4, 4, 4); // of the line within a default button
constexpr int kFocusWidth = 2;         // of the line around what has the focus, in pixels

/// Of a group's title, below which the style begins the group's frame.
int titleHeight(const QStyleOption *option, const QWidget *widget)
{
    const auto *group = qobject_cast<const QGroupBox *>(widget);
    return group != nullptr && !group->title().isEmpty() ? option->fontMetrics.height() + kTitleGap : 0;
}

/// A line of input takes the keys however it got the focus; the others show it to who uses the keyboard.
bool showsFocus(const QStyleOption *option, bool isInput)
{
    return option->state.testFlag(QStyle::State_HasFocus) &&
           (isInput || option->state.testFlag(QStyle::State_KeyboardFocusChange));
}

/// For the row that has the focus: its selection alone looks the same without.
bool isFocusedSelection(const QStyleOption *option, const QWidget *widget)
{
    return option->state.testFlag(QStyle::State_Item) && option->state.testFlag(QStyle::State_Selected) &&
           widget != nullptr && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

/// For the default button, which has a coloured edge with and without the focus.
bool isFocusedDefault(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
           showsFocus(option, false);
}

QPen edgePen(const QStyleOption *option)
{
    return {option->palette.color(QPalette::WindowText), 1};
}

/// Of what has the focus: thicker, and with the colour of selections where it can be told from the window.
QPen focusPen(const QStyleOption *option)
{
    const QPalette &colors = option->palette;
    return {legibleColor(colors.color(QPalette::Highlight), colors.color(QPalette::Window),
                         colors.color(QPalette::WindowText), kShapeContrast),
            kFocusWidth};
}

QPen penFor(const QStyleOption *option, bool isFocused)
{
    return isFocused ? focusPen(option) : edgePen(option);
}

/// Draws within the rectangle.
class EdgePainter {
public:
    EdgePainter(QPainter *painter, QPen pen) : painter_(painter), width_(pen.widthF())
    {
        pen.setJoinStyle(Qt::MiterJoin);
        painter_->save();
        painter_->setPen(pen);
        painter_->setBrush(Qt::NoBrush);
    }
    ~EdgePainter() { painter_->restore(); }
    EdgePainter(const EdgePainter &) = delete;
    EdgePainter &operator=(const EdgePainter &) = delete;

    void rectangle(const QRect &place) { painter_->drawRect(inner(place)); }
    void circle(const QRect &place)
    {
        painter_->setRenderHint(QPainter::Antialiasing);
        painter_->drawEllipse(inner(place));
    }

private:
    QRectF inner(const QRect &place) const
    {
        const qreal half = width_ / 2;
        return QRectF(place).adjusted(half, half, -half, -half);
    }

    QPainter *painter_;
    qreal width_;
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
    if (element == PE_FrameFocusRect && isFocusedSelection(option, widget)) {
        const QPen pen(option->palette.color(QPalette::HighlightedText), 1);
        EdgePainter(painter, pen).rectangle(option->rect.adjusted(1, 1, -1, -1));
    }
    if (isNeeded(option->palette)) {
        drawEdges(element, option, painter, widget);
    } else if (element == PE_PanelButtonCommand && isFocusedDefault(option)) {
        const QPen pen(option->palette.color(QPalette::ButtonText), 1);
        EdgePainter(painter, pen).rectangle(option->rect.marginsRemoved(kInset));
    }
}

void EdgeStyle::drawEdges(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget)
{
    switch (element) {
    case PE_PanelButtonCommand:
        EdgePainter(painter, penFor(option, showsFocus(option, false))).rectangle(option->rect);
        break;
    case PE_FrameLineEdit:
        EdgePainter(painter, penFor(option, showsFocus(option, true))).rectangle(option->rect);
        break;
    case PE_IndicatorCheckBox:
    case PE_Frame:
        EdgePainter(painter, edgePen(option)).rectangle(option->rect);
        break;
    case PE_FrameGroupBox:
        EdgePainter(painter, edgePen(option))
            .rectangle(option->rect.adjusted(0, titleHeight(option, widget), 0, 0));
        break;
    case PE_IndicatorRadioButton:
        EdgePainter(painter, edgePen(option)).circle(option->rect);
        break;
    default:
        break;
    }
}

void EdgeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                   const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!isNeeded(option->palette)) {
        return;
    }
    if (control == CC_ComboBox || control == CC_SpinBox) {
        const bool isFocused = showsFocus(option, control == CC_SpinBox);
        EdgePainter(painter, penFor(option, isFocused)).rectangle(option->rect);
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
    EdgePainter edge(painter, edgePen(option));
    edge.rectangle(handle);
    painter->setClipRegion(QRegion(option->rect).subtracted(handle));
    edge.rectangle(groove);
}

EdgeKeeper::EdgeKeeper()
{
    EdgeKeeper::mend();
}

void EdgeKeeper::mend()
{
    const bool isToolkits = QApplication::style()->name() == QLatin1String("fusion");
    if (!isSet_ && (isToolkits || EdgeStyle::isNeeded(QApplication::palette()))) {
        isSet_ = true;                         // first, for a new style changes palettes as well
        QApplication::setStyle(new EdgeStyle); // the application owns it
    }
}

} // namespace tessarin::host

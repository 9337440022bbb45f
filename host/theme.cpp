// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/theme.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <cmath>

namespace tessarin::host {

namespace {

// Of the ground in a hint's colour: no darker than it must be, lest it pass for a value.
constexpr double kPaleness = 0.44;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) + 0.0722 * linear(rgb.blueF());
}

QColor mixed(const QColor &color, const QColor &ground, double part)
{
    const auto mix = [part](float one, float other) { return static_cast<float>(part * other + (1 - part) * one); };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor legibleColor(const QColor &wanted, const QColor &ground, const QColor &otherwise, double least)
{
    const QColor seen = mixed(wanted, ground, 1 - wanted.alphaF());
    return contrast(seen, ground) >= least ? wanted : otherwise;
}

QColor placeholderColor(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor ground = palette.color(QPalette::Active, QPalette::Base);
    return legibleColor(mixed(text, ground, kPaleness), ground, text, kTextContrast);
}

ThemeKeeper::ThemeKeeper()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ThemeKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance()) {
        mend();
    }
    return QObject::eventFilter(watched, event);
}

PlaceholderKeeper::PlaceholderKeeper()
{
    PlaceholderKeeper::mend();
}

void PlaceholderKeeper::mend()
{
    const QPalette now = QApplication::palette();
    const QColor wanted = placeholderColor(now);
    if (now.color(QPalette::Active, QPalette::PlaceholderText) == wanted) {
        return;
    }
    QPalette mended = now;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        mended.setColor(group, QPalette::PlaceholderText, wanted);
    }
    QApplication::setPalette(mended); // of the colours that nobody set, the theme stays the master
}

} // namespace tessarin::host

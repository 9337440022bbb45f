// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The base of the views that show a level; the interface file's ink bars derive from it.

#ifndef TESSARIN_PLATFORM_LEVEL_VIEW_H
#define TESSARIN_PLATFORM_LEVEL_VIEW_H

#include <QColor>
#include <QWidget>

namespace tessarin {

/// A view with a fill level, a fill colour and a tag of its own.
class LevelView : public QWidget {
public:
    using QWidget::QWidget;

    /// Fill level in percent of the inner width; not limited.
    virtual void setLevel(int level) = 0;
    virtual int level() const = 0;
    virtual void setColor(const QColor &color) = 0;
    virtual QColor color() const = 0;
    virtual qintptr tag() const = 0;
    virtual void setTag(qintptr tag) = 0;
};

} // namespace tessarin

#endif

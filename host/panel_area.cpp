// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/panel_area.h"

namespace tessarin::host {

namespace {

constexpr QSize kLeastSize(320, 120);

} // namespace

PanelArea::PanelArea(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
}

void PanelArea::showView(QWidget *view)
{
    // Controls at fixed places give no size hint: the size a view was made with is the least that shows all of it.
    if (view->testAttribute(Qt::WA_Resized)) {
        view->setMinimumSize(view->size().expandedTo(view->minimumSize()));
    }
    formerParent_ = view->parentWidget();
    setWidget(view);
    view->setAutoFillBackground(false);
    view->show();
}

void PanelArea::releaseView()
{
    if (QWidget *view = takeWidget()) {
        view->hide();
        view->setParent(formerParent_);
    }
}

QSize PanelArea::sizeHint() const
{
    // The base class asks for a small part of a large view; a panel should be seen whole.
    if (!widget()) {
        return QScrollArea::sizeHint();
    }
    const QSize wanted = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    return wanted.expandedTo(widget()->minimumSize());
}

QSize PanelArea::minimumSizeHint() const
{
    return widget() ? sizeHint().boundedTo(kLeastSize) : QScrollArea::minimumSizeHint();
}

} // namespace tessarin::host

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Tags: the number that every view carries, by which controls are found; and control handles kept inside tags.

#ifndef TESSARIN_PLATFORM_VIEW_TAGS_H
#define TESSARIN_PLATFORM_VIEW_TAGS_H

#include <QWidget>

namespace tessarin {

/// Name of the property in the interface file that gives a view its tag. It counts as it stands when the view is
/// first asked for its tag; later only setTagOf() and readTagsAgain() change it.
inline constexpr char kTagProperty[] = "tag";

/// Whether the view is a control (pop-up, slider, button, check box, text field), not a plain view.
bool isControl(const QWidget *view);

/// The view's tag. Until told otherwise a control has 0 and a plain view -1; null gives 0.
qintptr tagOf(const QWidget *view);

/// Gives the view a tag. Null is ignored.
void setTagOf(QWidget *view, qintptr tag);

/// Takes the tags of `root` and all its subviews from their properties, whatever was known of them. For views that
/// may have been asked while they were being made, as a screen reader does.
void readTagsAgain(const QWidget *root);

/// The first view with the tag: `root` itself, then its subviews depth first in their order; null when there is
/// none.
QWidget *viewWithTag(QWidget *root, qintptr tag);

/// A number for the view that fits into a tag; 0 for null. The view stays owned by its parent.
qintptr handleOf(QWidget *view);

/// The view of a number that handleOf() gave; null for any other number and for a view that has gone. A number is
/// never taken for an address.
QWidget *viewForHandle(qintptr handle);

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What assistive technology reads of a panel: captions as names, values as they are shown. Nothing is worked out
// before it asks.

#ifndef TESSARIN_PLATFORM_ACCESSIBLE_VIEWS_H
#define TESSARIN_PLATFORM_ACCESSIBLE_VIEWS_H

#include <QString>
#include <QWidget>

namespace tessarin {

/// The text that is shown beside a slider at a position.
using TextOfPosition = QString (*)(const QWidget *slider, int position);

/// While it lives, the views that are made are those of a panel. Their sliders, pop-ups, level views and boxes of
/// level views are read as a person sees them, and their actions have the effect of a person's; of views elsewhere
/// the toolkit has its own idea. To be there from the start, since the toolkit may keep what it finds a view to be
/// when it is made.
class AccessibleLoading {
public:
    explicit AccessibleLoading(TextOfPosition textOfPosition);
    ~AccessibleLoading();
    AccessibleLoading(const AccessibleLoading &) = delete;
    AccessibleLoading &operator=(const AccessibleLoading &) = delete;

    /// Lets all inside `view` be those of a panel for as long as it lives.
    void keep(QWidget *view);

private:
    TextOfPosition textOfPosition_;
};

/// Tells assistive technology, if there is any, that the view reads differently now.
void announceText(QWidget *view);

/// The caption of a control: its accessible name, else the text of the label that has it as buddy, without colon.
QString captionOf(const QWidget *view);
/// The keys that give a control the focus, as they are read: "Alt+B"; empty when there are none.
QString acceleratorOf(const QWidget *view);

} // namespace tessarin

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A line of text that gives way where there is no room.

#ifndef TESSARIN_HOST_LINE_LABEL_H
#define TESSARIN_HOST_LINE_LABEL_H

#include <QLabel>
#include <QString>

namespace tessarin::host {

/// A line of plain text that is cut with an ellipsis where it does not fit; the whole text is its tool tip then.
class LineLabel final : public QLabel {
    Q_OBJECT

public:
    explicit LineLabel(const QString &text, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The label of the interface file: a label whose mnemonic is no part of its text.

#ifndef TESSARIN_PLATFORM_CAPTION_LABEL_H
#define TESSARIN_PLATFORM_CAPTION_LABEL_H

#include <QLabel>

namespace tessarin {

/// Where a caption ends: before a colon, be it the wide one of Chinese and Japanese.
qsizetype endOfCaption(const QString &text);

/// The control that a label is the caption of: its buddy, or what stands in the place of a hidden one; null when it
/// is no caption.
QWidget *captionedControl(const QLabel &caption);

class CaptionLabel final : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QChar mnemonic READ mnemonic)
    Q_PROPERTY(QString drawnText READ drawnText)

public:
    explicit CaptionLabel(QWidget *parent = nullptr);

    /// Alt and the letter, A to Z, give the captioned control the focus; the letter is underlined where the text
    /// has it, else shown behind the text if there is room. Null: there is none.
    void setMnemonic(QChar letter);
    QChar mnemonic() const { return letter_; }
    /// Whether a letter would be seen behind the text.
    bool hasRoomForLetter() const;
    /// The text as it is drawn, with an "&" before the letter and each other "&" twice.
    QString drawnText() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString textWith(QChar letter) const;
    bool hasRoomFor(const QString &text) const;
    int drawingFlags(const QString &text) const;

    QChar letter_;
    int shortcut_ = 0; ///< the toolkit's number of the keys; 0: there are none
};

} // namespace tessarin

#endif

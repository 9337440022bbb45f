// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Asks for the name of a preset and for what it keeps.

#ifndef TESSARIN_HOST_SAVE_PRESET_DIALOG_H
#define TESSARIN_HOST_SAVE_PRESET_DIALOG_H

#include "host/open_printer.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <QStringList>

#include <memory>

namespace tessarin::host {

/// A name, and a check box for each page whose settings the preset may keep. Save is possible with a name that can
/// be and something to keep; a name that is taken is told and replaces the preset.
class SavePresetDialog final : public QDialog {
    Q_OBJECT

public:
    SavePresetDialog(std::shared_ptr<OpenPrinter> printer, const QStringList &names, QWidget *parent = nullptr);

    QString name() const;
    /// True when a preset of this name is there already.
    bool replaces() const;
    /// What the preset is to keep.
    KeyValues values() const;

private:
    void check();
    void makeRoom();

    std::shared_ptr<OpenPrinter> printer_;
    QStringList names_;
    QLineEdit *name_; ///< owned by this widget, as the following
    QCheckBox *general_;
    QCheckBox *panel_;
    QCheckBox *features_;
    QLabel *problem_;
    QPushButton *save_ = nullptr;
};

} // namespace tessarin::host

#endif

// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The presets of the printer that is open, behind one button.

#ifndef TESSARIN_HOST_PRESET_MENU_H
#define TESSARIN_HOST_PRESET_MENU_H

#include "host/open_printer.h"
#include "printing/cups_queue.h"
#include "settings/preset_store.h"

#include <QMenu>
#include <QPushButton>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace tessarin::host {

/// "Default settings", "Last used", the printer's presets, and what can be done with them: save, rename, delete,
/// make the settings the user's defaults for the queue.
class PresetMenu final : public QPushButton {
    Q_OBJECT

public:
    explicit PresetMenu(QWidget *parent = nullptr);

    /// Opens the presets of a printer. `queue` has an empty name for what is no queue.
    void setPrinter(const QString &identity, const QueueName &queue);
    /// Where saving finds the printer with all its settings up to date.
    void setValuesSource(std::function<std::shared_ptr<OpenPrinter>()> source);
    /// The values of a preset, of the last job for lastUsedName(), none for defaultsName(). The reason of a failure
    /// names the preset.
    Outcome<KeyValues> valuesOf(const QString &name) const;
    QStringList names() const;
    /// Keeps the settings of now as those last used.
    void rememberLastUsed();

    static QString defaultsName();
    static QString lastUsedName();
    /// Why the printer's presets cannot be read; empty when they can.
    QString problem() const { return problem_; }

signals:
    void applyRequested(const QString &name);
    void resetRequested();
    /// Something that the user should know.
    void told(const QString &text);
    /// Something was done that `undo` takes back, as long as this printer is shown.
    void undoOffered(const QString &text, const std::function<void()> &undo);

private:
    void read();
    /// Saves a preset; answers why it could not be.
    QString keep(const Preset &preset, SaveMode mode);
    void fill();
    void save();
    void rename(const QString &name);
    void remove(const QString &name);
    void makeDefaults();
    void report(const QString &failure, const QString &success);

    QMenu *menu_;        ///< owned by this widget
    QString identity_{}; ///< of the printer; empty before there is one
    QueueName queue_{};
    std::optional<PresetStore> store_{};
    QString problem_{}; ///< why there is no store
    bool makingDefaults_ = false;
    std::function<std::shared_ptr<OpenPrinter>()> source_{};
};

} // namespace tessarin::host

#endif

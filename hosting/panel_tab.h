// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// For any Qt application: the panel of printer settings as a tab of the application's own QPrintDialog.
//
//     QPrinter printer;
//     QPrintDialog dialog(&printer);
//     const auto tab = tessarin::PanelTab::addTo(dialog, {.queue = printer.printerName()});
//     if (dialog.exec() == QDialog::Accepted && tab->isOpen()) {
//         for (const auto &[key, value] : tab->options()) { ... the job's options ... }
//     }

#ifndef TESSARIN_HOSTING_PANEL_TAB_H
#define TESSARIN_HOSTING_PANEL_TAB_H

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <utility>

class QPrintDialog;
class QWidget;

namespace tessarin {

/// The printer whose settings are wanted, and where the panel comes from.
struct PanelTabRequest {
    QString queue{};    ///< a queue of the print server; empty: see ppdFile
    QString ppdFile{};  ///< a PPD file, where there is no queue
    QString bundle{};   ///< the panel's bundle; empty: $TESSARIN_BUNDLE, else the one installed with this library
    QString language{}; ///< such as "de"; empty: the environment's
};

/// The panel in a dialog. Keep it for as long as the dialog, and let it go first or last: either is right.
class PanelTab {
public:
    /// Adds the panel to a dialog as its option tab; what the application has set with setOptionTabs() before is
    /// named in `others` to be kept. Asks the print server, which takes some seconds at most. Never null: without a
    /// panel, isOpen() is false, problem() says why, and the dialog is as it was.
    static std::unique_ptr<PanelTab> addTo(QPrintDialog &dialog, const PanelTabRequest &request,
                                           const QList<QWidget *> &others = {});
    ~PanelTab();
    PanelTab(const PanelTab &) = delete;
    PanelTab &operator=(const PanelTab &) = delete;

    bool isOpen() const;
    /// Why there is no panel, for the user; empty when there is one.
    const QString &problem() const;
    /// The panel's title in the user's language.
    QString title() const;
    /// The panel's settings as they stand now, as key and value for the job's options (cupsAddOption() and the
    /// like), in the panel's order.
    QList<std::pair<QString, QString>> options() const;
    /// Sets one of the printer's options from outside, such as one of a preset. False when the printer does not
    /// have it or it cannot be so.
    bool setOption(const QString &key, const QString &value);

private:
    struct Parts;
    explicit PanelTab(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> parts_;
};

} // namespace tessarin

#endif

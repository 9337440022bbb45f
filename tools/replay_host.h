// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The host of a replayed session: it hands out one PPD, accepts every change unless told otherwise, and tells of
// each.

#ifndef TESSARIN_TOOLS_REPLAY_HOST_H
#define TESSARIN_TOOLS_REPLAY_HOST_H

#include "cups/ppd_library.h"
#include "pde/print_dialog_extension.h"

#include <QSet>

#include <functional>

namespace tessarin::tools {

class ReplayHost : public pde::HostCallback, public pde::PrintSession, public pde::Printer {
public:
    /// Told of each change the panel asks for, with the answer.
    using Observer = std::function<void(const QString &key, const QString &choice, bool accepted)>;

    /// Opens the PPD with its defaults marked; one that cannot be opened leaves the host without parsed PPD.
    ReplayHost(QString ppdPath, QString printerID, Observer observer);
    ~ReplayHost() override;

    pde::PrintSession *printSession() override { return this; }
    pde::Printer *PMPrinter() override { return this; }
    ppd_file_s *ppdFile() override { return ppd_; }
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override;
    pde::Printer *currentPrinter() override { return this; }
    std::optional<QString> descriptionPath(const QString &descriptionType) const override;
    std::optional<QString> identifier() const override { return printerID_; }

    /// Marks a choice in the PPD, where it has option and choice.
    void mark(const QString &key, const QString &choice);
    void refuse(const QString &key) { refused_.insert(key); }
    void accept(const QString &key) { refused_.remove(key); }

private:
    QString ppdPath_;
    QString printerID_;
    Observer observer_;
    QSet<QString> refused_;
    ppd_file_t *ppd_ = nullptr; ///< owned
};

} // namespace tessarin::tools

#endif
